#include "inspect/report/finding_words.h"

namespace orvane {
namespace {

using enum FindingSeverity;

// By what viewers are shown of them; the host has keys at the origin in any case.
constexpr GapEffects kShownGaps = {
    {{kNote,
      "Viewers do not see such a marker in its gaps; in the host its keys go to the origin."},
     {kWarning,
      "In its gaps viewers see such a marker at its last place; in the host its keys go to the "
      "origin."},
     {kWarning, "In its gaps such a marker goes to the origin."}}};
constexpr GapEffects kShownWithoutPosition = {
    {{kNote, "Viewers never see such a marker; in the host its keys are at the origin."},
     {kWarning,
      "There is no place to hold such a marker at: a new one is not seen by viewers, and another "
      "keeps its place; in the host its keys are at the origin."},
     {kWarning, "Such a marker stays at the origin."}}};

// New nodes are hidden, and those that are there held, unless something else is said.
constexpr FindingEffects InGaps(const GapEffects& effects) {
  return InMarkers(kWarning)
      .But(Action::kImport, kNote, effects[0].consequence)
      .But(Action::kApply, kWarning, effects[1].consequence);
}

constexpr FindingMeaning kWords[] = {
    {"trc-other-kind", "The file is {found}, not {expected}", nullptr, InMarkers(kError)},
    {"trc-empty", "The file is empty", nullptr,
     InMarkers(kError, "Nothing is read; was it saved, or copied, to its end?")},
    {"trc-encoding", "The file is UTF-16 text", nullptr,
     InMarkers(kError, "None of it is read; save it as UTF-8 or ASCII.")},
    {"trc-cells-quoted", "Cells stand in quotation marks", nullptr,
     InMarkers(kError, "The file is refused; save it without quotation marks.")},
    {"trc-line-ends", "Lines end with carriage returns alone", nullptr,
     InMarkers(kError, "No line ends there for the reader; save it with LF or CR LF.")
         .But(Action::kConvert, kWarning,
              "No line ends there for the reader: what is written is not what the file says.")},
    {"trc-byte-order-mark", "A byte-order mark stands at the start of the file", nullptr,
     InMarkers(kNote, "It belongs to the first word, which does not count.")},
    {"trc-nul", "A line holds a NUL byte", "{count} lines hold NUL bytes",
     InMarkers(kWarning, "The rest of such a line is not read.")},
    {"trc-line-cut", "A line is longer than 10239 bytes",
     "{count} lines are longer than 10239 bytes",
     InMarkers(kWarning, "Such a line is read as several.")},
    {"trc-carriage-return", "A carriage return stands inside a line",
     "Carriage returns stand inside {count} lines",
     InMarkers(kWarning, "It is read as a part of its line.")},
    {"trc-carriage-return-spare", "Lines end with several carriage returns", nullptr,
     InMarkers(kNote, "They do not count.")},
    {"trc-comment", "A line starts with #", "{count} lines start with #",
     InMarkers(kWarning, "Such a line is read as any other, and the next line is thrown away.")},
    {"trc-end-unfinished", "The last line has no end", nullptr,
     InMarkers(kNote, "It is read as it stands; was the file cut short?")},
    {"trc-file-type-unknown", "The file does not begin with PathFileType", nullptr,
     InMarkers(kNote, "The word does not count.")},
    {"trc-path-type-unknown", "The path type is neither 3 nor 4", nullptr,
     InMarkers(kWarning, "The first frame is number 1.")},
    {"trc-tabs-missing", "The first line needs {expected}", nullptr,
     InMarkers(kError, "The file is refused.")},
    {"trc-coordinates-refused", "The first line does not name (X/Y/Z)", nullptr,
     InMarkers(kError, "The file is refused.")},
    {"trc-rate-cut", "The frame rate has a fraction", nullptr,
     KeptAsSaid(InTime(InMarkers(kWarning)), kNote), Concern::kTime},
    {"trc-rate-out-of-range", "There is no such frame rate", nullptr,
     InMarkers(kWarning)
         .But(Action::kInspect, kWarning, "It is shown as it is.")
         .But(Action::kRewrite, kWarning, kWrittenAsSaid)
         .But(Action::kConvert, kNote, "The converted file has it as it is."),
     Concern::kRate},
    {"trc-rate-inexact", "The host has no such frame rate", nullptr,
     KeptAsSaid(InTime(InMotion(kNote, "It is shown as it is.")), kNote), Concern::kTime},
    {"trc-camera-rate-cut", "The rate of the cameras has a fraction", nullptr,
     InMarkers(kNote, "Nothing depends on it.")
         .But(Action::kInspect, kWarning, "Its whole part is shown.")
         .But(Action::kRewrite, kNote, kWrittenAsSaid)
         .But(Action::kConvert, kWarning, "The converted file tells its whole part.")},
    {"trc-camera-rate", "The camera rate is odd", nullptr,
     InMarkers(kNote, "Nothing depends on it.")
         .But(Action::kConvert, kNote, "The converted file tells it.")},
    {"trc-unit-unknown", "The unit is unknown", nullptr,
     InMarkers(kWarning, "Millimeters are taken; mm, cm, m, in, ft and yd are known.")
         .But(Action::kConvert, kNote, "A BVK file tells no unit.")},
    {"trc-unit-blanks", "Blanks stand beside the unit", nullptr,
     InMarkers(kNote, "Millimeters are taken, as it says.")
         .But(Action::kConvert, kNote, "A BVK file tells no unit.")},
    {"trc-unit-ends-line", "The unit ends its line", nullptr,
     InMarkers(kWarning, "Millimeters are taken; a tab behind the unit makes it count.")
         .But(Action::kConvert, kNote, "A BVK file tells no unit.")},
    {"trc-names-misplaced", "Names are not three tabs apart", nullptr,
     InMarkers(kWarning,
               "A name is taken every three tabs: markers get other names and other values.")},
    {"trc-names-headings", "The line of names holds {found} in place of {expected}", nullptr,
     InMarkers(kWarning,
               "They are the names of the markers: X1, X2 and so on; the next line is not read.")},
    {"trc-name-lost", "The last name has no tab behind it", nullptr,
     InMarkers(
         kWarning,
         "It makes no marker, and its values are not read; a tab behind the name makes it count.")},
    {"trc-name-empty", "A marker has no name", "{count} markers have no name",
     InMarkers(kWarning, "Such a column is a marker all the same.")
         .But(Action::kImport, kWarning, "Such a marker makes an object without a name.")
         .But(Action::kApply, kWarning, "Such a marker makes an object without a name.")
         .But(Action::kConvert, kWarning,
              "Its name is missing in $Order: whoever reads it gives all names behind it to other "
              "markers.")},
    {"trc-name-with-blank", "A name holds blanks", "{count} names hold blanks",
     InMarkers(kNote, "They are kept.")
         .But(Action::kConvert, kWarning,
              "In $Order such a name reads as several: whoever reads it gives all names behind it "
              "to other markers.")},
    {"trc-name-encoding", "A name is not UTF-8 text", "{count} names are not UTF-8 text",
     InMarkers(kWarning, "Such a byte is replaced where text is shown; save the file as UTF-8.")
         .But(Action::kConvert, kWarning,
              "Its bytes are written as they are; save the file as UTF-8.")},
    {"trc-column-unnamed", "A column has no name of its own",
     "{count} columns have no name of their own",
     InMarkers(
         kWarning,
         "Such a column makes no marker, and its values go to the next one: all columns behind it "
         "shift, unless it gets a name or stands last.")},
    {"trc-column-repeated", "Two columns have one name", "{count} columns have the names of others",
     InMarkers(
         kWarning,
         "The later one makes no marker, and its values go to the next one: all columns behind "
         "it shift, unless it gets a name of its own or stands last.")},
    {"trc-column-repeated-blank", "A column without values has the name of another",
     "{count} columns without values have the names of others",
     InMarkers(kNote, "Such a column makes no marker, and no values shift.")},
    {"trc-markers-missing", "The file holds no markers", nullptr,
     InMarkers(kError, "There is nothing to import.")
         .But(Action::kInspect, kError, "There is nothing to show.")
         .But(Action::kRewrite, kError, "There is nothing to write.")
         .But(Action::kConvert, kError,
              "Nothing is written; --allow empty writes it without markers."),
     Concern::kMarkers},
    {"trc-marker-count", "The file holds {found}, and NumMarkers announces {expected}", nullptr,
     InMarkers(kNote, "The markers that are there are taken.")
         .But(Action::kInspect, kWarning, "The markers that are there are shown.")
         .But(Action::kRewrite, kNote,
              "The markers that are there are written, and NumMarkers says how many.")},
    {"trc-columns-misfit", "The rows have {found}, and the names ask for {expected}", nullptr,
     InMarkers(kWarning, "Values may belong to other markers than those that get them.")},
    {"trc-sub-header-missing", "The line of X1, Y1, Z1 is missing", nullptr,
     InMarkers(kWarning, "The frame in its place is lost.")},
    {"trc-decimal-commas", "Numbers are written with decimal commas", nullptr, InMarkers(kWarning)},
    {"trc-number-missing", "A value is missing", "{count} values are missing",
     InMarkers(kWarning, "0 is taken; a gap has nothing at all for X, not even a blank.")},
    {"trc-number-unreadable", "A value is not a number", "{count} values are not numbers",
     InMarkers(kWarning, "What it starts with is taken, or 0."), Concern::kFile, 3},
    {"trc-number-cut", "A whole number has a fraction", "{count} whole numbers have fractions",
     InMarkers(kWarning, "The fraction is cut off.")},
    {"trc-number-out-of-range", "A number is out of range", "{count} numbers are out of range",
     InMarkers(kWarning).But(Action::kInspect, kWarning,
                             "The nearest number that there is is taken.")},
    {"trc-number-infinite", "A number is too large", "{count} numbers are too large",
     InMarkers(kError, kCannotBeSaved)
         .But(Action::kInspect, kWarning, "It is taken as infinite.")
         .But(Action::kRewrite, kWarning, kWrittenInfinite)
         .But(Action::kApply, kWarning, kCannotBeSaved)
         .But(Action::kConvert, kWarning, "It is written in all its digits, or as inf."),
     Concern::kSaving},
    {"trc-blank-line-tabs", "A line of tabs stands where the blank line belongs", nullptr,
     InMarkers(kWarning,
               "It is the first frame, without positions: every sample comes a frame late.")},
    {"trc-frame-blank", "A line is blank where a frame belongs",
     "{count} lines are blank where frames belong",
     InMarkers(kWarning, "Each is a frame in which no marker has a position.")},
    {"trc-lines-at-end", "The file has {found}", nullptr,
     InMarkers(kNote, "The header announces no more frames than stand before: it does not count.")},
    {"trc-frame-short", "A frame has too few columns", "{count} frames have too few columns",
     InMarkers(
         kWarning,
         "The markers that are missing have no position there; if cells were lost, the values "
         "behind them go to other markers.")},
    {"trc-frame-narrow", "A frame has fewer columns than most: {found}, not {expected}",
     "{count} frames have fewer columns than most, which have {expected}",
     InMarkers(kWarning,
               "If a cell was lost, the values behind it go to other coordinates and markers.")},
    {"trc-value-extra", "A frame has too many columns", "{count} frames have too many columns",
     InMarkers(kWarning,
               "What stands behind the last marker is not read; if a cell was put in, the values "
               "behind it go to other markers.")},
    {"trc-sample-without-x", "A sample does not begin with X",
     "{count} samples do not begin with X",
     InMarkers(kWarning, "The marker has no position there.")},
    {"trc-first-frame", "The frames are numbered {found}, and taken as {expected}", nullptr,
     InMarkers(kWarning)
         .But(Action::kInspect, kWarning, "They are shown as {expected}.")
         .But(Action::kRewrite, kWarning, "They are written as {expected}.")
         .But(Action::kConvert, kWarning, "They are written as {expected}.")},
    {"trc-frame-number", "A frame's number is not the next one",
     "The numbers of {count} frames are not the next ones",
     InMarkers(kWarning, "Frames follow each other as their lines do.")},
    {"trc-time-unreadable", "The time of the first frame is {found}, not {expected}", nullptr,
     InMarkers(kNote, "The column is not read: frames follow each other at the frame rate.")
         .But(Action::kRewrite, kWarning,
              "Times begin at 0 in the new file; --start-time gives another one.")},
    {"trc-time-differs", "The time column says {found} where the frame rate gives {expected}",
     nullptr,
     InMarkers(kWarning, "The column is not read: frames follow each other at the frame rate.")
         .But(Action::kInspect, kNote,
              "The column is not read: frames follow each other at the frame rate.")
         .But(Action::kRewrite, kWarning,
              "From that of the first frame on, times are written as the frame rate gives them."),
     Concern::kRate},
    {"trc-frame-count", "NumFrames announces {found}, and the file holds {expected}", nullptr,
     InMarkers(kWarning)
         .But(Action::kInspect, kWarning, "The frames that are there are shown.")
         .But(Action::kRewrite, kWarning, kFramesWritten),
     Concern::kFrames},
    {"trc-frames-unannounced", "The header announces no frames", nullptr,
     InMarkers(kError, "The file is refused: its last frame would come before its first.")
         .But(Action::kInspect, kError,
              "An import refuses the file; the frames that are there are shown.")
         .But(Action::kConvert, kWarning, "No frame is written.")
         .But(Action::kRewrite, kWarning, kFramesWritten)},
    {"trc-frames-too-many", "NumFrames announces {found}, and the file holds {expected}", nullptr,
     InMarkers(kError, "It is refused; --range FROM:TO takes a part of them.")
         .But(Action::kInspect, kError,
              "An import refuses the file; the frames that are there are shown.")
         .But(Action::kConvert, kError, "It is refused.")
         .But(Action::kRewrite, kWarning, kFramesWritten),
     Concern::kExcess},
    {"trc-marker-gaps", "A marker has gaps", "{count} markers have gaps",
     InGaps(kShownGaps)
         .But(Action::kInspect, kNote, "A marker has no position in its gaps.")
         .But(Action::kRewrite, kNote, "Gaps stay gaps.")
         .But(Action::kConvert, kNote, "A gap is written as DROPOUT."),
     Concern::kSamples, 0, &kShownGaps},
    {"trc-marker-never-seen", "A marker has no position in any frame",
     "{count} markers have no position in any frame",
     InGaps(kShownWithoutPosition)
         .But(Action::kInspect, kWarning, "Such a column is a marker all the same.")
         .But(Action::kConvert, kNote, "Such a marker is written as DROPOUT throughout."),
     Concern::kSamples, 0, &kShownWithoutPosition},
    {"trc-position-zero", "A marker stands at exactly 0 0 0 in some of its frames",
     "{count} markers stand at exactly 0 0 0 in some of their frames", InMarkers(kWarning)},
    {"trc-position-stand-in", "A marker jumps far away, to the very same place each time",
     "{count} markers jump far away, to the very same place each time", InMarkers(kWarning)},
    {"trc-position-far", "A position is more than 1 km away",
     "{count} positions are more than 1 km away",
     InMarkers(kWarning,
               "Such a number is taken for a position, even if it stands for a missing one.")},
    {"trc-size", "What the file holds would be {found} large", nullptr,
     InMarkers(kNote).But(Action::kConvert, kNote,
                          "Positions are written as they stand; a BVK file tells no unit.")},
    {"trc-up-axis", "The file seems to have {found}", nullptr,
     InMarkers(kNote, "It is taken as Y up: what stands lies on its side; --up z turns it.")
         .But(Action::kInspect, kNote, "It is taken as Y up.")
         .But(Action::kRewrite, kNote, "It is taken as Y up; --up z turns it.")},
};

}  // namespace

std::span<const FindingMeaning> TrcFindingMeanings() { return kWords; }

}  // namespace orvane
