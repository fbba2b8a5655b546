#include "plugin/exchange/scale_controls.h"

#include "formats/text/numbers.h"
#include "plugin/exchange/dialog_controls.h"
#include "plugin/resources/resource.h"

namespace orvane {

void FillScales(platform::Dialog& dialog, const ImportScales& scales) {
  dialog.SetText(IDC_OBJECT_SIZE, FormatDouble(static_cast<double>(scales.size)).c_str());
  dialog.SetText(IDC_GLOBAL_SCALE, FormatDouble(scales.scale).c_str());
}

std::string ReadScales(platform::Dialog& dialog, const ImportScales& scales) {
  scales.size = static_cast<float>(ParseDouble(ControlText(dialog, IDC_OBJECT_SIZE)));
  if (scales.size == 0.0F) return "Please choose a non-zero size.";
  scales.scale = ParseDouble(ControlText(dialog, IDC_GLOBAL_SCALE));
  if (scales.scale == 0.0) return "Please choose a non-zero scale factor.";
  return {};
}

}  // namespace orvane
