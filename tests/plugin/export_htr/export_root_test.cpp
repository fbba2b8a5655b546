#include "plugin/export_htr/export_root.h"

#include <gtest/gtest.h>

#include "host/application/application.h"
#include "tests/support/bone_nodes.h"

namespace orvane {
namespace {

class ExportRootTest : public testing::Test {
 protected:
  ExportRoot FindFor(host::Node& selected) {
    scene().Select(selected);
    return FindExportRoot(application_.plugin_interface());
  }

  void ExpectNoBone(host::Node& selected) {
    const ExportRoot root = FindFor(selected);
    EXPECT_EQ(root.node, nullptr);
    EXPECT_EQ(root.refusal, "Please select a Skelder 4 bone object to export");
  }

  host::Scene& scene() { return application_.scene(); }

  host::Application application_;
};

TEST_F(ExportRootTest, SomethingHasToBeSelected) {
  test::AddBone(scene(), "Hips");
  const ExportRoot root = FindExportRoot(application_.plugin_interface());
  EXPECT_EQ(root.node, nullptr);
  EXPECT_EQ(root.refusal, "Please select the root bone of the skeleton you wish to export");
}

TEST_F(ExportRootTest, ABoneIsTheRootItselfWhateverIsAboveIt) {
  host::Node& hips = test::AddBone(scene(), "Hips");
  host::Node& leg = test::AddBone(scene(), "Leg", &hips);
  test::AddBone(scene(), "Foot", &leg);
  const ExportRoot root = FindFor(leg);
  EXPECT_EQ(root.node, &leg);
  EXPECT_EQ(root.refusal, "");
}

TEST_F(ExportRootTest, ADummyStandsForItsFirstBone) {
  host::Node& dummy = test::AddDummy(scene(), "Group");
  test::AddDummy(scene(), "Helper", &dummy);
  host::Node& hips = test::AddBone(scene(), "Hips", &dummy);
  test::AddBone(scene(), "Other", &dummy);
  EXPECT_EQ(FindFor(dummy).node, &hips);
}

TEST_F(ExportRootTest, ABoneBelowAHelperIsNotFound) {
  host::Node& dummy = test::AddDummy(scene(), "Group");
  host::Node& helper = test::AddDummy(scene(), "Helper", &dummy);
  test::AddBone(scene(), "Hips", &helper);
  ExpectNoBone(dummy);
}

TEST_F(ExportRootTest, ADummyWithoutChildrenIsNoSkeleton) {
  ExpectNoBone(test::AddDummy(scene(), "Group"));
}

TEST_F(ExportRootTest, OnlyTheFirstSelectedNodeCounts) {
  host::Node& dummy = test::AddDummy(scene(), "Group");
  host::Node& hips = test::AddBone(scene(), "Hips");
  scene().Select(dummy);
  ExpectNoBone(hips);
}

}  // namespace
}  // namespace orvane
