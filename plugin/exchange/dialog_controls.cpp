#include "plugin/exchange/dialog_controls.h"

#include <array>

namespace orvane {

void EnableControls(platform::Dialog& dialog, std::initializer_list<int> controls, bool enabled) {
  for (const int control : controls) dialog.SetEnabled(control, enabled);
}

void SelectRadio(platform::Dialog& dialog, int radio, int other_radio) {
  dialog.SetChecked(other_radio, false);
  dialog.SetChecked(radio, true);
}

void ShowChoice(platform::Dialog& dialog, bool chosen, int radio, int other_radio) {
  if (chosen) return SelectRadio(dialog, radio, other_radio);
  SelectRadio(dialog, other_radio, radio);
}

std::string ControlText(platform::Dialog& dialog, int control) {
  std::array<char, 256> buffer{};
  const std::size_t length = dialog.GetText(control, buffer.data(), buffer.size());
  return std::string(buffer.data(), length);
}

}  // namespace orvane
