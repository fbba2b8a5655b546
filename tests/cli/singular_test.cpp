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

}  // namespace
