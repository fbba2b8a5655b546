#include "inspect/compare/structure_comparison.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "formats/htr/reader.h"
#include "tests/support/htr_text.h"

namespace {

using orvane::CompareStructure;
using orvane::HtrDocument;
using orvane::StructureComparison;
using orvane::WhichFile;
using test::HtrText;
using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::string> FramesAtRest(int count) {
  return std::vector<std::string>(static_cast<std::size_t>(count), "0 0 0 0 0 0");
}

HtrText::Segment Segment(const std::string& name, const std::string& parent, int frames = 3) {
  HtrText::Segment segment;
  segment.name = name;
  segment.parent = parent;
  segment.frames = FramesAtRest(frames);
  return segment;
}

HtrText Body() {
  HtrText text;
  text.segments = {Segment("Hips", "GLOBAL"), Segment("Spine", "Hips"), Segment("Head", "Spine")};
  return text;
}

class StructureComparisonTest : public testing::Test {
 protected:
  StructureComparison Compare(const HtrText& a, const HtrText& b) {
    EXPECT_EQ(orvane::ReadHtrBytes(a_, a.Text(), true), "");
    EXPECT_EQ(orvane::ReadHtrBytes(b_, b.Text(), true), "");
    return CompareStructure(a_, b_);
  }

  // The names of what is compared, where both files mean the same segment.
  static std::vector<std::string> PairedNames(const StructureComparison& structure) {
    std::vector<std::string> names;
    for (const orvane::SegmentPair& pair : structure.pairs) {
      names.push_back(structure.hierarchy_a[pair.in_a].segment->GetName());
      EXPECT_EQ(names.back(), structure.hierarchy_b[pair.in_b].segment->GetName());
    }
    return names;
  }

  // "A Spine 2-3", or "A 2-3" for all segments.
  static std::vector<std::string> OnlyFrames(const StructureComparison& structure) {
    std::vector<std::string> texts;
    for (const orvane::OnlyFrames& only : structure.differences.frames) {
      const std::string segment = only.segment.empty() ? "" : only.segment + " ";
      texts.push_back((only.file == WhichFile::kA ? "A " : "B ") + segment +
                      std::to_string(only.frames.first) + "-" + std::to_string(only.frames.last));
    }
    return texts;
  }

