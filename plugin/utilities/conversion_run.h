#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "formats/mnm/marker_name_map.h"
#include "formats/trc/document.h"
#include "platform/file_dialog.h"
#include "platform/handles.h"
#include "plugin/services/message_sink.h"
#include "plugin/services/string_table.h"
#include "plugin/utilities/batch_log.h"
#include "plugin/utilities/convert_bvk_settings.h"
#include "sdk/core/interface.h"

// One conversion, from the user's choice of files to the last of them.
namespace orvane {

// What a conversion works with. All of it outlives the run.
struct ConversionParts {
  ConvertBVKSettings& settings;  // of which the input folder follows the files of a batch
  MarkerNameMap& mapping;        // gets the entries of the mapping file, behind those there are
  TRCDocument& document;         // the file that is being converted
  MessageSink& messages;
  StringTable& strings;
  HINSTANCE module;  // owner of the texts
};

class ConversionRun {
 public:
  // `host` need not outlive the run once that has ended.
  ConversionRun(const ConversionParts& parts, Interface& host) : parts_(parts), host_(&host) {}

  // Lets the user choose the files and converts them. Returns whether all of them were handled,
  // even those that the reader refused; false when that was abandoned.
  [[nodiscard]] bool Run() noexcept;

  // Closes the progress bar and lets go of the host, in the middle of Run. The file that is being
  // converted is not written.
  void End() noexcept;

 private:
  // Of one file. After a refusal no other file follows, but the run is not abandoned.
  enum class Outcome { kDone, kRefused, kAbandoned };

  [[nodiscard]] bool Work();
  [[nodiscard]] bool ChooseSources();
  [[nodiscard]] bool OpenLog();
  [[nodiscard]] bool OpenBar();
  [[nodiscard]] bool ConvertFiles();
  [[nodiscard]] bool UserGoesOn();
  [[nodiscard]] Outcome ConvertFile(const std::string& source);
  [[nodiscard]] bool ReadSource(const std::string& source);
  void ApplyMapping();
  [[nodiscard]] std::optional<std::string> OutputFor(const std::string& source);
  [[nodiscard]] std::optional<std::string> ChooseOutput();
  std::string InOutputFolder(const std::string& name) const;
  [[nodiscard]] bool ShowFileDialog(platform::FileDialog& dialog, unsigned filter_name,
                                    std::string& buffer, std::size_t& name_offset);
  [[nodiscard]] bool ShowPercent(int percent);
  void EndProgress();

  ConversionParts parts_;

  // Null once the run has been ended, which may happen in the middle of any call of the host and
  // while a dialog is shown.
  Interface* host_;
  bool bar_is_open_ = false;

  std::vector<std::string> sources_;
  std::optional<BatchLog> log_;  // of a batch
};

}  // namespace orvane
