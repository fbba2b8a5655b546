#include "tests/cli/orvane_test.h"
#include "tests/cli/scene/scene_file.h"
#include "tests/support/trc_text.h"

namespace {

using test::ProgramResult;
using test::Replaced;
using test::SceneFile;
using test::TrcText;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;

TrcText TwoMarkers() {
  TrcText text{.markers = {"LFHD", "RFHD"},
               .frames = {{"1000\t2000\t3000", "0\t0\t0"}, {"", "1\t1\t1"}, {"1\t2\t3", ""}}};
  text.data_rate = "120";
  return text;
}

// Two frames without a gap.
TrcText Seen() {
  TrcText text{.markers = {"LFHD", "RFHD"},
               .frames = {{"1\t2\t3", "4\t5\t6"}, {"1\t2\t3", "7\t8\t9"}}};
  text.data_rate = "120";
  return text;
}

// What is told of the gaps of the two markers.
constexpr char kGaps[] =
    "orvane: walk.trc: note: 2 markers have gaps: \"LFHD\", \"RFHD\" (line 8, column 1). Viewers "
    "do "
    "not see such a marker in its gaps; in the host its keys go to the origin. "
    "[trc-marker-gaps]\n";

// That 3 frames are there, and more announced.
std::string Announced(const std::string& count) {
  return "orvane: walk.trc: warning: NumFrames announces " + count +
         ", and the file holds 3 (line 3, column 8). Behind the first 3 frames every "
         "marker goes to the origin. --range FROM:TO leaves them out. [trc-frame-count]\n";
}

class ImportTrcTest : public test::OrvaneTest {
 protected:
  ProgramResult Import(const std::vector<std::string>& flags = {},
                       const std::string& file = "walk.trc") const {
    std::vector<std::string> arguments = {"import", file, "-o", "walk.glb"};
    arguments.insert(arguments.end(), flags.begin(), flags.end());
    return Orvane(arguments);
  }

  ProgramResult ImportText(const std::string& bytes,
                           const std::vector<std::string>& flags = {}) const {
    Write("walk.trc", bytes);
    return Import(flags);
  }

  SceneFile Scene() const { return SceneFile(folder_.File("walk.glb")); }
};

TEST_F(ImportTrcTest, MakesANodeForEachMarker) {
  const ProgramResult result = ImportText(TwoMarkers().Text());
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.error, kGaps);
  EXPECT_THAT(result.output, HasSubstr("Imported walk.trc\n  Nodes   2\n  Keys    6\n"));
  EXPECT_THAT(result.output, HasSubstr("Frames  1 to 4 at 120 frames per second"));
  EXPECT_THAT(Scene().NodeNames(), testing::IsSupersetOf({"LFHD", "RFHD"}));
  EXPECT_THAT(Scene().Position("LFHD", 0), ElementsAre(1.0, 2.0, 3.0));
}

TEST_F(ImportTrcTest, EveryFlagIsAControlOfTheDialog) {
  ASSERT_EQ(ImportText(TwoMarkers().Text(), {"--create", "--point", "--root-node", "--size", "2",
                                             "--range", "1:2", "--offset", "3", "--scale", "2",
                                             "--frame-rate", "keep", "--no-selected-only"})
                .status,
            2);  // a cloud that is created has no selected items
  ASSERT_EQ(Import({"--create", "--point", "--root-node", "--size", "2", "--range", "1:2",
                    "--offset", "3", "--scale", "2", "--frame-rate", "keep"})
                .status,
            0);
  const std::string scene = Orvane({"scene", "walk.glb"}).output;
  EXPECT_THAT(scene, HasSubstr("TRCCloud"));
  EXPECT_THAT(Scene().Position("LFHD", 0), ElementsAre(2.0, 4.0, 6.0));
  EXPECT_THAT(Import({"--sphere", "--all", "--force"}).output, HasSubstr("Keys    6\n"));
}

