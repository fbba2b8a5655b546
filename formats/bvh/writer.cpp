#include "formats/bvh/writer.h"

#include <algorithm>
#include <cstddef>
#include <string_view>

#include "formats/bvh/motion_lines.h"
#include "formats/text/numbers.h"
#include "formats/text/text_buffer.h"

namespace orvane {
namespace {

constexpr std::string_view kPositionChannels = " Xposition Yposition Zposition";
constexpr std::string_view kRotationChannels = " Zrotation Xrotation Yrotation";

// Joints farther down are not indented more, so that the text of a long chain stays in proportion.
constexpr std::size_t kDeepestIndent = 64;

// The joints of one file, each in the braces of its parent.
class HierarchyPrinter {
 public:
  HierarchyPrinter(const BvhPlan& plan, TextBuffer& text) : plan_(plan), text_(text) {}

  void Print();

 private:
  void PrintJoint(const BvhJoint& joint);
  void PrintEnd(const Vector3& end, std::size_t depth);
  void PutOffset(const Vector3& offset, std::size_t depth);
  void CloseDownTo(std::size_t depth, std::size_t from);

  void Indent(std::size_t depth) {
    for (std::size_t tabs = std::min(depth, kDeepestIndent); tabs > 0; --tabs) text_.Put('\t');
  }
  void PutLine(std::size_t depth, std::string_view line) {
    Indent(depth);
    text_.Put(line);
    text_.Put('\n');
  }

  const BvhPlan& plan_;
  TextBuffer& text_;
};

void HierarchyPrinter::Print() {
  PutLine(0, "HIERARCHY");
  std::size_t depth = 0;  // of the joint before
  for (const BvhJoint& joint : plan_.joints) {
    if (&joint != &plan_.joints.front()) CloseDownTo(joint.depth, depth + 1);
    PrintJoint(joint);
    depth = joint.depth;
  }
  CloseDownTo(0, depth + 1);
}

void HierarchyPrinter::PrintJoint(const BvhJoint& joint) {
  const std::size_t inside = joint.depth + 1;
  Indent(joint.depth);
  text_.Put(joint.depth == 0 ? "ROOT " : "JOINT ");
  text_.Put(joint.name);
  text_.Put('\n');
  PutLine(joint.depth, "{");
  PutOffset(joint.offset, inside);
  Indent(inside);
  text_.Put(joint.has_positions ? "CHANNELS 6" : "CHANNELS 3");
  if (joint.has_positions) text_.Put(kPositionChannels);
  text_.Put(kRotationChannels);
  text_.Put('\n');
  if (joint.end) PrintEnd(*joint.end, inside);
}

void HierarchyPrinter::PrintEnd(const Vector3& end, std::size_t depth) {
  PutLine(depth, "End Site");
  PutLine(depth, "{");
  PutOffset(end, depth + 1);
  PutLine(depth, "}");
}

void HierarchyPrinter::PutOffset(const Vector3& offset, std::size_t depth) {
  Indent(depth);
  text_.Put("OFFSET");
  for (unsigned int axis = 0; axis < 3; ++axis) {
    text_.Put(' ');
    plan_.lengths.Put(offset[axis], text_);
  }
  text_.Put('\n');
}

// Of so many open braces all but the outermost `depth`.
void HierarchyPrinter::CloseDownTo(std::size_t depth, std::size_t from) {
  for (; from > depth; --from) PutLine(from - 1, "}");
}

}  // namespace

void PrintBvh(const BvhPlan& plan, const TextTaker& take) {
  TextBuffer text(take);
  HierarchyPrinter(plan, text).Print();
  text.Put("MOTION\nFrames: ");
  text.PutInteger(static_cast<std::int64_t>(plan.frame_count));
  text.Put("\nFrame Time: ");
  text.Put(FormatShortest(plan.frame_time));
  text.Put('\n');
  PutMotionLines(plan, text);
  text.HandOver();
}

}  // namespace orvane