  HtrDocument a_;
  HtrDocument b_;
};

TEST_F(StructureComparisonTest, AFileHasTheStructureOfItself) {
  const StructureComparison structure = Compare(Body(), Body());
  EXPECT_FALSE(structure.differences.Any());
  EXPECT_THAT(PairedNames(structure), ElementsAre("Hips", "Spine", "Head"));
  ASSERT_TRUE(structure.common_frames);
  EXPECT_EQ(structure.common_frames->first, 1);
  EXPECT_EQ(structure.common_frames->last, 3);
  EXPECT_FALSE(structure.at_rest);
}

TEST_F(StructureComparisonTest, TheOrderOfSegmentsIsNoDifference) {
  HtrText other = Body();
  std::swap(other.segments[0], other.segments[2]);
  const StructureComparison structure = Compare(Body(), other);
  EXPECT_FALSE(structure.differences.Any());
  EXPECT_THAT(PairedNames(structure), ElementsAre("Hips", "Spine", "Head"));
}

TEST_F(StructureComparisonTest, SegmentsOfOneFileAreFoundByName) {
  HtrText other = Body();
  other.segments[2].name = "head";
  const StructureComparison structure = Compare(Body(), other);
  const auto& segments = structure.differences.segments;
  ASSERT_EQ(segments.size(), 2U);
  EXPECT_EQ(segments[0].file, WhichFile::kA);
  EXPECT_EQ(segments[0].name, "Head");
  EXPECT_EQ(segments[1].file, WhichFile::kB);
  EXPECT_EQ(segments[1].name, "head");
  EXPECT_THAT(PairedNames(structure), ElementsAre("Hips", "Spine"));
}

TEST_F(StructureComparisonTest, ASegmentWithAnotherParentIsNotCompared) {
  HtrText other = Body();
  other.segments[2].parent = "Hips";
  const StructureComparison structure = Compare(Body(), other);
  ASSERT_EQ(structure.differences.parents.size(), 1U);
  EXPECT_EQ(structure.differences.parents[0].name, "Head");
  EXPECT_EQ(structure.differences.parents[0].in_a, "Spine");
  EXPECT_EQ(structure.differences.parents[0].in_b, "Hips");
  EXPECT_THAT(PairedNames(structure), ElementsAre("Hips", "Spine"));
}

TEST_F(StructureComparisonTest, WhatHangsFromNoRootInOneFileAloneIsNotCompared) {
  HtrText other = Body();
  other.segments[1].parent = "Nobody";
  const StructureComparison structure = Compare(Body(), other);
  ASSERT_EQ(structure.differences.parents.size(), 1U);
  EXPECT_EQ(structure.differences.parents[0].name, "Spine");
  EXPECT_EQ(structure.differences.parents[0].in_a, "Hips");
  EXPECT_EQ(structure.differences.parents[0].in_b, "");
  EXPECT_THAT(PairedNames(structure), ElementsAre("Hips"));
}

TEST_F(StructureComparisonTest, ARootIsNotASegmentWithoutParent) {
  HtrText other = Body();
  other.segments[0].parent = "Nobody";
  const StructureComparison structure = Compare(Body(), other);
  ASSERT_EQ(structure.differences.parents.size(), 1U);
  EXPECT_EQ(structure.differences.parents[0].in_a, "GLOBAL");
  EXPECT_EQ(structure.differences.parents[0].in_b, "");
  EXPECT_THAT(PairedNames(structure), IsEmpty());
}

TEST_F(StructureComparisonTest, SegmentsInTheSameCircleAreCompared) {
  HtrText text = Body();
  text.segments[1].parent = "Head";
  const StructureComparison structure = Compare(text, text);
  EXPECT_FALSE(structure.differences.Any());
  EXPECT_THAT(PairedNames(structure), ElementsAre("Hips", "Spine", "Head"));
}

TEST_F(StructureComparisonTest, FramesAreMatchedByTheirNumbers) {
  HtrText other = Body();
  other.first_frame = 2;
  const StructureComparison structure = Compare(Body(), other);
  EXPECT_EQ(structure.common_frames->first, 2);
  EXPECT_EQ(structure.common_frames->last, 3);
  EXPECT_THAT(OnlyFrames(structure), ElementsAre("A 1-1", "B 4-4"));
}

TEST_F(StructureComparisonTest, OneFileMayReachBeyondTheOtherAtBothEnds) {
  HtrText longer = Body();
  longer.first_frame = -1;
  for (HtrText::Segment& segment : longer.segments) segment.frames = FramesAtRest(8);
  EXPECT_THAT(OnlyFrames(Compare(longer, Body())), ElementsAre("A -1-0", "A 4-6"));
  EXPECT_THAT(OnlyFrames(Compare(Body(), longer)), ElementsAre("B -1-0", "B 4-6"));
}

TEST_F(StructureComparisonTest, FilesWithoutACommonFrameShareNone) {
  HtrText other = Body();
  other.first_frame = 4;
  const StructureComparison structure = Compare(Body(), other);
  EXPECT_FALSE(structure.common_frames);
  EXPECT_FALSE(structure.at_rest);
  EXPECT_THAT(OnlyFrames(structure), ElementsAre("A 1-3", "B 4-6"));
}

TEST_F(StructureComparisonTest, AFileWithoutFramesHasNoneInCommon) {
  HtrText other = Body();
  for (HtrText::Segment& segment : other.segments) segment.frames.clear();
  const StructureComparison structure = Compare(Body(), other);
  EXPECT_FALSE(structure.common_frames);
  EXPECT_THAT(OnlyFrames(structure), ElementsAre("A 1-3"));
}

TEST_F(StructureComparisonTest, FilesWithoutFramesAreAtRest) {
  HtrText text = Body();
  for (HtrText::Segment& segment : text.segments) segment.frames.clear();
  const StructureComparison structure = Compare(text, text);
  EXPECT_TRUE(structure.at_rest);
  EXPECT_FALSE(structure.differences.Any());
}

TEST_F(StructureComparisonTest, FramesThatASegmentDoesNotHoldAreFoundByName) {
  HtrText other = Body();
  other.segments[1].frames = FramesAtRest(1);
  EXPECT_THAT(OnlyFrames(Compare(Body(), other)), ElementsAre("A Spine 2-3"));
  EXPECT_THAT(OnlyFrames(Compare(other, Body())), ElementsAre("B Spine 2-3"));
  other.segments[1].frames.clear();
  EXPECT_THAT(OnlyFrames(Compare(Body(), other)), ElementsAre("A Spine 1-3"));
}

TEST_F(StructureComparisonTest, FramesThatAllSegmentsLackAreToldOnce) {
  HtrText longer = Body();
  for (HtrText::Segment& segment : longer.segments) segment.frames = FramesAtRest(5);
  longer.segments[2].frames = FramesAtRest(2);
  EXPECT_THAT(OnlyFrames(Compare(longer, Body())), ElementsAre("A 4-5", "B Head 3-3"));
}

TEST_F(StructureComparisonTest, TheFrameRateIsPartOfTheStructure) {
  HtrText other = Body();
  other.frame_rate = 60;
  const StructureComparison structure = Compare(Body(), other);
  EXPECT_TRUE(structure.differences.frame_rate);
  EXPECT_TRUE(structure.differences.Any());
}

TEST_F(StructureComparisonTest, AChainOfAHundredThousandIsCompared) {
  constexpr int kLength = 100'000;
  for (HtrDocument* document : {&a_, &b_}) {
    orvane::HtrSegment* last = nullptr;
    for (int i = 0; i < kLength; ++i) {
      orvane::HtrSegment* next = document->AddSegment(orvane::HtrSegment(std::to_string(i)));
      next->SetIsRoot(last == nullptr);
      next->SetParent(last);
      last = next;
    }
  }
  const StructureComparison structure = CompareStructure(a_, b_);
  EXPECT_FALSE(structure.differences.Any());
  EXPECT_EQ(structure.pairs.size(), std::size_t{kLength});
}

}  // namespace
