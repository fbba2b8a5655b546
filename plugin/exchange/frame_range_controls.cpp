#include "plugin/exchange/frame_range_controls.h"

#include "formats/text/numbers.h"
#include "plugin/exchange/dialog_controls.h"
#include "plugin/resources/resource.h"

namespace orvane {

void FillFrameRange(platform::Dialog& dialog, const FrameRange& range) {
  dialog.SetText(IDC_FROM, FormatInt(range.start).c_str());
  dialog.SetText(IDC_TO, FormatInt(range.end).c_str());
  dialog.SetText(IDC_OFFSET, FormatInt(range.offset).c_str());
}

void EnableFrameRange(platform::Dialog& dialog, bool enabled) {
  EnableControls(dialog, {IDC_FROM, IDC_TO}, enabled);
}

std::string ReadFrameRange(platform::Dialog& dialog, const FrameRange& range) {
  const std::int32_t from = ParseInt(ControlText(dialog, IDC_FROM));
  if (from < range.start) {
    const std::string bound = FormatInt(range.start);
    dialog.SetText(IDC_FROM, bound.c_str());
    return "Please choose a start frame equal to or greater than " + bound + ".";
  }
  range.start = from;

  const std::int32_t to = ParseInt(ControlText(dialog, IDC_TO));
  if (to > range.end) {
    const std::string bound = FormatInt(range.end);
    dialog.SetText(IDC_TO, bound.c_str());
    return "Please choose an end frame less than or equal to " + bound + ".";
  }
  range.end = to;

  range.offset = ParseInt(ControlText(dialog, IDC_OFFSET));
  return {};
}

std::string CheckFrameOrder(const FrameRange& range) {
  if (range.end >= range.start) return {};
  return "Please choose a start frame that is less than the end frame.";
}

}  // namespace orvane
