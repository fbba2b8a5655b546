#include "inspect/report/finding_words.h"

namespace orvane {
namespace {

using enum FindingSeverity;

// What becomes of segments that no root leads to, when bones of their names are there.
constexpr char kUnreached[] =
    "Bones of such segments, and those below, get no keys, unless one is selected itself.";

constexpr FindingMeaning kWords[] = {
    {"htr-other-kind", "The file is {found}, not {expected}", nullptr, InMotion(kError)},
    {"htr-empty", "The file is empty", nullptr,
     InMotion(kError, "Nothing is imported; was it saved, or copied, to its end?")
         .But(Action::kInspect, kError, "Nothing is read.")},
    {"htr-encoding", "The file is UTF-16 text", nullptr,
     InMotion(kError, "None of it is read; save it as UTF-8 or ASCII.")},
    {"htr-line-ends", "Lines end with carriage returns alone", nullptr,
     InMotion(kError, "No line ends there for the reader; save it with LF or CR LF.")},
    {"htr-first-section-lost", "A byte-order mark stands before the first section line", nullptr,
     InMotion(kError, "That section is not read; save the file without the mark.")},
    {"htr-byte-order-mark", "A byte-order mark stands at the start of the file", nullptr,
     InMotion(kNote, "It belongs to the first line, which does not count.")},
    {"htr-nul", "A line holds a NUL byte", "{count} lines hold NUL bytes",
     InMotion(kWarning, "The rest of such a line is not read.")},
    {"htr-line-cut", "A line is longer than 10239 bytes",
     "{count} lines are longer than 10239 bytes",
     InMotion(kWarning, "Such a line is read as several.")},
    {"htr-carriage-return", "A carriage return stands inside a line",
     "Carriage returns stand inside {count} lines",
     InMotion(kWarning, "It is read as a part of its line.")},
    {"htr-comment-in-word", "A comment begins inside a word", "{count} comments begin inside words",
     InMotion(kWarning, "The word ends at the #.")},
    {"htr-line-before-section", "A line stands before the first section",
     "{count} lines stand before the first section",
     InMotion(kWarning, "What stands there is not read.")},
    {"htr-after-end", "Something stands behind [EndOfFile]", nullptr,
     InMotion(kWarning, "Nothing behind [EndOfFile] is read.")},
    {"htr-cells-extra", "Text stands behind the last column of a line",
     "Text stands behind the last column of {count} lines", InMotion(kNote, "It is not read.")},
    {"htr-numbers-extra", "A line holds more numbers than columns",
     "{count} lines hold more numbers than columns",
     InMotion(kWarning,
              "The values of such a line may belong to other columns, and what stands behind the "
              "last column is not read.")},
    {"htr-end-missing", "[EndOfFile] is missing", nullptr,
     InMotion(kNote, "Nothing is lost, unless the file was cut short.")},
    {"htr-section-indented", "A section line does not begin with [",
     "{count} section lines do not begin with [",
     InMotion(kWarning, "Such a line is taken for one of the section before it.")},
    {"htr-section-unclosed", "A section line has no ]", "{count} section lines have no ]",
     InMotion(kNote, "The name of the section ends with the line.")},
    {"htr-section-text", "Text stands behind the ] of a section line",
     "Text stands behind the ] of {count} section lines",
     InMotion(kWarning, "Such text is not read.")},
    {"htr-section-misspelt", "A section is misspelled: {found} for {expected}",
     "{count} sections are misspelled",
     InMotion(kWarning,
              "Such a section is taken for the motion of an unknown segment, and skipped.")},
    {"htr-section-unknown", "A section is of no segment of the hierarchy",
     "{count} sections are of no segment of the hierarchy",
     InMotion(kWarning, "The lines of such a section are skipped.")},
    {"htr-header-missing", "There is no [Header]", nullptr,
     InMotion(kWarning,
              "Lengths are taken as millimeters, angles as degrees, and the rate as 60.")},
    {"htr-header-late", "[Header] stands behind [BasePosition]", nullptr,
     InMotion(kWarning, "Angles stay in the unit that was in force before.")},
    {"htr-keyword-misspelt", "A keyword of the header is misspelled",
     "{count} keywords of the header are misspelled",
     InMotion(kWarning, "Such a line is not read.")},
    {"htr-keyword-unknown", "A keyword of the header is none of HTR files",
     "{count} keywords of the header are none of HTR files",
     InMotion(kNote, "Such a line is not read.")},
    {"htr-keyword-repeated", "A keyword stands in the header again",
     "Keywords stand in the header again, {count} times",
     InMotion(kWarning, "The last value counts.")},
    {"htr-keyword-missing", "The header has {found}",
     "{count} keywords are missing from the header",
     InMotion(kWarning,
              "0 is taken for NumSegments and NumFrames, 60 for the rate, and millimeters and "
              "degrees for units."),
     Concern::kFile, 5},
    {"htr-keyword-left-out", "The header has {found}",
     "{count} keywords are left out of the header",
     InMotion(kNote, "Such a keyword is not needed.")},
    {"htr-value-extra", "A line of the header holds more than a keyword and a value",
     "{count} lines of the header hold more than a keyword and a value",
     InMotion(kNote, "The last word of the line is the value.")},
    {"htr-value-refused", "The header has {found} in place of {expected}", nullptr,
     InMotion(kError, "The file is refused.")},
    {"htr-length-unit-unknown", "The unit of lengths is unknown",
     "The unit of lengths is unknown, {count} times", InMotion(kWarning, "Millimeters are taken.")},
    {"htr-angle-unit-unknown", "The unit of angles is unknown",
     "The unit of angles is unknown, {count} times", InMotion(kWarning, "Degrees are taken.")},
    {"htr-axis-unknown", "The axis is unknown", "The axis is unknown, {count} times",
     InMotion(kWarning, "Y is taken.")},
    {"htr-axis-ignored", "The axis of gravity is Z", "The axis of gravity is Z, {count} times",
     InMotion(kWarning, "Y is taken for up all the same: the skeleton will lie down.")
         .But(Action::kInspect, kWarning, "Y is taken for up all the same.")
         .But(Action::kRewrite, kWarning,
              "It is written as it is, and Y taken for up; --up z turns the skeleton, and --up y "
              "says that it stands along Y.")},
    {"htr-rate-cut", "The frame rate has a fraction", "Frame rates have fractions",
     KeptAsSaid(InTime(InMotion(kWarning)), kNote), Concern::kTime},
    {"htr-rate-inexact", "The host has no such frame rate", "The host has no such frame rates",
     KeptAsSaid(InTime(InMotion(kNote, "It is shown as it is.")), kNote), Concern::kTime},
    {"htr-rate-out-of-range", "There is no such frame rate", "There are no such frame rates",
     KeptAsSaid(InMotion(kWarning).But(Action::kInspect, kWarning, "It is shown as it is."),
                kWarning),
     Concern::kRate},
    {"htr-scale-factor", "ScaleFactor is not 1", nullptr,
     InMotion(kWarning, "Nothing is multiplied by it; --scale multiplies.")
         .But(Action::kInspect, kWarning, "Nothing is multiplied by it.")
         .But(Action::kRewrite, kWarning, "It is written as it is; nothing is multiplied by it.")},
    {"htr-decimal-commas", "Numbers are written with decimal commas", nullptr, InMotion(kWarning)},
    {"htr-cell-empty", "A cell is empty inside a line", "Cells are empty inside {count} lines",
     InMotion(kWarning,
              "The values behind such a cell are taken a column too early, and 0 where the line "
              "ends.")},
    {"htr-number-missing", "A number is missing", "{count} numbers are missing",
     InMotion(kWarning)},
    {"htr-number-unreadable", "A value is not a number", "{count} values are not numbers",
     InMotion(kWarning, "What it starts with is taken, or 0."), Concern::kFile, 3},
    {"htr-number-cut", "A whole number has a fraction", "{count} whole numbers have fractions",
     InMotion(kWarning, "The fraction is cut off.")},
    {"htr-number-out-of-range", "A number is out of range", "{count} numbers are out of range",
     InMotion(kWarning).But(Action::kInspect, kWarning,
                            "The nearest number that there is is taken, or an infinite one.")},
    {"htr-number-infinite", "A number is too large", "{count} numbers are too large",
     InMotion(kError, kCannotBeSaved)
         .But(Action::kInspect, kWarning, "It is taken as infinite.")
         .But(Action::kRewrite, kWarning, kWrittenInfinite)
         .But(Action::kApply, kWarning, kCannotBeSaved),
     Concern::kSaving},
    {"htr-segments-missing", "The file holds no segments", nullptr,
     InMotion(kError, "There is nothing to import.")
         .But(Action::kInspect, kError, "There is nothing to show.")
         .But(Action::kRewrite, kError, "There is nothing to write.")},
    {"htr-tabs-missing", "The file needs {expected}", nullptr,
     InMotion(kError, "The file is refused.")},
    {"htr-name-taken", "Two segments have one name", nullptr,
     InMotion(kError, "The file is refused.")},
    {"htr-name-in-words", "A line of the hierarchy holds more than a name and its parent",
     "{count} lines of the hierarchy hold more than a name and its parent",
     InMotion(kWarning, "The first word is the name, the last one its parent.")},
    {"htr-name-encoding", "A name is not UTF-8 text", "{count} names are not UTF-8 text",
     InMotion(kWarning, "Such a byte is replaced where text is shown; save the file as UTF-8.")},
    {"htr-name-unusable", "A segment's name cannot be read back",
     "{count} segments have names that cannot be read back", InMotion(kWarning)},
    {"htr-parent-unknown", "A segment's parent is unknown",
     "The parents of {count} segments are unknown",
     InMotion(kWarning, "A new skeleton goes without such a segment and what hangs from it.")
         .But(Action::kInspect, kWarning, "Such a segment hangs from no root.")
         .But(Action::kRewrite, kWarning, "Such a segment is written as a root.")
         .But(Action::kApply, kWarning, kUnreached)},
    {"htr-parent-circle", "Segments are their own ancestors",
     "Segments are their own ancestors, in {count} circles",
     InMotion(kWarning, "A new skeleton goes without them and what hangs from them.")
         .But(Action::kInspect, kWarning, "They hang from no root.")
         .But(Action::kApply, kWarning, kUnreached)},
    {"htr-root-missing", "No segment has the parent GLOBAL", nullptr,
     InMotion(kError, "There is nothing that a skeleton could start from.")
         .But(Action::kInspect, kError, "All segments hang from no root.")
         .But(Action::kRewrite, kWarning, "Segments without a parent are written as roots.")
         .But(Action::kApply, kWarning,
              "Only a bone that is selected itself gets keys, with those below; as a root, it lies "
              "down.")},
    {"htr-root-second", "There is a second root", "There are {count} more roots",
     InMotion(kWarning, "A new skeleton is made of the first root and what hangs from it alone.")
         .But(Action::kInspect, kWarning, "All of them are shown.")
         .But(Action::kRewrite, kNote, "All of them are written.")
         .But(Action::kApply, kWarning, kUnreached)},
    {"htr-segment-unlinked", "A segment stands behind [BasePosition]",
     "{count} segments stand behind [BasePosition]",
     InMotion(
         kWarning,
         "Such a segment has no parent: a new skeleton goes without it and what hangs from it.")
         .But(Action::kInspect, kWarning, "Such a segment has no parent, and hangs from no root.")
         .But(Action::kRewrite, kWarning, "Such a segment has no parent, and is written as a root.")
         .But(Action::kApply, kWarning, kUnreached)},
    {"htr-base-missing", "There is no [BasePosition] before the motion", nullptr,
     InMotion(kError, "No segment has a parent: there is nothing to import.")
         .But(Action::kInspect, kError,
              "No segment has a parent, none is a root, and angles are taken as radians.")
         .But(Action::kRewrite, kError, "No segment has a parent: there is no skeleton to write.")
         .But(Action::kApply, kWarning,
              "Only a bone that is selected itself gets keys, with angles taken as radians.")},
    {"htr-base-late", "[BasePosition] stands behind motion", nullptr,
     InMotion(kWarning, "Angles before it are taken as radians.")},
    {"htr-base-repeated", "[BasePosition] comes again", nullptr,
     InMotion(kWarning, "The last one counts, and a new skeleton has bones more than once.")
         .But(Action::kInspect, kWarning, "The last one counts.")
         .But(Action::kApply, kWarning, "The last one counts.")},
    {"htr-base-links-stopped", "[BasePosition] comes over and over", nullptr,
     InMotion(kWarning, "The hierarchy is linked no more.")},
    {"htr-base-name-unknown", "[BasePosition] names a segment that there is not", nullptr,
     InMotion(kError, "The file is refused.")},
    {"htr-base-line-repeated", "A segment has two lines in [BasePosition]",
     "{count} segments have several lines in [BasePosition]",
     InMotion(kWarning, "The last line counts.")},
    {"htr-base-line-missing", "A segment has no line in [BasePosition]",
     "{count} segments have no line in [BasePosition]",
     InMotion(kWarning,
              "Such a segment stands at its parent's origin, unturned, and has no length.")},
    {"htr-segment-count", "The file holds {found}, and NumSegments announces {expected}", nullptr,
     InMotion(kError, "The file is refused.")},
    {"htr-hierarchy-count", "The file holds {found}, and NumSegments announces {expected}", nullptr,
     InMotion(kWarning, "The segments that are there are taken.")},
    {"htr-frame-count", "A segment holds {found}, and NumFrames announces {expected}",
     "{count} segments hold another number of frames than the {expected} that NumFrames announces, "
     "the first one {found}",
     InMotion(kWarning)
         .But(Action::kInspect, kWarning, "The frames that are there are shown.")
         .But(Action::kRewrite, kWarning,
              "All that are there are written; a segment that holds fewer than others rests in its "
              "base position behind them."),
     Concern::kFrames},
    {"htr-frames-unannounced", "The header announces no frames", nullptr,
     InMotion(kError, "The file is refused: its last frame would come before its first.")
         .But(Action::kInspect, kError,
              "An import refuses the file; the frames that are there are shown.")
         .But(Action::kRewrite, kWarning,
              "The frames that are there are written, and without any, one in the base position.")},
    {"htr-frames-too-many", "NumFrames announces {found}, and the file holds {expected}", nullptr,
     InMotion(kError, "It is refused; --range FROM:TO takes a part of them.")
         .But(Action::kInspect, kError,
              "An import refuses the file; the frames that are there are shown.")
         .But(Action::kRewrite, kWarning, kFramesWritten),
     Concern::kExcess},
    {"htr-frame-number", "A frame's number is not the next one",
     "The numbers of {count} frames are not the next ones",
     InMotion(kWarning, "Frames follow each other as their lines do.")},
    {"htr-motion-missing", "A segment has no motion", "{count} segments have no motion",
     InMotion(kWarning, "In every frame such a segment stands at its parent's origin, unturned.")
         .But(Action::kInspect, kWarning, "There are no frames of such a segment.")
         .But(Action::kRewrite, kWarning,
              "Such a segment rests in its base position in every frame.")},
    {"htr-motion-repeated", "A segment has two sections of motion",
     "{count} segments have several sections of motion",
     InMotion(kWarning, "Their frames follow each other.")},
    {"htr-position-far", "A segment is more than 1 km away",
     "{count} segments are more than 1 km away",
     InMotion(kWarning,
              "Such a number is taken for a position, even if it stands for a missing one.")},
    {"htr-angles-large", "Angles in radians are as large as {found}", nullptr, InMotion(kNote)},
    {"htr-size", "What the file holds would be {found} large", nullptr, InMotion(kNote)},
    {"htr-up-axis", "The file seems to have {found}", nullptr,
     InMotion(kNote, "It is taken as Y up: what stands lies on its side.")
         .But(Action::kInspect, kNote, "It is taken as Y up.")
         .But(Action::kRewrite, kNote, "It is taken as Y up; --up z turns it.")},
};

}  // namespace

std::span<const FindingMeaning> HtrFindingMeanings() { return kWords; }

}  // namespace orvane
