#include "plugin/exchange/options_dialog.h"

#include <type_traits>
#include <utility>

#include "formats/text/numbers.h"
#include "plugin/exchange/attempt.h"
#include "plugin/exchange/dialog_controls.h"
#include "plugin/resources/resource.h"
#include "plugin/services/about_dialog.h"
#include "sdk/skelderutil/window.h"

namespace orvane {
namespace {

// How the dialog ends.
constexpr int kCanceled = 0;
constexpr int kConfirmed = 1;

bool FirstIsChosen(const RadioPair& pair) {
  const bool option = std::visit([](const auto* field) { return *field != 0; }, pair.option);
  return option == pair.option_of_first;
}

void Choose(const RadioPair& pair, bool first) {
  const bool option = first == pair.option_of_first;
  std::visit([option](auto* field) { *field = option; }, pair.option);
}

void ShowText(platform::Dialog& dialog, int control, const std::string& text) {
  dialog.SetText(control, text.c_str());
}

}  // namespace

void EnableFrameRange(platform::Dialog& dialog, bool all) {
  EnableControls(dialog, {IDC_FROM, IDC_TO}, !all);
}

OptionsDialog::OptionsDialog(OptionsDialogTable table, ExchangeOptions& options,
                             MessageSink& messages, HWND parent, HINSTANCE module)
    : table_(std::move(table)),
      options_(options),
      messages_(messages),
      parent_(parent),
      module_(module) {}

bool OptionsDialog::Show() {
  const int result = platform::RunModalDialog(module_, table_.dialog_id, parent_, *this);
  if (failure_ != nullptr) std::rethrow_exception(std::exchange(failure_, nullptr));
  return result == kConfirmed;
}

void OptionsDialog::Initialize(platform::Dialog& dialog) {
  try {
    CenterWindow(dialog.Window(), parent_);
    Fill(dialog);
  } catch (...) {
    Fail(dialog);
  }
}

void OptionsDialog::Command(platform::Dialog& dialog, int control) {
  try {
    Answer(dialog, control);
  } catch (...) {
    Fail(dialog);
  }
}

// Keeps the exception that is being handled, and ends the dialog.
void OptionsDialog::Fail(platform::Dialog& dialog) noexcept {
  failure_ = std::current_exception();
  Attempt([&dialog] { dialog.End(kCanceled); });
}

void OptionsDialog::Fill(platform::Dialog& dialog) {
  options_.Load();
  for (const RadioPair& pair : table_.radio_pairs) {
    const bool first = FirstIsChosen(pair);
    ShowChoice(dialog, first, pair.first, pair.second);
    const bool is_ready = !first && pair.opens_for_second;
    if (pair.enable != nullptr && !is_ready) pair.enable(dialog, first);
  }
  for (const CheckBox& box : table_.check_boxes) dialog.SetChecked(box.control, *box.option);
  FillNumbers(dialog);
}

void OptionsDialog::FillNumbers(platform::Dialog& dialog) const {
  ShowText(dialog, IDC_FROM, FormatInt(options_.startFrame));
  ShowText(dialog, IDC_TO, FormatInt(options_.endFrame));
  ShowText(dialog, IDC_OFFSET, FormatInt(options_.frameOffset));
  if (table_.size != nullptr) {
    ShowText(dialog, IDC_OBJECT_SIZE, FormatDouble(static_cast<double>(*table_.size)));
  }
  ShowText(dialog, IDC_GLOBAL_SCALE, FormatDouble(options_.scaleFactor));
}

void OptionsDialog::Answer(platform::Dialog& dialog, int control) {
  if (control == IDC_OK) return Confirm(dialog);
  if (control == IDC_CANCEL) return dialog.End(kCanceled);
  if (control == IDC_ABOUT && table_.answers_about) {
    return ShowAboutDialog(module_, dialog.Window());
  }
  for (const RadioPair& pair : table_.radio_pairs) {
    if (control != pair.first && control != pair.second) continue;
    ShowChoice(dialog, control == pair.first, pair.first, pair.second);
    if (pair.enable != nullptr) pair.enable(dialog, control == pair.first);
  }
  AnswerOwn(dialog, control);
}

void OptionsDialog::Confirm(platform::Dialog& dialog) {
  ReadSwitches(dialog);
  std::string refusal = ReadFrameRange(dialog);
  if (refusal.empty()) refusal = ReadScales(dialog);
  if (!refusal.empty()) return messages_.Report(refusal.c_str(), table_.error_title);
  refusal = CheckFrameOrder();
  if (!refusal.empty()) return messages_.Report(refusal.c_str(), table_.frame_order_title);
  refusal = CheckCombination();
  if (!refusal.empty()) return messages_.Report(refusal.c_str(), table_.error_title);
  options_.Save();
  dialog.End(kConfirmed);
}

void OptionsDialog::ReadSwitches(platform::Dialog& dialog) {
  for (const RadioPair& pair : table_.radio_pairs) Choose(pair, dialog.IsChecked(pair.first));
  for (const CheckBox& box : table_.check_boxes) *box.option = dialog.IsChecked(box.control);
}

// Takes over the frame numbers, one after the other. A frame beyond its bound is put back and ends
// it. Returns what to tell the user then, an empty text otherwise.
// Intended: a frame that is accepted is the bound of the next attempt, even when a later check
// refuses this one; the range only ever narrows while the dialog is open.
std::string OptionsDialog::ReadFrameRange(platform::Dialog& dialog) {
  const std::int32_t from = ParseInt(ControlText(dialog, IDC_FROM));
  if (from < options_.startFrame) {
    const std::string bound = FormatInt(options_.startFrame);
    ShowText(dialog, IDC_FROM, bound);
    return "Please choose a start frame equal to or greater than " + bound + ".";
  }
  options_.startFrame = from;

  const std::int32_t to = ParseInt(ControlText(dialog, IDC_TO));
  if (to > options_.endFrame) {
    const std::string bound = FormatInt(options_.endFrame);
    ShowText(dialog, IDC_TO, bound);
    return "Please choose an end frame less than or equal to " + bound + ".";
  }
  options_.endFrame = to;

  options_.frameOffset = ParseInt(ControlText(dialog, IDC_OFFSET));
  return {};
}

// As ReadFrameRange, with one that is 0.
std::string OptionsDialog::ReadScales(platform::Dialog& dialog) {
  if (table_.size != nullptr) {
    *table_.size = static_cast<float>(ParseDouble(ControlText(dialog, IDC_OBJECT_SIZE)));
    if (*table_.size == 0.0F) return "Please choose a non-zero size.";
  }
  options_.scaleFactor = ParseDouble(ControlText(dialog, IDC_GLOBAL_SCALE));
  if (options_.scaleFactor == 0.0) return "Please choose a non-zero scale factor.";
  return {};
}

// Intended: equal frames pass, whatever the words say.
std::string OptionsDialog::CheckFrameOrder() const {
  if (options_.endFrame >= options_.startFrame) return {};
  return "Please choose a start frame that is less than the end frame.";
}

}  // namespace orvane
