#include "formats/edit/renaming.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/formats/edit/small_documents.h"

namespace {

using orvane::HtrDocument;
using orvane::Rename;
using orvane::TRCDocument;
using testing::ElementsAre;
using Names = std::map<std::string, std::string>;

TEST(Renaming, ChangesNamesAllAtOnce) {
  TRCDocument cloud;
  test::FillCloud(cloud);
  EXPECT_EQ(Rename(cloud, Names{{"A", "B"}, {"B", "A"}, {"nobody", "X"}, {"C", "a b"}}), "");
  EXPECT_THAT(test::NamesOf(cloud), ElementsAre("B", "A", "a b"));
  HtrDocument walker;
  test::FillWalker(walker);
  EXPECT_EQ(Rename(walker, Names{{"Hips", "Pelvis"}}), "");
  EXPECT_EQ(walker.FindSegment("Spine")->GetParent(), walker.FindSegment("Pelvis"));
}

TEST(Renaming, RefusesWhatAFileCouldNotHold) {
  TRCDocument cloud;
  test::FillCloud(cloud);
  EXPECT_EQ(Rename(cloud, Names{{"A", "B"}}), "\"B\" would be there twice");
  EXPECT_EQ(Rename(cloud, Names{{"A", ""}}), "\"\", for \"A\", a marker needs a name");
  EXPECT_EQ(Rename(cloud, Names{{"A", "x\ty"}}), "\"x\ty\", for \"A\", holds a tab or a line end");
  EXPECT_EQ(Rename(cloud, Names{{"A", "Unnamed7"}}),
            "\"Unnamed7\", for \"A\", is that of no marker, as it begins with Unnamed");
  EXPECT_THAT(test::NamesOf(cloud), ElementsAre("A", "B", "C"));
  HtrDocument walker;
  test::FillWalker(walker);
  EXPECT_EQ(Rename(walker, Names{{"Hips", "left hip"}}),
            "\"left hip\", for \"Hips\", holds a blank, a tab, a line end, # or ]");
  EXPECT_EQ(Rename(walker, Names{{"Hips", "GLOBAL"}}),
            "\"GLOBAL\", for \"Hips\", means something else in an HTR file");
  EXPECT_EQ(Rename(walker, Names{{"Hips", "EndOfFile"}}),
            "\"EndOfFile\", for \"Hips\", means something else in an HTR file");
  EXPECT_EQ(Rename(walker, Names{{"Hips", "Leg"}}), "\"Leg\" would be there twice");
  EXPECT_EQ(walker.segments()[0].GetName(), "Hips");
}

}  // namespace
