#include <nanobind/nanobind.h>
#include <nanobind/stl/optional.h>

#include <cstdint>
#include <mutex>
#include <optional>
#include <vector>

#include "inspect/compare/marker_comparison.h"
#include "inspect/compare/motion_comparison.h"
#include "inspect/compare/structure_comparison.h"
#include "python/binding/bindings.h"
#include "python/binding/marker_take.h"
#include "python/binding/motion_take.h"
#include "python/binding/text.h"
#include "python/binding/typed.h"

namespace nb = nanobind;

namespace binding {
namespace {

using orvane::FrameSpan;
using orvane::Spread;
using orvane::WhichFile;

const char* NameOf(WhichFile file) { return file == WhichFile::kA ? "a" : "b"; }

// (largest, its frame, mean, how many)
nb::tuple TupleOf(const Spread& spread) {
  return nb::make_tuple(spread.largest, spread.largest_frame, spread.Mean(), spread.count);
}

nb::object SpanOf(const std::optional<FrameSpan>& frames) {
  if (!frames) return nb::none();
  return nb::make_tuple(frames->first, frames->last);
}

nb::dict DictOf(const orvane::MarkerDifference& difference) {
  nb::dict dict;
  dict["distance_mm"] = TupleOf(difference.distance_mm);
  dict["only_in_a"] = difference.only_in_a;
  dict["only_in_b"] = difference.only_in_b;
  dict["first_beyond"] = difference.first_beyond;
  return dict;
}

nb::dict DictOf(const orvane::MotionDifference& difference) {
  nb::dict dict;
  dict["position_mm"] = TupleOf(difference.position_mm);
  dict["orientation_deg"] = TupleOf(difference.orientation_deg);
  dict["first_beyond"] = difference.first_beyond;
  return dict;
}

AnyDict DictOf(const orvane::MarkerComparison& comparison) {
  AnyDict dict;
  nb::dict by_name;
  for (const auto& marker : comparison.markers) {
    by_name[TextOf(marker.name)] = DictOf(marker.difference);
  }
  nb::list only_names;
  for (const auto& only : comparison.only_markers) {
    only_names.append(nb::make_tuple(NameOf(only.file), TextOf(only.name)));
  }
  nb::list only_frames;
  for (const auto& only : comparison.only_frames) {
    only_frames.append(nb::make_tuple(NameOf(only.file), "", SpanOf(only.frames)));
  }
  dict["by_name"] = by_name;
  dict["overall"] = DictOf(comparison.overall);
  dict["frames"] = SpanOf(comparison.frames);
  dict["only_names"] = only_names;
  dict["only_frames"] = only_frames;
  dict["parents"] = nb::list();
  dict["rate_differs"] = comparison.frame_rate_differs;
  return dict;
}

AnyDict DictOf(const orvane::StructureComparison& structure,
               const orvane::MotionComparison& motion) {
  AnyDict dict;
  nb::dict by_name;
  for (std::size_t pair = 0; pair < structure.pairs.size(); ++pair) {
    const auto& segment = *structure.hierarchy_a[structure.pairs[pair].in_a].segment;
    by_name[TextOf(segment.GetName())] = DictOf(motion.segments[pair]);
  }
  nb::list only_names;
  for (const auto& only : structure.differences.segments) {
    only_names.append(nb::make_tuple(NameOf(only.file), TextOf(only.name)));
  }
  nb::list only_frames;
  for (const auto& only : structure.differences.frames) {
    only_frames.append(
        nb::make_tuple(NameOf(only.file), TextOf(only.segment), SpanOf(only.frames)));
  }
  nb::list parents;
  for (const auto& parent : structure.differences.parents) {
    parents.append(nb::make_tuple(TextOf(parent.name), TextOf(parent.in_a), TextOf(parent.in_b)));
  }
  dict["by_name"] = by_name;
  dict["overall"] = DictOf(motion.overall);
  dict["frames"] = SpanOf(structure.common_frames);
  dict["only_names"] = only_names;
  dict["only_frames"] = only_frames;
  dict["parents"] = parents;
  dict["rate_differs"] = structure.differences.frame_rate;
  return dict;
}

AnyDict CompareMarkers(const MarkerTake& a, const MarkerTake& b, double tolerance_mm) {
  orvane::MarkerComparison comparison;
  {
    const nb::gil_scoped_release unlocked;
    comparison = orvane::CompareMarkers(a.document(), b.document(), tolerance_mm);
  }
  return DictOf(comparison);
}

AnyDict CompareMotion(MotionTake& a, MotionTake& b, double tolerance_mm, double tolerance_deg) {
  // A document that is asked for a name may put its names in order.
  static std::mutex names;
  orvane::StructureComparison structure;
  orvane::MotionComparison motion;
  {
    const nb::gil_scoped_release unlocked;
    {
      const std::lock_guard<std::mutex> locked(names);
      structure = CompareStructure(a.document(), b.document());
    }
    motion =
        orvane::CompareMotion(structure, a.document(), b.document(), {tolerance_mm, tolerance_deg});
  }
  return DictOf(structure, motion);
}

}  // namespace

void BindComparisons(nb::module_& module) {
  module.def("compare_markers", CompareMarkers, nb::arg("a"), nb::arg("b"),
             nb::arg("tolerance_mm"));
  module.def("compare_motion", CompareMotion, nb::arg("a"), nb::arg("b"), nb::arg("tolerance_mm"),
             nb::arg("tolerance_deg"));
}

}  // namespace binding
