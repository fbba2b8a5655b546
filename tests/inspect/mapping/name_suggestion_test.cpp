#include "inspect/mapping/name_suggestion.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "formats/mnm/standard_markers.h"

namespace {

using orvane::NameReason;
using orvane::NameSuggestion;
using orvane::SuggestByNames;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

using Names = std::vector<std::string>;

// "LFHD" for one that is suggested, and nothing for one that is not.
std::string StandardOf(const std::string& name) {
  const NameSuggestion suggestion = SuggestByNames(Names{name});
  return suggestion.sure.empty() ? "" : suggestion.sure[0].standard;
}

struct Named {
  std::string name;
  std::string standard;
};

std::ostream& operator<<(std::ostream& out, const Named& named) { return out << named.name; }

class NameSuggestionOfTest : public testing::TestWithParam<Named> {};

TEST_P(NameSuggestionOfTest, IsTheStandardMarkerThatTheNameMeans) {
  EXPECT_EQ(StandardOf(GetParam().name), GetParam().standard);
}

INSTANTIATE_TEST_SUITE_P(
    OneName, NameSuggestionOfTest,
    testing::Values(
        Named{"LFHD", "LFHD"}, Named{"walker:LFHD", "LFHD"}, Named{"lab:walker:LFHD", "LFHD"},
        Named{"lfhd", "LFHD"}, Named{"Anna:Lfhd", "LFHD"}, Named{"c7", "C7"}, Named{"CV7", "C7"},
        Named{"Left_Front_Head", "LFHD"}, Named{"HeadFrontLeft", "LFHD"},
        Named{"FrontHead_L", "LFHD"}, Named{"L.Front.Head", "LFHD"}, Named{"RBackHead", "RBHD"},
        Named{"RShoulder", "RSHO"}, Named{"shoulder right", ""}, Named{"R.Acromium", "RSHO"},
        Named{"LeftElbowLat", "LELB"}, Named{"L.Elbow.Lateral", "LELB"}, Named{"RElbowMed", "RILB"},
        Named{"LASI", "LFWT"}, Named{"R.PSIS", "RBWT"}, Named{"RKnee", "RKNE"},
        Named{"R.Knee.Medial", "RKNI"}, Named{"LKneeMed", "LKNI"}, Named{"L.MT1", "LMTI"},
        Named{"RMT5", "RMT5"}, Named{"L.Heel", "LHEL"}, Named{"R.Toe.Tip", "RTOE"},
        Named{"V.Sacral", "SACR"}, Named{"Sternum", "STRN"}, Named{"LMarkerHeel", "LHEL"},
        Named{"RWRE", "RWRE"}, Named{"LPRPT", "LPRPT"},
        // What names no place for sure.
        Named{"", ""}, Named{"Head", ""}, Named{"L", ""}, Named{"Left", ""}, Named{"M001", ""},
        Named{"RAJC", ""}, Named{"V_R.Knee_JC_Static", ""}, Named{"LWrist", ""},
        Named{"R.Wrist.Med", ""}, Named{"LWristThumb", "LWRA"}, Named{"walker:", ""},
        Named{"Knee", ""}, Named{"LTHI", ""}, Named{"lamp", ""}));

TEST(NameSuggestionTest, ASubjectThatAllNamesShareMayEndWithAnUnderscore) {
  const NameSuggestion suggestion = SuggestByNames(Names{"Anna_LFHD", "anna_c7", "Anna_L_Heel"});
  ASSERT_EQ(suggestion.sure.size(), 3U);
  EXPECT_EQ(suggestion.sure[0].standard, "LFHD");
  EXPECT_EQ(suggestion.sure[0].reason, NameReason::kSubject);
  EXPECT_EQ(suggestion.sure[1].standard, "C7");
  EXPECT_EQ(suggestion.sure[1].reason, NameReason::kCase);
  EXPECT_EQ(suggestion.sure[2].standard, "LHEL");
  EXPECT_THAT(suggestion.subjects, ElementsAre("Anna", "anna"));
}

TEST(NameSuggestionTest, WhatNotAllNamesBeginWithIsNoSubject) {
  EXPECT_THAT(SuggestByNames(Names{"Anna_LFHD", "Bob_RFHD"}).sure, IsEmpty());
  EXPECT_THAT(SuggestByNames(Names{"Anna_LFHD"}).sure, IsEmpty());
}

TEST(NameSuggestionTest, TellsHowANameSaysSo) {
  const NameSuggestion suggestion =
      SuggestByNames(Names{"LHeel", "walker:C7", "LFHD", "walker:clav"});
  ASSERT_EQ(suggestion.sure.size(), 4U);
  EXPECT_EQ(suggestion.sure[0].standard, "LFHD");
  EXPECT_EQ(suggestion.sure[0].marker, 2U);
  EXPECT_EQ(suggestion.sure[0].reason, NameReason::kSame);
  EXPECT_EQ(suggestion.sure[1].standard, "C7");
  EXPECT_EQ(suggestion.sure[1].reason, NameReason::kSubject);
  EXPECT_EQ(suggestion.sure[2].standard, "CLAV");
  EXPECT_EQ(suggestion.sure[2].reason, NameReason::kCase);
  EXPECT_EQ(suggestion.sure[3].standard, "LHEL");
  EXPECT_EQ(suggestion.sure[3].reason, NameReason::kSynonym);
}

TEST(NameSuggestionTest, OfSeveralNamesTheSurestCounts) {
  const NameSuggestion suggestion = SuggestByNames(Names{"LHeel", "LHEL", "walker:LHEL"});
  ASSERT_EQ(suggestion.sure.size(), 1U);
  EXPECT_EQ(suggestion.sure[0].marker, 1U);
  EXPECT_THAT(suggestion.without_role, ElementsAre(0U, 2U));
}

TEST(NameSuggestionTest, EquallySureNamesAreLeftOut) {
  const NameSuggestion suggestion = SuggestByNames(Names{"anna:LHEL", "bob:LHEL", "bob:C7"});
  ASSERT_EQ(suggestion.ambiguous.size(), 1U);
  EXPECT_EQ(suggestion.ambiguous[0].standard, "LHEL");
  EXPECT_THAT(suggestion.ambiguous[0].markers, ElementsAre(0U, 1U));
  ASSERT_EQ(suggestion.sure.size(), 1U);
  EXPECT_EQ(suggestion.sure[0].standard, "C7");
  EXPECT_THAT(suggestion.subjects, ElementsAre("anna", "bob"));
}

TEST(NameSuggestionTest, LooksAtOneSubjectAlone) {
  const Names names = {"anna:LHEL", "bob:LHEL", "LHEL"};
  const NameSuggestion suggestion = SuggestByNames(names, "bob");
  ASSERT_EQ(suggestion.sure.size(), 1U);
  EXPECT_EQ(suggestion.sure[0].marker, 1U);
  EXPECT_THAT(suggestion.ambiguous, IsEmpty());
  EXPECT_THAT(suggestion.without_role, IsEmpty());
  EXPECT_THAT(SuggestByNames(names, "carl").sure, IsEmpty());
}

TEST(NameSuggestionTest, NamesWhatIsNeededAndMissing) {
  const NameSuggestion suggestion = SuggestByNames(Names{"LFHD"});
  EXPECT_THAT(suggestion.missing, Contains("LBHD"));
  EXPECT_THAT(suggestion.missing, Contains("LWRA"));
  EXPECT_THAT(suggestion.missing, Not(Contains("LFHD")));
  EXPECT_THAT(suggestion.missing, Not(Contains("LILB")));  // it may be skipped
}

TEST(NameSuggestionTest, AWristWithAStickNeedsNoMarkersOfItsOwn) {
  const NameSuggestion suggestion = SuggestByNames(Names{"LWRE", "LWRI", "LWRA"});
  ASSERT_EQ(suggestion.sure.size(), 2U);
  EXPECT_THAT(suggestion.without_role, ElementsAre(2U));
  EXPECT_THAT(suggestion.missing, Not(Contains("LWRA")));
  EXPECT_THAT(suggestion.missing, Contains("RWRA"));
}

TEST(NameSuggestionTest, ANameThatNoMappingCanHoldIsLeftOut) {
  const NameSuggestion suggestion = SuggestByNames(Names{"the walker:LFHD"});
  EXPECT_THAT(suggestion.sure, IsEmpty());
  EXPECT_THAT(suggestion.unmappable, ElementsAre(0U));
}

TEST(NameSuggestionTest, EveryStandardMarkerIsItsOwn) {
  for (std::size_t step = 0; step < orvane::kMarkerSteps; ++step) {
    for (const bool has_stick : {false, true}) {
      const orvane::MarkerStep& wanted = orvane::MarkerStepAt(step, {has_stick, has_stick});
      for (std::size_t index = 0; index < wanted.Count(); ++index) {
        const std::string name(wanted.markers[index].name);
        EXPECT_EQ(StandardOf(name), name);
        EXPECT_EQ(StandardOf("walker:" + name), name);
      }
    }
  }
}

}  // namespace
