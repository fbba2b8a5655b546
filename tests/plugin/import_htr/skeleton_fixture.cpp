#include "tests/plugin/import_htr/skeleton_fixture.h"

#include <numbers>
#include <stdexcept>

#include "tests/support/tolerances.h"

namespace test {

void SkeletonTest::TearDown() {
  EXPECT_EQ(scene().Misuse().Messages(), std::vector<std::string>());
  EXPECT_EQ(scene().LooseInstances(), 0U);
}

orvane::HtrSegment& SkeletonTest::Add(const std::string& name, orvane::HtrSegment* parent) {
  orvane::HtrSegment* segment = document_.AddSegment(orvane::HtrSegment(name));
  segment->SetIsRoot(parent == nullptr);
  segment->SetParent(parent);
  return *segment;
}

host::Node& SkeletonTest::Node(const std::string& name) {
  host::Node* const node = Find(name);
  if (node == nullptr) throw std::runtime_error("No node is called " + name);
  return *node;
}

double Radians(double degrees) { return degrees * std::numbers::pi / 180; }

std::string ChildNames(const host::Node& node) {
  std::string names;
  for (const host::Node* child : node.Children()) {
    names += (names.empty() ? "" : " ") + child->Name();
  }
  return names;
}

std::vector<TimeValue> KeyTicks(const host::Controller& controller) {
  std::vector<TimeValue> ticks;
  for (std::size_t key = 0; key < controller.KeyCount(); ++key) {
    ticks.push_back(controller.KeyTick(key));
  }
  return ticks;
}

void ExpectRows(const Matrix3& found, const Point3& row0, const Point3& row1, const Point3& row2) {
  ExpectPoint(found.GetRow(0), row0);
  ExpectPoint(found.GetRow(1), row1);
  ExpectPoint(found.GetRow(2), row2);
}

void ExpectPoint(const Point3& found, const Point3& expected) {
  EXPECT_NEAR(found.x, expected.x, kHostNumber);
  EXPECT_NEAR(found.y, expected.y, kHostNumber);
  EXPECT_NEAR(found.z, expected.z, kHostNumber);
}

}  // namespace test
