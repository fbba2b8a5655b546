#pragma once

#include <cstddef>
#include <span>
#include <string_view>

#include "formats/text/lines.h"
#include "formats/trc/row_width.h"

// What the reader lets pass without a message, and what it refuses, told to whoever wants to know.
// Watching changes nothing in what is read. An observer belongs to whoever makes it, is called on
// the thread that reads, and may throw what is to end the reading; but std::bad_alloc and
// std::length_error are taken for the reader's own.
namespace orvane {

enum class TRCOddity {
  // Any line.
  kByteOrderMark,         // belongs to the first line as any other text; the mark
  kHiddenByNul,           // ignored; the rest of the line from the NUL on
  kLongLine,              // read as several lines; the second of them
  kCarriageReturn,        // part of a field; the rest of the line from there on
  kSpareCarriageReturns,  // more than one before a line feed, ignored; empty
  kUnfinishedEnd,         // the file ends without a line feed; empty
  kCommentReplacesLine,   // the line behind a "#" line is thrown away; the line that stays
  // The header.
  kUnknownFileType,     // ignored; the first word of the file
  kUnknownPathType,     // neither 3 nor 4: the first frame is 1; the value
  kCoordinatesRefused,  // the file is refused; the value that is no "(X/Y/Z)"
  kRateTruncated,       // the fraction of a rate is dropped; the value
  kRateNotPositive,     // a rate of 0 or less; the value
  kUnknownUnits,        // taken as millimetres; the value
  kUnitsEndTheLine,     // a good unit without a tab behind it, taken as millimetres; the value
  // The columns.
  kMarkerNameLost,        // a last name without a tab behind it is no marker; the name
  kUnnamedColumnDropped,  // no marker, and the columns behind it shift; the name
  kMarkerNameRepeated,    // no marker, and the columns behind it shift; the name
  kMarkerNameEmpty,       // a marker all the same; empty
  kMarkerCountMismatch,   // markers differ from the announced count, which is ignored; that count
  kMarkerCountRefused,    // the same, for which the file is refused; the count
  kSubHeaderIsData,       // the line of coordinate headings starts with a number; that number
  // Numbers, of the header and of the frames.
  kMissingNumber,      // taken as 0; empty
  kUnreadableNumber,   // the number it starts with is taken, or 0; the whole cell
  kNumberOutOfBounds,  // the greatest or the least there is, or infinity; the whole cell
  kNumberCut,          // a whole number is taken; the whole cell
  // The frames.
  kBlankFrame,          // a line without anything: a dropout of every marker; empty
  kShortFrame,          // fewer columns than markers: dropouts of the rest; empty
  kSurplusValue,        // a value behind the last marker's, ignored; the value
  kSampleWithoutX,      // y or z without x: a dropout; the value that is ignored
  kFrameNumberSkips,    // does not follow the frame before, ignored; the frame number
  kFrameCountMismatch,  // frames held differ from those announced; how many are held
};

// The values of the header that mean something.
enum class TRCHeaderValue {
  kPathType,
  kDataRate,
  kCameraRate,
  kNumFrames,
  kNumMarkers,
  kUnits,
  kFirstFrame,
};

// Where in the file. All count from 1.
struct TRCPlace {
  std::size_t line = 0;
  std::size_t column = 0;  // in bytes
  std::size_t field = 0;   // what stands between two tabs; 0 where no field is meant
};

// A line of a frame, or the piece of one that is read as a frame.
struct TRCRow {
  const Line& line;
  std::string_view number;  // what the line starts with, which should be the frame's number
  TRCRowWidth width;
  // The x, y and z of each marker that has a cell on the line, not-a-number where a cell is empty
  // or missing: without x it is a dropout, and without y or z these are 0. They live until the call
  // returns.
  std::span<const double> coordinates;
};

// All is told in file order while reading, but for a count of markers that is wrong, which is told
// once they are known, with its place in the line before.
//
// A text that is told is a part of the current line, which lies in memory as a whole, from its
// first byte to the line break, whether it is read in pieces or not; counts are texts of their own.
// All of them live until the call returns: whoever wants to keep one takes a copy.
class TRCReadObserver {
 public:
  virtual ~TRCReadObserver() = default;

  virtual void OnOddity(TRCOddity oddity, TRCPlace place, std::string_view text) = 0;
  // A value of the header, whatever it is worth.
  virtual void OnHeaderValue(TRCHeaderValue /*value*/, TRCPlace /*place*/,
                             std::string_view /*text*/) {}
  // A marker of the document, in its order.
  virtual void OnMarker(TRCPlace /*place*/, std::string_view /*name*/) {}
  // One of the first six lines, counted from 0, before anything else is told of it. The sixth may
  // hold a frame already.
  virtual void OnHeaderLine(std::size_t /*number*/, const Line& /*line*/) {}
  // A line that is not read, as a comment has taken its place.
  virtual void OnLineThrownAway(const Line& /*line*/) {}
  // A frame, at the place of its number, which has been read.
  virtual void OnFrame(TRCPlace /*place*/, const TRCRow& /*row*/) {}
  // All lines have been read: the place behind the last byte. A file that is refused has no end.
  virtual void OnEnd(TRCPlace /*place*/) {}

  // Whether the lines of frames are looked over too, which takes longer than reading them. When
  // not, nothing is told of them but their count.
  [[nodiscard]] virtual bool WatchesFrames() const { return true; }
};

}  // namespace orvane
