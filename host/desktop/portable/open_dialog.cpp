#include "host/desktop/portable/open_dialog.h"

#include <algorithm>
#include <cassert>
#include <cstring>
#include <iterator>
#include <utility>

#include "host/base/letter_case.h"

namespace host {
namespace {

OpenControl Build(const platform::ControlTemplate& control) {
  const bool is_edit = control.kind == platform::ControlKind::kEdit;
  DialogControl built;
  built.id = control.id;
  built.kind = control.kind;
  built.text = control.text;
  built.read_only = is_edit && (control.style & platform::kStyleReadOnly) != 0;
  built.enabled = (control.style & platform::kStyleDisabled) == 0;
  return {std::move(built), {}};
}

}  // namespace

OpenDialog::OpenDialog(const platform::DialogTemplate& dialog, HWND parent, bool modal)
    : title_(dialog.title), modal_(modal) {
  window_.parent = parent;
  std::transform(dialog.controls.begin(), dialog.controls.end(), std::back_inserter(controls_),
                 Build);
  for (std::size_t i = 0; i < controls_.size(); ++i) {
    OpenControl& control = controls_[i];
    control.window.parent = &window_;
    // Names of window classes have no case, and the resource compiler uses that.
    if (!SameButForCase(dialog.controls[i].window_class, kCustomEditClass)) continue;
    control.window.custom_edit = &custom_edits_.emplace_back(control.state.text);
  }
}

HWND OpenDialog::Window() { return &window_; }

HWND OpenDialog::ControlWindow(int control) {
  OpenControl* const found = Find(control);
  return found == nullptr ? nullptr : &found->window;
}

void OpenDialog::SetText(int control, const char* text) {
  if (OpenControl* const found = Find(control)) found->state.text = text;
}

std::size_t OpenDialog::GetText(int control, char* buffer, std::size_t size) {
  assert(buffer != nullptr && size > 0);
  const OpenControl* const found = Find(control);
  const std::size_t length = found == nullptr ? 0 : std::min(found->state.text.size(), size - 1);
  if (length > 0) std::memcpy(buffer, found->state.text.data(), length);
  buffer[length] = '\0';
  return length;
}

void OpenDialog::SetChecked(int control, bool checked) {
  if (OpenControl* const found = Find(control)) found->state.checked = checked;
}

bool OpenDialog::IsChecked(int control) {
  const OpenControl* const found = Find(control);
  return found != nullptr && found->state.checked;
}

void OpenDialog::SetEnabled(int control, bool enabled) {
  if (OpenControl* const found = Find(control)) found->state.enabled = enabled;
}

void OpenDialog::End(int result) {
  if (!modal_) return;
  ended_ = true;
  result_ = result;
}

OpenControl* OpenDialog::Find(int id) {
  const auto found =
      std::find_if(controls_.begin(), controls_.end(),
                   [id](const OpenControl& control) { return control.state.id == id; });
  return found == controls_.end() ? nullptr : &*found;
}

}  // namespace host
