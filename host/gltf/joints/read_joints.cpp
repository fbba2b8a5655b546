#include "host/gltf/joints/read_joints.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>
#include <utility>
#include <vector>

#include "host/gltf/file/names.h"
#include "host/gltf/file/refusal.h"
#include "host/gltf/joints/frame_grid.h"
#include "host/gltf/joints/joint_bones.h"
#include "host/gltf/joints/joint_sampler.h"
#include "host/gltf/joints/rest_pose.h"

namespace host::gltf {

namespace {

constexpr std::uint64_t kSamplesAlwaysAllowed = 5'000'000;

// Where the joints of a file are at any time.
class Joints {
 public:
  Joints(const std::vector<FileNode>& nodes, const JointTree& tree) : nodes_(nodes), tree_(tree) {
    standing_.worlds.resize(tree.size());
    standing_.placements.resize(tree.size());
  }

  // As `locals` have them, of all that is in the tree. Throws a Refusal when a joint is scaled in a
  // way that a bone cannot be; `when` ends the sentence.
  const StandingJoints& Place(const std::vector<Transform>& locals, const std::string& when) {
    for (std::size_t i = 0; i < tree_.size(); ++i) {
      Transform& world = standing_.worlds[i];
      const std::size_t above = tree_[i].above;
      world = above == kNoNode ? locals[i] : Product(standing_.worlds[above], locals[i]);
      if (tree_[i].is_joint) standing_.placements[i] = PlacementFor(i, when);
    }
    return standing_;
  }

  // Where nothing moves them.
  [[nodiscard]] std::vector<Transform> StillLocals() const {
    std::vector<Transform> locals;
    locals.reserve(tree_.size());
    for (const TreeNode& node : tree_) locals.push_back(nodes_[node.node].Local());
    return locals;
  }

 private:
  Placement PlacementFor(std::size_t joint, const std::string& when) {
    const auto placement = PlacementOf(standing_.worlds[joint]);
    if (!placement) Refuse(joint, "is scaled unevenly, sheared or mirrored" + when);
    if (scale_ == 0.0) scale_ = placement->scale;
    if (!IsSameScale(placement->scale, scale_)) {
      Refuse(joint, "has another size than the first joint of the file has at first" + when);
    }
    return *placement;
  }

  [[noreturn]] void Refuse(std::size_t joint, const std::string& fault) const {
    throw Refusal("The joint \"" + ViewerName(nodes_[tree_[joint].node].name) + "\" " + fault +
                  "; a motion file holds turns and places of bones, and none of that. Take it out "
                  "where the file was made.");
  }

  const std::vector<FileNode>& nodes_;
  const JointTree& tree_;
  StandingJoints standing_;
  double scale_ = 0.0;  // of all joints in the world; 0 before it is known
};

// What moves the nodes of a tree at `second`, in the place of the parts that they have.
void Move(const std::vector<FileNode>& nodes, const JointTree& tree, const JointClip& clip,
          double second, std::vector<Transform>& locals) {
  for (std::size_t i = 0; i < tree.size(); ++i) {
    const NodeTracks& tracks = clip.tracks[i];
    if (!tracks.translation && !tracks.rotation && !tracks.scale) continue;
    NodeParts parts = nodes[tree[i].node].parts;
    if (tracks.translation) parts.translation = VectorAt(*tracks.translation, second);
    if (tracks.rotation) parts.rotation = TurnAt(*tracks.rotation, second);
    if (tracks.scale) parts.scale = VectorAt(*tracks.scale, second);
    locals[i] = TransformOf(parts);
  }
}

void RequireWorth(const FrameGrid& grid, const JointTree& tree, const FileParts& file) {
  const std::uint64_t samples = std::uint64_t{grid.count} * tree.size();
  if (samples <= std::max<std::uint64_t>(kSamplesAlwaysAllowed, file.Binary().size())) return;
  throw Refusal("The file is far too short for " + std::to_string(grid.count) + " frames of " +
                std::to_string(tree.size()) + " joints; --rate takes fewer in a second.");
}

void SetTime(const FrameGrid& grid, Scene& scene) {
  const double rate =
      static_cast<double>(grid.rate.numerator) / static_cast<double>(grid.rate.denominator);
  scene.Animation().SetFrameRate(static_cast<int>(std::lround(rate)));
  const std::int64_t ticks = scene.Animation().TicksPerFrame();
  const std::int64_t last = grid.first_number + static_cast<std::int64_t>(grid.count) - 1;
  if (last * ticks > std::numeric_limits<TimeValue>::max()) {
    throw Refusal("The animation is too long for the clock of the scene.");
  }
  scene.Animation().SetTime(static_cast<TimeValue>((grid.first_number - 1) * ticks));
  scene.Animation().SetRange(
      {static_cast<TimeValue>(grid.first_number * ticks), static_cast<TimeValue>(last * ticks)});
}

// A skeleton that is the only one is what the user means.
void SelectOnly(Scene& scene) {
  const std::vector<Node*>& roots = scene.Root().Children();
  if (roots.size() == 1) scene.Select(*roots.front());
}

SkinReading Told(const FrameGrid& grid, const JointClip* clip, const JointBones& bones) {
  SkinReading reading;
  reading.is_skin = true;
  reading.rate = grid.rate;
  reading.rate_source = grid.source;
  reading.keys_between = grid.keys_between;
  reading.renamed = bones.Renamed();
  if (clip == nullptr) return reading;
  reading.clip = clip->name;
  reading.other_clips = clip->others;
  return reading;
}

std::string At(double second) {
  std::string text = std::to_string(second);
  text.resize(text.size() - 3);
  return " at " + text + " s";
}

}  // namespace

std::set<std::string> MembersOfJoints() {
  return {"accessors", "animations", "asset",  "bufferViews", "buffers",
          "nodes",     "scene",      "scenes", "skins"};
}

bool HasJoints(const FileParts& file) {
  const JsonField document(file.document, "");
  const auto skins = document.FindMember("skins");
  for (std::size_t skin = 0; skins && skin < skins->Size(); ++skin) {
    if (skins->Element(skin).Member("joints").Size() > 0) return true;
  }
  return false;
}

SkinReading ReadJoints(const FileParts& file, const SkinOptions& options, Scene& scene) {
  const JsonField document(file.document, "");
  const std::vector<FileNode> nodes = FileNodesIn(document);
  const JointTree tree = JointTreeOf(document, nodes);
  Accessors accessors(file);
  const std::optional<JointClip> clip =
      FindJointClip(document, nodes, tree, options.clip, accessors);
  const JointClip* const moved = clip ? &*clip : nullptr;
  const FrameGrid grid = FrameGridOf(document, moved, options.rate);
  RequireWorth(grid, tree, file);
  SetTime(grid, scene);
  Joints joints(nodes, tree);
  std::vector<Transform> locals = joints.StillLocals();
  const StandingJoints& standing = joints.Place(locals, "");
  JointBones bones(tree, nodes, RestOf(document, tree, standing, accessors), grid, scene);
  for (std::size_t frame = 0; frame < grid.count; ++frame) {
    const double second = grid.Second(frame);
    if (moved != nullptr) Move(nodes, tree, *moved, second, locals);
    bones.Key(frame, joints.Place(locals, At(second)).placements);
  }
  SelectOnly(scene);
  return Told(grid, moved, bones);
}

}  // namespace host::gltf
