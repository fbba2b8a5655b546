#pragma once

#include <cstddef>
#include <string_view>

// What the reader lets pass without a message, and what it refuses, told to whoever wants to know.
// Watching changes nothing in what is read.
namespace orvane {

enum class TRCOddity {
  // Any line.
  kLongLine,             // read as several lines; the first piece
  kCommentReplacesLine,  // the line behind a "#" line is thrown away; the line that stays
  // The header.
  kUnknownFileType,     // ignored; the first word of the file
  kUnknownPathType,     // neither 3 nor 4: the first frame is 1; the value
  kCoordinatesRefused,  // the file is refused; the value that is no "(X/Y/Z)"
  kMissingNumber,       // taken as 0; empty
  kUnreadableNumber,    // the number it starts with is taken, or 0; the whole cell
  kRateTruncated,       // the fraction of a rate is dropped; the value
  kRateNotPositive,     // a rate of 0 or less; the value
  kUnknownUnits,        // taken as millimetres; the value
  kUnitsEndTheLine,     // a good unit without a tab behind it, taken as millimetres; the value
  // The columns.
  kMarkerNameLost,        // a last name without a tab behind it is no marker; the name
  kUnnamedColumnDropped,  // no marker, and the columns behind it shift; the name
  kMarkerNameRepeated,    // no marker, and the columns behind it shift; the name
  kMarkerNameEmpty,       // a marker all the same; empty
  kMarkerCountMismatch,   // markers differ from the announced count, which is ignored; the count
  kMarkerCountRefused,    // the same, for which the file is refused; the count
  kSubHeaderIsData,       // the line of coordinate headings starts with a number; that number
  // The frames.
  kBlankFrame,          // a line without anything: a dropout of every marker; empty
  kShortFrame,          // fewer columns than markers: dropouts of the rest; the frame number
  kSurplusValue,        // a value behind the last marker's, ignored; the value
  kSampleWithoutX,      // y or z without x: a dropout; the value that is ignored
  kFrameNumberSkips,    // does not follow the frame before, ignored; the frame number
  kFrameCountMismatch,  // frames held differ from those announced; empty
};

// Where in the file. Both count from 1; a column is what stands between two tabs, and 0 where the
// whole line is meant.
struct TRCPlace {
  std::size_t line = 0;
  std::size_t column = 0;
};

class TRCReadObserver {
 public:
  virtual ~TRCReadObserver() = default;

  // Called in file order while reading. `text` lives until the call returns.
  virtual void OnOddity(TRCOddity oddity, TRCPlace place, std::string_view text) = 0;

  // Whether the lines of frames are looked over too, which takes longer than reading them.
  virtual bool WatchesFrames() const { return true; }
};

}  // namespace orvane
