#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <string>

#include "formats/htr/document_checker.h"
#include "formats/htr/reader.h"
#include "tests/support/htr_skeleton_pose.h"
#include "tests/support/tolerances.h"

// Real recordings are not ours to keep: they lie beside the repository, or where the environment
// variable ORVANE_RECORDINGS says.
namespace orvane {
namespace {

std::string Recording(const std::string& file) {
  const char* folder = std::getenv("ORVANE_RECORDINGS");
  const std::filesystem::path beside = std::filesystem::path(ORVANE_SOURCE_DIR) / "../shared/data";
  return ((folder != nullptr ? std::filesystem::path(folder) : beside) / file).string();
}

void ExpectAt(const Vector3& position, double x, double y, double z) {
  EXPECT_NEAR(position.x(), x, test::kRecordedPosition_mm);
  EXPECT_NEAR(position.y(), y, test::kRecordedPosition_mm);
  EXPECT_NEAR(position.z(), z, test::kRecordedPosition_mm);
}

TEST(HtrRecording, OfAWalkPutsHandAndFootWhereTheyWere) {
  const std::string name = Recording("walk-31-segments.htr");
  if (!std::filesystem::exists(name)) GTEST_SKIP() << "no recording at " << name;
  HtrDocument document;
  ASSERT_EQ(ReadHtrFile(document, name, true), "");
  EXPECT_EQ(FindFault(document), "");
  EXPECT_EQ(document.GetNumSegments(), 31);
  EXPECT_EQ(document.GetNumFrames(), 524u);
  EXPECT_EQ(document.GetDataFrameRate(), 120);
  const std::size_t frame = static_cast<std::size_t>(301 - document.GetStartFrame());
  ExpectAt(test::PositionOf(*document.FindSegment("LeftFoot"), frame), 60.2, 69.9, 780.1);
  ExpectAt(test::PositionOf(*document.FindSegment("RightHand"), frame), -195.3, 712.0, 729.1);
}

}  // namespace
}  // namespace orvane
