#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <limits>
#include <new>
#include <stdexcept>
#include <string>
#include <vector>

#include "formats/trc/document.h"
#include "formats/trc/document_checker.h"
#include "tests/formats/trc/samples.h"
#include "tests/support/temporary_folder.h"
#include "tests/support/trc_text.h"

namespace orvane {
namespace {

using test::Sample;
using test::SamplesOf;
using test::TrcText;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr Sample kDropout = std::nullopt;

Sample At(double x, double y, double z) { return std::array<double, 3>{x, y, z}; }

// Reads bytes that need no message.
class TRCReader : public ::testing::Test {
 protected:
  void Read(const std::string& bytes, bool include_unnamed = false) {
    ASSERT_EQ(document_.ReadBytes(bytes, include_unnamed), "");
    EXPECT_EQ(FindFault(document_), "");
  }

  std::vector<std::string> Names() const {
    std::vector<std::string> names;
    for (const TRCMarker& marker : document_.markers()) names.push_back(marker.Name());
    return names;
  }

  std::vector<Sample> Samples(std::size_t marker) const {
    return SamplesOf(*document_.MarkerAt(marker));
  }

  TRCDocument document_;
};

TrcText TwoMarkers() {
  return {.markers = {"LFHD", "RFHD"}, .frames = {{"1\t2\t3", "4.5\t-5.5\t6e1"}, {"", "7\t8\t9"}}};
}

// The header lines up to the names, for one marker, and its frames from line 6 on.
std::string OneMarker(const std::vector<std::string>& frame_lines) {
  std::string text = TrcText{.markers = {"a"}}.Text();
  for (const std::string& line : frame_lines) text += line + "\n";
  return text;
}

TEST_F(TRCReader, ReadsHeaderMarkersAndFrames) {
  TrcText text = TwoMarkers();
  text.data_rate = "120";
  text.camera_rate = "240";
  text.units = "cm";
  text.frame_count = 17;
  text.first_frame = 101;
  Read(text.Text());
  EXPECT_EQ(document_.DataRate(), 120);
  EXPECT_EQ(document_.CameraRate(), 240);
  EXPECT_EQ(document_.Units(), 1);
  EXPECT_EQ(document_.NumFrames(), 17);
  EXPECT_EQ(document_.FirstFrame(), 101);
  EXPECT_THAT(Names(), ElementsAre("LFHD", "RFHD"));
  EXPECT_THAT(Samples(0), ElementsAre(At(1, 2, 3), kDropout));
  EXPECT_THAT(Samples(1), ElementsAre(At(4.5, -5.5, 60), At(7, 8, 9)));
}

TEST_F(TRCReader, MarkersStartEnabled) {
  Read(TwoMarkers().Text());
  EXPECT_TRUE(document_.MarkerAt(0)->IsEnabled());
}

// Line ends.

class TRCLineEnds : public TRCReader, public ::testing::WithParamInterface<std::string> {};

TEST_P(TRCLineEnds, MakeNoDifference) {
  TrcText text = TwoMarkers();
  text.line_end = GetParam();
  text.frames.push_back({"1\t1\t1", ""});  // a last field that is empty
  Read(text.Text());
  EXPECT_THAT(Names(), ElementsAre("LFHD", "RFHD"));
  EXPECT_THAT(Samples(0), ElementsAre(At(1, 2, 3), kDropout, At(1, 1, 1)));
  EXPECT_THAT(Samples(1), ElementsAre(At(4.5, -5.5, 60), At(7, 8, 9), kDropout));
}

INSTANTIATE_TEST_SUITE_P(All, TRCLineEnds, ::testing::Values("\n", "\r\n", "\r\r\n"));

TEST_F(TRCReader, NeedsNoLineEndAtTheEnd) {
  std::string bytes = TwoMarkers().Text();
  bytes.pop_back();
  Read(bytes);
  EXPECT_THAT(Samples(1), ElementsAre(At(4.5, -5.5, 60), At(7, 8, 9)));
}

// The file-type line.

struct PathType {
  int type;
  std::int32_t first_frame;
};

class TRCPathType : public TRCReader, public ::testing::WithParamInterface<PathType> {};

TEST_P(TRCPathType, DecidesWhereTheFirstFrameNumberStands) {
  TrcText text{.markers = {"a"}, .frames = {{"1\t2\t3"}, {"4\t5\t6"}}};
  text.path_type = GetParam().type;
  text.first_frame = 101;
  std::string bytes = text.Header() + text.MarkerNames() + text.SubHeader() + "\n";
  bytes += "228\t0\t1\t2\t3\n229\t0\t4\t5\t6\n";
  Read(bytes);
  EXPECT_EQ(document_.FirstFrame(), GetParam().first_frame);
  EXPECT_EQ(document_.MarkerAt(0)->SampleCount(), 2u);
}

INSTANTIATE_TEST_SUITE_P(All, TRCPathType,
                         ::testing::Values(PathType{4, 101}, PathType{3, 228}, PathType{5, 1},
                                           PathType{0, 1}, PathType{-1, 1}));

struct Refused {
  const char* description;
  std::string first_line;
};

class TRCRefused : public TRCReader, public ::testing::WithParamInterface<Refused> {};

TEST_P(TRCRefused, WithoutTheCoordinateTagAsThirdField) {
  EXPECT_EQ(document_.ReadBytes(GetParam().first_line, false),
            "The file is does not have a compatible \"(X/Y/Z)\" header state");
}

INSTANTIATE_TEST_SUITE_P(
    All, TRCRefused,
    ::testing::Values(Refused{"lower case", "PathFileType\t4\t(x/y/z)\twalk.trc\n"},
                      Refused{"another order", "PathFileType\t4\t(X/Z/Y)\twalk.trc\n"},
                      Refused{"a blank behind it", "PathFileType\t4\t(X/Y/Z) \twalk.trc\n"},
                      Refused{"blanks instead of tabs", "PathFileType 4 (X/Y/Z) walk.trc\n"},
                      Refused{"commas instead of tabs", "PathFileType,4,(X/Y/Z),walk.trc\n"},
                      Refused{"it ends the line", "PathFileType\t4\t(X/Y/Z)\n"},
                      Refused{"two tabs", "PathFileType\t\t4\t(X/Y/Z)\twalk.trc\n"},
                      Refused{"another file", "[Header]\nFileType htr\n"},
                      Refused{"a blank line first", "\nPathFileType\t4\t(X/Y/Z)\twalk.trc\n"},
                      Refused{"a comment first",
                              "# made by hand\nPathFileType\t4\t(X/Y/Z)\twalk.trc\n"}),
    [](const auto& tested) {
      std::string name = tested.param.description;
      for (char& character : name) character = character == ' ' ? '_' : character;
      return name;
    });

TEST_F(TRCReader, TakesTheCoordinateTagAtAnEndWithoutLineBreak) {
  Read("PathFileType\t4\t(X/Y/Z)");
  EXPECT_EQ(document_.MarkerCount(), 0u);
}

TEST_F(TRCReader, DoesNotLookAtTheFirstWord) { Read("anything\t4\t(X/Y/Z)\t\n"); }

TEST_F(TRCReader, TakesAnEmptyFileAndOneCutShort) {
  Read("");
  const std::string bytes = TwoMarkers().Text();
  std::size_t end = 0;
  for (int lines = 1; lines <= 5; ++lines) {
    end = bytes.find('\n', end) + 1;
    Read(bytes.substr(0, end));
    EXPECT_EQ(document_.MarkerCount(), lines < 4 ? 0u : 2u) << lines << " lines";
  }
}

TEST_F(TRCReader, KeepsWhatWasReadUpToAFailure) {
  document_.SetCameraRate(500);
  document_.SetDataRate(500);
  document_.AddMarker(TRCMarker("old"));
  EXPECT_NE(document_.ReadBytes("nonsense", false), "");
  EXPECT_EQ(document_.MarkerCount(), 0u);
  EXPECT_EQ(document_.DataRate(), 60);
  EXPECT_EQ(document_.CameraRate(), 500);
}

// The header values.

struct Rate {
  const char* text;
  std::int32_t rate;
};

class TRCRate : public TRCReader, public ::testing::WithParamInterface<Rate> {};

TEST_P(TRCRate, IsCutToAWholeNumber) {
  TrcText text = TwoMarkers();
  text.data_rate = GetParam().text;
  text.camera_rate = GetParam().text;
  Read(text.Text());
  EXPECT_EQ(document_.DataRate(), GetParam().rate);
  EXPECT_EQ(document_.CameraRate(), GetParam().rate);
}

INSTANTIATE_TEST_SUITE_P(All, TRCRate,
                         ::testing::Values(Rate{"120.5", 120}, Rate{"59.94", 59},
                                           Rate{"  100", 100}, Rate{"0", 0}, Rate{"-30", -30},
                                           Rate{"fast", 0}, Rate{"", 0},
                                           Rate{"99999999999", 2147483647}));

struct UnitWord {
  const char* word;
  std::int32_t code;
};

class TRCUnitWord : public TRCReader, public ::testing::WithParamInterface<UnitWord> {};

TEST_P(TRCUnitWord, IsTakenExactlyAsWritten) {
  TrcText text = TwoMarkers();
  text.units = GetParam().word;
  Read(text.Text());
  EXPECT_EQ(document_.Units(), GetParam().code);
}

INSTANTIATE_TEST_SUITE_P(All, TRCUnitWord,
                         ::testing::Values(UnitWord{"mm", 0}, UnitWord{"MM", 0}, UnitWord{"cm", 1},
                                           UnitWord{"CM", 1}, UnitWord{"m", 2}, UnitWord{"M", 2},
                                           UnitWord{"in", 3}, UnitWord{"IN", 3}, UnitWord{"ft", 4},
                                           UnitWord{"FT", 4}, UnitWord{"yd", 5}, UnitWord{"YD", 5},
                                           UnitWord{"Cm", 0}, UnitWord{"m ", 0}, UnitWord{" m", 0},
                                           UnitWord{"miles", 0}, UnitWord{"", 0}));

TEST_F(TRCReader, KnowsNoUnitThatEndsItsLine) {
  const std::string first = "PathFileType\t5\t(X/Y/Z)\tx\nnames\n";
  Read(first + "60\t60\t1\t1\tm\n");
  EXPECT_EQ(document_.Units(), 0);
  Read(first + "60\t60\t1\t1\tm\r\n");
  EXPECT_EQ(document_.Units(), 0);
  Read(first + "60\t60\t1\t1\tm\t\n");
  EXPECT_EQ(document_.Units(), 2);
  // No line break, nothing that belongs to the word.
  Read(first + "60\t60\t1\t1\tm");
  EXPECT_EQ(document_.Units(), 2);
}

TEST_F(TRCReader, CountsFromFrameZeroWhenTheStartFrameIsMissing) {
  Read("PathFileType\t4\t(X/Y/Z)\tx\nnames\n60\t60\t1\t1\tm\n");
  EXPECT_EQ(document_.FirstFrame(), 0);
}

TEST_F(TRCReader, BelievesNoAnnouncedCount) {
  for (const int announced : {std::numeric_limits<int>::max(), 0}) {
    TrcText text = TwoMarkers();
    text.frame_count = announced;
    text.marker_count = announced;
    Read(text.Text());
    EXPECT_EQ(document_.NumFrames(), announced);
    EXPECT_EQ(document_.MarkerCount(), 2u);
    EXPECT_EQ(document_.MarkerAt(0)->SampleCount(), 2u);
  }
}

TEST_F(TRCReader, KeepsCountsSigned) {
  const std::string bytes = "PathFileType\t5\t(X/Y/Z)\tx\nnames\n60\t60\t-5\t-1\tmm\t\n";
  Read(bytes + "Frame#\tTime\ta\t\t\t\n\t\tX1\tY1\tZ1\n1\t0\t1\t2\t3\n");
  EXPECT_EQ(document_.NumFrames(), -5);
  EXPECT_THAT(Samples(0), ElementsAre(At(1, 2, 3)));
}

// The marker names.

TEST_F(TRCReader, LosesALastNameWithoutATabBehindIt) {
  const TrcText text{.markers = {"a", "b"}};
  const std::string line = "Frame#\tTime\ta\t\t\tb";
  Read(text.Header() + line + "\n");
  EXPECT_THAT(Names(), ElementsAre("a"));
  Read(text.Header() + line + "\t\n");
  EXPECT_THAT(Names(), ElementsAre("a", "b"));
  EXPECT_EQ(document_.ReadBytes(text.Header() + line + "\n", true),
            "Incorrect number of markers defined in file");
  EXPECT_THAT(Names(), ElementsAre("a"));
}

TEST_F(TRCReader, TakesAnEmptyNameForAName) {
  Read(TrcText{}.Header() + "Frame#\tTime\ta\t\t\t\t\t\t\n");
  EXPECT_THAT(Names(), ElementsAre("a", ""));
}

TEST_F(TRCReader, GivesTheColumnOfARepeatedNameToTheNextMarker) {
  const TrcText text{.markers = {"a", "a", "b"}, .frames = {{"1\t1\t1", "2\t2\t2", "3\t3\t3"}}};
  Read(text.Text());
  EXPECT_THAT(Names(), ElementsAre("a", "b"));
  EXPECT_THAT(Samples(0), ElementsAre(At(1, 1, 1)));
  EXPECT_THAT(Samples(1), ElementsAre(At(2, 2, 2)));
  EXPECT_EQ(document_.ReadBytes(text.Text(), true), "Incorrect number of markers defined in file");
}

TEST_F(TRCReader, MakesNoMarkersOfUnnamedColumnsAndDoesNotSkipTheirValues) {
  const TrcText text{.markers = {"Unnamed 1", "a", "Unnamed", "unnamed", "Unnam"},
                     .frames = {{"1\t1\t1", "2\t2\t2", "3\t3\t3", "4\t4\t4", "5\t5\t5"}}};
  Read(text.Text());
  EXPECT_THAT(Names(), ElementsAre("a", "unnamed", "Unnam"));
  EXPECT_THAT(Samples(0), ElementsAre(At(1, 1, 1)));
  EXPECT_THAT(Samples(2), ElementsAre(At(3, 3, 3)));
  Read(text.Text(), true);
  EXPECT_THAT(Names(), ElementsAre("Unnamed 1", "a", "Unnamed", "unnamed", "Unnam"));
  EXPECT_THAT(Samples(4), ElementsAre(At(5, 5, 5)));
}

TEST_F(TRCReader, ComparesTheMarkerCountOnlyWithUnnamedMarkers) {
  TrcText text = TwoMarkers();
  text.marker_count = 3;
  Read(text.Text());
  EXPECT_EQ(document_.ReadBytes(text.Text(), true), "Incorrect number of markers defined in file");
  EXPECT_EQ(document_.MarkerCount(), 2u);
  text.marker_count = 2;
  Read(text.Text(), true);
}

// The lines behind the names.

TEST_F(TRCReader, TakesLineSixForAFrameUnlessItIsBlank) {
  const TrcText text{.markers = {"a"}};
  const std::string header = text.Header() + text.MarkerNames() + text.SubHeader();
  Read(header + "1\t0\t1\t2\t3\n");
  EXPECT_THAT(Samples(0), ElementsAre(At(1, 2, 3)));
  Read(header + "\n1\t0\t1\t2\t3\n");
  EXPECT_THAT(Samples(0), ElementsAre(At(1, 2, 3)));
  Read(header + " \n1\t0\t1\t2\t3\n");
  EXPECT_THAT(Samples(0), ElementsAre(kDropout, At(1, 2, 3)));
}

TEST_F(TRCReader, TakesBlankLinesBehindThatForFrames) {
  Read(OneMarker({"1\t0\t1\t2\t3", "", "2\t0\t4\t5\t6", ""}));
  EXPECT_THAT(Samples(0), ElementsAre(At(1, 2, 3), kDropout, At(4, 5, 6), kDropout));
}

TEST_F(TRCReader, LosesTheFirstFrameOfAFileWithoutSubHeader) {
  const TrcText text{.markers = {"a"}};
  Read(text.Header() + text.MarkerNames() + "1\t0\t1\t2\t3\n2\t0\t4\t5\t6\n3\t0\t7\t8\t9\n");
  EXPECT_THAT(Samples(0), ElementsAre(At(4, 5, 6), At(7, 8, 9)));
}

struct FrameLine {
  const char* description;
  std::string line;
  Sample first;
  Sample second = std::nullopt;
};

class TRCFrameLine : public TRCReader, public ::testing::WithParamInterface<FrameLine> {};

TEST_P(TRCFrameLine, GivesEachMarkerItsSample) {
  for (const char* line_end : {"\n", "\r\n", ""}) {
    Read(TrcText{.markers = {"a", "b"}}.Text() + GetParam().line + line_end);
    EXPECT_THAT(Samples(0), ElementsAre(GetParam().first));
    EXPECT_THAT(Samples(1), ElementsAre(GetParam().second));
  }
}

INSTANTIATE_TEST_SUITE_P(
    All, TRCFrameLine,
    ::testing::Values(
        FrameLine{"full", "1\t0\t1\t2\t3\t4\t5\t6", At(1, 2, 3), At(4, 5, 6)},
        FrameLine{"a tab at the end", "1\t0\t1\t2\t3\t4\t5\t6\t", At(1, 2, 3), At(4, 5, 6)},
        FrameLine{"dropout and value", "1\t0\t\t\t\t4\t5\t6", kDropout, At(4, 5, 6)},
        FrameLine{"dropout at the end", "1\t0\t1\t2\t3\t\t\t", At(1, 2, 3)},
        FrameLine{"the last x is the line end", "1\t0\t1\t2\t3\t", At(1, 2, 3)},
        FrameLine{"too few columns", "1\t0\t1\t2\t3", At(1, 2, 3)},
        FrameLine{"ends behind x", "1\t0\t1", At(1, 0, 0)},
        FrameLine{"ends behind y", "1\t0\t1\t2\t", At(1, 2, 0)},
        FrameLine{"no coordinates", "1\t0", kDropout}, FrameLine{"no time", "1", kDropout},
        FrameLine{"y and z missing", "1\t0\t1\t\t\t4\t5\t6", At(1, 0, 0), At(4, 5, 6)},
        FrameLine{"x missing", "1\t0\t\t2\t3\t4\t5\t6", kDropout, At(4, 5, 6)},
        FrameLine{"words", "1\t0\tNaN\tnan\t-inf\tx\t0x10\t1.#QNAN", At(0, 0, 0), At(0, 0, 1)},
        FrameLine{"blanks around", "1\t0\t 1\t2 \t  3  \t4\t5\t6", At(1, 2, 3), At(4, 5, 6)},
        FrameLine{"a blank is no dropout", "1\t0\t \t\t\t4\t5\t6", At(0, 0, 0), At(4, 5, 6)},
        FrameLine{"trailing letters", "1\t0\t1mm\t2.5.5\t3e\t4,5\t1e2x\t+6", At(1, 2.5, 3),
                  At(4, 100, 6)},
        FrameLine{"surplus columns", "1\t0\t1\t2\t3\t4\t5\t6\t7\t8\t9", At(1, 2, 3), At(4, 5, 6)},
        FrameLine{"blanks for tabs", "1 0 1 2 3 4 5 6", kDropout},
        FrameLine{"commas for tabs", "1,0,1,2,3,4,5,6", kDropout},
        FrameLine{"17 digits", "1\t0\t-0.06497214796810755\t1\t1", At(-0.06497214796810755, 1, 1)}),
    [](const auto& tested) {
      std::string name = tested.param.description;
      for (char& character : name) character = character == ' ' ? '_' : character;
      return name;
    });

TEST_F(TRCReader, GivesAllMarkersTheSameNumberOfSamples) {
  TrcText text{.markers = {"a", "b"}};
  text.frames.assign(100, {"", ""});
  text.frames[40] = {"1\t2\t3", ""};
  Read(text.Text());
  EXPECT_EQ(document_.MarkerAt(0)->SampleCount(), 100u);
  EXPECT_EQ(document_.MarkerAt(1)->SampleCount(), 100u);
  EXPECT_EQ(Samples(0)[40], At(1, 2, 3));
}

// Comments.

TEST_F(TRCReader, LetsACommentTakeThePlaceOfTheNextLine) {
  Read(OneMarker({"1\t0\t1\t2\t3", "# a\t0\t7\t8\t9", "2\t0\t4\t5\t6", "3\t0\t1\t1\t1"}));
  EXPECT_THAT(Samples(0), ElementsAre(At(1, 2, 3), At(7, 8, 9), At(1, 1, 1)));
}

TEST_F(TRCReader, ThrowsAwayTheLineBehindACommentWhateverItIs) {
  Read(OneMarker({"# first", "# second", "1\t0\t1\t2\t3"}));
  EXPECT_THAT(Samples(0), ElementsAre(kDropout, At(1, 2, 3)));
  Read(OneMarker({"1\t0\t1\t2\t3", "# last"}));
  EXPECT_THAT(Samples(0), ElementsAre(At(1, 2, 3), kDropout));
}

TEST_F(TRCReader, CountsACommentAsALineOfTheHeader) {
  const TrcText text{.markers = {"a"}};
  const std::string header = text.Header();
  const std::size_t third = header.find("60\t");
  Read(header.substr(0, third) + "#\t1\t2\t3\tcm\t0\t9\t\n" + header.substr(third) +
       text.MarkerNames());
  EXPECT_EQ(document_.NumFrames(), 2);
  EXPECT_EQ(document_.Units(), 1);
  EXPECT_EQ(document_.FirstFrame(), 9);
  EXPECT_THAT(Names(), ElementsAre("a"));
}

TEST_F(TRCReader, TakesALineThatANulEmptiesForAComment) {
  const std::string nul(1, '\0');
  Read(OneMarker({"1\t0\t1\t2\t3", nul + "rest", "2\t0\t4\t5\t6", "3\t0\t1\t1\t1"}));
  EXPECT_THAT(Samples(0), ElementsAre(At(1, 2, 3), kDropout, At(1, 1, 1)));
}

TEST_F(TRCReader, EndsALineAtANul) {
  const std::string nul(1, '\0');
  Read(OneMarker({"1\t0\t1\t2" + nul + "5\t3", "2\t0\t4\t5\t6"}));
  EXPECT_THAT(Samples(0), ElementsAre(At(1, 2, 0), At(4, 5, 6)));
}

// Long lines.

TEST_F(TRCReader, ReadsALineOfMoreThan10239CharactersAsSeveral) {
  const std::string number(10239, '0');
  Read(OneMarker({number + "2\t0\t4\t5\t6", "3\t0\t7\t8\t9"}));
  EXPECT_THAT(Samples(0), ElementsAre(kDropout, At(4, 5, 6), At(7, 8, 9)));
}

TEST_F(TRCReader, ReadsMarkerNamesOfOneLongLineUpToItsFirstPiece) {
  TrcText text;
  for (int index = 0; index < 2000; ++index) text.markers.push_back("m" + std::to_string(index));
  Read(text.Text());
  // Behind 12 characters of headings, and 6890 of the first 1000 names with three tabs each, there
  // is room for 417 names of 8 characters; one character of the next is left over.
  EXPECT_EQ(document_.MarkerCount(), 1417u);
}

// Failures that are not in the bytes.

// Stands in for a list that cannot grow.
template <typename Failure>
class FailingObserver : public TRCReadObserver {
 public:
  void OnOddity(TRCOddity, TRCPlace, std::string_view) override { throw Failure(); }
};

struct LengthError : std::length_error {
  LengthError() : std::length_error("x") {}
};

TEST_F(TRCReader, SaysSoWhenAListCannotGrow) {
  const std::string bytes = "PathFileType\t1\t(X/Y/Z)\tx\n";
  FailingObserver<std::bad_alloc> no_memory;
  EXPECT_EQ(document_.ReadBytes(bytes, false, &no_memory), "vector<T> too long");
  FailingObserver<LengthError> too_long;
  EXPECT_EQ(document_.ReadBytes(bytes, false, &too_long), "vector<T> too long");
}

// Files.

TEST(TRCFile, IsOpenedUnderItsNameWithAnyExtensionOfThreeLetters) {
  const test::TemporaryFolder folder;
  const std::string bytes = TwoMarkers().Text();
  for (const char* name : {"walk.trc", "walk.TRC", "walk.xyz", "m\xc3\xa4rz.htr"}) {
    TRCDocument document;
    folder.Write(name, bytes);
    EXPECT_EQ(document.Read(folder.File(name), false), "") << name;
    EXPECT_EQ(document.MarkerCount(), 2u);
  }
}

TEST(TRCFile, GetsAnExtensionWhenItsNameHasNone) {
  const test::TemporaryFolder folder;
  for (const char* name : {"walk", "a", "walk.ab", "walk.html"}) {
    TRCDocument document;
    folder.Write(std::string(name) + ".TRC", TwoMarkers().Text());
    EXPECT_EQ(document.Read(folder.File(name), false), "") << name;
    EXPECT_EQ(document.MarkerCount(), 2u);
  }
}

TEST(TRCFile, ThatCannotBeOpenedLeavesTheDocumentUntouched) {
  TRCDocument document;
  document.SetDataRate(25);
  document.AddMarker(TRCMarker("a"));
  for (const char* name : {"", "x", "/nowhere/at/all.trc"}) {
    EXPECT_EQ(document.Read(name, false), "The file could not be opened");
    EXPECT_EQ(document.DataRate(), 25);
    EXPECT_EQ(document.MarkerCount(), 1u);
  }
}

}  // namespace
}  // namespace orvane
