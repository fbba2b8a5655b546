#pragma once

#include <cstddef>
#include <string_view>

// What the reader lets pass without a message, told to whoever wants to know. Watching changes
// nothing in what is read.
namespace orvane {

enum class HtrOddity {
  kLineBeforeFirstSection,   // ignored; the text is the line
  kUnknownHeaderKeyword,     // ignored; the keyword
  kUnknownCalibrationUnits,  // taken as millimetres; the value
  kUnknownRotationUnits,     // taken as degrees; the value
  kUnknownAxis,              // taken as Y; the value
  kMissingNumber,            // taken as 0; empty
  kUnreadableNumber,         // the number it starts with is taken, or 0; the whole cell
  kParentNotFound,           // the segment has no parent; the parent's name
  kHierarchyLinkedAgain,     // a second base-position section: every child is listed once more
  kHierarchyLeftUnlinked,    // so many such sections that no more links are made
  kSegmentCountMismatch,     // hierarchy lines differ from NumSegments; the section
  kUnknownSegmentSection,    // its motion is skipped; the section's name
  kMotionOfUnknownSegment,   // a skipped line of such a section; the line
  kFrameCountMismatch,       // a motion section differs from NumFrames; the segment's name
  kLongLine,                 // read as several lines; the first piece
};

class HtrReadObserver {
 public:
  virtual ~HtrReadObserver() = default;

  // Called in file order while reading. `line` counts from 1; `text` lives until the call returns.
  virtual void OnOddity(HtrOddity oddity, std::size_t line, std::string_view text) = 0;
};

}  // namespace orvane
