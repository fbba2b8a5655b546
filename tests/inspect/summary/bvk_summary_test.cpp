#include "inspect/summary/bvk_summary.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <regex>
#include <string>

#include "formats/bvk/writer.h"
#include "tests/support/temporary_folder.h"

namespace orvane {
namespace {

std::string BvkText(const orvane::TRCDocument& document) {
  std::string text;
  PrintBvk(document, {"walk", "Wed Jun 30 21:49:08 1993\n", {}},
           [&text](std::string_view piece) { text += piece; });
  return text;
}

void Fill(orvane::TRCDocument& document, int frames) {
  document.SetNumFrames(frames);
  document.AddMarker(orvane::TRCMarker("DROPOUT"));
  orvane::TRCMarker* const marker = document.AddMarker(orvane::TRCMarker("Toe"));
  for (int frame = 0; frame < frames; frame += 2) {
    marker->AppendPosition(frame, 0, 0);
    marker->AppendDropout();
  }
}

TEST(SummarizeBvkTest, CountsFramesMarkersAndDropouts) {
  const test::TemporaryFolder folder;
  for (const int frames : {0, 2, 40'000}) {
    orvane::TRCDocument document;
    Fill(document, frames);
    const std::string path = folder.Write("walk.bvk", BvkText(document));
    const auto summary = SummarizeBvk(path);
    ASSERT_TRUE(summary) << frames;
    EXPECT_EQ(summary->frames, frames);
    EXPECT_EQ(summary->markers, 2);
    EXPECT_EQ(CountBvkDropouts(path), frames + frames / 2);
  }
}

TEST(SummarizeBvkTest, TakesAFileWithoutMarkers) {
  const test::TemporaryFolder folder;
  orvane::TRCDocument document;
  document.SetNumFrames(3);
  const auto summary = SummarizeBvk(folder.Write("walk.bvk", BvkText(document)));
  ASSERT_TRUE(summary);
  EXPECT_EQ(summary->frames, 3);
  EXPECT_EQ(summary->markers, 0);
}

// As text mode ends lines on some systems.
std::string WithCarriageReturns(const std::string& text) {
  return std::regex_replace(text, std::regex("\n"), "\r\n");
}

TEST(SummarizeBvkTest, ThrowsWhenItCannotReadOn) {
  const test::TemporaryFolder folder;
  std::ifstream stream(folder.Path());
  if (!stream) GTEST_SKIP() << "a folder cannot be opened here";
  stream.get();
  if (!stream.bad()) GTEST_SKIP() << "the C++ library takes what cannot be read for the end";
  EXPECT_THROW((void)SummarizeBvk(folder.Path().string()), std::ios_base::failure);
}

// Of two or more.
std::string WithoutLastFrame(const std::string& text) {
  return text.substr(0, text.rfind("\n\n", text.size() - 3) + 2);
}

TEST(SummarizeBvkTest, TakesALastFrameThatIsLongerThanWhatIsReadAtOnce) {
  const test::TemporaryFolder folder;
  orvane::TRCDocument document;
  document.SetNumFrames(2);
  for (int marker = 0; marker < 20'000; ++marker) {
    TRCMarker* const added = document.AddMarker(TRCMarker("m" + std::to_string(marker)));
    for (int frame = 0; frame < 2; ++frame) added->AppendPosition(marker, 1e15, 1e15);
  }
  const std::string text = BvkText(document);
  EXPECT_TRUE(SummarizeBvk(folder.Write("walk.bvk", text)));
  EXPECT_FALSE(SummarizeBvk(folder.Write("walk.bvk", text.substr(0, text.size() - 1))));
  EXPECT_FALSE(SummarizeBvk(folder.Write("walk.bvk", WithoutLastFrame(text))));
}

// Numbers go on below zero, and begin again from the lowest behind the highest.
TEST(SummarizeBvkTest, TakesFramesOfAllNumbers) {
  const test::TemporaryFolder folder;
  for (const std::int32_t first : {-3, 0, std::numeric_limits<std::int32_t>::max()}) {
    orvane::TRCDocument document;
    Fill(document, 4);
    document.SetFirstFrame(first);
    const std::string text = BvkText(document);
    EXPECT_TRUE(SummarizeBvk(folder.Write("walk.bvk", text))) << first;
    EXPECT_FALSE(SummarizeBvk(folder.Write("walk.bvk", WithoutLastFrame(text)))) << first;
  }
}

TEST(SummarizeBvkTest, TakesNoNameForAFrameOrADropout) {
  const test::TemporaryFolder folder;
  orvane::TRCDocument document;
  document.SetNumFrames(1);
  document.AddMarker(TRCMarker("1"))->AppendDropout();
  std::string text;
  PrintBvk(document, {"DROPOUT\t", "Wed Jun 30 21:49:08 1993\n", {}},
           [&text](std::string_view piece) { text += piece; });
  const std::string path = folder.Write("walk.bvk", text);
  EXPECT_TRUE(SummarizeBvk(path));
  EXPECT_EQ(CountBvkDropouts(path), 1);
}

TEST(SummarizeBvkTest, NoticesThatAFileIsNotWhole) {
  const test::TemporaryFolder folder;
  orvane::TRCDocument document;
  Fill(document, 4);
  for (const std::string& text : {BvkText(document), WithCarriageReturns(BvkText(document))}) {
    for (std::size_t length = 0; length < text.size(); ++length) {
      EXPECT_FALSE(SummarizeBvk(folder.Write("walk.bvk", text.substr(0, length)))) << length;
    }
    const std::string path = folder.Write("walk.bvk", text);
    const auto summary = SummarizeBvk(path);
    ASSERT_TRUE(summary);
    EXPECT_EQ(summary->frames, 4);
    EXPECT_EQ(CountBvkDropouts(path), 6);
  }
  EXPECT_FALSE(SummarizeBvk(folder.File("missing.bvk")));
}

}  // namespace
}  // namespace orvane
