#pragma once

#include <cstddef>
#include <vector>

#include "host/scene/scene.h"

// Where the nodes of a scene are in the frames of its range: in every frame, but of a scene of very
// many in every second, third and so on, so that neither time nor memory is without bounds.

namespace web {

struct ScenePlaces {
  static constexpr std::size_t kAxes = 3;

  explicit ScenePlaces(const host::Scene& scene);

  // The three numbers of a node, by its index, in a frame, counted from 0.
  [[nodiscard]] const float* At(std::size_t frame, std::size_t node) const {
    return &positions[kAxes * (frame * nodes.size() + node)];
  }

  std::vector<const host::Node*> nodes;  // in the order of `orvane scene`
  int first_frame = 0;
  int step = 1;  // from one frame that is here to the next
  std::size_t frames = 0;
  std::vector<float> positions;  // three numbers at [frame][node]; NaN where none was measured
  std::vector<float> ends;       // the same of where bones end, or none without bones

 private:
  void Fill(const host::AnimationState& animation, std::size_t index);
};

}  // namespace web
