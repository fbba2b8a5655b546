#include "cli/common/advice.h"

#include <cstddef>
#include <string_view>

namespace cli {
namespace {

struct Advice {
  std::string_view about;  // what a message holds that the advice is for
  std::string_view text;
};

constexpr Advice kAdvice[] = {
    {"\"FileType\"", "The header of an HTR file says \"FileType HTR\"."},
    {"\"DataType\"", "Only files with \"DataType HTRS\" in the header can be read."},
    {"\"FileVersion\"", "Only files with \"FileVersion 1\" in the header can be read."},
    {"\"EulerRotationOrder\"",
     "Only files with \"EulerRotationOrder ZYX\" in the header can be read."},
    {"\"GlobalAxisofGravity\"", "The axis of gravity may be Y or Z."},
    {"\"BoneLengthAxis\"", "Only files with \"BoneLengthAxis Y\" in the header can be read."},
    {"duplicate segment names",
     "Every line of [SegmentNames&Hierarchy] needs a name of its own, without blanks."},
    {"Segment name not found",
     "A line of [BasePosition] starts with a name that [SegmentNames&Hierarchy] does not list; the "
     "message shows what follows that name."},
    {"Incorrect number of segments",
     "\"NumSegments\" in the header must be the number of lines in [BasePosition]. A file that was "
     "cut short says this too."},
    {"holds no segments", "Is it an HTR file? A file of 0 segments may also have been cut short."},
    {"\"(X/Y/Z)\" header state",
     "The first line of a TRC file is PathFileType, a number, (X/Y/Z) and a file name, with tabs "
     "between them."},
    {"holds no markers",
     "Is it a TRC file? The fourth line names the markers, with three tabs behind each."},
    {"Position Controller Error", "The object that a marker is applied to cannot be animated."},
    {"no root", "In [SegmentNames&Hierarchy] a root has the parent GLOBAL."},
    {"start frame equal to or greater", "The range must lie within the frames of the file."},
    {"end frame less than or equal", "The range must lie within the frames of the file."},
    {"less than the end frame",
     "Is --range in order, and does \"NumFrames\" in the header announce any frames?"},
    {"non-zero size",
     "--size takes a number that is not 0, such as 1.5; for an HTR file, --segment-size does."},
    {"non-zero scale factor", "--scale takes a number that is not 0, such as 0.1."},
    {"Base Position, Animation, or both", "--apply needs --animation or --base-position."},
    {"select the root of a skeleton",
     "--into SCENE --select NAME selects in a scene of yours; --create builds a new skeleton."},
    {"is not finite",
     "A number of the file, or that of --scale, --size or --segment-size, is too large."},
    {"ScaleFactor is not 1.0", "Lengths are taken as they stand; --scale multiplies them."},
};

// Where these differ from the ones above.
constexpr Advice kExportAdvice[] = {
    {"start frame equal to or greater",
     "The range must lie within the animation range of the scene."},
    {"end frame less than or equal", "The range must lie within the animation range of the scene."},
    {"less than the end frame",
     "Is --range in order, and does the animation range of the scene end after it starts?"},
    {"select the root bone",
     "--select NAME selects a bone; \"orvane scene SCENE\" lists the names."},
    {"bone object to export", "--select NAME takes a bone, or a node that is the parent of one."},
    {"object offset", "The file says where the node is, and not where its object is drawn."},
    {"multiple identical names",
     "Every bone needs a name of its own, without blanks; without one it is left out, with all "
     "below "
     "it."},
    {"No segments to write", "Bones with \"Effector\" in their names are left out."},
};

template <std::size_t kCount>
std::string FindAdvice(const Advice (&table)[kCount], const std::string& message) {
  for (const Advice& advice : table) {
    if (message.find(advice.about) != std::string::npos) return std::string(advice.text);
  }
  return "";
}

}  // namespace

std::string AdviceFor(const std::string& message) { return FindAdvice(kAdvice, message); }

std::string AdviceForExport(const std::string& message) {
  const std::string advice = FindAdvice(kExportAdvice, message);
  return advice.empty() ? AdviceFor(message) : advice;
}

}  // namespace cli
