#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "formats/htr/document.h"
#include "host/application/application.h"
#include "host/desktop/settings.h"
#include "plugin/import_htr/options.h"
#include "tests/support/bone_nodes.h"

namespace test {

// A scene and a document for tests of what lies between them.
class SkeletonTest : public testing::Test {
 protected:
  // Every test ends without a call against the rules of the host.
  void TearDown() override;

  // Adds a segment; without a parent it is a root. Lengths in system units, angles in degrees.
  orvane::HtrSegment& Add(const std::string& name, orvane::HtrSegment* parent = nullptr);

  // A bone or a dummy in the scene, under `parent` or the scene root.
  host::Node& AddBone(const std::string& name, host::Node* parent = nullptr) {
    return test::AddBone(scene(), name, parent);
  }
  host::Node& AddDummy(const std::string& name, host::Node* parent = nullptr) {
    return test::AddDummy(scene(), name, parent);
  }

  // The node of that name, or null.
  host::Node* Find(const std::string& name) { return scene().FindByName(name); }

  // The same; throws, and so fails the test, when there is none.
  host::Node& Node(const std::string& name);

  host::Scene& scene() { return application_.scene(); }
  ::Interface& interface() { return application_.plugin_interface(); }

  host::FreshSettings settings_;  // before the options, which open theirs
  host::Application application_;
  orvane::HtrDocument document_;
  orvane::ImportHTROptions options_;
};

double Radians(double degrees);

// The names of the children of `node`, separated by blanks.
std::string ChildNames(const host::Node& node);

// The ticks of a controller's keys.
std::vector<TimeValue> KeyTicks(const host::Controller& controller);

// Rows 0 to 2 of the transform that `rotation` gives.
void ExpectRows(const Matrix3& found, const Point3& row0, const Point3& row1, const Point3& row2);
void ExpectPoint(const Point3& found, const Point3& expected);

}  // namespace test
