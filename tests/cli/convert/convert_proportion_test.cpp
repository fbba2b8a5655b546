#include "tests/cli/orvane_test.h"
#include "tests/support/trc_text.h"

namespace {

using test::ProgramResult;
using test::TrcText;
using testing::EndsWith;
using testing::HasSubstr;

class ConvertProportionTest : public test::OrvaneTest {
 protected:
  // A take that holds one frame of so many markers.
  static std::string Take(int markers, int announced) {
    TrcText text;
    text.frame_count = announced;
    text.frames.emplace_back();
    for (int i = 0; i < markers; ++i) {
      text.markers.push_back("m" + std::to_string(i));
      text.frames.front().emplace_back("1\t2\t3");
    }
    return text.Text();
  }

  // Tells what would become of the files, and writes nothing.
  ProgramResult Judge(const std::string& text, const std::vector<std::string>& flags = {}) const {
    Write("take.trc", text);
    std::vector<std::string> arguments = {"convert", "take.trc", "--dry-run", "--quiet"};
    arguments.insert(arguments.end(), flags.begin(), flags.end());
    return Orvane(arguments);
  }
};

TEST_F(ConvertProportionTest, AMillionSamplesMayBeMadeUp) {
  EXPECT_EQ(Judge(Take(100, 10'001)).status, 0);
  const ProgramResult result = Judge(Take(100, 10'002));
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(result.error,
            "orvane: take.trc: The header announces 10002 frames, but the file holds 1: 1000100 "
            "frames of 100 markers would be made up, and 100 are held [trc-frame-count]\n"
            "  Is \"NumFrames\" right?\n");
}

TEST_F(ConvertProportionTest, MarkersThatAreDroppedDoNotCount) {
  const std::string take = Take(100, 30'000);
  Write("few.mnm", "LFHD m1\nRFHD m2\n");
  EXPECT_EQ(Judge(take).status, 1);
  EXPECT_EQ(Judge(take, {"--mapping", "few.mnm"}).status, 0);
}

// Lines that lack their columns are dropouts of all markers.
TEST_F(ConvertProportionTest, AFileHasAByteForEachSampleBeyondFiveMillion) {
  const auto with_blank_lines = [](int announced) {
    return Take(1000, announced) + std::string(static_cast<std::size_t>(announced) - 1, '\n');
  };
  EXPECT_EQ(Judge(with_blank_lines(5000)).status, 0);
  const ProgramResult result = Judge(with_blank_lines(5001));
  EXPECT_EQ(result.status, 1);
  EXPECT_THAT(result.error, HasSubstr("[trc-frame-count]\n")) << "headings take several lines";
  EXPECT_THAT(result.error,
              EndsWith("orvane: take.trc: The file is far too short for 5001 frames of 1000 "
                       "markers\n  Do its lines hold all columns?\n"));
}

TEST_F(ConvertProportionTest, OneFileOfManyIsRefusedAlone) {
  Write("wrong.trc", Take(100, 30'000));
  Write("walk.trc", Take(2, 3));
  const ProgramResult result = Orvane({"convert", "wrong.trc", "walk.trc"});
  EXPECT_EQ(result.status, 1);
  EXPECT_THAT(result.error, HasSubstr(": 2999900 frames of 100 markers would be made up, and 100"));
  EXPECT_THAT(result.output, HasSubstr("wrong.bvk  refused\n"));
  EXPECT_TRUE(Exists("walk.bvk"));
  EXPECT_FALSE(Exists("wrong.bvk"));
}

}  // namespace
