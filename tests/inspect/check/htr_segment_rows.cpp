#include <algorithm>

#include "tests/inspect/check/htr_rows.h"
#include "tests/support/replaced_text.h"

namespace test {
namespace {

constexpr const char* kRefused = "The import refuses the file; the rest of it is not checked.";
constexpr const char* kInfinite =
    "It is taken as infinite: a scene that it gets into cannot be saved.";
constexpr const char* kReadable =
    "a name that can be read back: no ], no [ in front, no word of the format";
constexpr const char* kNoParent =
    "The segment has no parent: a new skeleton goes without it and its children.";

// The hierarchy is linked by each of the sections, up to a million links.
std::string LinkedOverAndOver() {
  HtrText text;
  for (int bone = 0; bone < 1100; ++bone) {
    text.segments.push_back({.name = "bone" + std::to_string(bone)});
  }
  std::string sections;
  for (int section = 0; section < 1100; ++section) sections += "[BasePosition]\n";
  return text.Header() + text.Hierarchy() + text.BasePosition() + sections;
}

// Eight joints above each other along Z, from 50 on, in front of a wall.
std::string StandingAlongZ() {
  HtrText text;
  for (int joint = 0; joint < 8; ++joint) {
    const bool is_root = joint == 0;
    text.segments.push_back({.name = "joint" + std::to_string(joint),
                             .parent = is_root ? "GLOBAL" : "joint" + std::to_string(joint - 1),
                             .base = is_root ? "0 900 50 0 0 0 1" : "0 0 200 0 0 0 1",
                             .frames = {"0 0 0 0 0 0"}});
  }
  return text.Text();
}

std::string WithCommas() {
  std::string text = Walk().Text();
  const auto rows = static_cast<std::ptrdiff_t>(text.find("[SegmentNames"));
  std::replace(text.begin() + rows, text.end(), ' ', ',');
  return text;
}

}  // namespace

const std::vector<CheckRow> kHtrSegmentRows = {
    // Numbers
    {"DecimalCommas",
     DamagedWalk("2 10 0 0 0 0 90 1", "2 10,25 0 0 0 0 90,5 1"),
     {"22:3 warning htr-decimal-commas", "\"10,25\" in 2 cells", "a point in numbers, no comma",
      "A number ends at the comma: 10 is taken for 10,25."}},
    {"MissingCell",
     DamagedWalk("2 10 0 0 0 0 90 1", "2 10 0 0 0 0 90"),
     {"22:16 warning htr-number-missing", "nothing", "a number for BoneScaleFactor",
      "0 is taken where the line ends; if a cell is lost before, the values behind it are in other "
      "columns than they belong to."}},
    {"EmptyCell",
     DamagedWalk("2 10 0 0 0 0 90 1", "2\t10\t0\t \t0\t0\t90\t1\t"),
     {"22:9 warning htr-cell-empty", "an empty cell", "a number in every cell",
      "The values behind it are taken a column too early, and 0 where the line ends."}},
    {"EmptyFirstCell",
     DamagedWalk("2 10 0 0 0 0 90 1", " \t10\t0\t0\t0\t0\t90\t1"),
     {"22:2 warning htr-cell-empty", "an empty cell", "a number in every cell",
      "The values behind it are taken a column too early, and 0 where the line ends."}},
    {"MissingWholeNumber",
     DamagedWalk("NumFrames 3", "NumFrames"),
     {"6:10 warning htr-number-missing", "nothing", "a whole number for NumFrames", "0 is taken."}},
    {"Word",
     DamagedWalk("2 10 0 0 0 0 90 1", "2 10 0 nan 0 0 90 1"),
     {"22:8 warning htr-number-unreadable", "\"nan\"", "a number for Tz", "0 is taken."}},
    {"UnitBehind",
     DamagedWalk("250.5", "250.5mm"),
     {"19:21 warning htr-number-unreadable", "\"250.5mm\"", "a number for BoneLength",
      "250.5 is taken."}},
    {"InfiniteWithUnitBehind",
     DamagedWalk("2 10 0 0 0 0 90 1", "2 10 0 0 1e999mm 0 90 1"),
     {"22:10 warning htr-number-unreadable", "\"1e999mm\"", "a number for Rx", kInfinite}},
    {"FrameNumberInWords",
     DamagedWalk("2 10 0", "two 10 0"),
     {"22:1 warning htr-number-unreadable", "\"two\"", "a whole number for Frame",
      "0 is taken; only the first frame number of a file is used."}},
    {"FrameCountWithFraction",
     DamagedWalk("NumFrames 3", "NumFrames 3.5"),
     {"6:11 warning htr-number-cut", "\"3.5\"", "a whole number for NumFrames", "3 is taken."}},
    {"FrameNumberWithFraction",
     DamagedWalk("2 10 0", "2.5 10 0"),
     {"22:1 warning htr-number-cut", "\"2.5\"", "a whole number for Frame",
      "2 is taken; only the first frame number of a file is used."}},
    {"FewerThanNoFrames",
     DamagedWalk("NumFrames 3", "NumFrames -3"),
     {"6:11 warning htr-number-out-of-range", "\"-3\"",
      "a whole number from 0 to 2147483647 for NumFrames", "0 is taken."}},
    {"TooManySegments",
     DamagedWalk("NumSegments 2", "NumSegments 3000000000"),
     {"5:13 warning htr-number-out-of-range", "\"3000000000\"",
      "a whole number from -2147483648 to 2147483647 for NumSegments", "2147483647 is taken."}},
    {"LengthTooLarge",
     DamagedWalk("2 10 0", "2 1e39 0"),
     {"22:3 warning htr-number-infinite", "\"1e39\"", "a finite number for Tx", kInfinite}},
    {"AngleTooLarge",
     DamagedWalk("0 90 1", "0 1e999 1"),
     {"22:14 warning htr-number-infinite", "\"1e999\"", "a finite number for Rz", kInfinite}},
    {"FactorTooLarge",
     DamagedWalk("0 90 1", "0 90 1e999"),
     {"22:17 warning htr-number-out-of-range", "\"1e999\"", "a finite number for BoneScaleFactor",
      "It is taken as infinite; the import does not use it."}},
    {"HeaderFactorTooLarge",
     DamagedWalk("ScaleFactor 1.0", "ScaleFactor 1e999"),
     {"13:13 warning htr-number-out-of-range", "\"1e999\"", "a finite number for ScaleFactor",
      "It is taken as infinite; the import does not use it."}},

    // Hierarchy
    {"NoSegments",
     HtrText{}.Text(),
     {"14:2 error htr-segments-missing", "no segments", "their lines in [SegmentNames&Hierarchy]",
      "There is nothing to import. Is it an HTR file?"}},
    {"CommasForTabs",
     WithCommas(),
     {"15:1 error htr-tabs-missing", "\"Hips,GLOBAL\"", "tabs between cells, not commas",
      kRefused}},
    {"NameInAnotherEncoding",
     DamagedWalk("Spine Hips", "T\xEAte Hips"),
     {"16:1 warning htr-name-encoding", "\"T\xEAte\"", "a name in ASCII or UTF-8",
      "Its bytes are kept, and most programs will not show them as letters."}},
    {"RepeatedName",
     DamagedWalk("Spine Hips", "Hips Hips"),
     {"16:1 error htr-name-taken", "\"Hips\" again",
      "a name of its own for every segment; line 15 has it", kRefused}},
    {"NameOfTwoWords",
     DamagedWalk("Spine Hips", "Spine of Hips"),
     {"16:7 warning htr-name-in-words", "\"of\"", "a name and its parent, without blanks",
      "It is ignored: the first word of the line is the name, the last one its parent."}},
    {"NameGlobal",
     DamagedWalk("Spine Hips", "GLOBAL Hips"),
     {"16:1 warning htr-name-unusable", "\"GLOBAL\"", kReadable,
      "Segments that name it as their parent become roots."}},
    {"NameSection",
     DamagedWalk("Spine Hips", "Header Hips"),
     {"16:1 warning htr-name-unusable", "\"Header\"", kReadable,
      "Its motion section would be another section of the file."}},
    {"NameWithBracket",
     DamagedWalk("Spine Hips", "Spi]ne Hips"),
     {"16:1 warning htr-name-unusable", "\"Spi]ne\"", kReadable,
      "The name of its motion section ends at the ]."}},
    {"NameWithBracketInFront",
     DamagedWalk("Spine Hips", " [Spine Hips"),
     {"16:2 warning htr-name-unusable", "\"[Spine\"", kReadable,
      "A line that starts with it is a section line."}},
    {"MisspelledParent",
     DamagedWalk("Spine Hips", "Spine hips"),
     {"16:7 warning htr-parent-unknown", "\"hips\"", "GLOBAL or \"Hips\"", kNoParent}},
    {"UnknownParent",
     DamagedWalk("Spine Hips", "Spine Tail"),
     {"16:7 warning htr-parent-unknown", "\"Tail\"", "GLOBAL or a segment of the hierarchy",
      kNoParent}},
    {"NoParent",
     DamagedWalk("Spine Hips", "Spine"),
     {"16:6 warning htr-parent-unknown", "nothing", "GLOBAL or a segment of the hierarchy",
      kNoParent}},
    {"Circle",
     DamagedWalk("Spine Hips", "Spine Spine"),
     {"16:7 warning htr-parent-circle", "\"Spine\" in a circle of 1 segment",
      "parents that lead to a root",
      "A new skeleton goes without its segments and what hangs from them."}},
    {"CircleOfTwo",
     DamagedWalk("Hips GLOBAL", "Hips Spine"),
     {"15:6 warning htr-parent-circle", "\"Hips\" in a circle of 2 segments",
      "parents that lead to a root",
      "A new skeleton goes without its segments and what hangs from them."}},
    {"NoRoot",
     DamagedWalk("Hips GLOBAL", "Hips Spine"),
     {"14:2 error htr-root-missing", "no root", "a segment with the parent GLOBAL",
      "There is nothing that a new skeleton could start from."}},
    {"SecondRoot",
     DamagedWalk("Spine Hips", "Spine GLOBAL"),
     {"16:1 warning htr-root-second", "a second root, \"Spine\"", "one root; line 15 has it",
      "A new skeleton goes without it and its children."}},
    {"SegmentBehindTheBasePosition",
     DamagedWalk("[Hips]", "[SegmentNames&Hierarchy]\nTail Hips\n[Hips]"),
     {"21:1 warning htr-segment-unlinked", "\"Tail\" behind [BasePosition]",
      "the hierarchy before [BasePosition]", kNoParent}},

    // Base position
    {"Missing",
     DamagedWalk("[BasePosition]\nHips 0 900 0 0 0 0 100\nSpine 0 100 0 0 0 0 250.5\n", ""),
     {"17:2 error htr-base-missing", "no [BasePosition] before this",
      "[BasePosition] between the hierarchy and the motion",
      "No segment has a parent, none is a root, and angles are not converted: there is nothing to "
      "import."}},
    {"BehindMotion",
     Walk().Header() + Walk().Hierarchy() + Walk().Motion() + Walk().BasePosition(),
     {"25:2 warning htr-base-late", "[BasePosition] behind motion",
      "[BasePosition] between the hierarchy and the motion",
      "Angles that stand before it are taken as they are, as radians."}},
    {"Repeated",
     DamagedWalk("[Hips]", "[BasePosition]\n[Hips]"),
     {"20:2 warning htr-base-repeated", "a second [BasePosition]", "one",
      "Every segment is listed once more among its parent's children; a file that does so over and "
      "over is refused."}},
    {"OverAndOver",
     LinkedOverAndOver(),
     {"3168:2 warning htr-base-links-stopped", "[BasePosition] over and over", "one",
      "The hierarchy is linked no more."}},
    {"UnknownName",
     DamagedWalk("Spine 0 100", "Spin 0 100"),
     {"19:1 error htr-base-name-unknown", "\"Spin\"", "\"Spine\"", kRefused}},
    {"OtherName",
     DamagedWalk("Spine 0 100", "Tail 0 100"),
     {"19:1 error htr-base-name-unknown", "\"Tail\"", "a segment of the hierarchy", kRefused}},
    {"RepeatedLine",
     DamagedWalk("Spine 0 100", "Hips 0 100"),
     {"19:1 warning htr-base-line-repeated", "\"Hips\" again", "one line for every segment",
      "The later line counts."}},
    {"MissingLine",
     DamagedWalk("Spine 0 100", "Hips 0 100"),
     {"16:1 warning htr-base-line-missing", "no line of \"Spine\" in [BasePosition]",
      "one for every segment", "It stands at its parent's origin, unturned, and has no length."}},

    // Counts and motion
    {"MoreSegmentsAnnounced",
     DamagedWalk("NumSegments 2", "NumSegments 3"),
     {"5:13 error htr-segment-count", "2 lines in [BasePosition]", "3, as NumSegments says",
      "The import refuses the file."}},
    {"NoSegmentsAnnounced",
     DamagedWalk("NumSegments 2\n", ""),
     {"27:12 error htr-segment-count", "2 lines in [BasePosition]", "0, as NumSegments is missing",
      "The import refuses the file."}},
    {"SegmentsInTheHierarchy",
     DamagedWalk("NumSegments 2", "NumSegments 3"),
     {"5:13 warning htr-hierarchy-count", "2 lines in [SegmentNames&Hierarchy]",
      "3, as NumSegments says",
      "The import takes the lines that are there; only those of [BasePosition] must be as many as "
      "announced."}},
    {"FramesMissing",
     DamagedWalk("3 20 0 0 0 0 0 1\n", ""),
     {"20:2 warning htr-frame-count", "2 frames", "3, as NumFrames says",
      "In the missing frames the segment goes to its parent's origin, unturned."}},
    {"FramesLeftOver",
     DamagedWalk("[Spine]", "4 0 0 0 0 0 0 1\n[Spine]"),
     {"20:2 warning htr-frame-count", "4 frames", "3, as NumFrames says", "Only 3 are imported."}},
    {"NoFramesAnnounced",
     DamagedWalk("NumFrames 3", "NumFrames 0"),
     {"6:11 error htr-frames-unannounced", "\"0\"", "a whole number of 1 or more for NumFrames",
      "The import refuses the file: its last frame would come before its first."}},
    {"NoFrameCount",
     DamagedWalk("NumFrames 3\n", ""),
     {"1:2 error htr-frames-unannounced", "no NumFrames",
      "a whole number of 1 or more for NumFrames",
      "The import refuses the file: its last frame would come before its first."}},
    {"TooManyAnnounced",
     DamagedWalk("NumFrames 3", "NumFrames 100001"),
     {"6:11 error htr-frames-too-many", "100001", "about 3, as many as there are",
      "The import is refused, unless --range FROM:TO takes a part of them."}},
    {"FrameNumberThatDoesNotFollow",
     DamagedWalk("2 10 0", "7 10 0"),
     {"22:1 warning htr-frame-number", "\"7\"", "2",
      "The number is ignored: frames follow each other as their lines do."}},
    {"NoMotion",
     DamagedWalk("[Spine]\n1 0 0 0 0 0 0 1\n2 0 0 0 0 0 0 1\n3 0 0 0 0 0 0 1\n", ""),
     {"16:1 warning htr-motion-missing", "no motion section of \"Spine\"", "one for every segment",
      "In every frame the segment goes to its parent's origin, unturned."}},
    {"MotionTwice",
     DamagedWalk("[EndOfFile]", "[Hips]\n9 0 0 0 0 0 0 1\n[EndOfFile]"),
     {"28:2 warning htr-motion-repeated", "a second section of \"Hips\"", "one for every segment",
      "Its frames are put behind those of the first."}},

    // What moves
    {"OutOfSight",
     DamagedWalk("2 10 0 0", "2 10 0 9999999"),
     {"20:2 warning htr-position-far", "\"Hips\" 10 km away", "a position within 1 km, or none",
      "It is taken for a position all the same."}},
    {"AnglesInDegrees",
     DamagedWalk("RotationUnits Degrees", "RotationUnits Radians"),
     {"10:15 note htr-angles-large", "90.0", "angles in radians",
      "They are taken as radians all the same; are they degrees?"}},
    {"Giant",
     Replaced(StandingAlongZ(), "Units mm", "Units cm"),
     {"9:18 note htr-size", "14.0 m", "the size of a body",
      "Lengths are taken in cm all the same; is that their unit?"}},
    {"HeightsAlongZ",
     StandingAlongZ(),
     {"32:2 note htr-up-axis", "heights along Z: 50 to 1450 mm", "heights along Y",
      "The file is taken as Y up: what stands lies on its side."}},
};

}  // namespace test
