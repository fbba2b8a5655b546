#include "tests/readers/skeleton_samples.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <filesystem>
#include <random>
#include <unordered_map>

#include "formats/htr/reader.h"
#include "formats/pose/pose_walk.h"
#include "formats/units/units.h"

namespace test {
namespace {

using orvane::BvhOptions;
using orvane::BvhPlan;
using orvane::BvhPositions;
using orvane::EulerRotation;
using orvane::HierarchyEntry;
using orvane::HtrDocument;
using orvane::HtrSegment;
using orvane::OrvaneEulerOrder;
using orvane::Point;
using orvane::PoseParts;
using orvane::PoseWalk;
using orvane::RotationMatrix3;
using orvane::Vector3;

constexpr double kTolerance = 1e-5;
constexpr double kConstant = 1e-6;

bool IsConstant(const HtrSegment& segment, double tolerance) {
  const Vector3 first = segment.GetFrameTranslation(0);
  for (std::size_t frame = 0; frame < segment.GetNumFrames(); ++frame) {
    const Vector3 at = segment.GetFrameTranslation(frame);
    const double distance = std::hypot(at.x() - first.x(), at.y() - first.y(), at.z() - first.z());
    if (distance > tolerance) return false;
  }
  return true;
}

// What a file has to show of `document`: all segments with all frames, of which those that they
// lack are as the last one; without translations that change where those are not asked for.
void MakeShown(const HtrDocument& document, double height, BvhPositions positions,
               HtrDocument& shown) {
  std::size_t most = 1;
  for (const HtrSegment& segment : document.segments()) {
    most = std::max(most, segment.GetNumFrames());
  }
  std::unordered_map<const HtrSegment*, HtrSegment*> copies;
  for (const HtrSegment& segment : document.segments()) {
    HtrSegment* copy = shown.AddSegment(HtrSegment("Copy" + std::to_string(copies.size())));
    copies[&segment] = copy;
    copy->SetIsRoot(segment.GetIsRoot());
    const Vector3 base = segment.GetBaseTranslation();
    const EulerRotation turn = segment.GetBaseRotation();
    copy->SetBaseTranslation(base.x(), base.y(), base.z());
    copy->SetBaseRotation(turn[0], turn[1], turn[2]);
    copy->SetBoneLength(segment.GetBoneLength());
    const bool stays = positions == BvhPositions::kRoot && !segment.GetIsRoot() &&
                       !IsConstant(segment, kConstant * height);
    const std::size_t held = segment.GetNumFrames();
    for (std::size_t frame = 0; frame < most; ++frame) {
      const std::size_t from = held == 0 ? 0 : std::min(frame, held - 1);
      copy->AddFrame(stays ? Vector3() : segment.GetFrameTranslation(from),
                     segment.GetFrameRotation(from), 1.0);
    }
  }
  for (const HtrSegment& segment : document.segments()) {
    if (segment.GetParent() == nullptr) continue;
    copies[&segment]->SetParent(copies[segment.GetParent()]);
  }
}

std::vector<HierarchyEntry> FirstTreeOf(const HtrDocument& document) {
  std::vector<HierarchyEntry> entries = orvane::ListHierarchy(document);
  const auto second = std::find_if(entries.begin() + 1, entries.end(),
                                   [](const HierarchyEntry& entry) { return entry.depth == 0; });
  entries.erase(second, entries.end());
  return entries;
}

// Where the walk is.
std::vector<std::optional<Point>> EndsOf(const std::vector<HierarchyEntry>& tree,
                                         const PoseWalk& walk) {
  std::vector<std::optional<Point>> ends(tree.size());
  std::vector<RotationMatrix3> world(tree.size());
  for (std::size_t joint = 0; joint < tree.size(); ++joint) {
    const HierarchyEntry& entry = tree[joint];
    world[joint] = entry.depth == 0 ? walk.RotationOf(joint).Matrix()
                                    : world[entry.parent] * walk.RotationOf(joint).Matrix();
    if (joint + 1 < tree.size() && tree[joint + 1].depth > entry.depth) continue;
    Point end = walk.PositionOf(joint);
    for (unsigned int row = 0; row < 3; ++row) {
      end[row] += world[joint].Element(row, 1) * entry.segment->GetBoneLength();
    }
    ends[joint] = end;
  }
  return ends;
}

void AddPlaces(const HtrDocument& shown, SkeletonSample& sample) {
  const std::vector<HierarchyEntry> tree = FirstTreeOf(shown);
  PoseWalk walk(tree, PoseParts::kPositionsAndRotations);
  for (std::size_t frame = 0; frame < orvane::MostFramesOf(tree); ++frame) {
    walk.MoveTo(frame);
    std::vector<Point> positions;
    for (std::size_t joint = 0; joint < tree.size(); ++joint) {
      positions.push_back(walk.PositionOf(joint));
    }
    sample.positions.push_back(positions);
    sample.ends.push_back(EndsOf(tree, walk));
  }
}

using SampleTaker = std::function<void(const SkeletonSample&)>;

void TakeBothWays(const HtrDocument& document, const std::string& name, const SampleTaker& take) {
  for (const BvhPositions positions : {BvhPositions::kRoot, BvhPositions::kAll}) {
    BvhOptions options;
    options.positions = positions;
    const BvhPlan plan = orvane::PlanBvh(document, options);
    if (plan.refusal) continue;
    SkeletonSample sample;
    sample.name = name + (positions == BvhPositions::kRoot ? "_root" : "_all");
    sample.tolerance = kTolerance * plan.height;
    for (const orvane::BvhJoint& joint : plan.joints) sample.names.push_back(joint.name);
    orvane::PrintBvh(plan, [&sample](std::string_view piece) { sample.bvh += piece; });
    HtrDocument shown;
    MakeShown(document, plan.height, positions, shown);
    AddPlaces(shown, sample);
    take(sample);
  }
}

// A skeleton of 4 to 24 segments and 1 to 12 frames, some 2 m high, in any unit.
class RandomMotion {
 public:
  static constexpr std::uint64_t kMostFrames = 12;

