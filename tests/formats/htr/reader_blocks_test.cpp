#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
#include <string>
#include <string_view>

#include "formats/htr/reader.h"
#include "tests/support/blocks.h"
#include "tests/support/htr_text.h"

namespace orvane {
namespace {

// All that an observer is told, as text.
class Transcript final : public HtrReadObserver {
 public:
  void OnOddity(HtrOddity oddity, const HtrCell& cell, std::string_view field) override {
    Put("oddity " + std::to_string(static_cast<int>(oddity)) + ' ' + std::string(field), cell);
  }
  void OnSection(HtrSection section, const HtrCell& name) override {
    Put("section " + std::to_string(static_cast<int>(section)), name);
  }
  void OnHeaderField(const HtrCell& keyword, const HtrCell& value) override {
    Put("keyword", keyword);
    Put("value", value);
  }
  void OnSegment(const HtrCell& name, const HtrCell& parent) override {
    Put("segment", name);
    Put("parent", parent);
  }
  void OnBasePosition(const HtrCell& name) override { Put("base", name); }
  void OnFrame(const HtrCell& number) override { Put("frame", number); }
  void OnEnd(const HtrCell& end) override { Put("end", end); }

  std::string Text() const { return text_.str(); }

 private:
  void Put(const std::string& what, const HtrCell& cell) {
    text_ << what << ' ' << cell.line << ':' << cell.column << ' ' << cell.text << '\n';
  }

  std::ostringstream text_;
};

std::string TextOf(const HtrDocument& document) {
  std::ostringstream text;
  text << std::hexfloat << document.GetNumFrames() << ' ' << document.GetDataFrameRate() << ' '
       << document.GetCalibrationUnits() << ' ' << document.GetRotationUnits() << ' '
       << document.GetStartFrame() << ' ' << document.GetScaleFactor();
  for (const HtrSegment& segment : document.segments()) {
    const HtrSegment* const parent = segment.GetParent();
    text << '\n' << segment.GetName() << ' ' << (parent == nullptr ? "-" : parent->GetName());
    const Vector3 base = segment.GetBaseTranslation();
    text << ' ' << base.x() << ' ' << base.y() << ' ' << base.z() << ' ' << segment.GetBoneLength();
    for (std::size_t frame = 0; frame < segment.GetNumFrames(); ++frame) {
      const Vector3 at = segment.GetFrameTranslation(frame);
      const EulerRotation turned = segment.GetFrameRotation(frame);
      text << ' ' << at.x() << ' ' << at.y() << ' ' << at.z() << ' ' << turned[0] << ' '
           << turned[1] << ' ' << turned[2] << ' ' << segment.GetFrameScale(frame);
    }
  }
  return text.str();
}

std::string ReadWhole(const std::string& bytes, bool read_motion) {
  HtrDocument document;
  Transcript transcript;
  const std::string message = ReadHtrBytes(document, bytes, read_motion, &transcript);
  return message + '\n' + TextOf(document) + '\n' + transcript.Text();
}

std::string ReadInBlocks(const std::string& bytes, bool read_motion, std::size_t first,
                         std::size_t size) {
  HtrDocument document;
  Transcript transcript;
  test::Blocks blocks(bytes, first, size);
  const std::string message = ReadHtrFrom(document, blocks, read_motion, &transcript);
  return message + '\n' + TextOf(document) + '\n' + transcript.Text();
}

// At each byte of the text, and with blocks of one byte each.
void ExpectTheSameOfBlocks(const std::string& bytes) {
  for (const bool read_motion : {true, false}) {
    const std::string whole = ReadWhole(bytes, read_motion);
    for (std::size_t cut = 0; cut < bytes.size(); ++cut) {
      ASSERT_EQ(ReadInBlocks(bytes, read_motion, cut, bytes.size()), whole) << "cut at " << cut;
    }
    EXPECT_EQ(ReadInBlocks(bytes, read_motion, 1, 1), whole);
  }
}

TEST(HtrBlocks, OfTheFixturesGiveWhatTheWholeGives) {
  const std::filesystem::path folder = std::string(ORVANE_SOURCE_DIR) + "/tests/data/htr";
  std::size_t count = 0;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    SCOPED_TRACE(entry.path().string());
    std::ifstream file(entry.path(), std::ios::binary);
    ExpectTheSameOfBlocks({std::istreambuf_iterator<char>(file), {}});
    ++count;
  }
  EXPECT_GT(count, 20U);
}

struct Text {
  const char* name;
  std::string bytes;
};

class HtrBlocksTest : public testing::TestWithParam<Text> {};

TEST_P(HtrBlocksTest, GiveWhatTheWholeGives) { ExpectTheSameOfBlocks(GetParam().bytes); }

std::string Walk() {
  return test::HtrText{.segments = {{.name = "Hips", .frames = {"1 2 3 4 5 6", "7 8 9 10 11 12"}},
                                    {.name = "Chest", .parent = "Hips", .frames = {"1 2 3 4 5 6"}}}}
      .Text();
}

using namespace std::string_literals;

INSTANTIATE_TEST_SUITE_P(
    Texts, HtrBlocksTest,
    testing::Values(Text{"Empty", ""}, Text{"Walk", Walk()},
                    Text{"BehindTheEnd", Walk() + "# nothing\r\n\r\nsomething\n more"},
                    Text{"NoBreakAtTheEnd", Walk() + "[Hips]\n1 1 2 3 4 5 6 7\r\r"},
                    Text{"Nuls", Walk() + "a\0b\n\0"s},
                    Text{"ByteOrderMark", "\xEF\xBB\xBF" + Walk()},
                    Text{"CarriageReturns", "[Header]\rNumSegments 1\r[EndOfFile]\r"}),
    [](const auto& each) { return std::string(each.param.name); });

}  // namespace
}  // namespace orvane
