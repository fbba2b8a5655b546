#include <utility>

#include "tests/cli/orvane_test.h"
#include "tests/support/htr_text.h"
#include "tests/support/trc_text.h"

// That the check of motion files says what the import really makes of them.

namespace {

using test::Replaced;
using test::SmallMotion;
using testing::HasSubstr;

class CheckEffectTest : public test::OrvaneTest {};

struct Range {
  const char* from;
  const char* to;
  const char* told;
};

TEST_F(CheckEffectTest, ANumberOutOfItsRangeIsToldTheRange) {
  for (const Range& range :
       {Range{"NumFrames 3", "NumFrames -3",
              "found \"-3\", expected a whole number from 0 to 2147483647 for NumFrames "
              "[htr-number-out-of-range]\n  0 is taken."},
        Range{"NumSegments 2", "NumSegments 3000000000",
              "found \"3000000000\", expected a whole number from -2147483648 to 2147483647 for "
              "NumSegments [htr-number-out-of-range]\n  2147483647 is taken."},
        Range{"2 10 0", "2 -1e999 0",
              "found \"-1e999\", expected a finite number for Tx [htr-number-infinite]\n  It "
              "is taken as infinite: a scene that it gets into cannot be saved."},
        Range{"2 10 0", "2 1e39 0",
              "found \"1e39\", expected a finite number for Tx [htr-number-infinite]\n  It is "
              "taken as infinite: a scene that it gets into cannot be saved."},
        Range{"2 10 0 0 0 0 90 1", "2 10 0 0 0 0 90 1e999",
              "found \"1e999\", expected a finite number for BoneScaleFactor "
              "[htr-number-out-of-range]\n  It is taken as infinite; the import does not use it."},
        Range{"ScaleFactor 1.0", "ScaleFactor 1e999",
              "found \"1e999\", expected a finite number for ScaleFactor "
              "[htr-number-out-of-range]\n  It is taken as infinite; the import does not use "
              "it."}}) {
    Write("range.htr", Replaced(SmallMotion(), range.from, range.to));
    EXPECT_THAT(Orvane({"check", "range.htr"}).output, HasSubstr(range.told));
  }
}

// The dialog would have to go from the first frame to one before it.
TEST_F(CheckEffectTest, WithoutAnnouncedFramesNoImportTakesAFile) {
  for (const char* value : {"0", "-3", "three", ""}) {
    Write("none.htr", Replaced(SmallMotion(), "NumFrames 3", std::string("NumFrames ") + value));
    EXPECT_THAT(Orvane({"check", "none.htr"}).output,
                HasSubstr("expected a whole number of 1 or more for NumFrames "
                          "[htr-frames-unannounced]\n  The import refuses the file: its last frame "
                          "would come before its first.\n"))
        << value;
    for (const std::vector<std::string>& flags :
         {std::vector<std::string>{}, {"--range", "1:3"}, {"--range", "1:0"}, {"--no-animation"}}) {
      std::vector<std::string> arguments = {"import", "none.htr", "-o", "none.glb"};
      arguments.insert(arguments.end(), flags.begin(), flags.end());
      EXPECT_EQ(Orvane(arguments).status, 1) << value;
      EXPECT_FALSE(Exists("none.glb"));
    }
  }
}

// A number that a scene gets, or one that it does not.
bool HasInfinite(const std::string& told) {
  return told.find("[htr-number-infinite]") != std::string::npos ||
         told.find("[htr-number-out-of-range]") != std::string::npos;
}

// A scene has single precision; angles come into it only by their sines.
TEST_F(CheckEffectTest, LengthsOfWhichASceneCannotBeSavedAreToldOf) {
  struct Large {
    const char* from;
    const char* to;
    bool is_told;
  };
  for (const Large& large : {Large{"2 10 0", "2 1e39 0", true},
                             {"2 10 0", "2 3e38 0", false},
                             {"250.5", "-1e39", true},
                             {"Spine 0 100", "Spine 0 1e39", true},
                             {"0 90 1", "0 1e39 1", false},
                             {"0 90 1", "0 90 1e39", false},
                             {"0 90 1", "0 1e999 1", true}}) {
    Write("large.htr", Replaced(SmallMotion(), large.from, large.to));
    const std::string told = Orvane({"check", "large.htr"}).output;
    EXPECT_EQ(HasInfinite(told), large.is_told) << large.to;
    for (const std::vector<std::string>& arguments :
         {std::vector<std::string>{"import", "large.htr", "-o", "large.glb", "--force"},
          {"check", "large.htr", "--for", "import", "--max-severity", "warning"}}) {
      EXPECT_EQ(Orvane(arguments).status, large.is_told ? 1 : 0) << large.to;
    }
  }
}

TEST_F(CheckEffectTest, ASecondBasePositionTellsWhatBecomesOfMany) {
  test::HtrText text;
  for (const char* name : {"a", "b", "c", "d", "e", "f", "g", "h"}) {
    const std::string parent = text.segments.empty() ? "GLOBAL" : text.segments.back().name;
    text.segments.push_back({.name = name, .parent = parent, .frames = {"0 0 0 0 0 0"}});
  }
  for (const auto& [sections, status] : {std::pair{1, 0}, std::pair{20, 1}}) {
    std::string again;
    for (int section = 0; section < sections; ++section) again += "[BasePosition]\n";
    Write("again.htr", Replaced(text.Text(), "[a]\n", again + "[a]\n"));
    EXPECT_THAT(Orvane({"check", "again.htr"}).output,
                HasSubstr("[htr-base-repeated]\n  Every segment is listed once more among its "
                          "parent's children; a file that does so over and over is refused.\n"));
    EXPECT_EQ(Orvane({"import", "again.htr", "-o", "again.glb", "--force"}).status, status)
        << sections;
  }
}

TEST_F(CheckEffectTest, AnAxisOfGravityThatNobodyLooksAtIsNotKeptSilent) {
  Write("z.htr", Replaced(SmallMotion(), "GlobalAxisofGravity Y", "GlobalAxisofGravity Z"));
  EXPECT_EQ(Orvane({"check", "z.htr"}).output,
            "z.htr:11:21: warning: found \"Z\", expected Y [htr-axis-ignored]\n"
            "  The import takes Y for up all the same: the skeleton will lie down.\n"
            "z.htr: 1 warning\n");
}

// A look ahead is of the whole file; what is not imported cannot keep a scene from being saved.
TEST_F(CheckEffectTest, ANumberThatIsNotImportedRefusesNoImport) {
  Write("large.htr", Replaced(SmallMotion(), "2 10 0", "2 1e39 0"));
  Write("large.trc",
        test::TrcText{.markers = {"Head"}, .frames = {{"1\t2\t3"}, {"1e39\t2\t3"}}}.Text());
  for (const std::string file : {"large.htr", "large.trc"}) {
    EXPECT_THAT(Orvane({"check", file, "--for", "import"}).output,
                HasSubstr("error: A number is too large: \"1e39\""));
    const std::vector<std::string> import = {"import", file, "-o", "large.glb", "--force"};
    EXPECT_EQ(Orvane(import).status, 1);
    for (const std::vector<std::string>& flags :
         {std::vector<std::string>{"--range", "1:1"}, {"--cut", "1:1"}}) {
      std::vector<std::string> arguments = import;
      arguments.insert(arguments.end(), flags.begin(), flags.end());
      EXPECT_EQ(Orvane(arguments).status, 0) << file;
    }
  }
  Write(
      "behind.trc",
      test::TrcText{.markers = {"Head"}, .frames = {{"1\t2\t3"}, {"1e39\t2\t3"}}, .frame_count = 1}
          .Text());
  EXPECT_EQ(Orvane({"check", "behind.trc", "--for", "import", "--max-severity", "warning"}).status,
            0);
  EXPECT_EQ(Orvane({"import", "behind.trc", "-o", "behind.glb"}).status, 0);
}

}  // namespace
