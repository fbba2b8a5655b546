#include <gtest/gtest.h>

#include <string>

#include "host/scene/scene.h"
#include "tests/host/scene/scene_fixture.h"
#include "tests/support/tolerances.h"

// Scenes of a size at which anything that grows with the square would run into the time limit, and
// any recursion out of stack.

namespace host {
namespace {

constexpr int kMany = 100000;

class LargeSceneTest : public SceneFixture {
 protected:
  // A chain of nodes, each 1 along X from the one before; returns its last node.
  Node* NewChain() {
    Node* node = nullptr;
    for (int i = 0; i < kMany; ++i) {
      node = NewBone("Bone", node);
      node->Transform()->Position().SetConstant(Point3(1, 0, 0));
    }
    return node;
  }
};

TEST_F(LargeSceneTest, EvaluatesALongChain) {
  Node* last = NewChain();
  EXPECT_EQ(last->NodeTransform(0).GetRow(3).x, static_cast<float>(kMany));
  scene_.FindByHandle(2)->Transform()->Position().SetConstant(Point3(0, 0, 0));
  EXPECT_EQ(last->NodeTransform(0).GetRow(3).x, static_cast<float>(kMany - 1));
}

// As applying motion does: each node is keyed and then the next asks for its world transform.
TEST_F(LargeSceneTest, EvaluatesEachParentWhileAChainIsKeyed) {
  scene_.Animation().AnimateMode().Set(true);
  NewChain()->NodeTransform(0);
  int depth = 0;
  for (Node* node = scene_.Root().Children().front();; node = node->Children().front()) {
    const Matrix3 parent = node->GetParentNode()->NodeTransform(0);
    ASSERT_EQ(parent.GetRow(3).x, static_cast<float>(2 * depth++));
    const Point3 twice(2, 0, 0);
    node->GetTMController()->GetPositionController()->SetValue(0, &twice, 1, CTRL_ABSOLUTE);
    if (node->Children().empty()) break;
  }
  EXPECT_EQ(depth, kMany);
}

// As an export does: each node is followed through time, and then the next is.
TEST_F(LargeSceneTest, FollowsEachNodeOfAChainThroughTime) {
  NewChain();
  float depth = 0;
  for (Node* node = scene_.Root().Children().front();; node = node->Children().front()) {
    ++depth;
    for (const TimeValue time : {0, 160, 320}) {
      ASSERT_EQ(node->NodeTransform(time).GetRow(3).x, depth);
      ASSERT_EQ(node->GetParentNode()->NodeTransform(time).GetRow(3).x, depth - 1);
    }
    if (node->Children().empty()) break;
  }
  EXPECT_EQ(depth, static_cast<float>(kMany));
}

// As a failing import does: from the end of the chain up, each node is deleted and what is left
// below goes to the next.
TEST_F(LargeSceneTest, DeletesAChainFromItsEnd) {
  Node* last = NewChain();
  const float x = last->NodeTransform(0).GetRow(3).x;
  for (Node* node = last->Parent(); node != &scene_.Root();) {
    Node* parent = node->Parent();
    scene_.DeleteNode(node);
    node = parent;
  }
  EXPECT_EQ(scene_.NodeCount(), 1U);
  EXPECT_EQ(last->GetParentNode(), &scene_.Root());
  EXPECT_NEAR(last->NodeTransform(0).GetRow(3).x, x, 1e-3 * x);
}

TEST_F(LargeSceneTest, GathersManyNodesUnderOne) {
  for (int i = 0; i < kMany; ++i) NewBone(std::to_string(i).c_str());
  Node* cloud = NewBone("Cloud");
  // In the order of their making, so that each leaves the front of its parent's children.
  for (NodeHandle handle = 2; handle < cloud->GetHandle(); ++handle) {
    cloud->AttachChild(scene_.FindByHandle(handle), false);
  }
  EXPECT_EQ(cloud->NumberOfChildren(), kMany);
  EXPECT_STREQ(cloud->GetChildNode(kMany / 2)->GetName(), std::to_string(kMany / 2).c_str());
  scene_.DeleteNode(cloud);
  EXPECT_EQ(scene_.Root().NumberOfChildren(), kMany);
}

TEST_F(LargeSceneTest, NamesManyNodesAlike) {
  for (int i = 0; i < kMany; ++i) NewBone(scene_.MakeNameUnique("Marker").c_str());
  EXPECT_EQ(scene_.MakeNameUnique("Marker"), "Marker" + std::to_string(kMany));
}

}  // namespace
}  // namespace host
