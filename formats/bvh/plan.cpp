#include "formats/bvh/plan.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include "formats/bvh/joint_names.h"
#include "formats/bvh/segment_motion.h"
#include "formats/pose/hierarchy.h"
#include "formats/pose/pose_walk.h"
#include "formats/units/units.h"

namespace orvane {
namespace {

// Of the height: a translation that changes by less is constant.
constexpr double kConstant = 1e-6;

using Hierarchy = std::vector<HierarchyEntry>;

// The tree of root number `root` alone; empty when there is no such root.
Hierarchy TreeOf(const Hierarchy& hierarchy, std::size_t root) {
  Hierarchy tree;
  std::size_t roots = 0;
  for (const HierarchyEntry& entry : hierarchy) {
    if (entry.depth == 0) ++roots;
    if (roots == root + 1) tree.push_back(entry);
  }
  if (tree.empty()) return tree;
  const std::size_t first = tree.front().parent;
  for (HierarchyEntry& entry : tree) entry.parent -= first;
  return tree;
}

// The longest side of the box around the joints, where the walk is.
double HeightOf(const PoseWalk& walk) {
  constexpr double kFar = std::numeric_limits<double>::infinity();
  Point least = {kFar, kFar, kFar};
  Point most = {-kFar, -kFar, -kFar};
  for (const std::size_t entry : walk.Holding()) {
    const Point& position = walk.PositionOf(entry);
    for (std::size_t axis = 0; axis < 3; ++axis) {
      least[axis] = std::min(least[axis], position[axis]);
      most[axis] = std::max(most[axis], position[axis]);
    }
  }
  const double side = std::max({0.0, most[0] - least[0], most[1] - least[1], most[2] - least[2]});
  return std::min(side, std::numeric_limits<double>::max());
}

// The skeleton may be folded up in its base position.
double HeightOf(const Hierarchy& tree) {
  PoseWalk walk(tree, PoseParts::kPositions);
  walk.TakeBasePosition();
  const double in_base = HeightOf(walk);
  walk.MoveTo(0);
  return std::max(in_base, HeightOf(walk));
}

std::optional<BvhRefusal> FindRefusal(const Hierarchy& tree, double frame_time) {
  using Reason = BvhRefusal::Reason;
  if (tree.empty()) return BvhRefusal{Reason::kNoRoot, nullptr, std::nullopt};
  if (!(frame_time > 0) || !std::isfinite(frame_time)) {
    return BvhRefusal{Reason::kFrameTime, nullptr, std::nullopt};
  }
  for (const HierarchyEntry& entry : tree) {
    const HtrSegment& segment = *entry.segment;
    if (!IsBaseFinite(segment)) return BvhRefusal{Reason::kNotFinite, &segment, std::nullopt};
    const std::optional<std::size_t> frame = FindFrameNotFinite(segment);
    if (frame) return BvhRefusal{Reason::kNotFinite, &segment, frame};
  }
  return std::nullopt;
}

BvhNumberText FormOf(const BvhOptions& options, const BvhNumberText& fitting) {
  if (options.numbers == BvhNumbers::kShortest) return {};
  return options.numbers == BvhNumbers::kDecimals ? BvhNumberText(options.decimals) : fitting;
}

// Puts the plan of one tree together, and what is lost of it.
class Planner {
 public:
  Planner(const HtrDocument& document, const BvhOptions& options, const Hierarchy& tree,
          BvhPlan& plan)
      : document_(document), options_(options), tree_(tree), plan_(plan) {}

  void Plan();

 private:
  void PlanNames();
  void PlanJoint(std::size_t index);
  void PlanTranslation(BvhJoint& joint, const BvhSegmentMotion& motion);
  void NoteLosses(const HtrSegment& segment, const BvhSegmentMotion& motion);
  Vector3 EndOf(const HtrSegment& segment) const;

