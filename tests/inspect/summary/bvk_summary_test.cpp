#include "inspect/summary/bvk_summary.h"

#include <gtest/gtest.h>

#include <regex>

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
    const auto summary = SummarizeBvk(folder.Write("walk.bvk", BvkText(document)));
    ASSERT_TRUE(summary) << frames;
    EXPECT_EQ(summary->frames, frames);
    EXPECT_EQ(summary->markers, 2);
    EXPECT_EQ(summary->dropouts, frames + frames / 2);
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

TEST(SummarizeBvkTest, NoticesThatAFileIsNotWhole) {
  const test::TemporaryFolder folder;
  orvane::TRCDocument document;
  Fill(document, 4);
  for (const std::string& text : {BvkText(document), WithCarriageReturns(BvkText(document))}) {
    for (std::size_t length = 0; length < text.size(); ++length) {
      EXPECT_FALSE(SummarizeBvk(folder.Write("walk.bvk", text.substr(0, length)))) << length;
    }
    const auto summary = SummarizeBvk(folder.Write("walk.bvk", text));
    ASSERT_TRUE(summary);
    EXPECT_EQ(summary->frames, 4);
    EXPECT_EQ(summary->dropouts, 6);
  }
  EXPECT_FALSE(SummarizeBvk(folder.File("missing.bvk")));
}

}  // namespace
}  // namespace orvane
