#include <gtest/gtest.h>

#include <cstddef>
#include <random>
#include <string>
#include <vector>

#include "formats/htr/document_checker.h"
#include "formats/htr/reader.h"
#include "tests/formats/htr/motion_text.h"

// Whatever the bytes, reading ends, stays inside them, and leaves a sound document.
namespace orvane {
namespace {

using test_text::TwoBones;

// Reads a copy of exactly that size, so that the sanitizers see a read past its end.
std::string ReadBothWays(const std::string& bytes) {
  HtrDocument document;
  const std::string exact(bytes.data(), bytes.size());
  std::string message;
  for (const bool read_motion : {false, true}) {
    message = ReadHtrBytes(document, exact, read_motion);
    EXPECT_EQ(FindFault(document), "");
  }
  return message;
}

TEST(HtrRobustness, SurvivesAFileCutAtEveryByte) {
  const std::string good = TwoBones();
  ASSERT_EQ(ReadBothWays(good), "");
  for (std::size_t size = 0; size < good.size(); ++size) ReadBothWays(good.substr(0, size));
}

TEST(HtrRobustness, SurvivesEveryByteReplaced) {
  const std::string good = TwoBones();
  for (std::size_t at = 0; at < good.size(); ++at) {
    for (const char replacement : {'\0', '\n', '\r', ' ', '\t', '#', '[', ']', '-', 'e', '\xff'}) {
      std::string bad = good;
      bad[at] = replacement;
      ReadBothWays(bad);
    }
  }
}

TEST(HtrRobustness, SurvivesEveryByteLeftOutOrDoubled) {
  const std::string good = TwoBones();
  for (std::size_t at = 0; at < good.size(); ++at) {
    ReadBothWays(good.substr(0, at) + good.substr(at + 1));
    ReadBothWays(good.substr(0, at) + good[at] + good.substr(at));
  }
}

TEST(HtrRobustness, SurvivesNoise) {
  std::mt19937_64 random(11);
  std::uniform_int_distribution<int> byte(0, 255);
  for (int round = 0; round < 200; ++round) {
    std::string noise(4000, ' ');
    for (char& character : noise) character = static_cast<char>(byte(random));
    ReadBothWays(noise);
    std::string sections = "[SegmentNames&Hierarchy]\n";
    sections.append(noise).append("\n[BasePosition]\n").append(noise);
    ReadBothWays(sections);
  }
}

TEST(HtrRobustness, SurvivesShuffledLinesOfAGoodFile) {
  std::mt19937_64 random(12);
  const std::string good = TwoBones();
  std::vector<std::string> lines;
  for (std::size_t at = 0; at < good.size();) {
    const std::size_t end = good.find('\n', at) + 1;
    lines.push_back(good.substr(at, end - at));
    at = end;
  }
  for (int round = 0; round < 500; ++round) {
    std::string bytes;
    for (int count = 0; count < 60; ++count) bytes += lines[random() % lines.size()];
    ReadBothWays(bytes);
  }
}

// None of these may take memory or time out of proportion to the file.

TEST(HtrRobustness, BelievesNoDeclaredCount) {
  const std::string counts = "[Header]\nNumSegments 2147483647\nNumFrames 99999999999999\n";
  EXPECT_EQ(
      ReadBothWays(counts + "[SegmentNames&Hierarchy]\na GLOBAL\n[BasePosition]\na\n[a]\n1\n"),
      "Incorrect number of segments defined in file");
}

TEST(HtrRobustness, ReservesForLaterSegmentsNoMoreThanWasHeld) {
  std::string bytes = "[SegmentNames&Hierarchy]\n";
  const int count = 20000;
  for (int index = 0; index < count; ++index) bytes += "s" + std::to_string(index) + " GLOBAL\n";
  bytes += "[s0]\n";
  for (int frame = 0; frame < 200000; ++frame) bytes += "1\n";
  for (int index = 1; index < count; ++index) bytes += "[s" + std::to_string(index) + "]\n1\n";
  HtrDocument document;
  ASSERT_EQ(ReadHtrBytes(document, bytes, true), "");
  EXPECT_EQ(document.FindSegment("s0")->GetNumFrames(), 200000u);
  EXPECT_EQ(document.FindSegment("s19999")->GetNumFrames(), 1u);
}

TEST(HtrRobustness, StopsLinkingWhenAFileAsksForItWithoutEnd) {
  std::string bytes = "[SegmentNames&Hierarchy]\nroot GLOBAL\n";
  for (int index = 0; index < 20000; ++index) bytes += "s" + std::to_string(index) + " root\n";
  for (int section = 0; section < 20000; ++section) bytes += "[BasePosition]\n";
  HtrDocument document;
  ASSERT_EQ(ReadHtrBytes(document, bytes, true), "");
  const int children = document.FindSegment("root")->GetNumChildren();
  EXPECT_GE(children, 2 * 20000);
  EXPECT_LE(children, 1 << 20);
}

TEST(HtrRobustness, SurvivesAChainOfAHundredThousandSegments) {
  std::string bytes = "[SegmentNames&Hierarchy]\ns0 GLOBAL\n";
  for (int index = 1; index < 100000; ++index) {
    bytes += "s" + std::to_string(index) + " s" + std::to_string(index - 1) + "\n";
  }
  bytes += "[BasePosition]\n[BasePosition]\n";
  HtrDocument document;
  ASSERT_EQ(ReadHtrBytes(document, bytes, true), "");
  HtrSegment* root = document.FindRootSegment();
  ASSERT_NE(root, nullptr);
  EXPECT_EQ(root->GetNumChildren(), 2);
  EXPECT_EQ(root->FindDescendant("s99999"), document.FindSegment("s99999"));
  EXPECT_EQ(root->FindDescendant("nobody"), nullptr);
}

TEST(HtrRobustness, ReadsManyUnknownParentsInLinearTime) {
  std::string bytes = "[SegmentNames&Hierarchy]\n";
  for (int index = 0; index < 100000; ++index) {
    bytes += "s" + std::to_string(index) + " t" + std::to_string(index) + "\n";
  }
  EXPECT_EQ(ReadBothWays(bytes + "[BasePosition]\n"), "");
}

TEST(HtrRobustness, ReadsAHugeLineInLinearTime) {
  EXPECT_EQ(ReadBothWays("[Header]\n" + std::string(std::size_t{4} << 20, 'x')), "");
  EXPECT_EQ(ReadBothWays("[Header]\n" + std::string(std::size_t{4} << 20, '\r')), "");
  EXPECT_EQ(ReadBothWays("[Header]\n" + std::string(std::size_t{1} << 20, '\n')), "");
}

TEST(HtrRobustness, ReadsHugeNumbersInLinearTime) {
  const std::string digits(10000, '9');
  std::string bytes = "[SegmentNames&Hierarchy]\na GLOBAL\n[a]\n";
  const std::string line = digits + "\n1 " + digits + "e-9999\n";
  for (int count = 0; count < 200; ++count) bytes += line;
  EXPECT_EQ(ReadBothWays(bytes), "");
}

}  // namespace
}  // namespace orvane