  const HtrDocument& document_;
  const BvhOptions& options_;
  const Hierarchy& tree_;
  BvhPlan& plan_;
};

void Planner::Plan() {
  plan_.height = HeightOf(tree_);
  plan_.lengths = FormOf(options_, BvhNumberText::OfLengths(plan_.height));
  plan_.angles = FormOf(options_, BvhNumberText::OfAngles());
  const std::size_t most_frames = MostFramesOf(tree_);
  plan_.frame_count = std::max<std::size_t>(1, most_frames);
  plan_.losses.has_no_frames = most_frames == 0;
  if (document_.GetStartFrame() != 1) plan_.losses.first_frame = document_.GetStartFrame();
  PlanNames();
  for (std::size_t index = 0; index < tree_.size(); ++index) PlanJoint(index);
}

void Planner::PlanNames() {
  std::vector<std::string> names;
  names.reserve(tree_.size());
  for (const HierarchyEntry& entry : tree_) names.push_back(entry.segment->GetName());
  std::vector<BvhJointName> words = NameJoints(names);
  plan_.joints.resize(tree_.size());
  for (std::size_t index = 0; index < tree_.size(); ++index) {
    BvhJointName& word = words[index];
    if (word.is_respelled || word.is_numbered) {
      plan_.losses.names.push_back(
          {tree_[index].segment, word.text, word.is_respelled, word.is_numbered});
    }
    plan_.joints[index].name = std::move(word.text);
  }
}

void Planner::PlanJoint(std::size_t index) {
  const HtrSegment& segment = *tree_[index].segment;
  BvhJoint& joint = plan_.joints[index];
  joint.segment = &segment;
  joint.depth = tree_[index].depth;
  const bool has_child = index + 1 < tree_.size() && tree_[index + 1].depth > joint.depth;
  if (!has_child) joint.end = EndOf(segment);
  const BvhSegmentMotion motion = MeasureMotion(segment);
  PlanTranslation(joint, motion);
  NoteLosses(segment, motion);
}

void Planner::PlanTranslation(BvhJoint& joint, const BvhSegmentMotion& motion) {
  const bool is_constant = motion.drift <= kConstant * plan_.height;
  if (joint.depth == 0 || (!is_constant && options_.positions == BvhPositions::kAll)) {
    joint.has_positions = true;
  } else if (is_constant) {
    joint.offset = HeldTranslation(*joint.segment, 0);
  } else {
    joint.offset = joint.segment->GetBaseTranslation();
    const double to_mm = LengthFactor(document_.GetCalibrationUnits(), kMillimeters);
    plan_.losses.translations.push_back(
        {joint.segment, motion.base_error * to_mm, motion.base_error_frame});
  }
}

void Planner::NoteLosses(const HtrSegment& segment, const BvhSegmentMotion& motion) {
  BvhLosses& losses = plan_.losses;
  if (segment.GetNumFrames() < plan_.frame_count && !losses.has_no_frames) {
    losses.frames.push_back({&segment, segment.GetNumFrames()});
  }
  if (motion.scaled_frames != 0) {
    losses.scales.push_back({&segment, motion.scaled_frames, motion.farthest_scale});
  }
  const EulerRotation base = segment.GetBaseRotation();
  if (base[0] != 0 || base[1] != 0 || base[2] != 0) ++losses.turned_in_base;
}

Vector3 Planner::EndOf(const HtrSegment& segment) const {
  Vector3 end;
  const std::uint32_t axis = document_.GetBoneLengthAxis();
  end[axis <= kAxisZ ? axis : kAxisY] = segment.GetBoneLength();
  return end;
}

void NoteLeftOut(const Hierarchy& hierarchy, const Hierarchy& tree, BvhLosses& losses) {
  for (const HierarchyEntry& entry : hierarchy) {
    if (entry.depth == 0 && entry.segment != tree.front().segment) {
      losses.other_roots.push_back(entry.segment);
    }
  }
  losses.segments_of_other_roots = hierarchy.size() - tree.size();
}

}  // namespace

std::size_t CountBvhRoots(const HtrDocument& document) {
  const Hierarchy hierarchy = ListHierarchy(document);
  return static_cast<std::size_t>(
      std::count_if(hierarchy.begin(), hierarchy.end(),
                    [](const HierarchyEntry& entry) { return entry.depth == 0; }));
}

BvhPlan PlanBvh(const HtrDocument& document, const BvhOptions& options) {
  const Hierarchy hierarchy = ListHierarchy(document);
  const Hierarchy tree = TreeOf(hierarchy, options.root);
  BvhPlan plan;
  plan.frame_time = options.frame_time.value_or(1.0 / document.GetDataFrameRate());
  plan.refusal = FindRefusal(tree, plan.frame_time);
  if (plan.refusal) return plan;
  Planner(document, options, tree, plan).Plan();
  NoteLeftOut(hierarchy, tree, plan.losses);
  plan.losses.unattached = ListUnattached(document, hierarchy);
  return plan;
}

}  // namespace orvane
