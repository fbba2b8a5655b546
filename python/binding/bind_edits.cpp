#include <nanobind/nanobind.h>
#include <nanobind/stl/pair.h>
#include <nanobind/stl/string.h>
#include <nanobind/stl/unique_ptr.h>
#include <nanobind/stl/vector.h>

#include <cstdint>
#include <map>
#include <memory>
#include <set>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "formats/edit/frame_cut.h"
#include "formats/edit/lengths.h"
#include "formats/edit/renaming.h"
#include "formats/edit/resampling.h"
#include "formats/edit/selection.h"
#include "formats/edit/up_axis.h"
#include "python/binding/bindings.h"
#include "python/binding/marker_take.h"
#include "python/binding/motion_take.h"
#include "python/binding/text.h"
#include "python/binding/unit.h"

namespace nb = nanobind;

namespace binding {
namespace {

using orvane::HtrDocument;
using orvane::TRCDocument;

using Names = std::set<std::string>;

void Select(const TRCDocument& source, const Names& names, TRCDocument& target) {
  SelectMarkers(source, names, target);
}
void Select(const HtrDocument& source, const Names& names, HtrDocument& target) {
  SelectSegments(source, names, target);
}

Names AllNames(const TRCDocument& document) {
  Names names;
  for (const orvane::TRCMarker& marker : document.markers()) names.insert(marker.Name());
  return names;
}
Names AllNames(const HtrDocument& document) {
  Names names;
  for (const orvane::HtrSegment& segment : document.segments()) names.insert(segment.GetName());
  return names;
}

void SetRate(std::int32_t rate, TRCDocument& document) { document.SetDataRate(rate); }
void SetRate(std::int32_t rate, HtrDocument& document) { document.SetDataFrameRate(rate); }

// A new take, whose empty document `make` fills of that of `take`.
template <typename Take, typename Make>
std::unique_ptr<Take> Made(const Take& take, const Make& make) {
  const nb::gil_scoped_release unlocked;
  auto made = std::make_unique<Take>();
  made->reading().rate = take.reading().rate;
  made->reading().first_time = take.reading().first_time;
  make(take.document(), made->document());
  made->Settle("<edited>");
  return made;
}

// A copy of `take` whose document `change` changes.
template <typename Take, typename Change>
std::unique_ptr<Take> Changed(const Take& take, const Change& change) {
  return Made(take, [&change](const auto& source, auto& target) {
    Select(source, AllNames(source), target);
    change(target);
  });
}

template <typename Take>
std::unique_ptr<Take> Cut(const Take& take, std::size_t begin, std::size_t end, double first_time) {
  if (begin >= end) throw std::invalid_argument("there are no such frames");
  auto made = Made(take, [begin, end](const auto& source, auto& target) {
    CutFrames(source, begin, end, target);
  });
  made->reading().first_time = first_time;
  return made;
}

template <typename Take>
std::unique_ptr<Take> Selected(const Take& take, const std::vector<nb::str>& texts) {
  Names names;
  for (const nb::str& text : texts) names.insert(BytesOf(text));
  return Made(take, [&names](const auto& source, auto& target) { Select(source, names, target); });
}

template <typename Take>
std::unique_ptr<Take> Renamed(const Take& take,
                              const std::vector<std::pair<nb::str, nb::str>>& texts) {
  std::map<std::string, std::string> names;
  for (const auto& [from, to] : texts) {
    names.emplace(BytesOf(from), BytesOf(to));
  }
  return Changed(take, [&names](auto& document) {
    const std::string why = Rename(document, names);
    if (!why.empty()) throw std::invalid_argument(why);
  });
}

template <typename Take>
std::unique_ptr<Take> Converted(const Take& take, const std::string& unit) {
  const std::uint32_t code = UnitCode(unit);
  return Changed(take, [code](auto& document) { ConvertLengths(document, code); });
}

template <typename Take>
std::unique_ptr<Take> TurnedZUp(const Take& take) {
  return Changed(take, [](auto& document) { TurnZUp(document); });
}

// `step` frames of the take lie between two of the new one, which has `rate`: both are fractions.
using Fraction = std::pair<std::int64_t, std::int64_t>;

std::unique_ptr<MarkerTake> ResampledMarkers(const MarkerTake& take, const Fraction& step,
                                             const Fraction& rate) {
  auto made = Made(take, [&step](const TRCDocument& source, TRCDocument& target) {
    Resample(source, {step.first, step.second}, target);
  });
  made->reading().rate = orvane::FrameRate{rate.first, rate.second};
  SetRate(static_cast<std::int32_t>(rate.first / rate.second), made->document());
  return made;
}

std::unique_ptr<MotionTake> ResampledMotion(const MotionTake& take, const Fraction& step,
                                            const Fraction& rate, bool by_slerp) {
  const auto path = by_slerp ? orvane::RotationPath::kSlerp : orvane::RotationPath::kLinear;
  auto made = Made(take, [&step, path](const HtrDocument& source, HtrDocument& target) {
    Resample(source, {step.first, step.second}, path, target);
  });
  made->reading().rate = orvane::FrameRate{rate.first, rate.second};
  SetRate(static_cast<std::int32_t>(rate.first / rate.second), made->document());
  return made;
}

template <typename Take>
void BindEditsOf(nb::module_& module) {
  module.def("cut", Cut<Take>, nb::arg("take"), nb::arg("begin"), nb::arg("end"),
             nb::arg("first_time"));
  module.def("select", Selected<Take>, nb::arg("take"), nb::arg("names"));
  module.def("rename", Renamed<Take>, nb::arg("take"), nb::arg("names"));
  module.def("convert_lengths", Converted<Take>, nb::arg("take"), nb::arg("unit"));
  module.def("turn_z_up", TurnedZUp<Take>, nb::arg("take"));
}

}  // namespace

void BindEdits(nb::module_& module) {
  BindEditsOf<MarkerTake>(module);
  BindEditsOf<MotionTake>(module);
  module.def("resample_markers", ResampledMarkers, nb::arg("take"), nb::arg("step"),
             nb::arg("rate"));
  module.def("resample_motion", ResampledMotion, nb::arg("take"), nb::arg("step"), nb::arg("rate"),
             nb::arg("by_slerp"));
}

}  // namespace binding
