#pragma once

#include <cstdint>
#include <exception>
#include <string>
#include <variant>
#include <vector>

#include "platform/dialog.h"
#include "plugin/exchange/options.h"
#include "plugin/services/message_sink.h"

// The dialogs in which the user chooses how files are imported and exported: how they fill and
// enable their controls, check what was typed, and keep the options. Each says in a table what is
// its own. Exceptions may not pass through the system's windows; they end the dialog and go on
// behind it.
namespace orvane {

// Two radio buttons that show an option, which is a flag or a number other than 0.
struct RadioPair {
  int first;  // this one alone is asked
  int second;
  std::variant<bool*, std::int32_t*> option;
  bool option_of_first;  // what the first one stands for; the second for its opposite
  // Enables what goes with the chosen one and disables what does not; null where nothing does.
  void (*enable)(platform::Dialog& dialog, bool first_is_chosen) = nullptr;
  bool opens_for_second = false;  // the resources already enable what goes with the second one
};

struct CheckBox {
  int control;
  bool* option;
};

// What is a dialog's own. Texts and options outlive the dialog.
struct OptionsDialogTable {
  int dialog_id;
  // In the order in which they are filled and asked.
  std::vector<RadioPair> radio_pairs;
  std::vector<CheckBox> check_boxes;
  float* size = nullptr;      // of created objects; null where there is no control for it
  bool answers_about = true;  // to IDC_ABOUT, with the about box
  const char* error_title;
  const char* frame_order_title;  // of the refusal of a range that ends before it starts
};

// The effect of "All" and "Range": enables or disables "From" and "To".
void EnableFrameRange(platform::Dialog& dialog, bool all);

class OptionsDialog : public platform::DialogHandler {
 public:
  OptionsDialog(const OptionsDialog&) = delete;
  OptionsDialog& operator=(const OptionsDialog&) = delete;

  // Shows the dialog and waits for the user. Returns whether the options were confirmed; they are
  // stored then. A dialog that cannot be created counts as cancelled. Throws what was thrown while
  // it was shown, which ends the dialog.
  [[nodiscard]] bool Show();

  void Initialize(platform::Dialog& dialog) final;
  void Command(platform::Dialog& dialog, int control) final;

 protected:
  // Edits `options`, whose startFrame and endFrame are the bounds of the range, and those that
  // `table` names; shows refusals through `messages`, stands over the middle of `parent`, and is
  // made of the resources of `module`. References outlive this object.
  OptionsDialog(OptionsDialogTable table, ExchangeOptions& options, MessageSink& messages,
                HWND parent, HINSTANCE module);
  ~OptionsDialog() = default;

 private:
  // The user has used a control that only this dialog answers.
  virtual void AnswerOwn(platform::Dialog& /*dialog*/, int /*control*/) {}

  // Whether the options, each of which is sound, go together. Returns what to tell the user when
  // they do not, an empty text otherwise.
  [[nodiscard]] virtual std::string CheckCombination() const { return {}; }

  void Fill(platform::Dialog& dialog);
  void FillNumbers(platform::Dialog& dialog) const;
  void Answer(platform::Dialog& dialog, int control);
  void Confirm(platform::Dialog& dialog);
  void ReadSwitches(platform::Dialog& dialog);
  [[nodiscard]] std::string ReadFrameRange(platform::Dialog& dialog);
  [[nodiscard]] std::string ReadScales(platform::Dialog& dialog);
  [[nodiscard]] std::string CheckFrameOrder() const;
  void Fail(platform::Dialog& dialog) noexcept;

  OptionsDialogTable table_;
  ExchangeOptions& options_;
  MessageSink& messages_;
  HWND parent_;
  HINSTANCE module_;
  std::exception_ptr failure_;
};

}  // namespace orvane
