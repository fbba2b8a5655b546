#include "formats/edit/lengths.h"

#include <array>
#include <cassert>
#include <cmath>

namespace orvane {
namespace {

constexpr std::array kMillimetersPerUnit = {1.0, 10.0, 1000.0, 25.4, 304.8, 914.4};

// A number that is multiplied by as much as a unit holds of another. Where that is one over a whole
// number, it is divided by that, which rounds once.
class Conversion {
 public:
  Conversion(std::uint32_t from, std::uint32_t to) {
    assert(from < kMillimetersPerUnit.size() && to < kMillimetersPerUnit.size());
    const double factor = kMillimetersPerUnit[from] / kMillimetersPerUnit[to];
    const double divisor = kMillimetersPerUnit[to] / kMillimetersPerUnit[from];
    is_division_ = divisor > 1.0 && divisor == std::floor(divisor);
    number_ = is_division_ ? divisor : factor;
  }

  double operator()(double length) const {
    return is_division_ ? length / number_ : length * number_;
  }

 private:
  bool is_division_ = false;
  double number_ = 1.0;
};

void Convert(HtrSegment& segment, const Conversion& converted) {
  const Vector3 base = segment.GetBaseTranslation();
  segment.SetBaseTranslation(converted(base.x()), converted(base.y()), converted(base.z()));
  segment.SetBoneLength(converted(segment.GetBoneLength()));
  for (std::size_t frame = 0; frame < segment.GetNumFrames(); ++frame) {
    const Vector3 offset = segment.GetFrameTranslation(frame);
    (void)segment.SetFrameTranslation(frame, converted(offset.x()), converted(offset.y()),
                                      converted(offset.z()));
  }
}

void Convert(TRCMarker& marker, const Conversion& converted) {
  for (std::size_t frame = 0; frame < marker.SampleCount(); ++frame) {
    double x = 0.0;
    double y = 0.0;
    double z = 0.0;
    if (!marker.GetSample(frame, x, y, z)) continue;
    (void)marker.SetSample(frame, converted(x), converted(y), converted(z));
  }
}

}  // namespace

void ConvertLengths(HtrDocument& document, std::uint32_t code) {
  if (code == document.GetCalibrationUnits()) return;
  const Conversion converted(document.GetCalibrationUnits(), code);
  for (HtrSegment& segment : document.segments()) Convert(segment, converted);
  document.SetCalibrationUnits(code);
}

void ConvertLengths(TRCDocument& document, std::uint32_t code) {
  const auto unit = static_cast<std::uint32_t>(document.Units());
  if (code == unit) return;
  const Conversion converted(unit, code);
  for (TRCMarker& marker : document.markers()) Convert(marker, converted);
  document.SetUnits(static_cast<std::int32_t>(code));
}

}  // namespace orvane
