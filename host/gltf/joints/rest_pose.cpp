#include "host/gltf/joints/rest_pose.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>

namespace host::gltf {

namespace {

using Binds = std::vector<std::optional<Transform>>;  // by the index in the tree

std::optional<Transform> BindIn(const FileNumbers& matrices, std::size_t joint) {
  Transform back;
  for (std::size_t axis = 0; axis < 3; ++axis) {
    for (std::size_t row = 0; row < 3; ++row) {
      back.axes[axis][row] = matrices.At(joint, axis * 4 + row);
    }
    back.origin[axis] = matrices.At(joint, 12 + axis);
  }
  return Inverse(back);
}

// Of joints in several skins the first one counts.
Binds BindsIn(const JsonField& document, const JointTree& tree, Accessors& accessors) {
  std::map<std::size_t, std::size_t> places;  // in the tree, by the index in the file
  for (std::size_t i = 0; i < tree.size(); ++i) places.emplace(tree[i].node, i);
  Binds binds(tree.size());
  const auto skins = document.FindMember("skins");
  for (std::size_t skin = 0; skins && skin < skins->Size(); ++skin) {
    const auto reference = skins->Element(skin).FindMember("inverseBindMatrices");
    if (!reference) continue;
    const FileNumbers matrices = accessors.Find(*reference, "MAT4");
    const JsonField joints = skins->Element(skin).Member("joints");
    if (matrices.Size() < joints.Size()) reference->Refuse("the index of fewer than the joints");
    for (std::size_t i = 0; i < joints.Size(); ++i) {
      auto& bind = binds[places.at(joints.Element(i).Word())];
      if (!bind) bind = BindIn(matrices, i);
    }
  }
  return binds;
}

// How unlike `standing` the top of a skeleton is when it rests so: wrong scales count first.
double Unlikeness(const std::optional<Placement>& rest, const Placement& standing) {
  constexpr double kMostApart = 6.0;
  if (!rest) return 2.0 * kMostApart + 1.0;
  const bool is_same_scale = IsSameScale(rest->scale, standing.scale);
  return (is_same_scale ? 0.0 : kMostApart) + AxesApart(rest->turn, standing.turn);
}

// The joints below one top.
class RestingSkeleton {
 public:
  RestingSkeleton(const JointTree& tree, const StandingJoints& standing, const Binds& binds,
                  const std::vector<std::size_t>& joints)
      : standing_(standing), binds_(binds), joints_(joints), top_(joints.front()) {
    const std::size_t above = tree[top_].above;
    if (above == kNoNode || !binds[top_]) return;
    const Transform& other = standing.worlds[above];
    if (UnlikenessIn(other) < UnlikenessIn(space_)) space_ = other;
  }

  // Puts the joints where they rest into `rest`, unless they do not tell.
  void PlaceIn(std::vector<Placement>& rest) const {
    std::vector<Placement> placements;
    placements.reserve(joints_.size());
    for (const std::size_t joint : joints_) {
      if (!binds_[joint]) return;
      const auto placement = PlacementOf(Product(space_, *binds_[joint]));
      if (!placement) return;
      placements.push_back(*placement);
    }
    const double scale = placements.front().scale;
    const double larger = standing_.placements[top_].scale / scale;
    for (const Placement& placement : placements) {
      if (!IsSameScale(placement.scale, scale)) return;
    }
    for (std::size_t i = 0; i < joints_.size(); ++i) {
      for (double& component : placements[i].turn.origin) component *= larger;
      rest[joints_[i]] = placements[i];
    }
  }

 private:
  double UnlikenessIn(const Transform& space) const {
    return Unlikeness(PlacementOf(Product(space, *binds_[top_])), standing_.placements[top_]);
  }

  const StandingJoints& standing_;
  const Binds& binds_;
  const std::vector<std::size_t>& joints_;
  const std::size_t top_;
  Transform space_;  // of the binds, in the world
};

}  // namespace

std::vector<Placement> RestOf(const JsonField& document, const JointTree& tree,
                              const StandingJoints& standing, Accessors& accessors) {
  const Binds binds = BindsIn(document, tree, accessors);
  std::map<std::size_t, std::vector<std::size_t>> skeletons;  // by their tops, which come first
  for (std::size_t i = 0; i < tree.size(); ++i) {
    if (tree[i].is_joint) skeletons[tree[i].top].push_back(i);
  }
  std::vector<Placement> rest = standing.placements;
  for (const auto& [top, joints] : skeletons) {
    RestingSkeleton(tree, standing, binds, joints).PlaceIn(rest);
  }
  return rest;
}

}  // namespace host::gltf
