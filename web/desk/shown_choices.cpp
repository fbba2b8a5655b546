#include "web/desk/shown_choices.h"

#include "plugin/resources/resource.h"

namespace web {
namespace {

using host::LiveDialog;

void AddWish(LiveDialog& dialog, int control, cli::Wishes& wishes) {
  const host::OpenControl* const shown = dialog.dialog.Find(control);
  if (shown == nullptr) return;
  const host::DialogControl& state = shown->state;
  wishes.push_back({cli::ControlWish::Kind::kText, control, "", state.text, state.checked, {}});
}

bool IsChecked(LiveDialog& dialog, int control) {
  const host::OpenControl* const shown = dialog.dialog.Find(control);
  return shown != nullptr && shown->state.checked;
}

}  // namespace

cli::Wishes WishesFor(LiveDialog& dialog, const std::vector<int>& controls) {
  cli::Wishes wishes;
  for (const int control : controls) AddWish(dialog, control, wishes);
  return wishes;
}

void AddShownRange(LiveDialog& dialog, cli::Wishes& wishes) {
  if (!IsChecked(dialog, IDC_RANGE)) return;
  for (const int control : {IDC_FROM, IDC_TO}) AddWish(dialog, control, wishes);
}

void AddChosen(LiveDialog& dialog, const std::vector<int>& buttons, cli::Wishes& wishes) {
  for (const int button : buttons) {
    if (IsChecked(dialog, button)) AddWish(dialog, button, wishes);
  }
}

}  // namespace web
