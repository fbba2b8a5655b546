#include <nanobind/nanobind.h>
#include <nanobind/ndarray.h>
#include <nanobind/stl/optional.h>
#include <nanobind/stl/pair.h>
#include <nanobind/stl/string.h>
#include <nanobind/stl/unique_ptr.h>
#include <nanobind/stl/vector.h>

#include <cmath>
#include <memory>
#include <stdexcept>
#include <vector>

#include "formats/edit/lengths.h"
#include "python/binding/arrays.h"
#include "python/binding/bindings.h"
#include "python/binding/common_members.h"
#include "python/binding/marker_take.h"
#include "python/binding/text.h"
#include "python/binding/unit.h"

namespace nb = nanobind;

namespace binding {
namespace {

using orvane::TRCDocument;
using orvane::TRCMarker;

using Points = nb::ndarray<const double, nb::shape<-1, -1, 3>, nb::c_contig, nb::device::cpu>;
using Gap = std::pair<std::size_t, std::size_t>;

std::unique_ptr<MarkerTake> ReadMarkers(const nb::bytes& name, const std::optional<nb::bytes>& data,
                                        bool check, const std::optional<std::string>& unit) {
  const Input input = InputOf(name, data);
  const std::optional<std::uint32_t> code = unit ? std::optional(UnitCode(*unit)) : std::nullopt;
  const nb::gil_scoped_release unlocked;
  auto take = std::make_unique<MarkerTake>();
  take->reading() = Read(input, check, take->document());
  if (code) ConvertLengths(take->document(), *code);
  take->Settle(input.Name());
  return take;
}

TextList NamesOf(const MarkerTake& take) {
  TextList names;
  for (const TRCMarker& marker : take.document().markers()) names.append(TextOf(marker.Name()));
  return names;
}

// Those of each marker: from the first sample up to and without the second.
std::vector<std::vector<Gap>> GapsOf(const MarkerTake& take) {
  std::vector<std::vector<Gap>> all;
  all.reserve(take.document().MarkerCount());
  for (const std::vector<TRCMarker::Gap>& own : take.document().Gaps()) {
    std::vector<Gap>& gaps = all.emplace_back();
    gaps.reserve(own.size());
    for (const TRCMarker::Gap& gap : own) gaps.emplace_back(gap.begin, gap.end);
  }
  return all;
}

VectorView PointsOf(const nb::object& self) {
  const orvane::TRCPointsView& points = nb::cast<const MarkerTake&>(self).Points();
  return ViewVectors(points.points, {points.frames, points.frame_stride},
                     {points.markers, points.marker_stride}, self);
}

bool IsGap(const double* point) {
  const int missing = std::isnan(point[0]) + std::isnan(point[1]) + std::isnan(point[2]);
  if (missing == 3) return true;
  if (std::isfinite(point[0]) && std::isfinite(point[1]) && std::isfinite(point[2])) return false;
  throw std::invalid_argument("points are finite, or NaN in all three coordinates");
}

void AddMarker(const std::string& name, std::size_t index, const Points& points,
               TRCDocument& document) {
  TRCMarker* const marker = document.AddMarker(TRCMarker(name));
  if (marker == nullptr) throw std::invalid_argument("two markers have the name \"" + name + '"');
  const std::size_t stride = points.shape(1) * 3;
  const double* point = points.data() + index * 3;
  for (std::size_t frame = 0; frame < points.shape(0); ++frame, point += stride) {
    if (IsGap(point)) {
      marker->AppendDropout();
    } else {
      marker->AppendPosition(point[0], point[1], point[2]);
    }
  }
}

std::unique_ptr<MarkerTake> MakeMarkers(const Points& points, const std::vector<nb::str>& names,
                                        const std::string& unit, const Rate& rate,
                                        std::int32_t first_frame) {
  if (names.size() != points.shape(1)) {
    throw std::invalid_argument("names are as many as points has markers");
  }
  auto take = std::make_unique<MarkerTake>();
  TRCDocument& document = take->document();
  document.SetUnits(static_cast<std::int32_t>(UnitCode(unit)));
  document.SetDataRate(static_cast<std::int32_t>(rate.first / rate.second));
  document.SetCameraRate(document.DataRate());
  document.SetNumFrames(static_cast<std::int32_t>(points.shape(0)));
  document.SetFirstFrame(first_frame);
  take->reading().rate = orvane::FrameRate{rate.first, rate.second};
  for (std::size_t index = 0; index < names.size(); ++index) {
    AddMarker(BytesOf(names[index]), index, points, document);
  }
  take->Settle("<points>");
  return take;
}

}  // namespace

void BindMarkers(nb::module_& module) {
  nb::class_<MarkerTake>(module, "Markers")
      .def_prop_ro("names", NamesOf)
      .def_prop_ro("points", PointsOf)
      .def_prop_ro("gaps", GapsOf)
      .def_prop_ro("frame_count",
                   [](const MarkerTake& take) { return FrameCountOf(take.document()); })
      .def_prop_ro("frames_announced",
                   [](const MarkerTake& take) { return take.document().NumFrames(); })
      .def_prop_ro("first_frame",
                   [](const MarkerTake& take) { return take.document().FirstFrame(); })
      .def_prop_ro("first_time", [](const MarkerTake& take) { return take.reading().first_time; })
      .def_prop_ro("rate", [](const MarkerTake& take) { return RateOf(take.reading()); })
      .def_prop_ro("rate_taken", [](const MarkerTake& take) { return take.document().DataRate(); })
      .def_prop_ro("camera_rate",
                   [](const MarkerTake& take) { return take.document().CameraRate(); })
      .def_prop_ro("unit",
                   [](const MarkerTake& take) {
                     return UnitOf(static_cast<std::uint32_t>(take.document().Units()));
                   })
      .def_prop_ro("findings", [](const MarkerTake& take) { return FindingsOf(take.reading()); })
      .def("set_times", SetTimes<MarkerTake>, nb::arg("rate").none(), nb::arg("first_time"));
  module.def("read_markers", ReadMarkers, nb::arg("name"), nb::arg("data").none(), nb::arg("check"),
             nb::arg("unit").none());
  module.def("make_markers", MakeMarkers, nb::arg("points"), nb::arg("names"), nb::arg("unit"),
             nb::arg("rate"), nb::arg("first_frame"));
}

}  // namespace binding
