#pragma once

#include <optional>
#include <string>

#include "cli/common/file_kind.h"
#include "cli/import/import_flags.h"
#include "cli/import/measured_nodes.h"
#include "cli/import/told_import.h"
#include "host/desktop/settings.h"
#include "host/scene/scene.h"

// What the host does around an import by the plug-in, as the program's verb does it: it tells what
// the file makes of the person's choices, and keeps what no key tells, the file's rate and its
// gaps.

namespace web {

class WatchedImport {
 public:
  // REQUIRES: `scene` is as the import finds it; both outlive this.
  WatchedImport(const std::string& path, host::Scene& scene, const host::Settings& settings);

  // The person has agreed to what the dialog has stored in the settings, and nothing is imported
  // yet. Tells the report.
  void Agree();
  [[nodiscard]] bool IsAgreed() const { return is_agreed_; }

  // The plug-in has done its work.
  void Finish();

 private:
  cli::InputFile file_;
  cli::FileKind kind_;
  host::Scene& scene_;
  const host::Settings& settings_;
  cli::MeasuredNodes measured_;
  cli::ImportChoices choices_;
  std::optional<cli::ToldImport> told_;
  bool is_agreed_ = false;
};

}  // namespace web
