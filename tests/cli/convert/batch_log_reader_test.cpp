#include "cli/convert/batch_log_reader.h"

#include <gmock/gmock.h>

#include <filesystem>

#include "platform/path_text.h"

namespace cli {
namespace {

constexpr char kHeader[] =
    "Orvane OrvaneFileIO TRC to BVK Batch Conversion Log\n"
    "Wed Jun 30 21:49:08 1993\n"
    "Processing 3 files...\n";

std::vector<std::string> MessagesIn(const std::string& files,
                                    const std::vector<std::string>& sources) {
  std::vector<std::string> messages;
  for (const LoggedFile& file : ReadBatchLog(kHeader + files, sources)) {
    messages.push_back(file.message);
  }
  return messages;
}

TEST(ReadBatchLogTest, TellsWhichFilesWereHandledAndWhatWasSaidOfThem) {
  const std::vector<std::string> sources = {"/t/a.trc", "/t/b.trc", "/t/c.trc"};
  EXPECT_THAT(MessagesIn("file: /t/a.trc done.\n/t/b.trc: It is broken\nfile: /t/b.trc done.\n"
                         "file: /t/c.trc done.\n",
                         sources),
              testing::ElementsAre("", "It is broken", ""));
  EXPECT_THAT(MessagesIn("file: /t/a.trc done.\n/t/b.trc: It is broken\n", sources),
              testing::ElementsAre(""));
  EXPECT_THAT(MessagesIn("", sources), testing::IsEmpty());
  EXPECT_THAT(ReadBatchLog("", sources), testing::IsEmpty());
}

TEST(ReadBatchLogTest, TakesNamesThatLookLikeTheLog) {
  const std::vector<std::string> sources = {"/t/x done.\nfile: .trc", "/t/50%done: .trc"};
  EXPECT_THAT(MessagesIn("file: /t/x done.\nfile: .trc done.\n/t/500one: .trc: It is broken\n"
                         "file: /t/50%done: .trc done.\n",
                         sources),
              testing::ElementsAre("", "It is broken"));
}

// The plug-in gives up at the first file here, so that no log goes on like this.
TEST(ReadBatchLogTest, TakesNoFileForDoneBecauseOfAnothersName) {
  const std::vector<std::string> sources = {"/t/a.trc", "/t/b: x\nfile: /t/a.trc done.\n.trc"};
  const std::string done = "file: " + sources[1] + " done.\n";
  EXPECT_THAT(MessagesIn(done, sources), testing::IsEmpty());
  EXPECT_THAT(MessagesIn(sources[1] + ": It is broken\n" + done, sources), testing::IsEmpty());
}

// Where several are chosen, a separator stands between folder and name whatever the folder ends in.
TEST(ReadBatchLogTest, KnowsFilesInTheRootOfADisk) {
  const std::filesystem::path root = std::filesystem::current_path().root_path();
  const std::string folder = platform::TextOf(root);
  const std::string twice = folder + static_cast<char>(std::filesystem::path::preferred_separator);
  const std::vector<std::string> sources = {folder + "a.trc", folder + "b.trc"};
  EXPECT_THAT(MessagesIn("file: " + twice + "a.trc done.\n" + twice + "b.trc: It is broken\n" +
                             "file: " + twice + "b.trc done.\n",
                         sources),
              testing::ElementsAre("", "It is broken"));
  EXPECT_THAT(MessagesIn("file: " + sources[0] + " done.\n", {sources[0]}),
              testing::ElementsAre(""));
}

}  // namespace
}  // namespace cli
