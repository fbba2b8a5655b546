#pragma once

#include <cstddef>
#include <string_view>

#include "formats/htr/sections.h"

// What the reader meets on its way through a file, told to whoever wants to know: what it lets pass
// without a message, what it refuses, and where the parts of the file stand. Watching changes
// nothing in what is read. An observer belongs to whoever makes it, is called on the thread that
// reads, and may throw what is to end the reading; but std::bad_alloc is taken for the reader's
// own.
namespace orvane {

// A piece of a line and its place in the file.
struct HtrCell {
  std::string_view text;   // empty where something is missing
  std::size_t line = 0;    // counted from 1
  std::size_t column = 0;  // of its first byte in that line, counted from 1
};

enum class HtrOddity {
  // Lines
  kByteOrderMark,           // belongs to the first line as any other text; the mark
  kHiddenByNul,             // ignored; the rest of the line from the NUL on
  kLongLine,                // read as several lines; the second of them
  kCarriageReturn,          // part of a word; the rest of the line from there on
  kCommentInWord,           // ends the line; the rest of the line from the '#' on
  kLineBeforeFirstSection,  // ignored; the line
  kLineAfterEnd,            // ignored with all that follow; the first such line
  kExtraCells,              // ignored; the rest of the line

  // Section lines
  kIndentedSection,         // is none, but a line of the current section; the line
  kUnclosedSection,         // its name ends with the line; the name
  kTextAfterSection,        // ignored; the rest of the line
  kUnknownSegmentSection,   // its motion is skipped; the section's name
  kMotionOfUnknownSegment,  // a skipped line of such a section; the line

  // Header
  kUnknownHeaderKeyword,     // ignored; the keyword
  kExtraHeaderWords,         // ignored, as the last word counts; what stands before it
  kUnknownCalibrationUnits,  // taken as millimetres; the value
  kUnknownRotationUnits,     // taken as degrees; the value
  kUnknownAxis,              // taken as Y; the value

  // Numbers
  kMissingNumber,      // taken as 0; empty
  kUnreadableNumber,   // the number it starts with is taken, or 0; the whole cell
  kCutNumber,          // a whole number is wanted and the fraction left out; the whole cell
  kNumberOutOfBounds,  // taken as infinity, or as the nearest whole number that fits; the cell

  // Hierarchy
  kExtraHierarchyWords,    // ignored between a name and its parent; what stands there
  kParentNotFound,         // the segment has no parent; the parent's name in the hierarchy
  kHierarchyLinkedAgain,   // a second base-position section: every child is listed once more
  kHierarchyLeftUnlinked,  // so many such sections that no more links are made

  // Counts
  kSegmentCountMismatch,  // hierarchy lines differ from NumSegments; the base-position section

  // Refusals: reading ends here
  kRefusedHeaderValue,        // the value
  kRefusedSegmentName,        // one that is taken; the name
  kRefusedBasePosition,       // of an unknown segment; the name
  kRefusedBasePositionCount,  // differs from NumSegments; empty, behind the last line
};

// All calls come while reading, most of them in file order.
//
// A text that is told is a part of the current line, which lies in memory as a whole, from its
// first byte to the line break, whether it is read in pieces or not; a parent that is not found is
// a text of its own. All of them live until the call returns: whoever wants to keep one takes a
// copy.
class HtrReadObserver {
 public:
  virtual ~HtrReadObserver() = default;

  // `field` is the keyword of a header line or the name of a column, where it is one of these that
  // is odd; otherwise it is empty.
  virtual void OnOddity(HtrOddity oddity, const HtrCell& cell, std::string_view field) = 0;

  // A section starts. Any unknown name is that of a motion section.
  virtual void OnSection(HtrSection /*section*/, const HtrCell& /*name*/) {}
  // A line of the header, before it is looked at.
  virtual void OnHeaderField(const HtrCell& /*keyword*/, const HtrCell& /*value*/) {}
  // A segment was added to the document; `parent` may be empty.
  virtual void OnSegment(const HtrCell& /*name*/, const HtrCell& /*parent*/) {}
  // A segment was given its base position.
  virtual void OnBasePosition(const HtrCell& /*name*/) {}
  // A frame is about to be added to the segment of the current section.
  virtual void OnFrame(const HtrCell& /*number*/) {}
  // All lines have been read or passed over: the place behind the last byte, with no text. A file
  // that is refused before, or not read up to its motion, has no end.
  virtual void OnEnd(const HtrCell& /*end*/) {}
};

}  // namespace orvane
