#include "cli/batch_log_reader.h"

#include <gmock/gmock.h>

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
  const std::vector<std::string> sources = {"/a.trc", "/b.trc", "/c.trc"};
  EXPECT_THAT(MessagesIn("file: /a.trc done.\n/b.trc: It is broken\nfile: /b.trc done.\n"
                         "file: /c.trc done.\n",
                         sources),
              testing::ElementsAre("", "It is broken", ""));
  EXPECT_THAT(MessagesIn("file: /a.trc done.\n/b.trc: It is broken\n", sources),
              testing::ElementsAre(""));
  EXPECT_THAT(MessagesIn("", sources), testing::IsEmpty());
  EXPECT_THAT(ReadBatchLog("", sources), testing::IsEmpty());
}

TEST(ReadBatchLogTest, TakesNamesThatLookLikeTheLog) {
  const std::vector<std::string> sources = {"/x done.\nfile: .trc", "/50%done: .trc"};
  EXPECT_THAT(MessagesIn("file: /x done.\nfile: .trc done.\n/500one: .trc: It is broken\n"
                         "file: /50%done: .trc done.\n",
                         sources),
              testing::ElementsAre("", "It is broken"));
}

}  // namespace
}  // namespace cli