TEST_F(ImportTrcTest, AppliesToObjectsOfAScene) {
  ASSERT_EQ(ImportText(TwoMarkers().Text()).status, 0);
  const ProgramResult result =
      Orvane({"import", "walk.trc", "--into", "walk.glb", "--select", "LFHD", "--apply",
              "--selected-only", "--offset", "10", "-o", "more.glb", "--quiet"});
  EXPECT_EQ(result.status, 0) << result.error;
  EXPECT_THAT(SceneFile(folder_.File("more.glb")).NodeNames(),
              testing::Not(testing::Contains("LFHD001")));
}

TEST_F(ImportTrcTest, AFlagOfTheOtherDialogIsWrongUsage) {
  EXPECT_EQ(ImportText(Seen().Text(), {"--tcb"}).error,
            "orvane: --tcb: the dialog \"ImportTRC\" has no such control\n");
  Write("walk.htr", test::SmallMotion());
  const ProgramResult result = Import({"--point"}, "walk.htr");
  EXPECT_EQ(result.status, 2);
  EXPECT_EQ(result.error, "orvane: --point: the dialog \"ImportHTR\" has no such control\n");
}

TEST_F(ImportTrcTest, ADisabledControlIsWrongUsage) {
  const ProgramResult result = ImportText(Seen().Text(), {"--apply", "--root-node"});
  EXPECT_EQ(result.status, 2);
  EXPECT_THAT(result.error,
              testing::EndsWith("orvane: --root-node: the dialog has this control disabled while "
                                "\"Apply\" is chosen; --create enables it\n"));
  EXPECT_EQ(Import({"--selected-only"}).error,
            "orvane: --selected-only: the dialog has this control disabled while \"Create\" is "
            "chosen; --apply enables it\n");
}

TEST_F(ImportTrcTest, TheUserMaySayWhatAFileIs) {
  Write("walk.txt", TwoMarkers().Text());
  EXPECT_EQ(Import({}, "walk.txt").status, 1);
  EXPECT_EQ(Import({"--no-report"}, "walk.txt").status, 2) << "nobody has looked";
  EXPECT_EQ(Import({"--as", "trc"}, "walk.txt").status, 0);
  Write("walk.TRC", TwoMarkers().Text());
  EXPECT_EQ(Import({"--as", "trc", "--force"}, "walk").status, 0);
  EXPECT_EQ(Import({"--as", "htr", "--force"}, "walk.TRC").status, 1);
}

// --- What is said of a file ---

TEST_F(ImportTrcTest, MoreAnnouncedThanHeldIsAWarning) {
  TrcText text = TwoMarkers();
  text.frame_count = 900;
  const ProgramResult result = ImportText(text.Text());
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.error, Announced("900") + kGaps);
  EXPECT_EQ(Import({"--strict", "--force"}).status, 1);
}

TEST_F(ImportTrcTest, FarMoreAnnouncedThanHeldIsRefused) {
  TrcText text = TwoMarkers();
  text.frame_count = 2'147'483'647;
  const ProgramResult result = ImportText(text.Text());
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(result.error,
            std::string(kGaps) +
                "orvane: walk.trc: The header announces 2147483647 frames, but the file holds 3 "
                "[trc-frames-too-many]\n"
                "  Is \"NumFrames\" right? --range FROM:TO imports a part of them.\n");
  EXPECT_FALSE(Exists("walk.glb"));
  EXPECT_EQ(Import({"--range", "1:3"}).status, 0);
  EXPECT_THAT(
      Import({"--range", "1:4", "--force"}).error,
      HasSubstr("warning: NumFrames announces 2147483647, and the file holds about 3 "
                "(line 3, column 8). Frames that are not there are made up. --range FROM:TO "
                "leaves them out. [trc-frames-too-many]\n"));
}

