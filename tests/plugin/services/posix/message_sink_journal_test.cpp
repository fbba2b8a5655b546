#include <gtest/gtest.h>

#include "platform/log_file.h"
#include "plugin/services/message_sink.h"
#include "tests/support/log_place.h"
#include "tests/support/posix/journal/journal_stage.h"

// What the message sink does with messages and questions, on the screen and in the log.

namespace orvane {
namespace {

void Expect(const std::string& name, const test::JournalLines& lines) {
  test::ExpectJournal(ORVANE_SOURCE_DIR "/tests/plugin/services/posix/journals/" + name + ".txt",
                      lines);
}

TEST(MessageSinkJournal, ScreenAndLog) {
  const test::LogPlace place;
  test::JournalStage stage;
  stage.journal.WatchText(platform::LogFilePath(), "the log file");
  MessageSink sink;
  sink.Report("A message", "ImportHTR Error");
  stage.journal.Note("answer ", sink.Ask("A question?", "Title"));
  for (const bool log_mode : {true, false}) {
    sink.SetLogMode(log_mode);
    stage.journal.Note("log mode ", log_mode);
    sink.Report("Another message", "ImportHTR Error");
    stage.journal.Note("reported");
    stage.journal.Note("answer ", sink.Ask("Another question?", ""));
  }
  Expect("messages", stage.journal.Take());
}

}  // namespace
}  // namespace orvane
