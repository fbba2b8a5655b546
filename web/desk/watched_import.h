#pragma once

#include <optional>
#include <string>

#include "cli/common/file_kind.h"
#include "cli/import/import_flags.h"
#include "cli/import/measured_nodes.h"
#include "cli/import/told_import.h"
#include "host/desktop/portable/live_desktop.h"
#include "host/desktop/settings.h"
#include "host/scene/scene.h"
#include "inspect/report/report.h"

// What the host does around an import by the plug-in, as the program's verb does it: it tells what
// the file makes of the person's choices, and keeps what no key tells, the file's rate and its
// gaps.

namespace web {

class WatchedImport {
 public:
  // REQUIRES: `scene` is as the import finds it; both outlive this.
  WatchedImport(const std::string& path, host::Scene& scene, const host::Settings& settings);

  // Tells what the import would make of the file by the choices that its dialog shows, whenever
  // they have changed since the last time; nothing while it is not open.
  // REQUIRES: the scene stays as it is while the dialog is open.
  void Look(const host::LiveDesktop& desktop);

  // The person has agreed to what the dialog showed last, and nothing is imported yet. Tells the
  // report.
  void Agree();
  [[nodiscard]] bool IsAgreed() const { return is_agreed_; }

  // The plug-in has done its work.
  void Finish();

 private:
  [[nodiscard]] cli::ImportChoices ChoicesIn(host::LiveDialog& dialog) const;
  // Returns why the program would import nothing, as far as the report does not tell that.
  std::string Foresee();

  cli::InputFile file_;
  cli::FileKind kind_;
  host::Scene& scene_;
  const host::Settings& settings_;
  cli::MeasuredNodes measured_;
  std::optional<cli::ImportChoices> choices_;  // nothing before the first look
  orvane::FileReport report_;
  std::optional<cli::ToldImport> told_;
  bool is_agreed_ = false;
};

}  // namespace web
