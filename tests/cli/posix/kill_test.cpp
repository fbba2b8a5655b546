#include <fcntl.h>
#include <poll.h>
#include <sys/inotify.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <csignal>
#include <iostream>
#include <random>
#include <thread>

#include "tests/cli/orvane_test.h"
#include "tests/support/posix/program.h"

// The program killed at any moment, which it cannot do anything about.

namespace {

using testing::ElementsAre;
using Microseconds = std::chrono::duration<double, std::micro>;

// Tells when something of one kind, IN_CREATE or IN_MOVED_TO, happens to a file in a folder.
class FolderWatch {
 public:
  FolderWatch(const std::string& folder, std::uint32_t what) : events_(inotify_init1(IN_CLOEXEC)) {
    inotify_add_watch(events_, folder.c_str(), what);
  }
  ~FolderWatch() { close(events_); }
  FolderWatch(const FolderWatch&) = delete;
  FolderWatch& operator=(const FolderWatch&) = delete;

  // Returns false when nothing happens for as long as no program here runs, however busy the
  // machine is.
  bool Wait() const {
    constexpr int kLongest_ms = 300'000;
    pollfd waiting{events_, POLLIN, 0};
    return poll(&waiting, 1, kLongest_ms) > 0;
  }

 private:
  int events_;
};

// A named pipe that takes no byte: who prints there waits until it is killed.
class FullPipe {
 public:
  explicit FullPipe(const std::string& path) : path_(path) {
    if (mkfifo(path.c_str(), 0600) != 0) ADD_FAILURE() << "no named pipe";
    end_ = open(path.c_str(), O_RDWR | O_NONBLOCK | O_CLOEXEC);
    const std::array<char, 4096> page{};
    while (write(end_, page.data(), page.size()) > 0) continue;
  }
  ~FullPipe() { close(end_); }
  FullPipe(const FullPipe&) = delete;
  FullPipe& operator=(const FullPipe&) = delete;

  const std::string& Path() const { return path_; }

 private:
  std::string path_;
  int end_ = -1;
};

// What moments are counted from.
enum class Start { kOfTheProgram, kOfTheWriting, kOfTheNewFile };

// How long after its start a kill comes, at the most. The moment that matters is the one at which
// the new file takes the old one's place. How long that takes to come depends on the machine and on
// what else it does, so each kill that came before it makes the next one later, and the other way
// round.
class Reach {
 public:
  Microseconds Longest() const { return longest_; }

  void Learn(bool came_before) { longest_ *= came_before ? 1.25 : 0.8; }

 private:
  Microseconds longest_{1000};
};

class KillTest : public test::OrvaneTest {
 protected:
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

  // Kills an import so long after `start`. It does not end before: the last that it does is to
  // print.
  void Kill(Start start, Microseconds delay) const {
    const FolderWatch watch(folder_.Path().string(),
                            start == Start::kOfTheWriting ? IN_CREATE : IN_MOVED_TO);
    test::PosixRun run = Import();
    run.output_file = full_.Path();
    run.meanwhile = [&](int process) {
      if (start != Start::kOfTheProgram) {
        EXPECT_TRUE(watch.Wait()) << "no file appears";
      }
      std::this_thread::sleep_for(delay);
      kill(process, SIGKILL);
    };
    EXPECT_EQ(RunProgram(run).status, 128 + SIGKILL);
  }

 private:
  const test::TemporaryFolder elsewhere_;
  const FullPipe full_{elsewhere_.File("full")};
};

TEST_F(KillTest, LeavesTheOldFileOrTheNewOneWhole) {
  constexpr int kKills = 200;
  const std::string old_scene = SceneOf({"--scale", "2"});
  const std::string new_scene = SceneOf({});
  ASSERT_NE(old_scene, new_scene);

  std::mt19937_64 random(20260311);
  std::uniform_real_distribution<double> part(0, 1);
  std::array<Reach, 3> reaches;
  int old_scenes = 0;
  int new_scenes = 0;
  int unfinished = 0;
  // The last one leaves an unfinished file behind.
  bool is_unfinished = false;
  for (int kills = 0; kills < kKills || !is_unfinished; ++kills) {
    Write("scene.glb", old_scene);
    const auto start = static_cast<Start>(kills % 3);
    Reach& reach = reaches[static_cast<std::size_t>(start)];
    const bool is_delayed = start != Start::kOfTheNewFile;
    Kill(start, is_delayed ? part(random) * reach.Longest() : Microseconds(0));
    ASSERT_FALSE(HasFailure());
    const std::string left = Read("scene.glb");
    const bool is_old = left == old_scene;
    ASSERT_TRUE(is_old || left == new_scene) << "after kill number " << kills;
    ASSERT_FALSE(is_old && start == Start::kOfTheNewFile);
    reach.Learn(is_old);
    ++(is_old ? old_scenes : new_scenes);
    is_unfinished = Names().size() > 1;
    unfinished += is_unfinished;
  }
  std::cout << "kills left " << old_scenes << " old scenes, " << new_scenes << " new ones and "
            << unfinished << " unfinished files\n";

  EXPECT_EQ(RunProgram(Import()).status, 0);
  EXPECT_THAT(Names(), ElementsAre("scene.glb"));
}

}  // namespace
