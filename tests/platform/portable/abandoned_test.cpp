#include "platform/abandoned.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include "tests/support/files.h"
#include "tests/support/temporary_folder.h"

// What is removed for being left by a process that is gone, as far as it shows in owners, modes,
// links and locks.

namespace {

using platform::RemoveAbandonedFiles;
using platform::RemoveAbandonedFolders;
using testing::ElementsAre;
using testing::IsEmpty;

// Above the greatest number that a process has.
constexpr char kGone[] = "4194305-0";

class AbandonedTest : public testing::Test {
 protected:
  std::string MakeFile(const std::string& numbers, mode_t mode = 0644) const {
    const std::string path = folder_.Write(".orvane-" + numbers, "half a scene");
    chmod(path.c_str(), mode);
    return path;
  }
  std::string MakeFolder(const std::string& numbers, mode_t mode = 0700) const {
    const std::string path = folder_.File("~orvane-folder-" + numbers);
    mkdir(path.c_str(), mode);
    chmod(path.c_str(), mode);
    folder_.Write("~orvane-folder-" + numbers + "/half", "");
    return path;
  }

  static int Hold(const std::string& path) {
    const int file = open(path.c_str(), O_RDONLY | O_CLOEXEC);
    EXPECT_EQ(flock(file, LOCK_EX | LOCK_NB), 0);
    return file;
  }

  std::vector<std::string> NamesLeft() const {
    RemoveAbandonedFiles(folder_.Path().string());
    RemoveAbandonedFolders(folder_.Path().string());
    return test::NamesIn(folder_.Path());
  }

  test::TemporaryFolder folder_;
};

TEST_F(AbandonedTest, IsRemovedOfAProcessThatIsGone) {
  MakeFile(kGone);
  MakeFolder(kGone);
  EXPECT_THAT(NamesLeft(), IsEmpty());
}

// An earlier process had its number.
TEST_F(AbandonedTest, IsRemovedOfThisProcessWhenNobodyHoldsIt) {
  MakeFile(std::to_string(getpid()) + "-1000");
  MakeFolder(std::to_string(getpid()) + "-1000");
  EXPECT_THAT(NamesLeft(), IsEmpty());
}

TEST_F(AbandonedTest, IsKeptOfAProcessThatIsAlive) {
  for (const pid_t process : {getppid(), pid_t{1}}) {
    MakeFile(std::to_string(process) + "-0");
    MakeFolder(std::to_string(process) + "-0");
  }
  const std::vector<std::string> names = test::NamesIn(folder_.Path());
  EXPECT_EQ(NamesLeft(), names);
}

// Of another machine, or another container, whose processes have numbers of their own.
TEST_F(AbandonedTest, IsKeptWhileSomebodyHoldsItsLock) {
  const int file = Hold(MakeFile(kGone));
  const int folder = Hold(MakeFolder(kGone));
  EXPECT_THAT(NamesLeft(), ElementsAre(".orvane-4194305-0", "~orvane-folder-4194305-0"));
  close(file);
  close(folder);
  EXPECT_THAT(NamesLeft(), IsEmpty());
}

TEST_F(AbandonedTest, IsKeptWithAModeThatItsProcessDidNotGive) {
  MakeFile(kGone, 0444);
  MakeFolder(kGone, 0755);
  EXPECT_THAT(NamesLeft(), ElementsAre(".orvane-4194305-0", "~orvane-folder-4194305-0"));
}

TEST_F(AbandonedTest, IsKeptOfAnotherUser) {
  constexpr uid_t kNobody = 65534;
  for (const std::string& path : {MakeFile(kGone), MakeFolder(kGone)}) {
    if (chown(path.c_str(), kNobody, static_cast<gid_t>(-1)) != 0) {
      GTEST_SKIP() << "files cannot be given away here";
    }
  }
  EXPECT_THAT(NamesLeft(), ElementsAre(".orvane-4194305-0", "~orvane-folder-4194305-0"));
}

TEST_F(AbandonedTest, IsKeptUnderASecondName) {
  const std::string path = MakeFile(kGone);
  ASSERT_EQ(link(path.c_str(), folder_.File("mine").c_str()), 0);
  EXPECT_THAT(NamesLeft(), ElementsAre(".orvane-4194305-0", "mine"));
}

TEST_F(AbandonedTest, IsKeptAsASymbolicLink) {
  const test::TemporaryFolder elsewhere;
  std::filesystem::permissions(elsewhere.Path(), std::filesystem::perms::owner_all);
  std::filesystem::create_directory_symlink(elsewhere.Path(),
                                            folder_.File("~orvane-folder-4194305-0"));
  std::filesystem::create_symlink(elsewhere.Write("file", ""), folder_.File(".orvane-4194305-0"));
  EXPECT_THAT(NamesLeft(), ElementsAre(".orvane-4194305-0", "~orvane-folder-4194305-0"));
  EXPECT_THAT(test::NamesIn(elsewhere.Path()), ElementsAre("file"));
}

}  // namespace
