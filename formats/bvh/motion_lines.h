#pragma once

#include "formats/bvh/plan.h"
#include "formats/text/text_buffer.h"

// The frames of a BVH file. Belongs to the writer.
namespace orvane {

// Puts a line for each frame of the plan: the channels of its joints, in their order.
void PutMotionLines(const BvhPlan& plan, TextBuffer& text);

}  // namespace orvane
