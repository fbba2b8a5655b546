#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <string_view>

#include "formats/trc/document.h"
#include "tests/support/blocks.h"
#include "tests/support/replaced_text.h"
#include "tests/support/trc_text.h"

namespace orvane {
namespace {

// All that an observer is told, as text.
class Transcript final : public TRCReadObserver {
 public:
  void OnOddity(TRCOddity oddity, TRCPlace place, std::string_view text) override {
    Put("oddity " + std::to_string(static_cast<int>(oddity)), place, text);
  }
  void OnHeaderValue(TRCHeaderValue value, TRCPlace place, std::string_view text) override {
    Put("value " + std::to_string(static_cast<int>(value)), place, text);
  }
  void OnMarker(TRCPlace place, std::string_view name) override { Put("marker", place, name); }
  void OnHeaderLine(std::size_t number, const Line& line) override {
    Put("line " + std::to_string(number), {line.number, line.offset, 0}, line.text);
  }
  void OnLineThrownAway(const Line& line) override {
    Put("thrown away", {line.number, line.offset, 0}, line.text);
  }
  void OnFrame(TRCPlace place, const TRCRow& row) override {
    Put("frame", place, row.number);
    text_ << row.line.text << '|' << row.width.fields << ' ' << row.width.last_value;
    for (const double coordinate : row.coordinates) text_ << ' ' << coordinate;
    text_ << '\n';
  }
  void OnEnd(TRCPlace place) override { Put("end", place, {}); }

  std::string Text() const { return text_.str(); }

 private:
  void Put(const std::string& what, TRCPlace place, std::string_view text) {
    text_ << what << ' ' << place.line << ':' << place.column << ' ' << place.field << ' ' << text
          << '\n';
  }

  std::ostringstream text_;
};

std::string TextOf(const TRCDocument& document) {
  std::ostringstream text;
  text << std::hexfloat << document.Units() << ' ' << document.DataRate() << ' '
       << document.CameraRate() << ' ' << document.NumFrames() << ' ' << document.FirstFrame();
  for (const TRCMarker& marker : document.markers()) {
    text << '\n' << marker.Name() << ' ' << marker.SampleCount();
    for (const TRCMarker::Gap& gap : marker.Gaps()) text << ' ' << gap.begin << '-' << gap.end;
    for (std::size_t index = 0; index < marker.SampleCount(); ++index) {
      const double* const at = marker.PositionAt(index);
      if (at != nullptr) text << ' ' << at[0] << ' ' << at[1] << ' ' << at[2];
    }
  }
  return text.str();
}

std::string ReadWhole(const std::string& bytes) {
  TRCDocument document;
  Transcript transcript;
  const std::string message = document.ReadBytes(bytes, false, &transcript);
  return message + '\n' + TextOf(document) + '\n' + transcript.Text();
}

std::string ReadInBlocks(const std::string& bytes, std::size_t first, std::size_t size) {
  TRCDocument document;
  Transcript transcript;
  test::Blocks blocks(bytes, first, size);
  const std::string message = document.ReadFrom(blocks, false, &transcript);
  return message + '\n' + TextOf(document) + '\n' + transcript.Text();
}

test::TrcText Walk() {
  return {.markers = {"LFHD", "RFHD"},
          .frames = {{"1.5\t2.25\t-3", "4\t5\t6"}, {"", "7\t8\t9"}, {"10\t11\t12", ""}}};
}

std::string WithLineEnds(const std::string& line_end) {
  test::TrcText text = Walk();
  text.line_end = line_end;
  return text.Text();
}

struct Text {
  const char* name;
  std::string bytes;
};

class TrcBlocksTest : public testing::TestWithParam<Text> {};

// At each byte of the text, and with blocks of one byte each.
TEST_P(TrcBlocksTest, GiveWhatTheWholeGives) {
  const std::string& bytes = GetParam().bytes;
  const std::string whole = ReadWhole(bytes);
  for (std::size_t cut = 0; cut < bytes.size(); ++cut) {
    ASSERT_EQ(ReadInBlocks(bytes, cut, bytes.size()), whole) << "cut at " << cut;
  }
  EXPECT_EQ(ReadInBlocks(bytes, 1, 1), whole);
}

using namespace std::string_literals;

INSTANTIATE_TEST_SUITE_P(
    Texts, TrcBlocksTest,
    testing::Values(Text{"Empty", ""}, Text{"LineFeeds", WithLineEnds("\n")},
                    Text{"CarriageReturns", WithLineEnds("\r")}, Text{"Both", WithLineEnds("\r\n")},
                    Text{"SpareCarriageReturns", WithLineEnds("\r\r\r\n")},
                    Text{"BlankLines", WithLineEnds("\n\n")},
                    Text{"NoBreakAtTheEnd", WithLineEnds("\n") + "9\t0.1\t1\t2\t3"},
                    Text{"ReturnsAtTheEnd", WithLineEnds("\n") + "9\t0.1\t1\t2\t3\r\r"},
                    Text{"Nuls", WithLineEnds("\n") + "9\t0.1\t1\0\t2\t3\r\n9\0\n\0"s},
                    Text{"Comments", test::Replaced(WithLineEnds("\r\n"), "2\t0", "# 2\t0")},
                    Text{"ByteOrderMark", "\xEF\xBB\xBF" + WithLineEnds("\n")},
                    Text{"Refused", test::Replaced(WithLineEnds("\n"), "(X/Y/Z)", "(Y/X/Z)")},
                    Text{"NoMarkers",
                         test::Replaced(WithLineEnds("\n"), "LFHD\t\t\tRFHD\t\t\t", "")},
                    Text{"OddCells", WithLineEnds("\n") + "x\t\t1,5\t 2\t3e\t\t1\t\n"}),
    [](const auto& each) { return std::string(each.param.name); });

// Around the pieces that a long line is read in.
TEST(TrcBlocks, GiveThePiecesOfALongLine) {
  const std::string bytes =
      WithLineEnds("\n") + "9\t0.1\t1\t2\t3" + std::string(25'000, '\t') + "\r\n10\t0.2\t1\t2\t3\n";
  const std::string whole = ReadWhole(bytes);
  for (const std::size_t size : {1U, 7U, 255U, 4096U, 10239U, 10240U, 20'000U}) {
    EXPECT_EQ(ReadInBlocks(bytes, 0, size), whole) << size;
  }
}

// More than is read at once.
TEST(TrcBlocks, GiveLinesThatAreLongerThanABlock) {
  const std::string bytes = WithLineEnds("\r\n") + std::string(900'000, '\r') + "\n9\t0.1\t1\t2\t3";
  EXPECT_EQ(ReadInBlocks(bytes, 0, bytes.size()), ReadWhole(bytes));
}

}  // namespace
}  // namespace orvane
