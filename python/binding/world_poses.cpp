#include "python/binding/world_poses.h"

#include <array>
#include <cstddef>
#include <unordered_map>
#include <utility>
#include <vector>

#include "formats/math/quaternion.h"
#include "formats/pose/hierarchy.h"
#include "formats/pose/pose_walk.h"
#include "python/binding/motion_take.h"

namespace binding {
namespace {

using orvane::HierarchyEntry;
using orvane::HtrDocument;
using orvane::HtrSegment;
using orvane::PoseParts;
using orvane::PoseWalk;
using orvane::RotationMatrix3;

// The place of each entry's segment in the document.
std::vector<std::size_t> PlacesOf(const HtrDocument& document,
                                  const std::vector<HierarchyEntry>& hierarchy) {
  std::unordered_map<const HtrSegment*, std::size_t> place_of;
  for (const HtrSegment& segment : document.segments()) {
    place_of.emplace(&segment, place_of.size());
  }
  std::vector<std::size_t> places;
  places.reserve(hierarchy.size());
  for (const HierarchyEntry& entry : hierarchy) places.push_back(place_of.at(entry.segment));
  return places;
}

// Calls `write` with the walk, an entry and its row, for every entry of every frame.
template <typename Write>
FrameArray ValuesOf(const HtrDocument& document, PoseParts parts, std::size_t numbers,
                    const Write& write) {
  FrameArray values(FrameCountOf(document), document.segments().size(), numbers);
  std::vector<HierarchyEntry> hierarchy = ListHierarchy(document);
  const std::vector<std::size_t> places = PlacesOf(document, hierarchy);
  const std::size_t frames = MostFramesOf(hierarchy);
  PoseWalk walk(std::move(hierarchy), parts);
  for (std::size_t frame = 0; frame < frames; ++frame) {
    walk.MoveTo(frame);
    for (const std::size_t entry : walk.Holding()) {
      write(walk, entry, values.Row(frame, places[entry]));
    }
  }
  return values;
}

void WriteMatrix(const RotationMatrix3& rotation, double* row) {
  for (unsigned line = 0; line < 3; ++line) {
    for (unsigned column = 0; column < 3; ++column) *row++ = rotation.Element(line, column);
  }
}

void WriteQuaternion(const RotationMatrix3& rotation, double* row) {
  const orvane::Quaternion quaternion(rotation);
  const double sign = quaternion.w() < 0 ? -1.0 : 1.0;
  *row++ = sign * quaternion.x();
  *row++ = sign * quaternion.y();
  *row++ = sign * quaternion.z();
  *row = sign * quaternion.w();
}

void WriteEuler(const RotationMatrix3& rotation, double* row) {
  const orvane::EulerRotation angles(rotation);
  for (unsigned axis = 0; axis < 3; ++axis) *row++ = angles[axis];
}

struct FormWriter {
  std::size_t numbers;
  void (*write)(const RotationMatrix3& rotation, double* row);
};

// By RotationForm.
constexpr std::array<FormWriter, 3> kWriters = {
    {{9, WriteMatrix}, {4, WriteQuaternion}, {3, WriteEuler}}};

}  // namespace

FrameArray WorldPositions(const HtrDocument& document) {
  return ValuesOf(document, PoseParts::kPositions, 3,
                  [](const PoseWalk& walk, std::size_t entry, double* row) {
                    for (const double coordinate : walk.PositionOf(entry)) *row++ = coordinate;
                  });
}

FrameArray WorldRotations(const HtrDocument& document, RotationForm form) {
  const FormWriter& writer = kWriters[static_cast<std::size_t>(form)];
  return ValuesOf(document, PoseParts::kPositionsAndRotations, writer.numbers,
                  [&writer](const PoseWalk& walk, std::size_t entry, double* row) {
                    writer.write(walk.WorldRotationOf(entry).Matrix(), row);
                  });
}

}  // namespace binding
