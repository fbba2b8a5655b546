#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "examples/marker_walk_text.h"
#include "formats/mnm/marker_name_map.h"
#include "formats/text/files.h"
#include "formats/trc/document.h"

namespace examples {
namespace {

using orvane::ReadFileBytes;
using orvane::TRCMarker;

constexpr const char* kFile = ORVANE_SOURCE_DIR "/examples/walk.trc";
constexpr const char* kMapping = ORVANE_SOURCE_DIR "/examples/walk.mnm";
constexpr std::size_t kFrames = 120;

class MarkerWalk : public testing::Test {
 protected:
  MarkerWalk() { EXPECT_EQ(document_.Read(kFile, false), ""); }

  orvane::TRCDocument document_;
};

TEST_F(MarkerWalk, IsWhatItsGeneratorMakes) {
  EXPECT_TRUE(ReadFileBytes(kFile) == MarkerWalkText()) << "run make_walk examples/walk.trc";
  EXPECT_TRUE(ReadFileBytes(kMapping) == MarkerMappingText()) << "run make_walk examples/walk.mnm";
}

TEST_F(MarkerWalk, HasFortyOneMarkersForTwoSeconds) {
  EXPECT_EQ(document_.MarkerCount(), 41u);
  EXPECT_EQ(document_.NumFrames(), 120);
  EXPECT_EQ(document_.DataRate(), 60);
  EXPECT_EQ(document_.Units(), 0);
  for (const TRCMarker& marker : document_.markers()) {
    EXPECT_EQ(marker.SampleCount(), kFrames) << marker.Name();
  }
}

TEST_F(MarkerWalk, HasGapsThatComeAndGo) {
  int markers_with_gaps = 0;
  for (const TRCMarker& marker : document_.markers()) {
    if (marker.Gaps().empty()) continue;
    ++markers_with_gaps;
    EXPECT_GT(marker.Gaps().size(), 1u) << marker.Name();
    std::size_t missing = 0;
    for (const auto& gap : marker.Gaps()) missing += gap.end - gap.begin;
    EXPECT_LT(missing, kFrames - kFrames / 4) << marker.Name();
  }
  EXPECT_EQ(markers_with_gaps, 10);
}

TEST_F(MarkerWalk, MovesLikeABody) {
  for (const TRCMarker& marker : document_.markers()) {
    double x = 0, y = 0, z = 0, next_x = 0, next_y = 0, next_z = 0;
    for (std::size_t frame = 1; frame < kFrames; ++frame) {
      if (!marker.GetSample(frame - 1, x, y, z)) continue;
      if (!marker.GetSample(frame, next_x, next_y, next_z)) continue;
      EXPECT_LT(std::hypot(next_x - x, next_y - y, next_z - z), 90) << marker.Name();
      EXPECT_GT(y, 0) << marker.Name();
      EXPECT_LT(y, 1800) << marker.Name();
    }
  }
}

TEST_F(MarkerWalk, IsMappedButForTwoMarkers) {
  orvane::MarkerNameMap mapping;
  ASSERT_TRUE(mapping.Load(kMapping));
  EXPECT_EQ(mapping.Count(), 39u);
  std::string unmapped;
  for (const TRCMarker& marker : document_.markers()) {
    std::string name = marker.Name();
    if (!mapping.Lookup(name)) unmapped += name + " ";
  }
  EXPECT_EQ(unmapped, "walker:LTHI walker:RTHI ");
}

}  // namespace
}  // namespace examples
