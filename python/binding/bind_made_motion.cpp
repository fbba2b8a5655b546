#include <nanobind/nanobind.h>
#include <nanobind/ndarray.h>
#include <nanobind/stl/pair.h>
#include <nanobind/stl/string.h>
#include <nanobind/stl/unique_ptr.h>
#include <nanobind/stl/vector.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "formats/edit/renaming.h"
#include "formats/pose/hierarchy.h"
#include "python/binding/bindings.h"
#include "python/binding/common_members.h"
#include "python/binding/motion_take.h"
#include "python/binding/text.h"
#include "python/binding/unit.h"

namespace nb = nanobind;

namespace binding {
namespace {

using orvane::HtrDocument;
using orvane::HtrSegment;

// Translation, angles and bone length of each segment.
using Bases = nb::ndarray<const double, nb::shape<-1, 7>, nb::c_contig, nb::device::cpu>;
// Translation, angles and scale of each frame and segment.
using Values = nb::ndarray<const double, nb::shape<-1, -1, 7>, nb::c_contig, nb::device::cpu>;

constexpr std::size_t kWidth = 7;

void RequireFinite(const double* numbers, std::size_t count, const char* what) {
  const auto is_finite = [](double number) { return std::isfinite(number); };
  if (!std::all_of(numbers, numbers + count, is_finite)) {
    throw std::invalid_argument(std::string(what) + " are finite numbers");
  }
}

void RequireSizes(std::size_t segments, const std::vector<std::int64_t>& parents,
                  const Bases& bases, const Values& values) {
  if (parents.size() != segments || bases.shape(0) != segments || values.shape(1) != segments) {
    throw std::invalid_argument(
        "parents, base and frames are of as many segments as there are "
        "names");
  }
  if (segments == 0 || values.shape(0) == 0) {
    throw std::invalid_argument("a motion has a segment and a frame at least");
  }
  RequireFinite(bases.data(), bases.size(), "the values of the base");
  RequireFinite(values.data(), values.size(), "the values of frames");
}

void RequireIndices(const std::vector<std::int64_t>& parents) {
  const auto count = static_cast<std::int64_t>(parents.size());
  const auto is_index = [count](std::int64_t parent) { return parent >= -1 && parent < count; };
  if (!std::all_of(parents.begin(), parents.end(), is_index)) {
    throw std::invalid_argument("parents are indices of segments, or -1 for a root");
  }
}

void AddSegment(const std::string& name, const double* base, HtrDocument& document) {
  if (const char* const why = orvane::WhyNoSegmentName(name)) {
    throw std::invalid_argument('"' + name + "\", for a segment, " + why);
  }
  HtrSegment* const segment = document.AddSegment(HtrSegment(name));
  if (segment == nullptr) throw std::invalid_argument("two segments have the name \"" + name + '"');
  segment->SetBaseTranslation(base[0], base[1], base[2]);
  segment->SetBaseRotation(base[3], base[4], base[5]);
  segment->SetBoneLength(base[6]);
}

void LinkSegments(const std::vector<std::int64_t>& parents, HtrDocument& document) {
  for (std::size_t index = 0; index < parents.size(); ++index) {
    HtrSegment& segment = document.segments()[index];
    if (parents[index] < 0) {
      segment.SetIsRoot(true);
    } else {
      segment.SetParent(&document.segments()[static_cast<std::size_t>(parents[index])]);
    }
  }
  if (orvane::ListHierarchy(document).size() != parents.size()) {
    throw std::invalid_argument("parents form a circle");
  }
}

void AddFrames(const Values& values, HtrDocument& document) {
  document.ReserveFrames(values.shape(0) * values.shape(1));
  const std::size_t stride = values.shape(1) * kWidth;
  const double* first = values.data();
  for (HtrSegment& segment : document.segments()) {
    for (std::size_t frame = 0; frame < values.shape(0); ++frame) {
      std::array<double, kWidth> row{};
      std::copy_n(first + frame * stride, kWidth, row.begin());
      segment.AddFrame(row);
    }
    first += kWidth;
  }
}

std::unique_ptr<MotionTake> MakeMotion(const std::vector<nb::str>& names,
                                       const std::vector<std::int64_t>& parents, const Bases& bases,
                                       const Values& values, const std::string& unit,
                                       const Rate& rate, std::int32_t first_frame) {
  RequireSizes(names.size(), parents, bases, values);
  RequireIndices(parents);
  auto take = std::make_unique<MotionTake>();
  HtrDocument& document = take->document();
  document.SetCalibrationUnits(UnitCode(unit));
  document.SetDataFrameRate(static_cast<std::int32_t>(rate.first / rate.second));
  document.SetNumFrames(static_cast<std::uint32_t>(values.shape(0)));
  document.SetStartFrame(first_frame);
  take->reading().rate = orvane::FrameRate{rate.first, rate.second};
  for (std::size_t index = 0; index < names.size(); ++index) {
    AddSegment(BytesOf(names[index]), bases.data() + index * kWidth, document);
  }
  LinkSegments(parents, document);
  AddFrames(values, document);
  take->Settle("<arrays>");
  return take;
}

}  // namespace

void BindMadeMotion(nb::module_& module) {
  module.def("make_motion", MakeMotion, nb::arg("names"), nb::arg("parents"), nb::arg("bases"),
             nb::arg("values"), nb::arg("unit"), nb::arg("rate"), nb::arg("first_frame"));
}

}  // namespace binding
