#include "inspect/check/marker_naming.h"

#include <gtest/gtest.h>

#include <vector>

#include "tests/support/files.h"
#include "tests/support/temporary_folder.h"

namespace {

using orvane::MarkerNaming;
using orvane::NameMatch;
using orvane::NameMatching;

// What the mapping that is made for a capture adds, whatever the file ends with.
TEST(MarkerNaming, MakesAMappingThatNamesTheMarkersAsTheyAreWritten) {
  const test::TemporaryFolder folder;
  const std::vector<std::string> markers = {"anna:LFHD", "anna:Toe"};
  for (const std::string end : {"", "\n", "\r\n", " and more"}) {
    MarkerNaming naming;
    const std::string bytes = "LFHD\twalker:LFHD\nC7 walker:Toe" + end;
    ASSERT_TRUE(naming.Load(folder.Write("walker.mnm", bytes)));
    const NameMatch match = naming.Match(markers, NameMatching::kSubject);
    ASSERT_EQ(match.taken.size(), 2U);
    MarkerNaming exact;
    ASSERT_TRUE(exact.Load(folder.Write("exact.mnm", naming.MappingFor(match))));
    EXPECT_EQ(exact.NameFor("anna:LFHD"), "LFHD");
    EXPECT_EQ(exact.NameFor("anna:Toe"), "C7");
    EXPECT_EQ(exact.NameFor("walker:LFHD"), "LFHD");
    EXPECT_EQ(exact.NameFor("bob:LFHD"), std::nullopt);
  }
}

TEST(MarkerNaming, TakesNoNameForAnotherWithoutAMapping) {
  const std::vector<std::string> markers = {"LFHD", "lfhd"};
  EXPECT_TRUE(MarkerNaming().Match(markers, NameMatching::kSubject).taken.empty());
}

}  // namespace
