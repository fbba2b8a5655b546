#include "formats/trc/outline.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <string_view>
#include <utility>

#include "formats/trc/document.h"
#include "tests/support/trc_text.h"

namespace orvane {
namespace {

std::string Repeated(const std::string& text, int count) {
  std::string repeated;
  for (int number = 0; number < count; ++number) repeated += text;
  return repeated;
}

// Of `bytes` in one piece.
TRCOutliner OutlineOf(const std::string& bytes) {
  TRCOutliner outliner;
  outliner.Take(bytes);
  return outliner;
}

// Of `bytes` line by line.
TRCOutliner OutlineByLines(std::string_view bytes) {
  TRCOutliner outliner;
  while (!bytes.empty()) {
    const std::size_t size = std::min(bytes.find('\n'), bytes.size() - 1) + 1;
    outliner.Take(bytes.substr(0, size));
    bytes.remove_prefix(size);
  }
  return outliner;
}

// The frames that the reader itself finds, seen by a marker whose every sample counts.
std::size_t FramesRead(const std::string& bytes) {
  TRCDocument document;
  EXPECT_EQ(document.ReadBytes(bytes, false), "");
  return document.MarkerCount() == 0 ? 0 : document.MarkerAt(0)->SampleCount();
}

const std::string kHeader = test::TrcText{.markers = {"Head", "Toe"}, .frame_count = 7}.Header() +
                            test::TrcText{.markers = {"Head", "Toe"}}.MarkerNames() +
                            test::TrcText{.markers = {"Head", "Toe"}}.SubHeader();

TEST(TRCOutlinerTest, HasTheTextOfTheFirstFrame) {
  const std::pair<std::string, std::string> rows[] = {{"", ""},
                                                      {"\n", ""},
                                                      {"5\t0\t1\n6\t0\t2\n", "5\t0\t1"},
                                                      {"\r\n5\t0\t1\r\n6\t0\t2\r\n", "5\t0\t1"},
                                                      {"\n\n5\t0\t1\n", ""},
                                                      {"# 5\n6\t0\t2\n", "# 5"}};
  for (const auto& [frames, first] : rows) {
    EXPECT_EQ(OutlineOf(kHeader + frames).FirstFrame(), first) << frames;
    EXPECT_EQ(OutlineByLines(kHeader + frames).FirstFrame(), first) << frames;
  }
}

TEST(TRCOutlinerTest, CountsTheFramesThatTheReaderFinds) {
  const struct {
    std::string frames;
    std::size_t expected;
  } cases[] = {
      {"", 0},
      {"\n", 0},
      {"\n\n", 1},
      {"\n1\t0\t1\t2\t3\n", 1},
      {"1\t0\t1\t2\t3\n", 1},
      {"1\t0\t1\t2\t3", 1},
      {"\r\n1\t0\r\n2\t0\r\n", 2},
      {"\n1\n2\n#\n3\n4\n", 4},
      {"#\n1\n2\n", 2},
      {"\n1\n#", 2},
      {"\n" + std::string(20'000, '5') + "\n", 2},
      {"\n1\n" + std::string(1, '\0') + "\n3\n", 2},
      {Repeated("1\t0\t1\t2\t3\n", 1000), 1000},
  };
  for (const auto& example : cases) {
    const std::string bytes = kHeader + example.frames;
    EXPECT_EQ(OutlineOf(bytes).Frames(), example.expected) << example.frames.substr(0, 40);
    EXPECT_EQ(OutlineByLines(bytes).Frames(), example.expected) << example.frames.substr(0, 40);
    EXPECT_EQ(FramesRead(bytes), example.expected) << example.frames.substr(0, 40);
  }
}

TEST(TRCOutlinerTest, KeepsTheHeader) {
  const struct {
    std::string bytes;
    std::string expected;
  } cases[] = {{kHeader + "\n1\t0\n", kHeader}, {kHeader + "1\t0\n", kHeader}, {kHeader, kHeader},
               {"a poem\n", "a poem\n"},        {"a poem", "a poem"},          {"", ""}};
  for (const auto& example : cases) {
    EXPECT_EQ(OutlineOf(example.bytes).Header(), example.expected);
    EXPECT_EQ(OutlineByLines(example.bytes).Header(), example.expected);
    MemorySource source(example.bytes);
    EXPECT_EQ(TrcHeaderOf(source), example.expected);
  }
}

TEST(TRCOutlinerTest, TakesNoMoreForTheHeaderThanAllOfTheFileShows) {
  const std::string long_name(20'000, 'x');
  for (const std::string& start : {std::string("#\nlost\n"), std::string("#\n"), long_name + "\n",
                                   std::string("a\nb\nc\nd\n#\nlost\n"), kHeader + "#\n"}) {
    const std::string bytes = start + kHeader + "\n1\t0\t1\t2\t3\n2\t0\n";
    MemorySource source(bytes);
    EXPECT_EQ(TrcHeaderOf(source), OutlineOf(bytes).Header()) << start.substr(0, 40);
  }
}

TEST(TRCOutlinerTest, FindsTheFirstFrameHoweverFarItIs) {
  for (const std::size_t blocks : {0U, 1U, 5U}) {
    const std::string far(blocks * 16 * 1024, '#');
    const std::string bytes =
        far + (far.empty() ? "" : "\nlost\n") + kHeader + "\n7\t0.5\t1\n8\t1\n";
    MemorySource source(bytes);
    EXPECT_EQ(TrcFirstFrameOf(source), OutlineOf(bytes).FirstFrame());
  }
  MemorySource none(kHeader);
  EXPECT_EQ(TrcFirstFrameOf(none), "");
}

TEST(TRCOutlinerTest, HeaderMakesADocumentWithMarkersAndWithoutFrames) {
  const std::string bytes = kHeader + "\n1\t0\t1\t2\t3\n";
  TRCDocument document;
  EXPECT_EQ(document.ReadBytes(OutlineOf(bytes).Header(), false), "");
  EXPECT_EQ(document.MarkerCount(), 2u);
  EXPECT_EQ(document.NumFrames(), 7);
}

}  // namespace
}  // namespace orvane
