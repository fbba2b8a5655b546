#include "tests/cli/orvane_test.h"
#include "tests/support/trc_text.h"

// What the program counts is told in the number that goes with it.

namespace {

using testing::HasSubstr;

class SingularTest : public test::OrvaneTest {
 protected:
  void WriteMotion(const std::string& rate) const {
    Write("walk.htr",
          test::Replaced(test::SmallMotion(), "DataFrameRate 60", "DataFrameRate " + rate));
  }

  std::string OutputOf(const std::vector<std::string>& arguments) const {
    const test::ProgramResult result = Orvane(arguments);
    EXPECT_EQ(result.status, 0) << result.error;
    return result.output;
  }
};

TEST_F(SingularTest, OneFramePerSecond) {
  WriteMotion("1");
  EXPECT_THAT(OutputOf({"info", "walk.htr"}), HasSubstr("  Frame rate      1 frame per second\n"));
  EXPECT_THAT(OutputOf({"import", "walk.htr", "-o", "walk.glb"}),
              HasSubstr("  Frames  1 to 3 at 1 frame per second\n"));
  EXPECT_THAT(OutputOf({"scene", "walk.glb"}),
              HasSubstr("  Frame rate  1 frame per second, 4800 ticks each\n"));
  EXPECT_THAT(OutputOf({"export", "walk.glb", "--select", "Hips", "-o", "back.htr"}),
              HasSubstr("  Frames    1 to 3 at 1 frame per second\n"));
}

TEST_F(SingularTest, OneFramePerSecondOfMarkers) {
  Write(
      "walk.trc",
      test::TrcText{.markers = {"a"}, .frames = {{"1\t2\t3"}}, .data_rate = "1", .camera_rate = "1"}
          .Text());
  const std::string page = OutputOf({"info", "walk.trc"});
  EXPECT_THAT(page, HasSubstr("  Data rate       1 frame per second\n"));
  EXPECT_THAT(page, HasSubstr("  Camera rate     1 frame per second\n"));
}

TEST_F(SingularTest, OneTick) {
  WriteMotion("4800");
  OutputOf({"import", "walk.htr", "-o", "walk.glb"});
  EXPECT_THAT(OutputOf({"scene", "walk.glb"}),
              HasSubstr("  Frame rate  4800 frames per second, 1 tick each\n"));
}

// --- One frame ---

TEST_F(SingularTest, OneFrameOfAMotion) {
  WriteMotion("1");
  EXPECT_THAT(OutputOf({"info", "walk.htr", "--cut", "2:2"}),
              HasSubstr("  Frames          1 announced, 1 found, numbered 2\n"));
  EXPECT_THAT(OutputOf({"import", "walk.htr", "-o", "walk.glb", "--cut", "2:2"}),
              HasSubstr("  Frames  0 to 3 at 1 frame per second, as before: one frame sets no "
                        "range\n"));
  EXPECT_THAT(OutputOf({"scene", "walk.glb"}), HasSubstr("viewers are shown 1 frame per second\n"));
  EXPECT_THAT(OutputOf({"export", "walk.glb", "--select", "Hips", "-o", "2.htr", "--range", "2:2"}),
              HasSubstr("  Frames    2 alone, at 1 frame per second\n"));
  const test::ProgramResult exported =
      Orvane({"export", "walk.glb", "--select", "Hips", "-o", "all.htr"});
  EXPECT_THAT(exported.error, HasSubstr(": note: The frames 0 to 3 are exported, and the keys of "
                                        "the skeleton are in frame 2. "));
}

TEST_F(SingularTest, OneFrameThatIsKeyed) {
  WriteMotion("60");
  const test::ProgramResult result =
      Orvane({"import", "walk.htr", "-o", "walk.glb", "--range", "3:3"});
  EXPECT_THAT(result.error, HasSubstr("Keys come to lie in frame 3, and the scene's animation "
                                      "range is then frame 1. "));
  EXPECT_THAT(result.output, HasSubstr(", in frame 3\n"));
  EXPECT_THAT(result.output, HasSubstr("  Frames  1 alone, at 60 frames per second\n"));
}

TEST_F(SingularTest, OneFrameThatIsAskedFor) {
  WriteMotion("60");
  EXPECT_EQ(
      Orvane({"info", "walk.htr", "--cut", "7:7"}).error,
      "orvane: walk.htr: --cut asks for frame 7, and the file has 1 to 3 [cut-range-outside]\n"
      "  --cut 1:3 takes all of it.\n");
}

TEST_F(SingularTest, OneFrameOfMarkers) {
  const test::TrcText one{.markers = {"a"}, .frames = {{""}}, .first_frame = 5};
  Write("walk.trc", one.Text());
  EXPECT_THAT(OutputOf({"info", "walk.trc"}),
              HasSubstr("  Frames          1 announced, 1 found, numbered 5\n"));
  const std::string imported = OutputOf({"import", "walk.trc", "-o", "walk.glb"});
  EXPECT_THAT(imported, HasSubstr("  Gaps    1 of 1 sample missing: hidden\n"));
  EXPECT_THAT(imported, HasSubstr(", as before: one frame sets no range\n"));
  EXPECT_EQ(Orvane({"info", "walk.trc", "--cut", "6:7"}).error,
            "orvane: walk.trc: warning: A marker has no position in any frame: \"a\" (line 4, "
            "column 13). Such a column is a marker all the same. [trc-marker-never-seen]\n"
            "orvane: walk.trc: --cut asks for the frames 6 to 7, and the file has frame 5 "
            "[cut-range-outside]\n"
            "  --cut 5:5 takes all of it.\n");
}

}  // namespace
