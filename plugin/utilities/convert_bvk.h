#pragma once

#include <string>

#include "formats/mnm/marker_name_map.h"
#include "formats/trc/document.h"
#include "platform/handles.h"
#include "plugin/services/message_sink.h"
#include "plugin/services/settings_store.h"
#include "plugin/services/string_table.h"
#include "plugin/utilities/panel_command.h"
#include "sdk/core/interface.h"

// Turns marker files (TRC) into the marker files of the host's character animation (BVK). The
// utility panel owns one of these, shows and changes its settings, and starts it.
namespace orvane {

class ConversionRun;

class ConvertBVK final : public PanelCommand {
 public:
  // Opens the key Software\Orvane\OrvaneFileIO\Skelder\ConvertBVK and takes over the settings that
  // are stored there. When it cannot be opened the settings live in memory only. `messages` and
  // `strings` outlive this object; `module` owns the texts of the dialogs.
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

  // Writes `document` as a marker file to `path`, with an offset if the settings say so. An
  // existing file is emptied first. Returns false when it cannot be created.
  bool WriteMarkerFile(const std::string& path);

  // Writes the settings to the registry. Failures are silent.
  void SaveSettings() noexcept;

  // The settings; a new user's to begin with. Paths are UTF-8, and what no file or folder has been
  // chosen for is "<none>".
  std::string mnmPath = "<none>";     // the mapping file
  std::string inputPath = "C:\\";     // the folder in which marker files are looked for
  std::string outputPath = "<none>";  // the folder of the files and the log of a batch
  bool filter = true;                 // rename markers by the mapping and keep only those it knows
  bool batch = false;                 // convert several files
  bool trcName = true;                // name each output after its input instead of asking
  bool trcSpace = true;               // the offset is in the axes of the input, or in the output's
  bool offset = false;                // add the offset
  float offsetX = 0.0F;               // in the unit of the marker file
  float offsetY = 0.0F;
  float offsetZ = 0.0F;

  // The marker names to use instead of those of the files.
  // Intended: nothing empties it between two conversions, and the mapping creator works on it too,
  // so that entries which were there first go first.
  MarkerNameMap mapping;

  // The marker file that is being converted.
  TRCDocument document;

  // The host, while a conversion is at work.
  Interface* interface = nullptr;

 private:
  void LoadSettings();

  MessageSink& messages_;
  StringTable& strings_;
  HINSTANCE module_;
  SettingsStore store_;
  ConversionRun* run_ = nullptr;  // the one that is at work
};

}  // namespace orvane