TEST_F(ImportTrcTest, BlankLinesForManyMarkersAreRefused) {
  TrcText text;
  for (int index = 0; index < 1000; ++index) text.markers.push_back("m" + std::to_string(index));
  text.frame_count = 90'000;
  const ProgramResult result = ImportText(text.Text() + std::string(90'000, '\n'));
  EXPECT_EQ(result.status, 1);
  EXPECT_THAT(
      result.error,
      HasSubstr("orvane: walk.trc: warning: 89999 lines are blank where frames belong (line 6"));
  EXPECT_THAT(
      result.error,
      EndsWith("\norvane: walk.trc: The file is far too short for 90000 frames of 1000 markers\n"
               "  Do its lines hold all columns? --range FROM:TO imports a part of them.\n"));
}

TEST_F(ImportTrcTest, OfAHeaderThatIsRightNothingIsSaidWhateverTheRange) {
  const std::string within = "  The range must lie within the frames of the file.\n";
  EXPECT_EQ(ImportText(Seen().Text(), {"--range", "1:10000000"}).error,
            "orvane: walk.trc: Please choose an end frame less than or equal to 2.\n" + within);
  EXPECT_EQ(Import({"--range", "-10000000:2"}).error,
            "orvane: walk.trc: Please choose a start frame equal to or greater than 1.\n" + within);
}

TEST_F(ImportTrcTest, NothingIsSaidOfMissingFramesThatARangeLeavesOut) {
  TrcText text = TwoMarkers();
  text.frame_count = 900;
  text.first_frame = 11;
  text.frames = {{"1\t2\t3", "4\t5\t6"}, {"1\t2\t3", "4\t5\t6"}, {"1\t2\t3", "4\t5\t6"}};
  EXPECT_EQ(ImportText(text.Text(), {"--range", "12:13", "--strict", "--quiet"}).error, "");
  EXPECT_THAT(test::CodesIn(Import({"--range", "12:13", "--strict", "--force"}).error),
              ElementsAre("apply-keys-outside-range", "trc-frame-count"));
  EXPECT_THAT(Import({"--range", "12:13", "--strict", "--force"}).error,
              HasSubstr("orvane: walk.trc: note: NumFrames announces 900, and the file holds 3 "
                        "(line 3, column 8). Only frames that are there are asked for. "
                        "[trc-frame-count]\n"));
  EXPECT_THAT(test::CodesIn(Import({"--range", "13:14", "--force"}).error),
              ElementsAre("apply-range-partly", "apply-keys-outside-range"));
}

TEST_F(ImportTrcTest, ARangeThatIsPartlyInTheFileIsAWarningWithACount) {
  TrcText text = TwoMarkers();
  text.frame_count = 900;
  text.frames = {{"1\t2\t3", "4\t5\t6"}, {"1\t2\t3", "4\t5\t6"}, {"1\t2\t3", "4\t5\t6"}};
  const ProgramResult result = ImportText(text.Text(), {"--range", "2:6"});
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.error,
            "orvane: walk.trc: warning: --range asks for 5 frames, and the file lacks 3 of them. "
            "There every marker goes to the origin; the file has the frames 1 to 3. "
            "[apply-range-partly]\n");
}

// The numbers at the starts of lines are not looked at.
TEST_F(ImportTrcTest, ARangeOfWhichNothingIsInTheFileIsRefused) {
  for (const int announced : {900, 3}) {
    TrcText text = TwoMarkers();
    text.frame_count = announced;
    text.frames = {{"1\t2\t3", "4\t5\t6"}, {"1\t2\t3", "4\t5\t6"}, {"1\t2\t3", "4\t5\t6"}};
    const ProgramResult result = ImportText(text.Text(), {"--range", "185:257"});
    EXPECT_EQ(result.status, 1) << announced;
    EXPECT_THAT(result.error,
                testing::StartsWith(
                    "orvane: walk.trc: error: --range asks for the frames 185 to 257, and the file "
                    "has 1 to 3. Nothing is imported; the first line of the file counts as frame "
                    "1, and --range 1:3 takes all of it. [apply-range-outside]\n"))
        << announced;
    EXPECT_THAT(
        result.error,
        testing::EndsWith("orvane: walk.trc: nothing was written because of apply-range-outside\n"))
        << announced;
    EXPECT_FALSE(Exists("walk.glb")) << announced;
  }
}

TEST_F(ImportTrcTest, FramesOutsideTheHostsTimeAreAWarning) {
  const ProgramResult result = ImportText(Seen().Text(), {"--offset", "2147483647"});
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.error,
            "orvane: walk.trc: 2 of 2 frames get no keys: the motion would go from frame "
            "2147483648 to 2147483649, and the host's time from -53687091 to 53687091\n"
            "  --offset moves the motion.\n");
  EXPECT_EQ(Import({"--offset", "2147483647", "--strict", "--force"}).status, 1);
}

