// What the tests of the verbs do not come by. They have the plug-in tell the rest.

#include "cli/common/advice.h"

#include <gtest/gtest.h>

namespace {

using cli::AdviceFor;
using cli::AdviceForExport;

// No node of the host's is without a position that can be animated; other hosts may have such.
TEST(AdviceTest, AMarkerThatCannotBeAnimated) {
  EXPECT_EQ(AdviceFor("Position Controller Error. Please Contact Orvane Support."),
            "The object that a marker is applied to cannot be animated.");
}

TEST(AdviceTest, AnExportHasItsOwnForTheSameMessage) {
  const char* const message = "Please choose an end frame less than or equal to 3.";
  EXPECT_EQ(AdviceFor(message), "The range must lie within the frames of the file.");
  EXPECT_EQ(AdviceForExport(message),
            "The range must lie within the animation range of the scene.");
}

TEST(AdviceTest, AnExportTakesWhatHoldsForAll) {
  const char* const advice =
      "Every line of [SegmentNames&Hierarchy] needs a name of its own, without blanks.";
  EXPECT_EQ(AdviceForExport("The file has duplicate segment names: Hips"), advice);
  EXPECT_EQ(AdviceForExport("The scene hierarchy has duplicate segment names: Hips"), advice);
}

TEST(AdviceTest, AWordFromAMessageIsNoMessage) {
  for (const char* text :
       {"", "\"FileType\"", "Are there non-zero size fields?", "Segment name",
        "Node \"Hips\" is not finite", "Please choose a start frame equal to or greater than 1"}) {
    EXPECT_EQ(AdviceFor(text), "") << text;
    EXPECT_EQ(AdviceForExport(text), "") << text;
  }
}

}  // namespace
