#include "formats/htr/document.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "formats/htr/document_checker.h"

namespace orvane {
namespace {

using ::testing::ElementsAre;

void ExpectHeaderDefaults(const HtrDocument& document) {
  EXPECT_EQ(document.GetNumSegments(), 0);
  EXPECT_EQ(document.GetCalibrationUnits(), 0u);
  EXPECT_EQ(document.GetRotationUnits(), 0u);
  EXPECT_EQ(document.GetBoneLengthAxis(), 1u);
  EXPECT_EQ(document.GetGlobalAxisofGravity(), 1u);
  EXPECT_EQ(document.GetDataFrameRate(), 60);
  EXPECT_EQ(document.GetNumFrames(), 0u);
  EXPECT_EQ(document.GetStartFrame(), 1);
}

TEST(HtrDocument, StartsEmptyWithItsDefaults) {
  const HtrDocument document;
  ExpectHeaderDefaults(document);
  EXPECT_TRUE(document.GetWriteBoneScale());
  EXPECT_FALSE(document.GetNormalizeBoneScale());
  EXPECT_EQ(document.GetScaleFactor(), 1.0);
}

TEST(HtrDocument, ClearKeepsTheScaleFactorAndTheScaleFlags) {
  HtrDocument document;
  document.AddSegment(HtrSegment("Hips"));
  document.SetCalibrationUnits(2);
  document.SetRotationUnits(1);
  document.SetBoneLengthAxis(2);
  document.SetGlobalAxisofGravity(2);
  document.SetDataFrameRate(120);
  document.SetNumFrames(10);
  document.SetStartFrame(0);
  document.SetWriteBoneScale(false);
  document.SetNormalizeBoneScale(true);
  document.SetScaleFactor(2.5);
  document.Clear();
  ExpectHeaderDefaults(document);
  EXPECT_FALSE(document.GetWriteBoneScale());
  EXPECT_TRUE(document.GetNormalizeBoneScale());
  EXPECT_EQ(document.GetScaleFactor(), 2.5);
  EXPECT_EQ(document.FindSegment("Hips"), nullptr);
}

TEST(HtrDocument, StoresACopyOfASegment) {
  HtrDocument document;
  HtrSegment segment("Hips");
  segment.SetBoneLength(120);
  HtrSegment* stored = document.AddSegment(segment);
  ASSERT_NE(stored, nullptr);
  EXPECT_NE(stored, &segment);
  EXPECT_EQ(stored->GetBoneLength(), 120.0);
  EXPECT_EQ(document.GetNumSegments(), 1);
  EXPECT_EQ(FindFault(document), "");
}

TEST(HtrDocument, RefusesANameThatIsTaken) {
  HtrDocument document;
  document.AddSegment(HtrSegment("Hip"));
  EXPECT_EQ(document.AddSegment(HtrSegment("Hip")), nullptr);
  EXPECT_EQ(document.GetNumSegments(), 1);
  EXPECT_NE(document.AddSegment(HtrSegment("hip")), nullptr);
  EXPECT_EQ(document.GetNumSegments(), 2);
}

TEST(HtrDocument, RefusesANameWithABlank) {
  HtrDocument document;
  EXPECT_EQ(document.AddSegment(HtrSegment("Left Leg")), nullptr);
  EXPECT_EQ(document.AddSegment(HtrSegment(" ")), nullptr);
  EXPECT_EQ(document.GetNumSegments(), 0);
  EXPECT_NE(document.AddSegment(HtrSegment("Left\tLeg")), nullptr) << "a tab is no blank";
}

TEST(HtrDocument, KeepsTheAddressesOfItsSegments) {
  HtrDocument document;
  std::vector<HtrSegment*> stored;
  stored.reserve(1000);
  for (int index = 0; index < 1000; ++index) {
    stored.push_back(document.AddSegment(HtrSegment("s" + std::to_string(index))));
  }
  for (int index = 0; index < 1000; ++index) {
    EXPECT_EQ(document.FindSegment("s" + std::to_string(index)),
              stored[static_cast<std::size_t>(index)]);
  }
}

TEST(HtrDocument, FindsSegmentsByTheirExactName) {
  HtrDocument document;
  HtrSegment* hips = document.AddSegment(HtrSegment("Hips"));
  EXPECT_EQ(document.FindSegment("Hips"), hips);
  EXPECT_EQ(document.FindSegment("hips"), nullptr);
  EXPECT_EQ(document.FindSegment("Hip"), nullptr);
  EXPECT_EQ(document.FindSegment(""), nullptr);
}

TEST(HtrDocument, FindsARenamedSegmentByItsNewName) {
  HtrDocument document;
  HtrSegment* hips = document.AddSegment(HtrSegment("Hips"));
  hips->SetName("Pelvis");
  EXPECT_EQ(document.FindSegment("Pelvis"), hips);
  EXPECT_EQ(document.FindSegment("Hips"), nullptr);
  EXPECT_NE(document.AddSegment(HtrSegment("Hips")), nullptr);
  EXPECT_EQ(document.AddSegment(HtrSegment("Pelvis")), nullptr);
}

TEST(HtrDocument, FindsTheFirstOfSegmentsThatWereRenamedAlike) {
  HtrDocument document;
  HtrSegment* first = document.AddSegment(HtrSegment("a"));
  HtrSegment* second = document.AddSegment(HtrSegment("b"));
  second->SetName("c");
  first->SetName("c");
  for (int i = 0; i < 3; ++i) EXPECT_EQ(document.FindSegment("c"), first);
}

TEST(HtrDocument, FindsSegmentsInAnyOrder) {
  HtrDocument document;
  HtrSegment* const segments[] = {document.AddSegment(HtrSegment("a")),
                                  document.AddSegment(HtrSegment("b")),
                                  document.AddSegment(HtrSegment("c"))};
  const char* const names[] = {"a", "b", "c"};
  for (const std::size_t i : {0U, 1U, 2U, 0U, 2U, 1U, 1U, 2U, 2U, 0U}) {
    EXPECT_EQ(document.FindSegment(names[i]), segments[i]);
    EXPECT_EQ(document.FindSegment("d"), nullptr);
  }
}

TEST(HtrDocument, FindsASegmentThatWasOverwrittenByItsNewName) {
  HtrDocument document;
  HtrSegment* hips = document.AddSegment(HtrSegment("Hips"));
  *hips = HtrSegment("A name that is too long to be kept in place");
  EXPECT_EQ(document.FindSegment("A name that is too long to be kept in place"), hips);
  EXPECT_EQ(document.FindSegment("Hips"), nullptr);
}

TEST(HtrDocument, IsNotBotheredByTheNamesOfCopies) {
  HtrSegment copy;
  {
    HtrDocument document;
    copy = *document.AddSegment(HtrSegment("Hips"));
  }
  copy.SetName("Pelvis");
  EXPECT_EQ(copy.GetName(), "Pelvis");
}

TEST(HtrDocument, TellsWhereItsOwnSegmentsStand) {
  HtrDocument document;
  document.AddSegment(HtrSegment("first"));
  HtrSegment* const second = document.AddSegment(HtrSegment("second"));
  EXPECT_EQ(document.IndexOf(document.segments().front()), 0U);
  EXPECT_EQ(document.IndexOf(*second), 1U);
  *second = HtrSegment("other");
  EXPECT_EQ(document.IndexOf(*second), 1U);
  *second = HtrSegment(document.segments().front());
  EXPECT_EQ(document.IndexOf(*second), 1U);
}

TEST(HtrDocument, HasNoPlaceForOtherSegments) {
  HtrDocument document;
  const HtrSegment* const own = document.AddSegment(HtrSegment("first"));
  const HtrSegment copy(*own);
  EXPECT_EQ(document.IndexOf(copy), std::nullopt);
  EXPECT_EQ(document.IndexOf(HtrSegment("first")), std::nullopt);
  HtrDocument other;
  EXPECT_EQ(document.IndexOf(*other.AddSegment(copy)), std::nullopt);
}

TEST(HtrDocument, FindsTheFirstRoot) {
  HtrDocument document;
  EXPECT_EQ(document.FindRootSegment(), nullptr);
  document.AddSegment(HtrSegment("a"));
  EXPECT_EQ(document.FindRootSegment(), nullptr);
  HtrSegment* b = document.AddSegment(HtrSegment("b"));
  b->SetIsRoot(true);
  document.AddSegment(HtrSegment("c"))->SetIsRoot(true);
  EXPECT_EQ(document.FindRootSegment(), b);
}

TEST(HtrDocument, ListsNamesInOrder) {
  HtrDocument document;
  for (const char* name : {"c", "a", "b"}) document.AddSegment(HtrSegment(name));
  EXPECT_THAT(document.GetSegmentNames(), ElementsAre("c", "a", "b"));
}

// One segment with three frames, of which the header announces two.
HtrSegment* FillOne(HtrDocument& document) {
  HtrSegment segment("Hips");
  segment.SetBaseTranslation(1, 2, 3);
  segment.SetBoneLength(4);
  for (int frame = 0; frame < 3; ++frame) segment.AddFrame(Vector3(1, 2, 3), Vector3(), 1);
  document.SetNumFrames(2);
  return document.AddSegment(segment);
}

TEST(HtrDocument, ScalesTheAnnouncedFramesOfEverySegment) {
  HtrDocument document;
  HtrSegment* hips = FillOne(document);
  document.AddSegment(HtrSegment("Spine"))->SetBoneLength(7);
  document.ScaleLengths(10);
  EXPECT_EQ(hips->GetBaseTranslation().z(), 30.0);
  EXPECT_EQ(hips->GetBoneLength(), 40.0);
  EXPECT_EQ(hips->GetFrameTranslation(1).y(), 20.0);
  EXPECT_EQ(hips->GetFrameTranslation(2).y(), 2.0);
  EXPECT_EQ(document.FindSegment("Spine")->GetBoneLength(), 70.0);
}

TEST(HtrDocument, ScalesNoMoreFramesThanThereAre) {
  HtrDocument document;
  HtrSegment* hips = FillOne(document);
  document.SetNumFrames(0xFFFFFFFF);
  document.ScaleLengths(10);
  EXPECT_EQ(hips->GetFrameTranslation(2).y(), 20.0);
}

struct ConversionCase {
  std::uint32_t from;
  std::uint32_t to;
  double factor;
};

TEST(HtrDocument, ConvertsUnitsByTheListedFactors) {
  const std::vector<ConversionCase> cases = {
      {4, 0, 2.1166666666666663},
      {0, 4, 0.47244094439999995},
      {2, 1, 1000.0 * 0.1},
      {5, 3, 0.7055555555555555 * 0.0393700787},
      {9, 0, 1.0},
      {9, 1, 0.1},
      {1, 9, 10.0},
  };
  for (const ConversionCase& c : cases) {
    SCOPED_TRACE(::testing::Message() << c.from << " to " << c.to);
    HtrDocument document;
    HtrSegment* hips = FillOne(document);
    document.SetCalibrationUnits(c.from);
    document.ConvertCalibrationUnits(c.to);
    EXPECT_EQ(document.GetCalibrationUnits(), c.to);
    EXPECT_EQ(hips->GetBoneLength(), 4 * c.factor);
    EXPECT_EQ(hips->GetBaseTranslation().x(), c.factor);
    EXPECT_EQ(hips->GetFrameTranslation(0).z(), 3 * c.factor);
  }
}

TEST(HtrDocument, LeavesLengthsAloneWhenTheUnitStays) {
  for (std::uint32_t code : {0u, 3u, 5u, 77u}) {
    HtrDocument document;
    HtrSegment* hips = FillOne(document);
    document.SetCalibrationUnits(code);
    document.ConvertCalibrationUnits(code);
    EXPECT_EQ(document.GetCalibrationUnits(), code);
    EXPECT_EQ(hips->GetBoneLength(), 4.0);
  }
}

TEST(HtrDocument, HoldsAHundredThousandSegmentsInLinearTime) {
  HtrDocument document;
  for (int index = 0; index < 100000; ++index) {
    ASSERT_NE(document.AddSegment(HtrSegment("s" + std::to_string(index))), nullptr);
  }
  for (int index = 0; index < 100000; ++index) {
    ASSERT_NE(document.FindSegment("s" + std::to_string(index)), nullptr);
    ASSERT_EQ(document.FindSegment("t" + std::to_string(index)), nullptr);
  }
}

}  // namespace
}  // namespace orvane
