#include "plugin/exchange/node_controllers.h"

#include <gtest/gtest.h>

#include "host/application/application.h"
#include "plugin/exchange/object_nodes.h"
#include "sdk/core/animation.h"

namespace orvane {
namespace {

class NodeControllersTest : public testing::Test {
 protected:
  host::Application application_;
  INode& node_ = *CreateDummyNode(application_.plugin_interface(), 1.0F);
  host::PositionController& position_ = dynamic_cast<host::Node&>(node_).Transform()->Position();
};

TEST_F(NodeControllersTest, AreThoseOfTheNodesTransform) {
  EXPECT_EQ(PositionController(node_), &position_);
  EXPECT_EQ(RotationController(node_), &dynamic_cast<host::Node&>(node_).Transform()->Rotation());
}

TEST_F(NodeControllersTest, TheSceneRootHasNone) {
  EXPECT_EQ(PositionController(application_.scene().Root()), nullptr);
  EXPECT_EQ(RotationController(application_.scene().Root()), nullptr);
}

TEST_F(NodeControllersTest, TakeAValueUnlessTheyRefuse) {
  const Point3 value(1, 2, 3);
  EXPECT_TRUE(SetPosition(&position_, 0, value));
  EXPECT_EQ(position_.ValueAt(0), value);
  application_.scene().Faults().RefuseQuery(1);
  const Point3 other(4, 5, 6);
  EXPECT_FALSE(SetPosition(&position_, 0, other));
  EXPECT_EQ(position_.ValueAt(0), value);
  EXPECT_FALSE(SetPosition(nullptr, 0, other));
}

TEST_F(NodeControllersTest, LoseTheKeysOfEveryTickButNoOthers) {
  const Point3 value(1, 2, 3);
  AnimateOn();
  for (const TimeValue tick : {-1, 0, 1, 159, 160, 319, 320, 321}) {
    ASSERT_TRUE(SetPosition(&position_, tick, value));
  }
  ClearKeys(nullptr, &position_, KeyTimes(160, 0, 2));
  ASSERT_EQ(position_.KeyCount(), 3u);
  EXPECT_EQ(position_.KeyTick(0), -1);
  EXPECT_EQ(position_.KeyTick(1), 320);
  EXPECT_EQ(position_.KeyTick(2), 321);
}

}  // namespace
}  // namespace orvane
