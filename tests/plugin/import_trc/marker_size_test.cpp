#include <gtest/gtest.h>

#include "host/application/application.h"
#include "host/desktop/settings.h"
#include "host/scene/box_object.h"
#include "host/scene/sphere_object.h"
#include "plugin/import_trc/marker_nodes.h"

// How large markers are, to the last bit.

namespace orvane {
namespace {

struct SizeCase {
  float size;
  double global;
  float radius;  // of a sphere
  float scale;   // of a point helper
  float extent;  // of the root, from its middle
};

// In double precision and rounded once, the first six would each end in another bit.
constexpr SizeCase kSizes[] = {
    {3.3F, 0.1, 0x1.51eb86p-3F, 0x1.51eb86p-4F, 0x1.51eb86p-2F},
    {0.7F, 0.3, 0x1.ae147cp-4F, 0x1.ae147cp-5F, 0x1.ae147cp-3F},
    {1.7F, 1.1, 0x1.deb854p-1F, 0x1.deb854p-2F, 0x1.deb854p+0F},
    {1.7F, 2.54, 0x1.145a1cp+1F, 0x1.145a1cp+0F, 0x1.145a1cp+2F},
    {2.3F, 0.7, 0x1.9c28f4p-1F, 0x1.9c28f4p-2F, 0x1.9c28f4p+0F},
    {2.3F, -1.3, -0x1.7eb85p+0F, -0x1.7eb85p-1F, -0x1.7eb85p+1F},
    // Three of the smallest number there is: its half and its quarter are rounded before the scale
    // is multiplied.
    {0x3p-149F, 4.0, 0x8p-149F, 0x4p-149F, 0xCp-149F},
    {3.0F, 2.0, 3.0F, 1.5F, 6.0F},
};

class MarkerSizeTest : public testing::TestWithParam<SizeCase> {
 protected:
  MarkerSizeTest() {
    options_.size = GetParam().size;
    options_.scaleFactor = GetParam().global;
  }

  host::FreshSettings settings_;
  host::Application application_;
  ImportTRCOptions options_;
};

TEST_P(MarkerSizeTest, OfASphereIsHalfTheSizeTimesTheScaleInSinglePrecision) {
  INode* const node = CreateMarkerNode(application_.plugin_interface(), options_, "Head");
  const auto& sphere =
      dynamic_cast<const host::SphereObject&>(*dynamic_cast<host::Node&>(*node).ShownObject());
  EXPECT_EQ(sphere.Radius(), GetParam().radius);
}

TEST_P(MarkerSizeTest, OfAPointIsAQuarterOfTheSizeTimesTheScaleInSinglePrecision) {
  options_.geometry = false;
  INode* const node = CreateMarkerNode(application_.plugin_interface(), options_, "Head");
  const float scale = GetParam().scale;
  EXPECT_EQ(dynamic_cast<host::Node&>(*node).Transform()->Scale().ValueAt(0),
            Point3(scale, scale, scale));
}

TEST_P(MarkerSizeTest, OfTheRootIsTheSizeTimesTheScaleInSinglePrecision) {
  INode* const node = CreateCloudRoot(application_.plugin_interface(), options_);
  const float extent = GetParam().extent;
  const auto& box =
      dynamic_cast<const host::BoxObject&>(*dynamic_cast<host::Node&>(*node).ShownObject());
  EXPECT_EQ(box.Box(), Box3(Point3(-extent, -extent, -extent), Point3(extent, extent, extent)));
}

INSTANTIATE_TEST_SUITE_P(Sizes, MarkerSizeTest, testing::ValuesIn(kSizes));

}  // namespace
}  // namespace orvane
