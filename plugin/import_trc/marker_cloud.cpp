#include "plugin/import_trc/marker_cloud.h"

#include <algorithm>
#include <cstddef>

#include "formats/math/z_up.h"
#include "plugin/exchange/node_controllers.h"
#include "plugin/import_trc/marker_nodes.h"
#include "sdk/core/animation.h"

namespace orvane {
namespace {

constexpr char kNoPositionController[] =
    "Position Controller Error. Please Contact Orvane Support.";

// Where the host has the position of sample `index`.
// Intended: a dropout is a position like any other, at the origin; what is made of clouds so far
// finds a key at every frame.
Point3 HostPosition(const TRCMarker& marker, std::size_t index, double scale) {
  double x = 0.0;
  double y = 0.0;
  double z = 0.0;
  (void)marker.GetSample(index, x, y, z);
  const Vector3 position = ZUpFromYUp(Vector3(x * scale, y * scale, z * scale));
  return Point3(static_cast<float>(position.x()), static_cast<float>(position.y()),
                static_cast<float>(position.z()));
}

std::int64_t FrameCount(const ImportTRCOptions& options, const TRCDocument& document) {
  const std::int64_t count = options.range ? std::int64_t{options.endFrame} - options.startFrame + 1
                                           : document.NumFrames();
  return std::max<std::int64_t>(count, 0);
}

}  // namespace

MarkerCloud::MarkerCloud(Interface& interface, const ImportTRCOptions& options,
                         const TRCDocument& document, MessageSink& messages)
    : interface_(interface),
      options_(options),
      document_(document),
      messages_(messages),
      frame_count_(FrameCount(options, document)) {}

bool MarkerCloud::Build() {
  if (options_.setFrameRate) SetFrameRate(document_.DataRate());
  times_.emplace(GetTicksPerFrame(), std::int64_t{options_.startFrame} + options_.frameOffset,
                 frame_count_);
  if (options_.rootNode) {
    root_ = CreateCloudRoot(interface_, options_);
    if (root_ == nullptr) return false;
  }
  if (options_.apply) selected_.emplace(interface_);

  unsigned done = 0;
  for (const TRCMarker& marker : document_.markers()) {
    if (interface_.GetCancel() || !ImportMarker(marker)) return false;
    ShowProgress(++done);
  }
  SetAnimationRange();
  return true;
}

bool MarkerCloud::ImportMarker(const TRCMarker& marker) {
  if (IsWithoutTarget()) return true;
  INode* node = NodeFor(marker);
  Control* position = node == nullptr ? nullptr : PositionController(*node);
  if (position == nullptr) {
    messages_.Report(kNoPositionController, "ImportTRC Error");
    return false;
  }
  if (!KeyMarker(marker, position)) return false;
  if (root_ != nullptr) root_->AttachChild(node, false);
  return true;
}

// Whether motion goes to selected objects only, and none is selected.
bool MarkerCloud::IsWithoutTarget() const {
  return selected_ && options_.selectedOnly && selected_->Last() == nullptr;
}

INode* MarkerCloud::NodeFor(const TRCMarker& marker) {
  if (selected_) {
    if (INode* found = selected_->Find(marker.Name()); found != nullptr) return found;
    // Intended: with selected objects only, a marker that none of them is named after goes to the
    // last of them, on top of what that one was given.
    if (options_.selectedOnly) return selected_->Last();
  }
  return CreateMarkerNode(interface_, options_, marker.Name());
}

bool MarkerCloud::KeyMarker(const TRCMarker& marker, Control* position) {
  ClearKeys(position, nullptr, *times_);
  SuspendAnimate();
  AnimateOn();
  if (!KeyFrames(marker, position)) return false;
  // Intended: not on failure, which leaves animation suspended and animate mode on.
  ResumeAnimate();
  return true;
}

bool MarkerCloud::KeyFrames(const TRCMarker& marker, Control* position) {
  const std::int64_t first_sample = std::int64_t{options_.startFrame} - document_.FirstFrame();
  for (std::int64_t frame = times_->BeginFrame(); frame < times_->EndFrame(); ++frame) {
    const auto index = static_cast<std::size_t>(first_sample + frame);
    const Point3 value = HostPosition(marker, index, options_.scaleFactor);
    if (!SetPosition(position, *times_->Tick(frame), value)) return false;
  }
  return true;
}

// Intended: in single precision, which for some counts shows another per cent than double would.
void MarkerCloud::ShowProgress(unsigned markers_done) {
  const float share =
      static_cast<float>(markers_done) / static_cast<float>(document_.MarkerCount()) * -90.0F;
  interface_.ProgressUpdate(10 - static_cast<int>(share), true, nullptr);
}

// Intended: from frame 1, wherever the keys begin, to one frame behind the last key when they begin
// at frame 1.
void MarkerCloud::SetAnimationRange() {
  if (document_.NumFrames() < 2) return;
  const std::int64_t last = options_.frameOffset + frame_count_ + 1;
  interface_.SetAnimRange(FrameInterval(GetTicksPerFrame(), 1, last));
}

}  // namespace orvane
