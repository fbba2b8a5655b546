#include "host/desktop/portable/custom_edit.h"

#include <optional>

#include "host/desktop/custom_edit.h"
#include "host/desktop/number_text.h"
#include "host/desktop/portable/window.h"

namespace host {

float CustomEdit::GetFloat(bool* valid) {
  const std::optional<float> number = NumberIn(text_);
  if (valid != nullptr) *valid = number.has_value();
  return number.value_or(0.0F);
}

ICustEdit* CustomEditOf(HWND window) { return window == nullptr ? nullptr : window->custom_edit; }

}  // namespace host
