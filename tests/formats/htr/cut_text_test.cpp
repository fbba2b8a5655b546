#include "formats/htr/cut_text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "formats/htr/document.h"
#include "formats/htr/reader.h"
#include "formats/text/files.h"
#include "tests/formats/htr/motion_text.h"

namespace orvane {
namespace {

using test_text::TwoBones;

// What is read of each segment's frames from `begin` up to `end`.
std::vector<std::vector<double>> NumbersOf(const HtrDocument& document, std::size_t begin,
                                           std::size_t end) {
  std::vector<std::vector<double>> all;
  for (const HtrSegment& segment : document.segments()) {
    std::vector<double> numbers;
    for (std::size_t frame = begin; frame < std::min(end, segment.GetNumFrames()); ++frame) {
      const auto place = segment.GetFrameTranslation(frame);
      const auto turn = segment.GetFrameRotation(frame);
      numbers.insert(numbers.end(), {place.x(), place.y(), place.z(), turn[0], turn[1], turn[2],
                                     segment.GetFrameScale(frame)});
    }
    all.push_back(std::move(numbers));
  }
  return all;
}

std::size_t FramesIn(const HtrDocument& document) {
  std::size_t most = 0;
  for (const HtrSegment& segment : document.segments()) {
    most = std::max(most, segment.GetNumFrames());
  }
  return most;
}

void ExpectSameFrames(const std::string& bytes, const HtrDocument& whole, std::size_t begin,
                      std::size_t end) {
  const std::optional<std::string> cut = CutHtrFrames(bytes, begin, end);
  ASSERT_TRUE(cut) << begin << " to " << end;
  HtrDocument document;
  ASSERT_EQ(ReadHtrBytes(document, *cut, true), "");
  EXPECT_EQ(document.GetNumFrames(), end - begin);
  EXPECT_EQ(document.GetStartFrame(), whole.GetStartFrame() + static_cast<std::int32_t>(begin));
  EXPECT_EQ(document.GetDataFrameRate(), whole.GetDataFrameRate());
  EXPECT_EQ(document.GetNumSegments(), whole.GetNumSegments());
  EXPECT_EQ(NumbersOf(document, 0, end - begin), NumbersOf(whole, begin, end)) << *cut;
  EXPECT_EQ(FramesIn(document), end - begin);
}

void ExpectSameFramesInEveryRange(const std::string& bytes) {
  HtrDocument whole;
  ASSERT_EQ(ReadHtrBytes(whole, bytes, true), "");
  const std::size_t frames = FramesIn(whole);
  for (std::size_t begin = 0; begin < frames; ++begin) {
    for (std::size_t end = begin + 1; end <= frames; ++end) {
      ExpectSameFrames(bytes, whole, begin, end);
    }
  }
}

// A file of two bones; `motion` is what comes behind its base positions.
std::string WithMotion(const std::string& motion, const std::string& num_frames = "NumFrames 3") {
  return "[Header]\nFileType htr\nDataType HTRS\nFileVersion 1\nNumSegments 2\n" + num_frames +
         "\nDataFrameRate 30\nEulerRotationOrder ZYX\nCalibrationUnits mm\nRotationUnits "
         "Degrees\nGlobalAxisofGravity Y\nBoneLengthAxis Y\nScaleFactor 1\n"
         "[SegmentNames&Hierarchy]\nHips GLOBAL\nSpine Hips\n[BasePosition]\n"
         "Hips 0 1 2 3 4 5 6\nSpine 0 1 0 0 0 0 7\n" +
         motion;
}

TEST(CutHtrText, HasTheLinesOfTheFramesOfEverySegmentAsTheyStand) {
  const std::string whole = WithMotion(
      "[Hips]\r\n# first\n5 1.50 2 3 4 5 6 1\n\n6 2 2 3 4 5 6 1 # it\r\n7 3 2 3 4 5 6 1\n"
      "[Spine]\n5 4 2 3 4 5 6 1\n  6\t5 2 3 4 5 6 1\r\r\n7 6 2 3 4 5 6 1\n[EndOfFile]\nrest");
  EXPECT_EQ(CutHtrFrames(whole, 1, 3),
            WithMotion("[Hips]\r\n# first\n\n6 2 2 3 4 5 6 1 # it\r\n7 3 2 3 4 5 6 1\n[Spine]\n"
                       "  6\t5 2 3 4 5 6 1\r\r\n7 6 2 3 4 5 6 1\n[EndOfFile]\nrest",
                       "NumFrames 2"));
  EXPECT_EQ(CutHtrFrames(whole, 0, 3), whole);
  ExpectSameFramesInEveryRange(whole);
}

TEST(CutHtrText, IsReadAsThoseFramesOfOddFiles) {
  const std::string hips = "[Hips]\n5 1 2 3 4 5 6 1\n6 2 2 3 4 5 6 1\n7 3 2 3 4 5 6 1\n";
  const std::string spine = "[Spine]\n5 4 2 3 4 5 6 1\n6 5 2 3 4 5 6 1\n7 6 2 3 4 5 6 1";
  const std::string nul(1, '\0');
  const std::vector<std::string> rows = {
      WithMotion(hips + spine, "NumFrames 900"),
      WithMotion(hips + spine, "NumFrames"),
      WithMotion(hips + spine, "NumFrames 1\nNumFrames\t2 # frames"),
      WithMotion(hips + "[Nobody]\n9 9 9\n" + spine + "\r"),
      WithMotion("[Hips]\n5 1 2 3 4 5 6 1\n[Spine]\n5 1\n6 2\n7 3\n"),
      WithMotion("[Hips]\n5 1\n[Spine]\n5 1\n6 2\n7 3\n[Hips]\n6 8\n7 9\n"),
      WithMotion("[Hips]\n3 1\n8 2\nx 3\n[Spine]\n5 1\n6 2" + nul + " 3\n7 3\n"),
  };
  for (const std::string& bytes : rows) {
    SCOPED_TRACE(bytes);
    ExpectSameFramesInEveryRange(bytes);
  }
  EXPECT_EQ(CutHtrFrames(WithMotion(hips + spine, "NumFrames"), 0, 2)->find("NumFrames 2\n"),
            WithMotion("").find("NumFrames"));
}

TEST(CutHtrText, IsNoneWhereLinesAreReadInPiecesAndWithoutFrames) {
  const std::string cell(10'300, '3');
  EXPECT_EQ(CutHtrFrames(WithMotion("[Hips]\n1 2 " + cell + "\n2 3\n"), 0, 1), std::nullopt);
  EXPECT_EQ(CutHtrFrames(WithMotion("[Hips]\n1 2\n"), 1, 2), std::nullopt);
  EXPECT_EQ(CutHtrFrames("[Header]\nFileType bvh\n", 0, 1), std::nullopt);
}

TEST(CutHtrText, IsReadAsThoseFramesOfFilesThatAreKept) {
  const std::filesystem::path source = ORVANE_SOURCE_DIR;
  std::vector<std::filesystem::path> files = {source / "examples/walk.htr"};
  for (const auto& entry : std::filesystem::directory_iterator(source / "tests/data/htr")) {
    if (entry.path().extension() == ".htr") files.push_back(entry.path());
  }
  std::size_t cut = 0;
  for (const std::filesystem::path& file : files) {
    SCOPED_TRACE(file);
    const std::string bytes = ReadFileBytes(file.string()).value_or("");
    HtrDocument whole;
    if (!ReadHtrBytes(whole, bytes, true).empty()) continue;
    const std::size_t frames = FramesIn(whole);
    if (frames == 0) continue;
    ExpectSameFrames(bytes, whole, 0, frames);
    ExpectSameFrames(bytes, whole, frames / 2, frames);
    ExpectSameFrames(bytes, whole, frames / 3, frames / 3 + 1);
    ++cut;
  }
  EXPECT_GT(cut, 10U);
}

}  // namespace
}  // namespace orvane
