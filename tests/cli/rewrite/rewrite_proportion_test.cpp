#include "tests/cli/orvane_test.h"
#include "tests/support/trc_text.h"

namespace {

using test::ProgramResult;
using test::TrcText;
using testing::HasSubstr;

class RewriteProportionTest : public test::OrvaneTest {
 protected:
  // Five hundred markers in a row that is whole, behind so many that are blank.
  static std::string BlankLines(std::size_t count) {
    TrcText text;
    text.frames.emplace_back();
    for (int marker = 0; marker < 500; ++marker) {
      text.markers.push_back("m" + std::to_string(marker));
      text.frames.front().emplace_back("1\t2\t3");
    }
    text.frame_count = static_cast<int>(count) + 1;
    const std::string whole = text.Text();
    const std::size_t row = whole.size() - text.FrameLine(0).size();
    return whole.substr(0, row) + std::string(count, '\n') + whole.substr(row);
  }

  // A root that moves for so long, and a thousand segments that hang from it and never do.
  static std::string ShortSegments(std::size_t frames) {
    std::string names;
    std::string bases;
    for (int segment = 0; segment < 1000; ++segment) {
      const std::string name = "s" + std::to_string(segment);
      names += name + "\tRoot\n";
      bases += name + "\t0\t1\t0\t0\t0\t0\t1\n";
    }
    std::string rows;
    for (std::size_t frame = 1; frame <= frames; ++frame) {
      rows += std::to_string(frame) + "\t0\t0\t0\t0\t0\t0\t1\n";
    }
    return "[Header]\nFileType htr\nDataType HTRS\nFileVersion 1\nNumSegments 1001\nNumFrames " +
           std::to_string(frames) +
           "\nDataFrameRate 60\nEulerRotationOrder ZYX\nCalibrationUnits mm\nRotationUnits "
           "Degrees\nGlobalAxisofGravity Y\nBoneLengthAxis Y\nScaleFactor 1\n"
           "[SegmentNames&Hierarchy]\nRoot\tGLOBAL\n" +
           names + "[BasePosition]\nRoot\t0\t0\t0\t0\t0\t0\t1\n" + bases + "[Root]\n" + rows +
           "[EndOfFile]\n";
  }

  ProgramResult Rewrite(const std::string& input, const std::string& output,
                        const std::vector<std::string>& flags = {}) const {
    std::vector<std::string> arguments = {"rewrite", input, "-o", output, "--no-report", "--quiet"};
    arguments.insert(arguments.end(), flags.begin(), flags.end());
    return Orvane(arguments);
  }
};

TEST_F(RewriteProportionTest, RefusesMarkersInLinesThatLackTheirColumns) {
  Write("blank.trc", BlankLines(20'000));
  for (const std::string output : {"new.trc", "new.csv", "new.c3d"}) {
    const ProgramResult result = Rewrite("blank.trc", output);
    EXPECT_EQ(result.status, 1) << output;
    EXPECT_EQ(result.error,
              "orvane: blank.trc: The file is far too short for 20001 frames of 500 markers\n"
              "  Do its lines hold all columns?\n");
    EXPECT_FALSE(Exists(output));
  }
  EXPECT_EQ(Rewrite("blank.trc", "new.trc", {"--cut", "1:10000"}).status, 0)
      << "five million samples may be made up";
}

TEST_F(RewriteProportionTest, RefusesSegmentsThatLackTheirFrames) {
  Write("short.htr", ShortSegments(1001));
  for (const std::string output : {"new.csv", "new.bvh"}) {
    const ProgramResult result = Rewrite("short.htr", output);
    EXPECT_EQ(result.status, 1) << output;
    EXPECT_EQ(result.error,
              "orvane: short.htr: 1001000 frames of 1000 segments would be made up, and 1001 are "
              "held\n  Do its segments hold all their frames?\n");
    EXPECT_FALSE(Exists(output));
  }
  EXPECT_EQ(Rewrite("short.htr", "new.htr").status, 0) << "nothing is made up there";
  EXPECT_EQ(Rewrite("short.htr", "new.csv", {"--cut", "2:1001"}).status, 0)
      << "a million frames may be made up";
}

// A line in the middle that readers would not take is met when others are written.
TEST_F(RewriteProportionTest, WritesNothingOfWhatCannotBeWrittenWhole) {
  TrcText text;
  const std::string number = "1e300";
  for (int marker = 0; marker < 20; ++marker) {
    text.markers.push_back("m" + std::to_string(marker));
  }
  const TrcText::Frame small(20, "1\t2\t3");
  const TrcText::Frame large(20, number + "\t" + number + "\t" + number);
  text.frames.assign(3000, small);
  text.frames.push_back(large);
  Write("long.trc", text.Text());
  const std::string why = "it cannot be written so that it could be read back: a line of it would";
  const std::vector<std::string> flags = {"--decimals", "15"};
  const ProgramResult file = Rewrite("long.trc", "new.trc", flags);
  EXPECT_EQ(file.status, 1);
  EXPECT_THAT(file.error, HasSubstr(why));
  EXPECT_FALSE(Exists("new.trc"));
  const ProgramResult stream = Rewrite("long.trc", "-", flags);
  EXPECT_EQ(stream.status, 1);
  EXPECT_EQ(stream.output, "");
}

}  // namespace
