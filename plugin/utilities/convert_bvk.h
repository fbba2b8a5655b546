#pragma once

#include <string>

#include "formats/mnm/marker_name_map.h"
#include "formats/trc/document.h"
#include "platform/handles.h"
#include "plugin/services/message_sink.h"
#include "plugin/services/string_table.h"
#include "plugin/utilities/convert_bvk_settings.h"
#include "plugin/utilities/panel_command.h"
#include "sdk/core/interface.h"

// Turns marker files (TRC) into the marker files of the host's character animation (BVK). The
// utility panel owns one of these, shows and changes its settings, and starts it.
namespace orvane {

class ConversionRun;

class ConvertBVK final : public PanelCommand, public ConvertBVKSettings {
 public:
  // Takes over the settings that are stored. `messages` and `strings` outlive this object; `module`
  // owns the texts of the dialogs.
  ConvertBVK(MessageSink& messages, StringTable& strings, HINSTANCE module);
  ConvertBVK(const ConvertBVK&) = delete;
  ConvertBVK& operator=(const ConvertBVK&) = delete;
  // Saves the settings.
  ~ConvertBVK();

  // Lets the user choose a file, or several when `batch` is set, and converts them by the settings.
  // Returns true when all chosen files were handled, even those that the reader refused, and false
  // when that was abandoned: the mapping file cannot be opened, the user cancelled, the log or an
  // output cannot be created, memory ran out, End was called, or `host` is null. Only refusals, the
  // log and the want of memory are reported, the first of them in the log of a batch.
  // docs/formats/bvk.md tells the details.
  bool Convert(Interface* host);

  // Closes the progress bar. The file that is being converted is not written.
  void End() noexcept override;

  // Writes `document` by the settings as a marker file to `path`. An existing file is emptied
  // first. Returns false when it cannot be created.
  [[nodiscard]] bool WriteMarkerFile(const std::string& path);

  // Saves the settings, as far as there is memory for it.
  void SaveSettings() noexcept;

  // The marker names to use instead of those of the files.
  // Intended: nothing empties it between two conversions, and the mapping creator works on it too,
  // so that entries which were there first go first.
  MarkerNameMap mapping;

  // The marker file that is being converted.
  TRCDocument document;

  // The host, while a conversion is at work.
  Interface* interface = nullptr;

 private:
  MessageSink& messages_;
  StringTable& strings_;
  HINSTANCE module_;
  ConversionRun* run_ = nullptr;  // the one that is at work
};

}  // namespace orvane
