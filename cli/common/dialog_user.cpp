#include "cli/common/dialog_user.h"

#include <algorithm>

#include "cli/common/failure.h"
#include "plugin/resources/resource.h"

namespace cli {
namespace {

Failure Disabled(const ControlWish& wish, const host::ScriptedDialog& dialog) {
  std::string text = "the dialog has this control disabled";
  if (const auto [radio, way_out] = wish.disabled_by; radio != 0) {
    text += " while \"" + dialog.Text(radio) + "\" is chosen; " + way_out + " enables it";
  }
  return {ExitStatus::kWrongUsage, {{wish.flag, text, ""}}};
}

Failure Missing(const ControlWish& wish, const host::ScriptedDialog& dialog) {
  return {ExitStatus::kWrongUsage,
          {{wish.flag, "the dialog \"" + dialog.Title() + "\" has no such control", ""}}};
}

void CarryOut(const ControlWish& wish, host::ScriptedDialog& dialog) {
  if (!dialog.Has(wish.control)) throw Missing(wish, dialog);
  if (!dialog.IsEnabled(wish.control)) throw Disabled(wish, dialog);
  switch (wish.kind) {
    case ControlWish::Kind::kRadio:
      return dialog.Click(wish.control);
    case ControlWish::Kind::kText:
      return dialog.Type(wish.control, wish.text);
    case ControlWish::Kind::kCheckBox:
      if (dialog.IsChecked(wish.control) != wish.checked) dialog.Click(wish.control);
  }
}

}  // namespace

void UseDialog(host::ScriptedDialog& dialog, std::vector<ControlWish> wishes) {
  std::stable_sort(
      wishes.begin(), wishes.end(),
      [](const ControlWish& left, const ControlWish& right) { return left.kind < right.kind; });
  for (const ControlWish& wish : wishes) CarryOut(wish, dialog);
  dialog.Click(IDC_OK);
  if (!dialog.HasEnded()) dialog.Click(IDC_CANCEL);
}

}  // namespace cli