struct Oddity {
  const char* name;
  std::string from;
  std::string to;
  std::string line;
};

class TrcOddityTest : public ImportTrcTest, public testing::WithParamInterface<Oddity> {};

TEST_P(TrcOddityTest, TellsWhatTheImportMakesOfIt) {
  const ProgramResult result =
      ImportText(Replaced(TwoMarkers().Text(), GetParam().from, GetParam().to));
  EXPECT_EQ(result.status, 0);
  EXPECT_THAT(result.error, HasSubstr("orvane: walk.trc: " + GetParam().line + "\n"));
}

INSTANTIATE_TEST_SUITE_P(
    Oddities, TrcOddityTest,
    testing::Values(
        Oddity{
            "UnknownUnit", "\tmm\t", "\tMm\t",
            "warning: The unit is unknown: \"Mm\" (line 3, column 12). Millimeters are taken; mm, "
            "cm, m, in, ft and yd are known. [trc-unit-unknown]"},
        Oddity{"CameraRateOf0", "120\t60\t", "120\t0\t",
               "note: The camera rate is odd: \"0\" (line 3, column 5). Nothing depends on it. "
               "[trc-camera-rate]"},
        Oddity{"RateOf0", "120\t60\t", "0\t60\t",
               "warning: There is no such frame rate: \"0\" (line 3, column 1). 1 "
               "is set, unless --frame-rate keep is given. [trc-rate-out-of-range]"},
        Oddity{
            "FractionOfARate", "120\t60\t", "119.88\t60\t",
            "note: The frame rate has a fraction: \"119.88\" (line 3, column 1). 119.88 a second "
            "become 120 in the host: a minute lasts 59.9 s there. Viewers play the rate of the "
            "file. [trc-rate-cut]"},
        Oddity{
            "NoStartFrame", "mm\t120\t1\t3", "mm",
            "warning: A value is missing (line 3, column 14). 0 is taken; a gap has nothing at all "
            "for X, not even a blank. [trc-number-missing]"},
        Oddity{"NoNumber", "2000", "NaN",
               "warning: A value is not a number: \"NaN\" (line 7, column 14). 0 is taken. "
               "[trc-number-unreadable]"},
        Oddity{
            "BlankValue", "1000\t2000", " \t2000",
            "warning: A value is missing (line 7, column 9). 0 is taken; a gap has nothing at all "
            "for X, not even a blank. [trc-number-missing]"},
        Oddity{"CountOutOfRange", "60\t3\t2\tmm", "60\t3\t6e9\tmm",
               "warning: A number is out of range: \"6e9\" (line 3, column 10). 6 is taken. "
               "[trc-number-out-of-range]"},
        Oddity{
            "CountWithFraction", "60\t3\t2\tmm", "60\t3\t2.5\tmm",
            "warning: A whole number has a fraction: \"2.5\" (line 3, column 10). The fraction is "
            "cut off. [trc-number-cut]"},
        Oddity{
            "NoX", "1000\t2000", "\t2000",
            "warning: 2 samples do not begin with X: \"2000\", \"3000\" (line 7, column 10). The "
            "marker has no position there. [trc-sample-without-x]"},
        Oddity{
            "LastNameLost", "RFHD\t\t\t\n", "RFHD\n",
            "warning: The last name has no tab behind it: \"RFHD\" (line 4, column 20). It makes "
            "no marker, and its values are not read; a tab behind the name makes it count. "
            "[trc-name-lost]"},
        Oddity{
            "UnnamedColumn", "LFHD", "Unnamed 1",
            "warning: A column has no name of its own: \"Unnamed 1\" (line 4, column 13). Such a "
            "column makes no marker, and its values go to the next one: all columns behind it "
            "shift, unless it gets a name or stands last. [trc-column-unnamed]"},
        Oddity{
            "RepeatedName", "RFHD", "LFHD",
            "warning: Two columns have one name: \"LFHD\" (line 4, column 20). The later one makes "
            "no marker, and its values go to the next one: all columns behind it shift, unless it "
            "gets a name of its own or stands last. [trc-column-repeated]"},
        Oddity{"NoSubHeader", "\t\tX1\tY1\tZ1\tX2\tY2\tZ2\n\n", "",
               "warning: The line of X1, Y1, Z1 is missing: \"1\" (line 5, column 1). The frame in "
               "its "
               "place is lost. [trc-sub-header-missing]"},
        Oddity{
            "MarkerCount", "3\t2\tmm", "3\t7\tmm",
            "note: The file holds 2 markers, and NumMarkers announces 7 (line 3, column 10). The "
            "markers "
            "that are there are taken. [trc-marker-count]"}),
    [](const auto& oddity) { return oddity.param.name; });

