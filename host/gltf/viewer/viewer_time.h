#pragma once

#include "host/gltf/file/node_tree.h"
#include "host/scene/scene.h"

// The one place where the host's ticks become seconds of glTF.

namespace host::gltf {

// When a viewer is shown what the host has at a tick. Seconds count from the earliest key of the
// scene, since the format knows no negative times. A frame of the host lasts as long as one of the
// recording, if its rate is known: the host's own frames are whole ticks, which most rates are not.
class ViewerTime {
 public:
  // `tree` are the nodes of `scene`.
  ViewerTime(const Scene& scene, const NodeTree& tree);

  // REQUIRES: `tick` is no earlier than the earliest key.
  float Second(TimeValue tick) const;

 private:
  TimeValue start_;

  // So many ticks are a frame at that rate.
  double frame_ticks_ = kTicksPerSecond;
  Rate rate_;
};

}  // namespace host::gltf
