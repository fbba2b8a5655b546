#include <algorithm>
#include <string>
#include <vector>

#include "tests/module/mapping_creator_fixture.h"

namespace test {
namespace {

using testing::ElementsAre;

// --- The way through all steps ---

TEST_F(MappingCreatorTest, AsksForEveryMarkerAndWritesTheFile) {
  Create();
  EXPECT_EQ(asked_, kCodes);
  EXPECT_EQ(Made(), FileOf(kCodes));
  ExpectNothingLeft();
  EXPECT_EQ(Page().Text(kMappingFile), folder_.File("made.mnm"));
  panel_->Close();
  EXPECT_EQ(Stored("MNMPath"), folder_.File("made.mnm"));
}

TEST_F(MappingCreatorTest, AsksAboutTheWristsAndTellsItsSuccess) {
  Create();
  EXPECT_EQ(desk_.Messages(),
            "Pick optional markers?: Are you using a left wrist stick?\n"
            "Pick optional markers?: Are you using a right wrist stick?\n"
            "MNM File Creation Status: MNM File Creation Successful\n");
  EXPECT_EQ(desk_.desktop().Messages()[0].style, platform::MessageBoxStyle::kYesNo);
  EXPECT_EQ(desk_.desktop().Messages()[1].style, platform::MessageBoxStyle::kYesNo);
}

TEST_F(MappingCreatorTest, AsksForTheEndsOfTheSticksInstead) {
  desk_.Choose(platform::kMessageBoxYes);
  Create();
  std::vector<std::string> codes = kCodes;
  codes.at(10) = "LWRE";
  codes.at(11) = "LWRI";
  codes.at(16) = "RWRE";
  codes.at(17) = "RWRI";
  EXPECT_EQ(asked_, codes);
  EXPECT_EQ(Made(), FileOf(codes));
}

TEST_F(MappingCreatorTest, ColorsWhatWasPickedAndRedraws) {
  Plan("LBHD", [this] {
    EXPECT_THAT(ObjectsIn(kPickedColor), ElementsAre("lfhd"));
    EXPECT_EQ(application_.scene().RedrawCount(), 1U);
    Pick("LBHD");
    EXPECT_THAT(ObjectsIn(kPickedColor), ElementsAre("lfhd")) << "when the pick has ended";
  });
  Create();
  EXPECT_EQ(application_.scene().RedrawCount(), kCodes.size() + 1);
}

TEST_F(MappingCreatorTest, LetsOptionalMarkersBeSkippedAndNoOthers) {
  std::vector<std::string> needed;
  for (const std::string& code : kCodes) {
    const bool optional = kOptional.count(code) > 0;
    if (!optional) needed.push_back(code);
    Plan(code, [this, code, optional] {
      EXPECT_EQ(Creator().IsEnabled(kSkip), optional) << code;
      EXPECT_EQ(Creator().IsEnabled(kBack), code != "LFHD") << code;
      EXPECT_TRUE(Creator().IsEnabled(kAbort)) << code;
      if (optional) return Creator().Click(kSkip);
      Pick(code);
    });
  }
  Create();
  EXPECT_EQ(asked_, kCodes);
  EXPECT_EQ(Made(), FileOf(needed));
}

TEST_F(MappingCreatorTest, DescribesTheMarker) {
  Plan("LWRB", [this] {
    EXPECT_EQ(Creator().Title(), "MNM Creator / Marker Selection");
    EXPECT_EQ(Creator().Owner(), application_.main_window());
    EXPECT_EQ(Creator().Text(kDescription), "Left wrist outer (near pinky) marker (LWRB)");
    Pick("LWRB");
  });
  Create();
}

// --- Back ---

TEST_F(MappingCreatorTest, GoesBackToTheStepBefore) {
  Plan("RBHD", [this] { Creator().Click(kBack); });
  Plan("RBHD", [this] {
    EXPECT_THAT(ObjectsIn(kPickedColor), ElementsAre("lfhd", "lbhd"));
    Pick("RBHD");
  });
  Create();
  const std::vector<std::string> begin(asked_.begin(), asked_.begin() + 6);
  EXPECT_THAT(begin, ElementsAre("LFHD", "LBHD", "RBHD", "LBHD", "RBHD", "RFHD"));
  EXPECT_EQ(Made(), FileOf(kCodes));
}

TEST_F(MappingCreatorTest, RestoresTheColorOfWhatItTakesBack) {
  Plan("LBHD", [this] { Creator().Click(kBack); });
  Plan("LFHD", [this] { Pick("LFHD"); });
  Plan("LFHD", [this] {
    EXPECT_THAT(ObjectsIn(kPickedColor), ElementsAre());
    EXPECT_EQ(application_.scene().RedrawCount(), 2U);
    EXPECT_FALSE(Creator().IsEnabled(kBack)) << "this is the first step";
    Pick("LFHD");
  });
  Create();
  EXPECT_EQ(Made(), FileOf(kCodes));
}

TEST_F(MappingCreatorTest, GoingBackFromTheFirstOfTwoMarkersAsksForTheSecondFirst) {
  Plan("LWRA", [this] { Creator().Click(kBack); });
  Create();
  const std::vector<std::string> part(asked_.begin() + 9, asked_.begin() + 16);
  EXPECT_THAT(part, ElementsAre("LILB", "LWRA", "LWRB", "LILB", "LWRA", "LWRB", "LFIN"));
  // The entry of LILB was taken back; the first pick of LWRB stays.
  EXPECT_NE(Made().find("LELB\tlelb\t\nLWRB\tlwrb\t\nLILB\tlilb\t\nLWRA\tlwra\t\nLWRB\tlwrb\t\n"),
            std::string::npos);
}

TEST_F(MappingCreatorTest, GoesBackFurtherFromBothOfTwoMarkers) {
  Plan("LWRA", [this] { Creator().Click(kBack); });
  Plan("LWRB", [this] { Creator().Click(kBack); });
  Create();
  const std::vector<std::string> part(asked_.begin() + 10, asked_.begin() + 15);
  EXPECT_THAT(part, ElementsAre("LWRA", "LWRB", "LSHO", "LELB", "LILB"));
}

TEST_F(MappingCreatorTest, TakesBackNothingThatIsNotThere) {
  // Two steps back, with one entry: the second time the list is empty.
  Plan("LBHD", [this] { application_.picking().Leave(); });
  Plan("RBHD", [this] { Creator().Click(kBack); });
  Plan("LBHD", [this] { Creator().Click(kBack); });
  Plan("LFHD", [this] { application_.picking().Leave(); });
  Plan("LFHD", [this] { Pick("LFHD"); });
  Create();
  EXPECT_EQ(Made(), FileOf(kCodes));
}

TEST_F(MappingCreatorTest, AButtonGoesBeforeAPickOfTheSameMoment) {
  Plan("RBHD", [this] {
    Pick("RBHD");
    Creator().Click(kBack);
  });
  Plan("LILB", [this] {
    Pick("LILB");
    Creator().Click(kSkip);
  });
  Create();
  const std::vector<std::string> begin(asked_.begin(), asked_.begin() + 6);
  EXPECT_THAT(begin, ElementsAre("LFHD", "LBHD", "RBHD", "LBHD", "RBHD", "RFHD"));
  std::vector<std::string> codes = kCodes;
  codes.erase(std::find(codes.begin(), codes.end(), "LILB"));
  EXPECT_EQ(Made(), FileOf(codes));
  ExpectNothingLeft();
}

// --- Picks that end otherwise ---

TEST_F(MappingCreatorTest, AsksAgainAfterARightClick) {
  Plan("LBHD", [this] { application_.picking().RightClick(); });
  Create();
  const std::vector<std::string> begin(asked_.begin(), asked_.begin() + 4);
  EXPECT_THAT(begin, ElementsAre("LFHD", "LBHD", "LBHD", "RBHD"));
  EXPECT_EQ(Made(), FileOf(kCodes));
}

struct RightClickCase {
  bool first;
  bool second;
};

TEST_F(MappingCreatorTest, ARightClickInAStepOfTwoMarkersAsksForBothOnceMore) {
  for (const RightClickCase& c :
       {RightClickCase{true, false}, RightClickCase{false, true}, RightClickCase{true, true}}) {
    asked_.clear();
    choice_.agrees_to_replace = true;
    if (c.first) Plan("RWRA", [this] { application_.picking().RightClick(); });
    if (c.second) Plan("RWRB", [this] { application_.picking().RightClick(); });
    Create();
    const std::vector<std::string> part(asked_.begin() + 16, asked_.begin() + 21);
    EXPECT_THAT(part, ElementsAre("RWRA", "RWRB", "RWRA", "RWRB", "RFIN")) << c.first << c.second;
  }
}

TEST_F(MappingCreatorTest, GoesOnWithoutAnEntryWhenTheHostLeavesThePickMode) {
  Plan("C7", [this] { application_.picking().Leave(); });
  Plan("LWRA", [this] { application_.picking().Leave(); });
  Create();
  EXPECT_EQ(asked_, kCodes);
  std::vector<std::string> codes = kCodes;
  codes.erase(codes.begin() + 10);
  codes.erase(codes.begin() + 4);
  EXPECT_EQ(Made(), FileOf(codes));
}

TEST_F(MappingCreatorTest, WaitsWhileNothingIsPicked) {
  Plan("LFHD", [this] { EXPECT_FALSE(application_.picking().Click(nullptr)); });
  Plan("LFHD", [] {});
  Create();
  const std::vector<std::string> begin(asked_.begin(), asked_.begin() + 4);
  EXPECT_THAT(begin, ElementsAre("LFHD", "LFHD", "LFHD", "LBHD"));
}

TEST_F(MappingCreatorTest, TakesTheSameObjectForSeveralMarkers) {
  Plan("LBHD", [this] { Pick("LFHD"); });
  Create();
  EXPECT_EQ(Made().substr(0, 26), "LFHD\tlfhd\t\nLBHD\tlfhd\t\nRBHD");
}

TEST_F(MappingCreatorTest, WritesTheNameThatTheObjectHadWhenItWasPicked) {
  Plan("LBHD", [this] {
    Node("lfhd").SetName("renamed");
    Pick("LBHD");
  });
  Create();
  EXPECT_EQ(Made(), FileOf(kCodes));
}

TEST_F(MappingCreatorTest, DoesNotMindAnObjectThatIsDeletedAfterwards) {
  Plan("LBHD", [this] {
    application_.scene().DeleteNode(&Node("lfhd"));
    Creator().Click(kBack);
  });
  Plan("LFHD", [this] { Pick("LFHD"); });
  Plan("LFHD", [this] { Pick("C7"); });
  Plan("RBHD", [this] {
    application_.scene().DeleteNode(&Node("lbhd"));
    Creator().Click(kAbort);
  });
  Create();
  ExpectAborted();
}

}  // namespace
}  // namespace test
