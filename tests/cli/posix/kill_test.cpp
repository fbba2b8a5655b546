#include <poll.h>
#include <sys/inotify.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <csignal>
#include <cstring>
#include <iostream>
#include <random>
#include <thread>

#include "tests/cli/orvane_test.h"
#include "tests/support/posix/program.h"

// The program killed at any moment, which it cannot do anything about.

namespace {

using testing::ElementsAre;
using Clock = std::chrono::steady_clock;
using Microseconds = std::chrono::microseconds;

// Tells when something happens to files in a folder.
class FolderWatch {
 public:
  explicit FolderWatch(const std::string& folder) : events_(inotify_init1(IN_CLOEXEC)) {
    inotify_add_watch(events_, folder.c_str(), IN_CREATE | IN_MOVED_TO);
  }
  ~FolderWatch() { close(events_); }
  FolderWatch(const FolderWatch&) = delete;
  FolderWatch& operator=(const FolderWatch&) = delete;

  // Waits until `what` (IN_CREATE or IN_MOVED_TO) has happened to a file. Returns false when it
  // does not for as long as no program here runs.
  bool WaitFor(std::uint32_t what) const {
    constexpr int kLongest_ms = 10'000;
    pollfd waiting{events_, POLLIN, 0};
    while (poll(&waiting, 1, kLongest_ms) > 0) {
      alignas(inotify_event) std::array<char, 4096> buffer;
      const ssize_t size = read(events_, buffer.data(), buffer.size());
      for (ssize_t at = 0; at < size;) {
        inotify_event event;
        std::memcpy(&event, buffer.data() + at, sizeof event);
        if ((event.mask & what) != 0) return true;
        at += static_cast<ssize_t>(sizeof event + event.len);
      }
    }
    return false;
  }

 private:
  int events_;
};

// What moments are counted from.
enum class Start { kOfTheProgram, kOfTheWriting, kOfTheNewFile };

class KillTest : public test::OrvaneTest {
 protected:
  struct Times {
    Microseconds whole;    // of the program
    Microseconds writing;  // from the first byte of the file until it has its name
  };

  test::PosixRun Import(const std::vector<std::string>& flags = {}) const {
    std::vector<std::string> arguments = {"import", ORVANE_SOURCE_DIR "/examples/walk.htr", "-o",
                                          "scene.glb", "--force"};
    arguments.insert(arguments.end(), flags.begin(), flags.end());
    return {Command(arguments)};
  }

  std::string SceneOf(const std::vector<std::string>& flags) const {
    EXPECT_EQ(RunProgram(Import(flags)).status, 0);
    return Read("scene.glb");
  }

  // What an import takes that nobody disturbs.
  Times TimeOne() const {
    const FolderWatch watch(folder_.Path().string());
    Clock::time_point created;
    Clock::time_point moved;
    test::PosixRun run = Import();
    run.meanwhile = [&](int /*process*/) {
      EXPECT_TRUE(watch.WaitFor(IN_CREATE));
      created = Clock::now();
      EXPECT_TRUE(watch.WaitFor(IN_MOVED_TO));
      moved = Clock::now();
    };
    const Clock::time_point start = Clock::now();
    EXPECT_EQ(RunProgram(run).status, 0);
    return {std::chrono::duration_cast<Microseconds>(Clock::now() - start),
            std::chrono::duration_cast<Microseconds>(moved - created)};
  }

  Times ShortestTimes() const {
    Times shortest = TimeOne();
    for (int i = 0; i < 5; ++i) {
      const Times times = TimeOne();
      shortest = {std::min(shortest.whole, times.whole), std::min(shortest.writing, times.writing)};
    }
    return shortest;
  }

  // Kills an import so long after `start`. Returns false when it has ended before.
  bool Kill(Start start, Microseconds delay) const {
    const FolderWatch watch(folder_.Path().string());
    test::PosixRun run = Import();
    run.meanwhile = [&](int process) {
      if (start == Start::kOfTheWriting) watch.WaitFor(IN_CREATE);
      if (start == Start::kOfTheNewFile) watch.WaitFor(IN_MOVED_TO);
      std::this_thread::sleep_for(delay);
      kill(process, SIGKILL);
    };
    return RunProgram(run).status == 128 + SIGKILL;
  }
};

TEST_F(KillTest, LeavesTheOldFileOrTheNewOneWhole) {
  constexpr int kKills = 200;
  const std::string old_scene = SceneOf({"--scale", "2"});
  const std::string new_scene = SceneOf({});
  ASSERT_NE(old_scene, new_scene);
  const Times times = ShortestTimes();

  std::mt19937_64 random(20260311);
  const auto moment = [&](Microseconds longest) {
    return Microseconds(std::uniform_int_distribution<std::int64_t>(0, longest.count())(random));
  };
  int kills = 0;
  int old_scenes = 0;
  int new_scenes = 0;
  for (int import = 0; kills < kKills; ++import) {
    ASSERT_LT(import, 5 * kKills) << "most imports end before they are killed";
    Write("scene.glb", old_scene);
    const auto start = static_cast<Start>(import % 3);
    const Microseconds longest[] = {times.whole, times.writing, Microseconds(0)};
    kills += Kill(start, moment(longest[import % 3]));
    const std::string left = Read("scene.glb");
    ASSERT_TRUE(left == old_scene || left == new_scene) << "after import number " << import;
    ++(left == new_scene ? new_scenes : old_scenes);
  }
  EXPECT_GT(new_scenes, 0);
  EXPECT_GT(old_scenes, 0);
  std::cout << kills << " kills; afterwards " << old_scenes << " old scenes, " << new_scenes
            << " new ones, " << Names().size() - 1 << " files beside the scene\n";

  EXPECT_EQ(RunProgram(Import()).status, 0);
  EXPECT_THAT(Names(), ElementsAre("scene.glb"));
}

}  // namespace
