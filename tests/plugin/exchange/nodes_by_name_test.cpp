#include "plugin/exchange/nodes_by_name.h"

#include <gtest/gtest.h>

#include "tests/support/bone_nodes.h"

namespace orvane {
namespace {

TEST(NodesByNameTest, FindsNodesByTheirExactName) {
  host::Scene scene;
  host::Node& leg = test::AddDummy(scene, "Leg");
  NodesByName nodes;
  EXPECT_EQ(nodes.Find("Leg"), nullptr);
  nodes.Add(leg);
  EXPECT_EQ(nodes.Find("Leg"), &leg);
  EXPECT_EQ(nodes.Find("leg"), nullptr);
  EXPECT_EQ(nodes.Find("Leg "), nullptr);
}

TEST(NodesByNameTest, TakesTheFirstOfSeveralOfOneName) {
  host::Scene scene;
  host::Node& first = test::AddDummy(scene, "Leg");
  NodesByName nodes;
  nodes.Add(first);
  nodes.Add(test::AddDummy(scene, "Leg"));
  EXPECT_EQ(nodes.Find("Leg"), &first);
}

}  // namespace
}  // namespace orvane
