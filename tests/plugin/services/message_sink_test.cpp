#include "plugin/services/message_sink.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "tests/support/desk.h"
#include "tests/support/log_place.h"

namespace orvane {
namespace {

TEST(MessageSinkTest, ReportShowsABoxWithAnOkButtonOnly) {
  test::Desk desk;
  MessageSink sink;
  sink.Report("The file could not be opened", "ImportHTR Error");
  ASSERT_EQ(desk.desktop().Messages().size(), 1U);
  const host::UserMessage& box = desk.desktop().Messages().front();
  EXPECT_EQ(box.text, "The file could not be opened");
  EXPECT_EQ(box.caption, "ImportHTR Error");
  EXPECT_EQ(box.style, platform::MessageBoxStyle::kOk);
}

TEST(MessageSinkTest, AskIsTrueExactlyWhenTheUserChoseYes) {
  test::Desk desk;
  MessageSink sink;
  EXPECT_TRUE(sink.Ask("Overwrite?", "ConvertBVK"));
  desk.Choose(platform::kMessageBoxNo);
  EXPECT_FALSE(sink.Ask("Overwrite?", "ConvertBVK"));
  ASSERT_EQ(desk.desktop().Messages().size(), 2U);
  EXPECT_EQ(desk.desktop().Messages().front().style, platform::MessageBoxStyle::kYesNo);
}

class MessageSinkLogTest : public testing::Test {
 protected:
  static std::string Log() { return TextOf(platform::LogFilePath()); }
  static std::string TextOf(const std::string& path) {
    std::ifstream file(path);
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
  }

  test::LogPlace place_;
};

TEST_F(MessageSinkLogTest, LogModeIsOffAtFirst) {
  test::Desk desk;
  MessageSink sink;
  sink.Report("Text", "Title");
  EXPECT_FALSE(std::filesystem::exists(platform::LogFilePath()));
}

TEST_F(MessageSinkLogTest, TheFileIsOpenedWithTheFirstMessage) {
  MessageSink sink;
  sink.SetLogMode(true);
  EXPECT_FALSE(std::filesystem::exists(platform::LogFilePath()));
  sink.Report("Text", "Title");
  EXPECT_TRUE(std::filesystem::exists(platform::LogFilePath()));
}

TEST_F(MessageSinkLogTest, ReportAppendsTitleTabTextAndShowsNothing) {
  test::Desk desk;
  MessageSink sink;
  sink.SetLogMode(true);
  sink.Report("The file could not be opened", "ImportHTR Error");
  EXPECT_EQ(Log(), "ImportHTR Error\tThe file could not be opened\n");
  EXPECT_TRUE(desk.desktop().Messages().empty());
}

TEST_F(MessageSinkLogTest, AskCountsAsYesAndLeavesExactlyOneLine) {
  test::Desk desk;
  desk.Choose(platform::kMessageBoxNo);
  MessageSink sink;
  sink.SetLogMode(true);
  EXPECT_TRUE(sink.Ask("Overwrite?", "ConvertBVK"));
  EXPECT_EQ(Log(), "ConvertBVK\tOverwrite?\n");
  EXPECT_TRUE(desk.desktop().Messages().empty());
}

TEST_F(MessageSinkLogTest, LinesAreAppendedToWhatTheFileHeld) {
  std::filesystem::create_directories(std::filesystem::path(platform::LogFilePath()).parent_path());
  std::ofstream(platform::LogFilePath()) << "an older line\n";
  MessageSink sink;
  sink.SetLogMode(true);
  sink.Report("one", "A");
  sink.Report("two", "B");
  EXPECT_EQ(Log(), "an older line\nA\tone\nB\ttwo\n");
}

TEST_F(MessageSinkLogTest, TheFileStaysOpenOnceItIs) {
  MessageSink sink;
  sink.SetLogMode(true);
  sink.Report("one", "A");
  const std::string path = place_.TakeAway();
  sink.Report("two", "B");
  EXPECT_EQ(TextOf(path), "A\tone\nB\ttwo\n");
}

TEST_F(MessageSinkLogTest, AnEmptyTitleLeavesALineThatBeginsWithTheTab) {
  MessageSink sink;
  sink.SetLogMode(true);
  sink.Report("text", "");
  EXPECT_EQ(Log(), "\ttext\n");
}

TEST_F(MessageSinkLogTest, ALogThatCannotBeOpenedLosesTheMessageSilently) {
  place_.Obstruct();
  test::Desk desk;
  MessageSink sink;
  sink.SetLogMode(true);
  sink.Report("text", "title");
  EXPECT_TRUE(sink.Ask("question", "title"));
  EXPECT_TRUE(desk.desktop().Messages().empty());
}

TEST_F(MessageSinkLogTest, SwitchedOffAgainItShowsMessages) {
  test::Desk desk;
  MessageSink sink;
  sink.SetLogMode(true);
  sink.Report("logged", "T");
  sink.SetLogMode(false);
  sink.Report("shown", "T");
  EXPECT_EQ(Log(), "T\tlogged\n");
  EXPECT_EQ(desk.Messages(), "T: shown\n");
}

}  // namespace
}  // namespace orvane
