#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "formats/htr/document.h"
#include "host/application/application.h"
#include "plugin/export_htr/options.h"
#include "plugin/services/message_sink.h"
#include "tests/support/bone_nodes.h"
#include "tests/support/desk.h"
#include "tests/support/host_geometry.h"

namespace test {

// A scene at 30 frames a second (160 ticks each), and what its bones are sampled into. Its range is
// the frames 0 to 2.
class SamplingTest : public testing::Test {
 protected:
  SamplingTest() { SetRange(0, 320); }

  // Every test ends without a call against the rules of the host.
  void TearDown() override {
    EXPECT_EQ(scene().Misuse().Messages(), std::vector<std::string>());
    desk_.desktop().RethrowFailure();
  }

  host::Node& AddBone(const std::string& name, host::Node* parent = nullptr) {
    return test::AddBone(scene(), name, parent);
  }
  host::Node& AddDummy(const std::string& name, host::Node* parent = nullptr) {
    return test::AddDummy(scene(), name, parent);
  }

  void SetRange(TimeValue start, TimeValue end) {
    scene().Animation().SetRange(Interval(start, end));
  }

  static void Place(host::Node& node, const Point3& position) {
    node.Transform()->Position().SetConstant(position);
  }
  static void Turn(host::Node& node, const Quat& rotation) {
    node.Transform()->Rotation().SetConstant(rotation);
  }
  static void Enlarge(host::Node& node, float factor) {
    node.Transform()->Scale().SetConstant(Point3(factor, factor, factor));
  }

  // Gives the node the base position that an import keeps on it: three translations, three angles
  // in radians, and the length.
  static void KeepBase(host::Node& node, const std::vector<float>& numbers) {
    const char* const keys[] = {"HTRBaseTransX", "HTRBaseTransY", "HTRBaseTransZ", "HTRBaseRotX",
                                "HTRBaseRotY",   "HTRBaseRotZ",   "HTRBaseLength"};
    for (std::size_t i = 0; i < numbers.size(); ++i) node.SetUserPropertyFloat(keys[i], numbers[i]);
  }

  host::Scene& scene() { return application_.scene(); }
  ::Interface& interface() { return application_.plugin_interface(); }

  Desk desk_;
  host::Application application_;
  orvane::ExportHTROptions options_;
  orvane::MessageSink sink_;
  orvane::HtrDocument document_;
};

inline void ExpectVector(const orvane::Vector3& found, double x, double y, double z,
                         double tolerance = kHostNumber) {
  EXPECT_NEAR(found.x(), x, tolerance);
  EXPECT_NEAR(found.y(), y, tolerance);
  EXPECT_NEAR(found.z(), z, tolerance);
}

// Angles in degrees.
inline void ExpectAngles(const orvane::EulerRotation& found, double x, double y, double z) {
  EXPECT_NEAR(found[0], Radians(x), kHostNumber);
  EXPECT_NEAR(found[1], Radians(y), kHostNumber);
  EXPECT_NEAR(found[2], Radians(z), kHostNumber);
}

}  // namespace test
