#include "plugin/exchange/object_nodes.h"

#include <gtest/gtest.h>

#include <new>
#include <string>

#include "host/application/application.h"
#include "host/scene/box_object.h"
#include "tests/support/forwarding_interface.h"
#include "tests/support/hooked_interface.h"
#include "tests/support/throwing_instances.h"

namespace orvane {
namespace {

TEST(ObjectNodesTest, ADummyIsABoxAroundItsNode) {
  host::Application application;
  INode* node = CreateDummyNode(application.plugin_interface(), 2.5F);
  ASSERT_NE(node, nullptr);
  const auto& own = dynamic_cast<const host::Node&>(*node);
  EXPECT_EQ(own.Parent(), &application.scene().Root());
  EXPECT_EQ(dynamic_cast<const host::BoxObject&>(*own.ShownObject()).Box(),
            Box3(Point3(-2.5F, -2.5F, -2.5F), Point3(2.5F, 2.5F, 2.5F)));
}

TEST(ObjectNodesTest, ARefusedObjectOrNodeLeavesNothingBehind) {
  host::Application application;
  test::RefusingInterface refusing(application.plugin_interface());
  refusing.RefuseInstance(1);
  EXPECT_EQ(CreateDummyNode(refusing, 1.0F), nullptr);
  refusing.RefuseNode(1);
  EXPECT_EQ(CreateDummyNode(refusing, 1.0F), nullptr);
  EXPECT_EQ(application.scene().NodeCount(), 0u);
  EXPECT_EQ(application.scene().LooseInstances(), 0u);
}

TEST(ObjectNodesTest, AnObjectThatThrowsIsDeleted) {
  host::Application application;
  test::ThrowingInstances throwing(application.plugin_interface());
  EXPECT_THROW((void)CreateDummyNode(throwing, 1.0F), std::bad_alloc);
  EXPECT_EQ(throwing.object.deletions, 1);
}

TEST(ObjectNodesTest, AnObjectThatGetsNoNodeBecauseTheHostThrowsIsDeleted) {
  host::Application application;
  test::HookedInterface host(application.plugin_interface());
  host.before = [](const std::string& operation) {
    if (operation == "CreateObjectNode") throw 1;
  };
  EXPECT_THROW((void)CreateDummyNode(host, 1.0F), int);
  EXPECT_EQ(application.scene().LooseInstances(), 0u);
}

}  // namespace
}  // namespace orvane
