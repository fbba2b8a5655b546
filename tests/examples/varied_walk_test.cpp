#include "examples/varied_walk.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <set>

#include "examples/gait.h"
#include "examples/markers.h"

namespace examples {
namespace {

std::size_t IndexOf(const VariedWalk& walk, const std::string& role) {
  const auto found = std::find(walk.roles.begin(), walk.roles.end(), role);
  EXPECT_NE(found, walk.roles.end()) << role;
  return static_cast<std::size_t>(found - walk.roles.begin());
}

Vector3 FirstOf(const VariedWalk& walk, const std::string& role) {
  return walk.table.frames.front()[IndexOf(walk, role)].value_or(Vector3());
}

TEST(VariedWalkTest, WithoutVariationItIsTheWalk) {
  const VariedWalk walk = MakeVariedWalk({});
  EXPECT_EQ(walk.roles.size(), Markers().size());
  const Pose pose = WalkAt(0);
  for (const Marker& marker : Markers()) {
    if (marker.standard_name.empty()) continue;
    const auto& position = walk.table.frames[0][IndexOf(walk, std::string(marker.standard_name))];
    const auto wanted = PositionOf(marker, pose);
    ASSERT_EQ(position.has_value(), wanted.has_value());
    if (!wanted) continue;
    EXPECT_NEAR(Length(Difference(*position, *wanted)), 0, 1e-9);
  }
}

TEST(VariedWalkTest, TheSameSeedMakesTheSameWalk) {
  EXPECT_EQ(TextOf(MakeVariedWalk(VariationOf(1000)).table),
            TextOf(MakeVariedWalk(VariationOf(1000)).table));
  EXPECT_NE(TextOf(MakeVariedWalk(VariationOf(1000)).table),
            TextOf(MakeVariedWalk(VariationOf(1001)).table));
}

TEST(VariedWalkTest, HeadingTurnsTheWay) {
  WalkVariation variation;
  variation.heading_deg = 90;
  const VariedWalk walk = MakeVariedWalk(variation);
  const std::size_t head = IndexOf(walk, "C7");
  const Vector3 way = Difference(*walk.table.frames.back()[head], *walk.table.frames.front()[head]);
  EXPECT_GT(way.x(), 2000);
  EXPECT_LT(std::abs(way.z()), 100);
  // Left is where Z is less, of a body that faces along X.
  EXPECT_LT(FirstOf(walk, "LSHO").z(), FirstOf(walk, "RSHO").z() - 300);
}

TEST(VariedWalkTest, BackwardAndMirroredBodies) {
  WalkVariation variation;
  variation.is_backward = true;
  const VariedWalk back = MakeVariedWalk(variation);
  const std::size_t neck = IndexOf(back, "C7");
  EXPECT_LT(back.table.frames.back()[neck]->z(), back.table.frames.front()[neck]->z() - 2000);
  EXPECT_GT(FirstOf(back, "CLAV").z(), FirstOf(back, "C7").z());
  variation = {};
  variation.is_mirrored = true;
  const VariedWalk mirrored = MakeVariedWalk(variation);
  EXPECT_GT(FirstOf(mirrored, "LSHO").x(), 100);
  EXPECT_NEAR(FirstOf(mirrored, "LSHO").x(), -FirstOf(MakeVariedWalk({}), "RSHO").x(), 1e-9);
}

TEST(VariedWalkTest, ProportionsStatureAndUnit) {
  WalkVariation variation;
  variation.proportions.thigh = 1.1;
  variation.stature = 0.5;
  variation.unit = "cm";
  const VariedWalk walk = MakeVariedWalk(variation);
  const VariedWalk usual = MakeVariedWalk({});
  const double thigh = Length(Difference(FirstOf(walk, "RTOE"), FirstOf(walk, "RANK")));
  const double same = Length(Difference(FirstOf(usual, "RTOE"), FirstOf(usual, "RANK")));
  EXPECT_NEAR(thigh, 0.05 * same, 0.05);
  EXPECT_NEAR(FirstOf(walk, "C7").y() - FirstOf(usual, "C7").y() * 0.05, 43 * 0.05, 0.2);
}

TEST(VariedWalkTest, MarkersAreMissingAndMore) {
  WalkVariation variation;
  variation.seed = 1000;
  variation.missing = 4;
  variation.extra = 10;
  variation.props = 2;
  variation.gaps = 0.25;
  const VariedWalk walk = MakeVariedWalk(variation);
  EXPECT_EQ(walk.roles.size(), Markers().size() - 4 + 10 + 2);
  EXPECT_EQ(walk.table.names.front(), "M001");
  std::multiset<std::string> roles(walk.roles.begin(), walk.roles.end());
  EXPECT_GE(roles.count(""), 12U);
  EXPECT_LE(roles.count(""), 14U);
  std::size_t seen = 0;
  for (const auto& frame : walk.table.frames) seen += frame[0].has_value() ? 1 : 0;
  EXPECT_LT(seen, walk.table.frames.size());
}

}  // namespace
}  // namespace examples
