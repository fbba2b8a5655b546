#include "tests/cli/orvane_test.h"
#include "tests/support/user_settings.h"

namespace {

using test::ProgramResult;
using test::Replaced;
using test::SmallMotion;

// Files whose import leaves out segments without a word of the plug-in's.
class LeftOutSegmentsTest : public test::OrvaneTest,
                            public testing::WithParamInterface<std::string> {
 protected:
  LeftOutSegmentsTest() {
    Write("walk.htr", Replaced(SmallMotion(), "Spine Hips", "Spine " + GetParam()));
  }
};

constexpr char kWarning[] =
    "orvane: walk.htr: 1 of 2 segments do not hang from the first root, Hips\n"
    "  A new skeleton goes without them; \"orvane info\" lists them all.\n";

TEST_P(LeftOutSegmentsTest, AreAWarning) {
  const ProgramResult result = Orvane({"import", "walk.htr", "-o", "walk.glb"});
  EXPECT_EQ(result.status, 0);
  EXPECT_THAT(result.output, testing::HasSubstr("  Nodes   2\n"));
  EXPECT_EQ(result.error, kWarning);
}

TEST_P(LeftOutSegmentsTest, AreARefusalWithStrict) {
  const ProgramResult result = Orvane({"import", "walk.htr", "-o", "walk.glb", "--strict"});
  EXPECT_EQ(result.status, 1);
  EXPECT_THAT(result.error, testing::StartsWith(kWarning));
  EXPECT_FALSE(Exists("walk.glb"));
}

// No skeleton is made; what the selected one has no bones for is no loss.
TEST_P(LeftOutSegmentsTest, AreNotMentionedWhenMotionIsApplied) {
  EXPECT_EQ(Orvane({"import", "walk.htr", "-o", "walk.glb"}).status, 0);
  const ProgramResult result = Orvane({"import", "walk.htr", "-o", "more.glb", "--into", "walk.glb",
                                       "--apply", "--select", "Hips", "--strict"});
  EXPECT_EQ(result.status, 0);
  EXPECT_THAT(result.error, testing::IsEmpty());
}

TEST_P(LeftOutSegmentsTest, AreNotMentionedWhenMotionWasAppliedLast) {
  const test::NoUserSettings none(folder_.File("config"));
  EXPECT_EQ(Orvane({"import", "walk.htr", "-o", "walk.glb"}).status, 0);
  std::vector<std::string> apply = {"import", "walk.htr", "--into",     "walk.glb", "--select",
                                    "Hips",   "--strict", "--settings", "user",     "-o"};
  const auto import = [&](const std::string& output, const std::vector<std::string>& flags) {
    std::vector<std::string> arguments = apply;
    arguments.push_back(output);
    arguments.insert(arguments.end(), flags.begin(), flags.end());
    return Orvane(arguments).status;
  };
  EXPECT_EQ(import("first.glb", {"--apply"}), 0);
  EXPECT_EQ(import("second.glb", {}), 0);
  EXPECT_EQ(import("third.glb", {"--create"}), 1);
}

// A second root, a parent that is missing, and a circle.
INSTANTIATE_TEST_SUITE_P(All, LeftOutSegmentsTest, testing::Values("GLOBAL", "Hip", "Spine"));

}  // namespace
