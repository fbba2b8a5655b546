#include "formats/bvh/writer.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "formats/htr/reader.h"
#include "tests/formats/bvh/skeletons.h"
#include "tests/support/files.h"

namespace {

using orvane::BvhNumbers;
using orvane::BvhOptions;
using orvane::BvhPositions;
using orvane::HtrDocument;
using orvane::HtrSegment;
using test::AddFrame;
using test::AddSegment;
using test::BentTrunk;
using test::MotionOf;
using test::TextOf;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

TEST(BvhWriterTest, WritesAllOfAFile) {
  BentTrunk trunk;
  EXPECT_EQ(TextOf(trunk.document()),
            "HIERARCHY\n"
            "ROOT Hips\n"
            "{\n"
            "\tOFFSET 0.000000 0.000000 0.000000\n"
            "\tCHANNELS 6 Xposition Yposition Zposition Zrotation Xrotation Yrotation\n"
            "\tJOINT Spine\n"
            "\t{\n"
            "\t\tOFFSET 0.000000 120.000000 0.000000\n"
            "\t\tCHANNELS 3 Zrotation Xrotation Yrotation\n"
            "\t\tEnd Site\n"
            "\t\t{\n"
            "\t\t\tOFFSET 0.000000 400.000000 0.000000\n"
            "\t\t}\n"
            "\t}\n"
            "}\n"
            "MOTION\n"
            "Frames: 2\n"
            "Frame Time: 0.016666666666666666\n"
            "0.000000 950.000000 0.000000 0.000000 0.000000 0.000000 0.000000 0.000000 0.000000\n"
            "0.000000 960.000000 0.000000 0.000000 0.000000 90.000000 -30.000000 0.000000 "
            "0.000000\n");
}

// The block of the page `name` that is marked as `language`.
std::string ExampleOf(const std::string& name, const std::string& language) {
  const std::string page = test::ReadFile(std::string(ORVANE_SOURCE_DIR) + "/docs/formats/" + name);
  const std::string fence = "```" + language + "\n";
  const std::size_t begin = page.find(fence) + fence.size();
  return page.substr(begin, page.find("```\n", begin) - begin);
}

TEST(BvhWriterTest, WritesTheExampleOfItsPage) {
  HtrDocument document;
  ASSERT_EQ(orvane::ReadHtrBytes(document, ExampleOf("htr.md", "htr"), true), "");
  EXPECT_EQ(TextOf(document), ExampleOf("bvh.md", "bvh"));
}

TEST(BvhWriterTest, BranchesStandInTheBracesOfTheirParent) {
  HtrDocument document;
  HtrSegment* hips = AddSegment(document, "Hips", nullptr);
  HtrSegment* left = AddSegment(document, "Left", hips);
  AddSegment(document, "Right", hips);
  HtrSegment* knee = AddSegment(document, "Knee", left);
  AddSegment(document, "Foot", knee);
  std::string shape;
  for (const char character : TextOf(document)) {
    if (character == '{' || character == '}') shape += character;
  }
  EXPECT_EQ(shape, "{{{{{}}}}{{}}}");
  EXPECT_THAT(TextOf(document), HasSubstr("\tJOINT Right\n\t{\n"));
}

TEST(BvhWriterTest, PutsTheFrameBehindTheBaseRotation) {
  HtrDocument document;
  HtrSegment* hips = AddSegment(document, "Hips", nullptr);
  hips->SetBaseRotation(0, 90 * orvane::kRadiansPerDegree, 0);
  AddFrame(*hips, {}, {0, 0, 30});
  // Ry(90) Rz(30) is Rx(30) Ry(90), with nothing left about Z.
  EXPECT_EQ(MotionOf(document), "0.000000 0.000000 0.000000 0.000000 30.000000 90.000000\n");
}

TEST(BvhWriterTest, AConstantTranslationIsTheOffset) {
  BentTrunk trunk;
  ASSERT_TRUE(trunk.spine().SetFrameTranslation(0, 1, 2, 3));
  ASSERT_TRUE(trunk.spine().SetFrameTranslation(1, 1, 2, 3));
  for (const BvhPositions positions : {BvhPositions::kRoot, BvhPositions::kAll}) {
    BvhOptions options;
    options.positions = positions;
    EXPECT_THAT(TextOf(trunk.document(), options),
                HasSubstr("OFFSET 1.000000 122.000000 3.000000\n\t\tCHANNELS 3 "));
  }
}

TEST(BvhWriterTest, AChangingTranslationIsHeldAtItsBaseOrHasChannelsOfItsOwn) {
  BentTrunk trunk;
  ASSERT_TRUE(trunk.spine().SetFrameTranslation(1, 1, 2, 3));
  EXPECT_THAT(TextOf(trunk.document()),
              HasSubstr("OFFSET 0.000000 120.000000 0.000000\n\t\tCHANNELS 3 "));
  BvhOptions options;
  options.positions = BvhPositions::kAll;
  EXPECT_THAT(TextOf(trunk.document(), options),
              HasSubstr("\t\tOFFSET 0.000000 0.000000 0.000000\n\t\tCHANNELS 6 Xposition Yposition "
                        "Zposition Zrotation Xrotation Yrotation\n"));
  EXPECT_EQ(MotionOf(trunk.document(), options),
            "0.000000 950.000000 0.000000 0.000000 0.000000 0.000000 "
            "0.000000 120.000000 0.000000 0.000000 0.000000 0.000000\n"
            "0.000000 960.000000 0.000000 0.000000 0.000000 90.000000 "
            "1.000000 122.000000 3.000000 -30.000000 0.000000 0.000000\n");
}

TEST(BvhWriterTest, ABoneEndsOnItsLongAxis) {
  BentTrunk trunk;
  trunk.document().SetBoneLengthAxis(2);
  EXPECT_THAT(TextOf(trunk.document()), HasSubstr("\t\t\tOFFSET 0.000000 0.000000 400.000000\n"));
  trunk.document().SetBoneLengthAxis(0);
  EXPECT_THAT(TextOf(trunk.document()), HasSubstr("\t\t\tOFFSET 400.000000 0.000000 0.000000\n"));
}

TEST(BvhWriterTest, ATimeOfAFrameTakesThePlaceOfTheDocumentsRate) {
  BentTrunk trunk;
  BvhOptions options;
  options.frame_time = 1001.0 / 60000.0;
  EXPECT_THAT(TextOf(trunk.document(), options), HasSubstr("\nFrame Time: 0.016683333333333335\n"));
}

TEST(BvhWriterTest, NumbersAreAsAskedFor) {
  BentTrunk trunk;
  ASSERT_TRUE(trunk.hips().SetFrameTranslation(0, 0.1, 1e-9, -1e-9));
  BvhOptions options;
  options.numbers = BvhNumbers::kShortest;
  EXPECT_THAT(MotionOf(trunk.document(), options), StartsWith("0.1 950.000000001 -1e-09 0 0 0 "));
  options.numbers = BvhNumbers::kDecimals;
  options.decimals = 2;
  EXPECT_THAT(MotionOf(trunk.document(), options), StartsWith("0.10 950.00 0.00 0.00 0.00 0.00 "));
  EXPECT_THAT(TextOf(trunk.document(), options), HasSubstr("OFFSET 0.00 400.00 0.00\n"));
}

TEST(BvhWriterTest, SmallUnitsGetMoreDecimals) {
  HtrDocument document;
  HtrSegment* hips = AddSegment(document, "Hips", nullptr);
  AddSegment(document, "Head", hips)->SetBaseTranslation(0, 1.8, 0);
  EXPECT_THAT(TextOf(document), HasSubstr("OFFSET 0.0000000 1.8000000 0.0000000\n"));
}

TEST(BvhWriterTest, NoFramesAreOneOfTheBasePosition) {
  HtrDocument document;
  HtrSegment* hips = AddSegment(document, "Hips", nullptr);
  hips->SetBaseTranslation(1, 2, 3);
  hips->SetBaseRotation(0, 0, 90 * orvane::kRadiansPerDegree);
  EXPECT_THAT(TextOf(document), HasSubstr("\nFrames: 1\n"));
  EXPECT_EQ(MotionOf(document), "1.000000 2.000000 3.000000 90.000000 0.000000 0.000000\n");
}

TEST(BvhWriterTest, ASegmentStaysAsItIsInItsLastFrame) {
  BentTrunk trunk;
  AddFrame(trunk.hips(), {0, 20, 0});
  HtrSegment* head = AddSegment(trunk.document(), "Head", &trunk.spine());
  head->SetBaseRotation(0.0, 0.0, 5 * orvane::kRadiansPerDegree);
  const std::string motion = MotionOf(trunk.document());
  EXPECT_THAT(motion, HasSubstr("0.000000 970.000000 0.000000 0.000000 0.000000 0.000000 "
                                "-30.000000 0.000000 0.000000 5.000000 0.000000 0.000000\n"));
}

TEST(BvhWriterTest, EachRootIsAFileOfItsOwn) {
  BentTrunk trunk;
  HtrSegment* prop = AddSegment(trunk.document(), "Prop", nullptr);
  AddFrame(*prop, {1, 2, 3});
  EXPECT_EQ(orvane::CountBvhRoots(trunk.document()), 2U);
  EXPECT_THAT(TextOf(trunk.document()), Not(HasSubstr("Prop")));
  BvhOptions options;
  options.root = 1;
  EXPECT_THAT(TextOf(trunk.document(), options), StartsWith("HIERARCHY\nROOT Prop\n"));
  EXPECT_THAT(TextOf(trunk.document(), options), Not(HasSubstr("Hips")));
  EXPECT_EQ(MotionOf(trunk.document(), options),
            "1.000000 2.000000 3.000000 0.000000 0.000000 0.000000\n");
}

}  // namespace
