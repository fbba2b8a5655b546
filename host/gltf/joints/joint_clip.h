#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "host/gltf/joints/file_numbers.h"
#include "host/gltf/joints/joint_tree.h"

// The animation of a file that moves its joints. What is between two keys is joint_sampler.h's
// business.

namespace host::gltf {

enum class KeyJoin { kStep, kLinear, kCubic };

// Keys of one part of a node: `values` are its vectors, or turns; of a cubic join each with the
// tangents before and behind it.
struct KeyTrack {
  FileNumbers seconds;
  FileNumbers values;
  KeyJoin join = KeyJoin::kLinear;
};

// What moves a node of the tree.
struct NodeTracks {
  std::optional<KeyTrack> translation;
  std::optional<KeyTrack> rotation;
  std::optional<KeyTrack> scale;
};

// An animation. Indices are those of the tree.
struct JointClip {
  std::string name;                 // may be empty
  std::vector<std::string> others;  // the names of the other ones that move joints
  std::vector<NodeTracks> tracks;
  std::vector<FileNumbers> seconds;  // those of all tracks, each accessor once
};

// The animation named `wanted`, or without a name the first one that moves what is in `tree`; what
// moves anything else is left out of it. Nothing when no animation moves it. Throws a Refusal when
// there is none of that name, or when one is damaged.
[[nodiscard]] std::optional<JointClip> FindJointClip(const JsonField& document,
                                                     const std::vector<FileNode>& nodes,
                                                     const JointTree& tree,
                                                     const std::string& wanted,
                                                     Accessors& accessors);

}  // namespace host::gltf
