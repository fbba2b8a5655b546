#include "formats/bvh/motion_lines.h"

#include <algorithm>
#include <cstddef>
#include <vector>

#include "formats/bvh/channel_angles.h"
#include "formats/bvh/segment_motion.h"
#include "formats/text/text_buffer.h"
#include "formats/units/units.h"

namespace orvane {
namespace {

// So many values are worked out at a time, joint by joint, as a document holds them; and the frames
// of no more than one line each.
constexpr std::size_t kMostValues = 4096;

// A joint at a frame. The positions of one that has no channels for them are not asked for.
struct Place {
  Vector3 translation;
  BvhAngles angles;
};

class MotionLines {
 public:
  MotionLines(const BvhPlan& plan, TextBuffer& text)
      : plan_(plan),
        text_(text),
        most_frames_(std::max<std::size_t>(1, kMostValues / plan.joints.size())),
        places_(most_frames_ * plan.joints.size()) {}

  void Put();

 private:
  void WorkOut(std::size_t joint, std::size_t begin, std::size_t end);
  void PutLine(std::size_t offset);
  void PutPlace(const BvhJoint& joint, const Place& place);

  // Of a joint, so many frames behind the first one that was worked out.
  std::size_t SlotOf(std::size_t joint, std::size_t offset) const {
    return joint * most_frames_ + offset;
  }

  const BvhPlan& plan_;
  TextBuffer& text_;
  std::size_t most_frames_;
  std::vector<Place> places_;
};

void MotionLines::Put() {
  for (std::size_t begin = 0; begin < plan_.frame_count; begin += most_frames_) {
    const std::size_t end = std::min(begin + most_frames_, plan_.frame_count);
    for (std::size_t joint = 0; joint < plan_.joints.size(); ++joint) WorkOut(joint, begin, end);
    for (std::size_t frame = begin; frame < end; ++frame) PutLine(frame - begin);
  }
}

void MotionLines::WorkOut(std::size_t joint, std::size_t begin, std::size_t end) {
  const HtrSegment& segment = *plan_.joints[joint].segment;
  const RotationMatrix3 base(segment.GetBaseRotation());
  // Of the frame before; zero before the first.
  BvhAngles angles = places_[SlotOf(joint, most_frames_ - 1)].angles;
  for (std::size_t frame = begin; frame < end; ++frame) {
    angles = AnglesNear(HeldRotation(segment, base, frame), angles);
    Place& place = places_[SlotOf(joint, frame - begin)];
    place.angles = angles;
    if (plan_.joints[joint].has_positions) place.translation = HeldTranslation(segment, frame);
  }
}

void MotionLines::PutLine(std::size_t offset) {
  for (std::size_t joint = 0; joint < plan_.joints.size(); ++joint) {
    if (joint != 0) text_.Put(' ');
    PutPlace(plan_.joints[joint], places_[SlotOf(joint, offset)]);
  }
  text_.Put('\n');
}

void MotionLines::PutPlace(const BvhJoint& joint, const Place& place) {
  if (joint.has_positions) {
    for (unsigned int axis = 0; axis < 3; ++axis) {
      plan_.lengths.Put(place.translation[axis], text_);
      text_.Put(' ');
    }
  }
  plan_.angles.Put(place.angles.z * kDegreesPerRadian, text_);
  text_.Put(' ');
  plan_.angles.Put(place.angles.x * kDegreesPerRadian, text_);
  text_.Put(' ');
  plan_.angles.Put(place.angles.y * kDegreesPerRadian, text_);
}

}  // namespace

void PutMotionLines(const BvhPlan& plan, TextBuffer& text) { MotionLines(plan, text).Put(); }

}  // namespace orvane
