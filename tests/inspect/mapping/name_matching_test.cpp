#include "inspect/mapping/name_matching.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <ostream>
#include <utility>

namespace {

using orvane::AmbiguousNames;
using orvane::MatchNames;
using orvane::NameMatch;
using orvane::NameMatching;
using testing::IsEmpty;

using Names = std::vector<std::string>;
using Taken = std::map<std::string, std::string>;

using enum NameMatching;

// "anna:LFHD, bob:LFHD | walker:LFHD"
std::vector<std::string> Told(const std::vector<AmbiguousNames>& ambiguous) {
  std::vector<std::string> told;
  for (const AmbiguousNames& names : ambiguous) {
    std::string text;
    for (const std::string& marker : names.markers) text += (text.empty() ? "" : ", ") + marker;
    std::string separator = " | ";
    for (const std::string& mapped : names.mapped) {
      text += std::exchange(separator, ", ") + mapped;
    }
    told.push_back(text);
  }
  return told;
}

// The surest of the ways in which one name is the other.
struct OneName {
  std::string mapped;
  std::string marker;
  int sure_from;  // the first way of NameMatching that takes it; 3 for none
};

std::ostream& operator<<(std::ostream& out, const OneName& names) {
  return out << names.marker << " for " << names.mapped;
}

class OneNameTest : public testing::TestWithParam<OneName> {};

TEST_P(OneNameTest, IsTakenFromOneWayOn) {
  const auto& [mapped, marker, sure_from] = GetParam();
  for (int how = 0; how < 3; ++how) {
    const NameMatch match =
        MatchNames(Names{mapped}, Names{marker}, static_cast<NameMatching>(how));
    EXPECT_EQ(match.NameInMapping(marker) == mapped, how >= sure_from) << how;
    EXPECT_THAT(match.ambiguous, IsEmpty());
  }
}

INSTANTIATE_TEST_SUITE_P(
    Names, OneNameTest,
    testing::Values(
        OneName{"walker:LFHD", "walker:LFHD", 0}, OneName{"walker:LFHD", "Walker:lfhd", 1},
        OneName{"LFHD", "lfhd", 1}, OneName{"walker:LFHD", "anna:LFHD", 2},
        OneName{"walker:LFHD", "Anna:Lfhd", 2}, OneName{"walker:LFHD", "LFHD", 2},
        OneName{"LFHD", "anna:LFHD", 2}, OneName{"lab:walker:LFHD", "anna:LFHD", 2},
        OneName{"walker:LFHD", "anna_LFHD", 2}, OneName{"walker_LFHD", "anna:LFHD", 2},
        OneName{"walker:LFHD", "walker_LFHD", 2}, OneName{"LFHD", "Anna_Lee_LFHD", 2},
        OneName{"walker_LFHD", "LFHD", 2}, OneName{"walker:LFHD", "walker LFHD", 2},
        OneName{"walker:LFHD", "Walker lfhd", 2}, OneName{"walker:LFHD", "anna LFHD", 2},
        OneName{"walker_LFHD", "anna LFHD", 3}, OneName{"LFHD", "Anna Lee LFHD", 2},
        OneName{"walker:Left_Head", "walker:Left Head", 2}, OneName{"Left_Head", "left head", 2},
        // What is another marker.
        OneName{"walker:LFHD", "walker:LBHD", 3}, OneName{"walker:LFHD", "annaLFHD", 3},
        OneName{"LFHD", "XLFHD", 3}, OneName{"walker:Head", "Left_Head", 3},
        OneName{"Left_Head", "Right_Head", 3}, OneName{"walker:Left_Head", "anna:Right_Head", 3},
        OneName{"walker:Head", "Left Head", 3}, OneName{"walker:", "anna:", 3},
        OneName{"walker:LFHD", "walker\fLFHD", 3}, OneName{"walker:LFHD", " ", 3}));

struct Case {
  std::string behaviour;
  NameMatching how;
  Names mapped;
  Names markers;
  Taken taken;
  std::vector<std::string> ambiguous;
};

std::ostream& operator<<(std::ostream& out, const Case& each) { return out << each.behaviour; }

class NameMatchingTest : public testing::TestWithParam<Case> {};

TEST_P(NameMatchingTest, TakesNamesForThoseOfTheMapping) {
  const Case& each = GetParam();
  const NameMatch match = MatchNames(each.mapped, each.markers, each.how);
  EXPECT_EQ(match.taken, each.taken);
  EXPECT_EQ(Told(match.ambiguous), each.ambiguous);
}

INSTANTIATE_TEST_SUITE_P(
    All, NameMatchingTest,
    testing::Values(
        Case{"WhatIsWrittenTheSameIsNotTakenForAnything",
             kSubject,
             {"walker:LFHD", "walker:C7"},
             {"walker:C7", "walker:LFHD"},
             {},
             {}},
        Case{"TheSameBytesGoFirst", kCase, {"Toe"}, {"toe", "Toe", "TOE"}, {}, {}},
        Case{"TheCaseOfLettersGoesBeforeASubject",
             kSubject,
             {"walker:Toe"},
             {"anna:Toe", "Walker:Toe"},
             {{"Walker:Toe", "walker:Toe"}},
             {}},
        Case{"AColonGoesBeforeAnUnderscore",
             kSubject,
             {"walker:Toe"},
             {"anna_Toe", "bob:Toe"},
             {{"bob:Toe", "walker:Toe"}},
             {}},
        Case{"TwoCasesOfOneName", kCase, {"Toe"}, {"toe", "TOE"}, {}, {"toe, TOE | Toe"}},
        Case{"TwoEntriesForOneMarker", kCase, {"toe", "TOE"}, {"Toe"}, {}, {"Toe | toe, TOE"}},
        Case{"TwoSubjectsForOneName",
             kSubject,
             {"walker:LFHD"},
             {"anna:LFHD", "bob:LFHD"},
             {},
             {"anna:LFHD, bob:LFHD | walker:LFHD"}},
        Case{"OneSubjectForTwo",
             kSubject,
             {"anna:LFHD", "bob:LFHD"},
             {"cleo:LFHD"},
             {},
             {"cleo:LFHD | anna:LFHD, bob:LFHD"}},
        Case{"TwoSubjectsThatShareNoMarker",
             kSubject,
             {"walker:LFHD", "walker:RFHD"},
             {"anna:LFHD", "bob:RFHD"},
             {},
             {"anna:LFHD, bob:RFHD | walker:LFHD, walker:RFHD"}},
        Case{"TheSubjectItselfIsNotHelpedOut",
             kSubject,
             {"walker:LFHD", "walker:RFHD"},
             {"walker:LFHD", "anna:RFHD", "RFHD"},
             {},
             {}},
        Case{"OnePropHasNoSubject",
             kSubject,
             {"walker:LFHD", "walker:Stick"},
             {"anna:LFHD", "Stick"},
             {{"anna:LFHD", "walker:LFHD"}, {"Stick", "walker:Stick"}},
             {}},
        Case{"EachSubjectForOne",
             kSubject,
             {"anna:LFHD", "anna:RFHD", "bob:LFHD"},
             {"anna:LFHD", "anna:RFHD", "cleo:LFHD"},
             {{"cleo:LFHD", "bob:LFHD"}},
             {}},
        Case{"AnUnderscoreBehindTheSubjectOfAll",
             kSubject,
             {"walker_Left_Head", "walker_Right_Head"},
             {"anna_Left_Head", "anna_Right_Head"},
             {{"anna_Left_Head", "walker_Left_Head"}, {"anna_Right_Head", "walker_Right_Head"}},
             {}},
        Case{"SubjectsOfTwoWords",
             kSubject,
             {"walker:Left_Head", "walker:Toe"},
             {"Anna_Lee_Left_Head", "Anna_Lee_Toe"},
             {{"Anna_Lee_Left_Head", "walker:Left_Head"}, {"Anna_Lee_Toe", "walker:Toe"}},
             {}},
        Case{"ASideBelongsToTheMarker",
             kSubject,
             {"walker:Head", "walker:Toe"},
             {"anna_Left_Head", "anna_Right_Toe"},
             {},
             {}},
        Case{"AnUnderscoreWithinNames",
             kSubject,
             {"Left_Head", "Left_Toe"},
             {"anna_Left_Head", "anna_Right_Toe"},
             {{"anna_Left_Head", "Left_Head"}},
             {}},
        Case{"NumbersBehindAnUnderscoreAreNoMarkers",
             kSubject,
             {"Head_1", "Head_2", "walker:3"},
             {"Toe_1", "Toe_2", "Toe_3"},
             {},
             {}},
        Case{"ABlankAndAnUnderscoreForOneColon",
             kSubject,
             {"walker:LFHD", "walker:C7"},
             {"walker_LFHD", "walker LFHD", "walker C7"},
             {{"walker C7", "walker:C7"}},
             {"walker_LFHD, walker LFHD | walker:LFHD"}},
        Case{"ABlankForAColonAndForAnUnderscore",
             kSubject,
             {"walker:LFHD", "walker_LFHD"},
             {"walker LFHD"},
             {},
             {"walker LFHD | walker:LFHD, walker_LFHD"}},
        Case{"TheSameBytesGoBeforeABlank",
             kSubject,
             {"walker:LFHD"},
             {"walker LFHD", "walker_LFHD", "walker:LFHD"},
             {},
             {}},
        Case{"TheSubjectItselfIsHelpedOutByItsOtherSpelling",
             kSubject,
             {"walker:LFHD", "walker:RFHD", "walker:C7"},
             {"walker:LFHD", "walker_RFHD", "walker C7"},
             {{"walker_RFHD", "walker:RFHD"}, {"walker C7", "walker:C7"}},
             {}},
        Case{"ABlankBehindTheSubjectOfAll",
             kSubject,
             {"walker_Left_Head", "walker_Right_Head"},
             {"anna Left Head", "anna Right Head"},
             {{"anna Left Head", "walker_Left_Head"}, {"anna Right Head", "walker_Right_Head"}},
             {}},
        Case{"TwoSubjectsBeforeBlanks",
             kSubject,
             {"walker:LFHD", "walker:RFHD"},
             {"anna LFHD", "bob RFHD"},
             {},
             {"anna LFHD, bob RFHD | walker:LFHD, walker:RFHD"}},
        Case{"WhatIsThereTwiceIsOneName",
             kSubject,
             {"walker:LFHD", "walker:LFHD"},
             {"anna:LFHD", "anna:LFHD"},
             {{"anna:LFHD", "walker:LFHD"}},
             {}},
        Case{"NoNames", kSubject, {}, {}, {}, {}}),
    [](const auto& tested) { return tested.param.behaviour; });

TEST(NameInMapping, IsTheNameItselfUnlessItIsTakenForAnother) {
  const NameMatch match =
      MatchNames(Names{"walker:Toe"}, Names{"anna:Toe", "anna:Heel"}, NameMatching::kSubject);
  EXPECT_EQ(match.NameInMapping("anna:Toe"), "walker:Toe");
  EXPECT_EQ(match.NameInMapping("anna:Heel"), "anna:Heel");
}

TEST(SubjectBeside, IsWhatStandsBeforeTheMarkerThatBothAre) {
  struct Row {
    std::string name;
    std::string other;
    std::string subject;
  };
  const Row rows[] = {{"anna:Toe", "walker:Toe", "anna:"},
                      {"anna:Left_Toe", "walker:left_toe", "anna:"},
                      {"Anna_Lee_Toe", "Toe", "Anna_Lee_"},
                      {"Toe", "walker:Toe", ""},
                      {"anna Left Toe", "walker:Left_Toe", "anna "},
                      {"walker:Left_Toe", "walker Left Toe", "walker:"},
                      {"Left Toe", "walker:Left_Toe", ""},
                      {"WALKER:Toe", "walker:Toe", ""}};
  for (const Row& row : rows) {
    EXPECT_EQ(orvane::SubjectBeside(row.name, row.other), row.subject) << row.name;
  }
}

}  // namespace
