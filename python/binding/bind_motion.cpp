#include <nanobind/nanobind.h>
#include <nanobind/ndarray.h>
#include <nanobind/stl/optional.h>
#include <nanobind/stl/pair.h>
#include <nanobind/stl/string.h>
#include <nanobind/stl/unique_ptr.h>
#include <nanobind/stl/vector.h>

#include <memory>

#include "formats/edit/lengths.h"
#include "python/binding/arrays.h"
#include "python/binding/bindings.h"
#include "python/binding/common_members.h"
#include "python/binding/motion_take.h"
#include "python/binding/text.h"
#include "python/binding/unit.h"

namespace nb = nanobind;

namespace binding {
namespace {

using orvane::HtrSegment;

std::unique_ptr<MotionTake> ReadMotion(const nb::bytes& name, const std::optional<nb::bytes>& data,
                                       bool check, const std::optional<std::string>& unit) {
  const Input input = InputOf(name, data);
  const std::optional<std::uint32_t> code = unit ? std::optional(UnitCode(*unit)) : std::nullopt;
  const nb::gil_scoped_release unlocked;
  auto take = std::make_unique<MotionTake>();
  take->reading() = Read(input, check, take->document());
  if (code) ConvertLengths(take->document(), *code);
  take->Settle(input.Name());
  return take;
}

// What `of` tells of each segment, in the document's order.
template <typename Item, typename Of>
nb::typed<nb::list, Item> OfEach(const MotionTake& take, const Of& of) {
  nb::typed<nb::list, Item> all;
  for (const HtrSegment& segment : take.document().segments()) all.append(of(segment));
  return all;
}

TextList NamesOf(const MotionTake& take) {
  return OfEach<nb::str>(take, [](const HtrSegment& segment) { return TextOf(segment.GetName()); });
}

nb::typed<nb::list, std::size_t> FrameCountsOf(const MotionTake& take) {
  return OfEach<std::size_t>(take,
                             [](const HtrSegment& segment) { return segment.GetNumFrames(); });
}

// Translation, angles and bone length.
using Base = nb::typed<nb::tuple, double, double, double, double, double, double, double>;

nb::typed<nb::list, Base> BasesOf(const MotionTake& take) {
  return OfEach<Base>(take, [](const HtrSegment& segment) {
    const orvane::Vector3 translation = segment.GetBaseTranslation();
    const orvane::EulerRotation rotation = segment.GetBaseRotation();
    return nb::make_tuple(translation.x(), translation.y(), translation.z(), rotation[0],
                          rotation[1], rotation[2], segment.GetBoneLength());
  });
}

const orvane::HtrFramesView& ValuesOf(const nb::object& self) {
  return nb::cast<const MotionTake&>(self).Values();
}

template <std::size_t kPlace>
VectorView VectorsOf(const nb::object& self) {
  const orvane::HtrFramesView& values = ValuesOf(self);
  return ViewVectors(At(values.numbers, kPlace), {values.frames, values.frame_stride},
                     {values.segments, values.segment_stride}, self);
}

ScalarView ScalesOf(const nb::object& self) {
  const orvane::HtrFramesView& values = ValuesOf(self);
  return ViewScalars(At(values.numbers, MotionTake::kScale), {values.frames, values.frame_stride},
                     {values.segments, values.segment_stride}, self);
}

}  // namespace

void BindMotion(nb::module_& module) {
  nb::class_<MotionTake>(module, "Motion")
      .def_prop_ro("names", NamesOf)
      .def_prop_ro("parents", [](const MotionTake& take) { return ParentsOf(take.document()); })
      .def_prop_ro("frame_counts", FrameCountsOf)
      .def_prop_ro("bases", BasesOf)
      .def_prop_ro("translations", VectorsOf<MotionTake::kTranslation>)
      .def_prop_ro("rotations", VectorsOf<MotionTake::kAngles>)
      .def_prop_ro("scales", ScalesOf)
      .def_prop_ro("frame_count",
                   [](const MotionTake& take) { return FrameCountOf(take.document()); })
      .def_prop_ro("frames_announced",
                   [](const MotionTake& take) { return take.document().GetNumFrames(); })
      .def_prop_ro("first_frame",
                   [](const MotionTake& take) { return take.document().GetStartFrame(); })
      .def_prop_ro("first_time", [](const MotionTake& take) { return take.reading().first_time; })
      .def_prop_ro("rate", [](const MotionTake& take) { return RateOf(take.reading()); })
      .def_prop_ro("rate_taken",
                   [](const MotionTake& take) { return take.document().GetDataFrameRate(); })
      .def_prop_ro(
          "unit",
          [](const MotionTake& take) { return UnitOf(take.document().GetCalibrationUnits()); })
      .def_prop_ro("findings", [](const MotionTake& take) { return FindingsOf(take.reading()); })
      .def("set_times", SetTimes<MotionTake>, nb::arg("rate").none(), nb::arg("first_time"));
  module.def("read_motion", ReadMotion, nb::arg("name"), nb::arg("data").none(), nb::arg("check"),
             nb::arg("unit").none());
}

}  // namespace binding