  explicit RandomMotion(std::uint64_t seed) : RandomMotion(seed, 1, kMostFrames) {}
  RandomMotion(std::uint64_t seed, std::uint64_t least_frames, std::uint64_t most_frames)
      : random_(seed), seed_(seed), least_frames_(least_frames), most_frames_(most_frames) {}

  void Fill(HtrDocument& document);

 private:
  std::uint64_t Below(std::uint64_t limit) { return random_() % limit; }
  double Number(double size) {
    return size * (static_cast<double>(random_() >> 11U) * 0x1p-52 - 1.0);
  }
  Vector3 Vector(double size) {
    const double x = Number(size);
    const double y = Number(size);
    return Vector3(x, y, Number(size));
  }
  double Angle();
  EulerRotation Rotation();
  void AddFrames(HtrSegment& segment, double reach, std::size_t count);

  std::mt19937_64 random_;
  std::uint64_t seed_;
  std::uint64_t least_frames_;
  std::uint64_t most_frames_;
};

// Quarters of a turn among others, which lock gimbals.
double RandomMotion::Angle() {
  constexpr double kQuarter = 90 * orvane::kRadiansPerDegree;
  if (Below(4) == 0) return kQuarter * (static_cast<double>(Below(9)) - 4);
  return Number(6);
}

EulerRotation RandomMotion::Rotation() {
  constexpr std::array<std::uint32_t, 6> kOrders = {0, 4, 8, 12, 16, 20};
  const double x = Angle();
  const double y = Angle();
  const double z = Angle();
  const std::uint64_t order = seed_ % 7 == 6 ? Below(6) : seed_ % 7;
  return EulerRotation(x, y, z, OrvaneEulerOrder(kOrders[order]));
}

void RandomMotion::AddFrames(HtrSegment& segment, double reach, std::size_t count) {
  const std::uint64_t kind = segment.GetIsRoot() ? 0 : Below(3);  // moves, is moved, or is not
  const Vector3 constant = kind == 1 ? Vector(reach) : Vector3();
  for (std::size_t frame = 0; frame < count; ++frame) {
    segment.AddFrame(kind == 0 ? Vector(reach) : constant, Rotation(), 1.0);
  }
}

void RandomMotion::Fill(HtrDocument& document) {
  const auto unit = static_cast<std::uint32_t>(Below(6));
  const double meter = 1000 * orvane::LengthFactor(orvane::kMillimeters, unit);
  document.SetCalibrationUnits(unit);
  const std::uint64_t segments = 4 + Below(21);
  const std::uint64_t frames = least_frames_ + Below(most_frames_ - least_frames_ + 1);
  std::vector<HtrSegment*> stored;
  for (std::uint64_t index = 0; index < segments; ++index) {
    HtrSegment* segment = document.AddSegment(HtrSegment("Bone" + std::to_string(index)));
    segment->SetIsRoot(index == 0);
    if (index != 0)
      segment->SetParent(stored[index - 1 - Below(std::min<std::uint64_t>(index, 3))]);
    const Vector3 base = Vector(0.4 * meter);
    segment->SetBaseTranslation(base.x(), base.y(), base.z());
    segment->SetBaseRotation(Angle(), Angle(), Angle());
    segment->SetBoneLength(Number(0.5 * meter));
    const bool lacks_frames = index != 0 && Below(8) == 0;
    AddFrames(*segment, (index == 0 ? 3 : 0.2) * meter, lacks_frames ? Below(frames + 1) : frames);
    stored.push_back(segment);
  }
}

void TakeOddNames(const SampleTaker& take) {
  HtrDocument document;
  RandomMotion(7).Fill(document);
  const std::vector<std::string> names = {"Left Arm",
                                          "Left\tArm",
                                          "{",
                                          "}",
                                          "a\xC2\xA0"
                                          "b",
                                          "a_b",
                                          "End Site",
                                          "\xE3\x80\x80",
                                          "MOTION",
                                          "JOINT",
                                          "Frames: 10",
                                          "-1",
                                          "OFFSET",
                                          "left:Arm"};
  std::size_t index = 0;
  for (HtrSegment& segment : document.segments()) segment.SetName(names[index++ % names.size()]);
  TakeBothWays(document, "odd_names", take);
}

void TakeWithoutFrames(const SampleTaker& take) {
  HtrDocument document;
  RandomMotion(11, 0, 0).Fill(document);
  TakeBothWays(document, "no_frames", take);
}

void TakeFile(const std::filesystem::path& path, const SampleTaker& take) {
  HtrDocument document;
  const bool is_read = orvane::ReadHtrFile(document, path.string(), true).empty();
  if (is_read && document.FindRootSegment() != nullptr) {
    TakeBothWays(document, path.stem().string(), take);
  }
}

}  // namespace

void ForEachSkeletonSample(const SampleTaker& take) {
  const std::filesystem::path root(ORVANE_SOURCE_DIR);
  TakeFile(root / "examples/walk.htr", take);
  for (const auto& entry : std::filesystem::directory_iterator(root / "tests/data/htr")) {
    TakeFile(entry.path(), take);
  }
  TakeOddNames(take);
  TakeWithoutFrames(take);
  constexpr std::uint64_t kMotions = 200;
  for (std::uint64_t seed = 0; seed < kMotions; ++seed) {
    HtrDocument document;
    RandomMotion(seed).Fill(document);
    TakeBothWays(document, "random" + std::to_string(seed), take);
  }
}

}  // namespace test
