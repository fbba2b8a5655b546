#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <ostream>
#include <string>

#include "formats/trc/document.h"
#include "formats/trc/document_checker.h"

// Real recordings are not ours to keep: they lie beside the repository, or where the environment
// variable ORVANE_RECORDINGS says.
namespace orvane {
namespace {

struct Recording {
  const char* file;
  unsigned markers;
  std::int32_t announced_frames;
  std::size_t frames;
  std::int32_t first_frame;
  std::int32_t rate;
  std::int32_t units;
};

void PrintTo(const Recording& recording, std::ostream* stream) { *stream << recording.file; }

std::string PathOf(const std::string& file) {
  const char* folder = std::getenv("ORVANE_RECORDINGS");
  const std::filesystem::path beside = std::filesystem::path(ORVANE_SOURCE_DIR) / "../shared/data";
  return ((folder != nullptr ? std::filesystem::path(folder) : beside) / file).string();
}

class TRCRecording : public ::testing::TestWithParam<Recording> {};

TEST_P(TRCRecording, IsReadAsItStands) {
  const Recording& recording = GetParam();
  const std::string name = PathOf(recording.file);
  if (!std::filesystem::exists(name)) GTEST_SKIP() << "no recording at " << name;
  TRCDocument document;
  ASSERT_EQ(document.Read(name, false), "");
  EXPECT_EQ(FindFault(document), "");
  EXPECT_EQ(document.MarkerCount(), recording.markers);
  EXPECT_EQ(document.NumFrames(), recording.announced_frames);
  EXPECT_EQ(document.MarkerAt(0)->SampleCount(), recording.frames);
  EXPECT_EQ(document.FirstFrame(), recording.first_frame);
  EXPECT_EQ(document.DataRate(), recording.rate);
  EXPECT_EQ(document.Units(), recording.units);
}

INSTANTIATE_TEST_SUITE_P(
    All, TRCRecording,
    ::testing::Values(Recording{"capture-21-markers-metres.trc", 21, 100, 100, 0, 60, 2},
                      Recording{"capture-40-markers-gaps.trc", 40, 464, 464, 1, 250, 0},
                      Recording{"capture-41-markers-cropped.trc", 41, 900, 73, 1, 60, 0},
                      Recording{"capture-55-columns-duplicate-name.trc", 54, 251, 251, 1, 150, 0},
                      Recording{"capture-8-markers-from-frame-228.trc", 8, 4, 4, 228, 100, 0}));

}  // namespace
}  // namespace orvane