TEST_F(ImportTrcTest, WhatIsNoMarkerFileIsRefused) {
  const ProgramResult commas = ImportText("PathFileType,4,(X/Y/Z),walk.trc\n");
  EXPECT_EQ(commas.status, 1);
  EXPECT_EQ(
      commas.error,
      "orvane: walk.trc: error: The first line needs tabs between fields, not commas: "
      "\"PathFileType,4,(X/Y/Z),walk.trc\" "
      "(line 1, column 1). The file is refused. [trc-tabs-missing]\n"
      "orvane: walk.trc: The file is does not have a compatible \"(X/Y/Z)\" header state\n"
      "  The first line of a TRC file is PathFileType, a number, (X/Y/Z) and a file name, with "
      "tabs between them.\n");
  const ProgramResult empty = ImportText("");
  EXPECT_EQ(empty.status, 1);
  EXPECT_EQ(
      empty.error,
      "orvane: walk.trc: error: The file is empty (line 1, column 1). Nothing is read; was it "
      "saved, or copied, to its end? [trc-empty]\n"
      "orvane: walk.trc: The file holds no markers\n"
      "  Is it a TRC file? The fourth line names the markers, with three tabs behind each.\n");
  EXPECT_EQ(Import({}, "missing.trc").status, 3);
  EXPECT_FALSE(Exists("walk.glb"));
}

TEST_F(ImportTrcTest, ASizeThatIsTooLargeIsNamed) {
  const ProgramResult result = ImportText(TwoMarkers().Text(), {"--size", "1e40"});
  EXPECT_EQ(result.status, 1);
  EXPECT_THAT(result.error, HasSubstr("\n  A number of the file, or that of --scale, --size or "
                                      "--segment-size, is too large.\n"));
}

TEST_F(ImportTrcTest, TellsWhereKeysAreThatTheRangeLeavesOut) {
  TrcText text = TwoMarkers();
  EXPECT_THAT(ImportText(text.Text()).output, HasSubstr("  Keys    6\n"));
  text.first_frame = 228;
  EXPECT_THAT(ImportText(text.Text(), {"--force"}).output,
              HasSubstr("  Keys    6, in frames 228 to 230\n"
                        "  Frames  1 to 4 at 120 frames per second\n"));
}

TEST_F(ImportTrcTest, OddRatesDoNotStopIt) {
  for (const char* rate : {"0", "-5", "59.94", "abc", "99999999999"}) {
    TrcText text = TwoMarkers();
    text.data_rate = rate;
    EXPECT_EQ(ImportText(text.Text(), {"--force"}).status, 0) << rate;
  }
}

TEST_F(ImportTrcTest, EveryLineEndWorks) {
  for (const char* line_end : {"\n", "\r\n", "\r\r\n"}) {
    TrcText text = Seen();
    text.line_end = line_end;
    const ProgramResult result = ImportText(text.Text(), {"--force", "--strict"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.error, line_end == std::string("\r\r\n")
                                ? "orvane: walk.trc: note: Lines end with several carriage returns "
                                  "(line 1, column 32). They do not count. "
                                  "[trc-carriage-return-spare]\n"
                                : "");
    EXPECT_THAT(result.output, HasSubstr("Keys    4\n"));
  }
}

}  // namespace
