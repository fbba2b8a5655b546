#pragma once

#include <cstdint>
#include <string>

#include "platform/dialog.h"
#include "plugin/exchange/frame_range_controls.h"
#include "plugin/exchange/options_dialog.h"
#include "plugin/exchange/scale_controls.h"
#include "plugin/import_htr/options.h"
#include "plugin/services/message_sink.h"

// The dialog in which the user chooses how a motion file is imported: fills and enables its
// controls, checks what was typed, and keeps the options.
namespace orvane {

class ImportHTROptionsDialog final : public OptionsDialog {
 public:
  // Edits `options`, whose startFrame and endFrame are the bounds of the range; shows refusals
  // through `messages`, centres the dialog over `parent`, and takes the about box from `module`.
  // References must outlive this object.
  ImportHTROptionsDialog(ImportHTROptions& options, MessageSink& messages, HWND parent,
                         HINSTANCE module);

 private:
  void Fill(platform::Dialog& dialog) override;
  void Answer(platform::Dialog& dialog, int control) override;

  FrameRange Range() const {
    return {options_.startFrame, options_.endFrame, options_.frameOffset};
  }
  ImportScales Scales() const { return {options_.size, options_.scaleFactor}; }
  void FillSwitches(platform::Dialog& dialog) const;
  void FillNumbers(platform::Dialog& dialog) const;
  void Confirm(platform::Dialog& dialog);

  // The checks of Confirm, each of which takes over what it accepts. An empty text is success.
  void ReadSwitches(platform::Dialog& dialog);
  std::string CheckCombination() const;

  ImportHTROptions& options_;
  MessageSink& messages_;
};

}  // namespace orvane
