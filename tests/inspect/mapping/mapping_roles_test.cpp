#include "inspect/mapping/mapping_roles.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

namespace {

using orvane::MappingRole;
using orvane::RolesIn;
using testing::ElementsAre;
using testing::IsEmpty;

// "LFHD Head1", and "LFHD -" for one that is missing.
std::vector<std::string> Told(const std::string& bytes) {
  std::vector<std::string> told;
  for (const MappingRole& role : RolesIn(bytes)) {
    told.push_back(role.standard + ' ' + (role.marker.empty() ? "-" : role.marker));
  }
  return told;
}

// The same without those that are missing.
std::vector<std::string> Mapped(const std::string& bytes) {
  std::vector<std::string> told = Told(bytes);
  std::erase_if(told, [](const std::string& role) { return role.ends_with(" -"); });
  return told;
}

TEST(MappingRoles, AreInTheOrderOfTheCreatorWithTheOthersBehind) {
  EXPECT_THAT(Mapped("HAND H1\nRTOE Toe\nLILB L2\nLFHD Head1\nlfhd h\n"),
              ElementsAre("LFHD Head1", "LILB L2", "RTOE Toe", "HAND H1", "lfhd h"));
}

TEST(MappingRoles, NameWhatIsMissingWhenItIsNeeded) {
  const std::vector<std::string> told = Told("LBHD Head2\n");
  EXPECT_EQ(told.size(), 30U);
  EXPECT_EQ(told[0], "LFHD -");
  EXPECT_EQ(told[1], "LBHD Head2");
  EXPECT_THAT(told, testing::Not(testing::Contains("LILB -")));
  EXPECT_TRUE(RolesIn("LBHD Head2\n")[0].is_needed);
}

TEST(MappingRoles, AreDescribed) {
  const std::vector<MappingRole> roles = RolesIn("LFHD Head1\nHAND H1\n");
  EXPECT_EQ(roles.front().description, "Left front head marker");
  EXPECT_EQ(roles.back().description, "");
}

TEST(MappingRoles, AreThoseOfTheStickWhereThereIsOne) {
  EXPECT_THAT(Mapped("RWRE S1\nLWRA W1\nRWRA W2\n"), ElementsAre("LWRA W1", "RWRE S1", "RWRA W2"));
  EXPECT_EQ(RolesIn("RWRE S1\nRWRA W2\n").back().description,
            "Right wrist inner (near thumb) marker");
}

TEST(MappingRoles, AreOfTheFirstEntryForAMarker) {
  EXPECT_THAT(Mapped("C7 Back\nT10 Back\nC7 Spine\n\n"), ElementsAre("C7 Back", "C7 Spine"));
}

TEST(MarkersIn, AreThoseThatTheLinesGive) {
  EXPECT_THAT(orvane::MarkersIn("C7 Back\nT10\nT10 Spine rest\n"),
              ElementsAre("Back", "Back", "Spine"));
  EXPECT_THAT(orvane::MarkersIn(""), IsEmpty());
}

}  // namespace
