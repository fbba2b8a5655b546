#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>
#include <cstdarg>
#include <set>
#include <string>

#include "platform/input_file.h"
#include "platform/output_file.h"
#include "platform/scratch_folder.h"
#include "platform/side_by_side.h"
#include "tests/support/files.h"
#include "tests/support/temporary_folder.h"

// A signal may come in the middle of any call of the system's, which then has to be made again. The
// functions here take the place of the C library's in this program, and fail so every other time.

namespace {

std::set<std::string> interrupted;  // what has failed so far
bool interrupts = false;
bool is_second_time = false;

bool Interrupts(const char* call) {
  if (!interrupts) return false;
  is_second_time = !is_second_time;
  if (!is_second_time) return false;
  interrupted.insert(call);
  errno = EINTR;
  return true;
}

}  // namespace

extern "C" {

int open(const char* path, int flags, ...) {
  va_list rest;
  va_start(rest, flags);
  const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(rest, mode_t) : 0;
  va_end(rest);
  if (Interrupts("open")) return -1;
  return static_cast<int>(syscall(SYS_openat, AT_FDCWD, path, flags, mode));
}

ssize_t write(int file, const void* bytes, size_t size) {
  if (Interrupts("write")) return -1;
  return syscall(SYS_write, file, bytes, size);
}

ssize_t read(int file, void* bytes, size_t size) {
  if (Interrupts("read")) return -1;
  return syscall(SYS_read, file, bytes, size);
}

int fsync(int file) {
  if (Interrupts("fsync")) return -1;
  return static_cast<int>(syscall(SYS_fsync, file));
}

}  // extern "C"

namespace {

class InterruptedCallsTest : public testing::Test {
 protected:
  InterruptedCallsTest() {
    interrupts = true;
    is_second_time = false;
  }
  ~InterruptedCallsTest() override { interrupts = false; }

  static void ExpectInterrupted(const std::set<std::string>& calls) {
    EXPECT_EQ(interrupted, calls);
    interrupted.clear();
  }

  test::TemporaryFolder folder_;
};

TEST_F(InterruptedCallsTest, AnOutputIsWrittenAllTheSame) {
  platform::OutputFile file(folder_.File("scene.glb"), false);
  EXPECT_EQ(file.Write("bytes"), "");
  EXPECT_EQ(file.Deliver(), "");
  ExpectInterrupted({"open", "write", "fsync"});
  interrupts = false;
  EXPECT_EQ(test::ReadFile(folder_.File("scene.glb")), "bytes");
}

TEST_F(InterruptedCallsTest, AnOutputIsTakenOverAllTheSame) {
  interrupts = false;
  const std::string made = folder_.Write("made", "bytes");
  interrupts = true;
  platform::OutputFile file(folder_.File("scene.glb"), false);
  EXPECT_EQ(file.TakeOver(made), "");
  EXPECT_EQ(file.Deliver(), "");
  ExpectInterrupted({"open", "fsync"});
}

TEST_F(InterruptedCallsTest, AFileIsReadableAllTheSame) {
  interrupts = false;
  const std::string path = folder_.Write("walk.htr", "bytes");
  interrupts = true;
  EXPECT_EQ(platform::WhyUnreadable(path), "");
  ExpectInterrupted({"open"});
}

TEST_F(InterruptedCallsTest, AFolderIsHeldAllTheSame) {
  const platform::ScratchFolder folder(folder_.Path().string());
  EXPECT_EQ(folder.Error(), "");
  EXPECT_EQ(std::filesystem::path(folder.Path()).filename(),
            "~orvane-folder-" + std::to_string(getpid()) + "-0");
  ExpectInterrupted({"open"});
}

TEST_F(InterruptedCallsTest, PiecesOfWorkArriveAllTheSame) {
  platform::SideBySide pieces;
  pieces.work = [](std::size_t index) { return std::string(100'000, index == 0 ? 'a' : 'b'); };
  const auto results = platform::RunSideBySide(2, 2, pieces);
  EXPECT_EQ(results[0], std::string(100'000, 'a'));
  EXPECT_EQ(results[1], std::string(100'000, 'b'));
  ExpectInterrupted({"read"});  // those of the other processes are their own
}

}  // namespace
