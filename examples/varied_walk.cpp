#include "examples/varied_walk.h"

#include <algorithm>
#include <array>
#include <utility>

#include "examples/chance.h"
#include "examples/markers.h"
#include "formats/text/numbers.h"

namespace examples {
namespace {

// What capture systems' own marker sets have besides.
constexpr int kExtraMarkers = 10;
std::array<Marker, kExtraMarkers> ExtraMarkers() {
  return {{
      {"", "", BoneId::kLeftArm, Vector3(330, 1440, -30), {}},       // upper arm
      {"", "", BoneId::kRightArm, Vector3(-310, 1440, -30), {}},     // upper arm
      {"", "", BoneId::kLeftForeArm, Vector3(590, 1440, 20), {}},    // fore arm
      {"", "", BoneId::kRightForeArm, Vector3(-610, 1440, 20), {}},  // fore arm
      {"", "", BoneId::kChest, Vector3(-80, 1380, -110), {}},        // shoulder blade
      {"", "", BoneId::kLeftLeg, Vector3(150, 320, 20), {}},         // shin
      {"", "", BoneId::kRightLeg, Vector3(-150, 290, 20), {}},       // shin
      {"", "", BoneId::kLeftLeg, Vector3(50, 85, 0), {}},            // inner ankle
      {"", "", BoneId::kRightLeg, Vector3(-50, 85, 0), {}},          // inner ankle
      {"", "", BoneId::kHead, Vector3(0, 1790, 0), {}},              // top of the head
  }};
}

template <typename Items>
void Shuffle(Items& items, Chance& chance) {
  for (std::size_t count = items.size(); count > 1; --count) {
    std::swap(items[count - 1], items[chance.Below(count)]);
  }
}

std::vector<Marker> WornMarkers(const WalkVariation& variation, Chance& chance) {
  std::vector<Marker> worn = Markers();
  Shuffle(worn, chance);
  worn.resize(worn.size() - static_cast<std::size_t>(variation.missing));
  auto extra = ExtraMarkers();
  Shuffle(extra, chance);
  worn.insert(worn.end(), extra.begin(), extra.begin() + variation.extra);
  Shuffle(worn, chance);
  for (Marker& marker : worn) {
    marker.rest_mm = Fitted(marker.rest_mm, variation.proportions);
    for (unsigned int axis = 0; axis < 3; ++axis) {
      marker.rest_mm[axis] += chance.Around(variation.placement_mm);
    }
  }
  return worn;
}

double PerMillimeter(std::string_view unit) {
  if (unit == "m") return 0.001;
  return unit == "cm" ? 0.1 : 1.0;
}

// The walk itself, and where it is in the room.
class Room {
 public:
  explicit Room(const WalkVariation& variation)
      : variation_(variation), turn_(AboutY(variation.heading_deg)) {
    walker_.bones = FittedSkeleton(variation.proportions);
    walker_.proportions = variation.proportions;
    walker_.stride_mm = variation.stride_mm;
    walker_.first_phase = variation.first_phase;
  }

  [[nodiscard]] Pose PoseAt(int frame) const {
    const int step = variation_.is_backward ? variation_.frames - 1 - frame : frame;
    return WalkAt(static_cast<double>(step) / kFramesPerSecond, walker_);
  }

  [[nodiscard]] std::optional<Vector3> Seen(const Marker& marker, const Pose& pose) const {
    const auto position = PositionOf(marker, pose, walker_.bones);
    if (!position) return std::nullopt;
    Vector3 scaled = Scaled(*position, variation_.stature);
    if (variation_.is_mirrored) scaled[0] = -scaled[0];
    const Vector3 turned = Rotated(turn_, scaled);
    return Sum(turned, Vector3(variation_.start_x_mm, 0, variation_.start_z_mm));
  }

