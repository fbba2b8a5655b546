#include "platform/side_by_side.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <csignal>
#include <cstdio>
#include <string_view>
#include <thread>

#include "platform/interrupt.h"
#include "platform/portable/uninterrupted.h"

namespace platform {
namespace {

// How long a wish to stop may go unnoticed.
constexpr int kPollMilliseconds = 100;

struct Piece {
  std::size_t index = 0;
  pid_t process = -1;
  int pipe = -1;  // what the process writes comes out here
  std::string result;
};

bool WriteAll(int file, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t written =
        Uninterrupted([file, bytes] { return write(file, bytes.data(), bytes.size()); });
    if (written < 0) return false;
    bytes.remove_prefix(static_cast<std::size_t>(written));
  }
  return true;
}

// The life of a new process. Nothing of the old one's is ended properly here: that is its own work.
[[noreturn]] void WorkAndExit(const SideBySide& pieces, std::size_t index, int pipe) {
  HoldInterrupts();
  bool done = false;
  try {
    done = WriteAll(pipe, pieces.work(index));
  } catch (...) {
    done = false;
  }
  std::fflush(nullptr);
  _exit(done ? 0 : 1);
}

class ForkRunner {
 public:
  ForkRunner(std::size_t count, std::size_t processes, const SideBySide& pieces)
      : results_(count), processes_(processes), pieces_(pieces) {}

  std::vector<std::optional<std::string>> Run() {
    while (true) {
      while (running_.size() < processes_ && next_ < results_.size() && !Interrupted()) Begin();
      if (running_.empty()) return std::move(results_);
      PassInterruptOn();
      Collect();
    }
  }

 private:
  void Begin() {
    const std::size_t index = next_++;
    if (Fork(index)) return;
    results_[index] = pieces_.work(index);
    pieces_.ended(index);
  }

  bool Fork(std::size_t index) {
    std::array<int, 2> ends{};
    if (pipe2(ends.data(), O_CLOEXEC) != 0) return false;
    std::fflush(nullptr);  // or both processes would print what is waiting
    const pid_t process = fork();
    if (process == 0) {
      close(ends[0]);
      WorkAndExit(pieces_, index, ends[1]);
    }
    close(ends[1]);
    if (process < 0) {
      close(ends[0]);
      return false;
    }
    running_.push_back({index, process, ends[0], ""});
    return true;
  }

  void PassInterruptOn() {
    if (!Interrupted() || passed_on_) return;
    passed_on_ = true;
    for (const Piece& piece : running_) kill(piece.process, SIGTERM);
  }

  // Waits until a piece has something to say, and takes that.
  void Collect() {
    std::vector<pollfd> pipes;
    pipes.reserve(running_.size());
    for (const Piece& piece : running_) pipes.push_back({piece.pipe, POLLIN, 0});
    if (poll(pipes.data(), pipes.size(), kPollMilliseconds) <= 0) return;
    for (std::size_t at = pipes.size(); at-- > 0;) {
      if (pipes[at].revents != 0) Receive(at);
    }
  }

  void Receive(std::size_t at) {
    std::array<char, 65536> bytes{};
    const int pipe = running_[at].pipe;
    const ssize_t received =
        Uninterrupted([&bytes, pipe] { return read(pipe, bytes.data(), bytes.size()); });
    if (received > 0) {
      running_[at].result.append(bytes.data(), static_cast<std::size_t>(received));
    } else {
      End(at);
    }
  }

  void End(std::size_t at) {
    Piece piece = std::move(running_[at]);
    running_.erase(running_.begin() + static_cast<std::ptrdiff_t>(at));
    close(piece.pipe);
    int status = 0;
    Uninterrupted([&piece, &status] { return waitpid(piece.process, &status, 0); });
    if (WIFEXITED(status) && WEXITSTATUS(status) == 0) {
      results_[piece.index] = std::move(piece.result);
    }
    pieces_.ended(piece.index);
  }

  std::vector<std::optional<std::string>> results_;
  const std::size_t processes_;
  const SideBySide& pieces_;
  std::vector<Piece> running_;
  std::size_t next_ = 0;
  bool passed_on_ = false;
};

}  // namespace

std::size_t ProcessorCount() {
  return std::max<std::size_t>(std::thread::hardware_concurrency(), 1);
}

std::vector<std::optional<std::string>> RunSideBySide(std::size_t count, std::size_t processes,
                                                      const SideBySide& pieces) {
  return ForkRunner(count, std::max<std::size_t>(processes, 1), pieces).Run();
}

}  // namespace platform
