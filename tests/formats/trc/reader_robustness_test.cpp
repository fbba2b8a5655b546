#include <gtest/gtest.h>

#include <cstddef>
#include <random>
#include <string>
#include <vector>

#include "formats/trc/document.h"
#include "formats/trc/document_checker.h"
#include "tests/support/trc_text.h"

// Whatever the bytes, reading ends, stays inside them, and leaves a sound document.
namespace orvane {
namespace {

using test::TrcText;

class Listener : public TRCReadObserver {
 public:
  void OnOddity(TRCOddity, TRCPlace, std::string_view text) override { heard += text.size(); }
  std::size_t heard = 0;
};

std::string GoodFile() {
  TrcText text{.markers = {"LFHD", "Unnamed 1", "RFHD"},
               .frames = {{"1.5\t-2\t3e1", "", "4\t5\t6"}, {"", "7\t8\t9", "1\t1\t1"}}};
  text.line_end = "\r\n";
  return text.Text();
}

// Reads a copy of exactly that size, so that the sanitizers see a read past its end.
std::string ReadBothWays(const std::string& bytes) {
  TRCDocument document;
  Listener listener;
  const std::vector<char> exact(bytes.begin(), bytes.end());
  std::string message;
  for (const bool include_unnamed : {true, false}) {
    message = document.ReadBytes({exact.data(), exact.size()}, include_unnamed, &listener);
    if (message.empty()) {
      EXPECT_EQ(FindFault(document), "");
    }
  }
  return message;
}

TEST(TRCRobustness, SurvivesAFileCutAtEveryByte) {
  const std::string good = GoodFile();
  ASSERT_EQ(ReadBothWays(good), "");
  for (std::size_t size = 0; size < good.size(); ++size) ReadBothWays(good.substr(0, size));
}

TEST(TRCRobustness, SurvivesEveryByteReplaced) {
  const std::string good = GoodFile();
  for (std::size_t at = 0; at < good.size(); ++at) {
    for (const char replacement : {'\0', '\n', '\r', ' ', '\t', '#', '-', 'e', '9', '\xff'}) {
      std::string bad = good;
      bad[at] = replacement;
      ReadBothWays(bad);
    }
  }
}

TEST(TRCRobustness, SurvivesEveryByteLeftOutOrDoubled) {
  const std::string good = GoodFile();
  for (std::size_t at = 0; at < good.size(); ++at) {
    ReadBothWays(good.substr(0, at) + good.substr(at + 1));
    ReadBothWays(good.substr(0, at) + good[at] + good.substr(at));
  }
}

TEST(TRCRobustness, SurvivesNoise) {
  std::mt19937_64 random(13);
  std::uniform_int_distribution<int> byte(0, 255);
  const TrcText text{.markers = {"a", "b"}};
  for (int round = 0; round < 200; ++round) {
    std::string noise(4000, ' ');
    for (char& character : noise) character = static_cast<char>(byte(random));
    ReadBothWays(noise);
    ReadBothWays("PathFileType\t4\t(X/Y/Z)\t" + noise);
    ReadBothWays(text.Text() + noise);
  }
}

TEST(TRCRobustness, SurvivesShuffledLinesOfAGoodFile) {
  std::mt19937_64 random(14);
  const std::string good = GoodFile();
  std::vector<std::string> lines;
  for (std::size_t at = 0; at < good.size();) {
    const std::size_t end = good.find('\n', at) + 1;
    lines.push_back(good.substr(at, end - at));
    at = end;
  }
  for (int round = 0; round < 500; ++round) {
    std::string bytes = lines.front();
    for (int count = 0; count < 20; ++count) bytes += lines[random() % lines.size()];
    ReadBothWays(bytes);
  }
}

// None of these may take memory or time out of proportion to the file.

// As many markers as the longest line of names holds.
TrcText ManyMarkers() {
  TrcText text;
  for (int index = 0; index < 1200; ++index) text.markers.push_back("m" + std::to_string(index));
  return text;
}

TEST(TRCRobustness, KeepsBlankLinesOfManyMarkersSmall) {
  // As lists of samples these would take 70 GB.
  const std::size_t lines = std::size_t{2} << 20;
  std::string bytes = ManyMarkers().Text() + std::string(lines, '\n') + "1\t0";
  for (int marker = 0; marker < 1000; ++marker) bytes += "\t1\t1\t1";
  EXPECT_EQ(ReadBothWays(bytes), "");
}

TEST(TRCRobustness, ReservesNoMoreThanAFileCanHold) {
  TrcText text = ManyMarkers();
  text.frame_count = 2147483647;
  EXPECT_EQ(ReadBothWays(text.Text() + "1\t0\t1\t2\t3\n"), "");
}

TEST(TRCRobustness, ReadsHugeLinesInLinearTime) {
  const std::size_t size = std::size_t{4} << 20;
  for (const char filling : {'x', '\t', '\r', '\n', '#', '\0', '9'}) {
    ReadBothWays(TrcText{.markers = {"a"}}.Text() + std::string(size, filling));
    ReadBothWays(std::string(size, filling));
  }
}

TEST(TRCRobustness, ReadsManyAlternatingDropoutsInLinearTime) {
  std::string bytes = TrcText{.markers = {"a"}}.Text();
  for (int frame = 0; frame < 200000; ++frame) bytes += "1\t0\t\n1\t0\t1\n";
  TRCDocument document;
  ASSERT_EQ(document.ReadBytes(bytes, false), "");
  EXPECT_EQ(FindFault(document), "");
  double x = 0;
  double y = 0;
  double z = 0;
  int present = 0;
  for (std::size_t index = 0; index < 400000; ++index) {
    present += document.MarkerAt(0)->GetSample(index, x, y, z) ? 1 : 0;
  }
  EXPECT_EQ(present, 200000);
}

}  // namespace
}  // namespace orvane