 private:
  const WalkVariation& variation_;
  RotationMatrix3 turn_;
  Walker walker_;
};

// When a marker is not seen: one stretch of time, anywhere.
struct Hidden {
  double from = 0;
  double to = 0;
};

std::string NumberedName(std::size_t index) {
  const std::string number = orvane::FormatInt(static_cast<std::int64_t>(index + 1));
  return "M" + std::string(3 - std::min<std::size_t>(3, number.size()), '0') + number;
}

class Capture {
 public:
  explicit Capture(const WalkVariation& variation)
      : variation_(variation),
        chance_(variation.seed),
        room_(variation),
        worn_(WornMarkers(variation, chance_)) {
    for (int prop = 0; prop < variation.props; ++prop) {
      props_.emplace_back(chance_.Between(-2000, 2000), chance_.Between(10, 1500),
                          chance_.Between(-2000, 4000));
    }
    const double frames = variation.frames;
    for (std::size_t marker = 0; marker < worn_.size(); ++marker) {
      const double from = chance_.Between(-variation.gaps, 1) * frames;
      hidden_.push_back({from, from + variation.gaps * frames});
    }
  }

  VariedWalk Make() {
    VariedWalk walk;
    walk.table.file_name = "varied.trc";
    walk.table.unit = variation_.unit;
    walk.table.decimals = std::string_view(variation_.unit) == "m" ? 6 : 3;
    for (std::size_t index = 0; index < worn_.size() + props_.size(); ++index) {
      walk.table.names.push_back(NumberedName(index));
      walk.roles.push_back(index < worn_.size() ? RoleOf(worn_[index]) : "");
    }
    for (int frame = 0; frame < variation_.frames; ++frame) {
      walk.table.frames.push_back(PositionsAt(frame));
    }
    return walk;
  }

 private:
  std::vector<std::optional<Vector3>> PositionsAt(int frame) {
    const Pose pose = room_.PoseAt(frame);
    std::vector<std::optional<Vector3>> positions;
    for (std::size_t index = 0; index < worn_.size(); ++index) {
      const bool is_hidden = hidden_[index].from <= frame && frame < hidden_[index].to;
      const auto position = room_.Seen(worn_[index], pose);
      positions.push_back(is_hidden || !position ? std::nullopt
                                                 : std::optional(Measured(*position)));
    }
    for (const Vector3& prop : props_) positions.emplace_back(Measured(prop));
    return positions;
  }

  [[nodiscard]] std::string RoleOf(const Marker& marker) const {
    std::string role(marker.standard_name);
    const bool has_side = role.starts_with('L') || role.starts_with('R');
    if (variation_.is_mirrored && has_side) role[0] = role[0] == 'L' ? 'R' : 'L';
    return role;
  }

  Vector3 Measured(Vector3 position) {
    for (unsigned int axis = 0; axis < 3; ++axis) {
      position[axis] += chance_.Around(variation_.noise_mm);
    }
    return Scaled(position, PerMillimeter(variation_.unit));
  }

  const WalkVariation& variation_;
  Chance chance_;
  Room room_;
  std::vector<Marker> worn_;
  std::vector<Vector3> props_;
  std::vector<Hidden> hidden_;  // by marker
};

}  // namespace

VariedWalk MakeVariedWalk(const WalkVariation& variation) { return Capture(variation).Make(); }

WalkVariation VariationOf(std::uint64_t seed) {
  constexpr std::array<const char*, 3> kUnits = {"mm", "cm", "m"};
  Chance chance(seed ^ 0x9E3779B97F4A7C15U);
  WalkVariation variation;
  variation.seed = seed;
  Proportions& proportions = variation.proportions;
  for (double* part :
       {&proportions.thigh, &proportions.shank, &proportions.trunk, &proportions.arm}) {
    *part = chance.Between(0.9, 1.1);
  }
  proportions.shoulders = chance.Between(0.85, 1.15);
  proportions.hips = chance.Between(0.85, 1.15);
  variation.stature = chance.Between(0.65, 1.2);
  variation.stride_mm = chance.Between(900, 1350);
  variation.first_phase = chance.Between(0, 1);
  variation.heading_deg = chance.Between(-180, 180);
  variation.start_x_mm = chance.Between(-3000, 3000);
  variation.start_z_mm = chance.Between(-3000, 3000);
  variation.is_mirrored = chance.Below(2) == 1;
  variation.frames = static_cast<int>(chance.Between(90, 240));
  variation.placement_mm = chance.Between(2, 7);
  variation.noise_mm = chance.Between(0.2, 2);
  variation.missing = static_cast<int>(chance.Below(5));
  variation.extra = static_cast<int>(chance.Below(7));
  variation.props = static_cast<int>(chance.Below(4));
  variation.gaps = chance.Between(0, 0.3);
  variation.unit = kUnits[chance.Below(kUnits.size())];
  return variation;
}

}  // namespace examples
