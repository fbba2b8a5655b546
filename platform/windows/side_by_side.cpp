#include "platform/side_by_side.h"

#include <algorithm>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>
#include <utility>

#include "platform/interrupt.h"
#include "platform/windows/piece_worker.h"

namespace platform {
namespace {

// A thread for each worker asks it for pieces and waits for the answers; the caller's thread tells
// what has ended.
class WorkerRunner {
 public:
  WorkerRunner(std::size_t count, std::size_t processes, const SideBySide& pieces)
      : results_(count), processes_(std::min(processes, count)), pieces_(pieces) {}

  std::vector<std::optional<std::string>> Run() {
    StartWorkers();
    std::vector<std::thread> threads;
    for (const auto& worker : workers_) {
      threads.emplace_back([this, &worker] { Employ(*worker); });
    }
    TellWhatEnds();
    for (std::thread& thread : threads) thread.join();
    DoTheRest();
    return std::move(results_);
  }

 private:
  // All are there before the first piece begins, because a piece may change what they come by.
  void StartWorkers() {
    for (std::size_t i = 0; i < processes_; ++i) {
      if (auto worker = PieceWorker::Start()) workers_.push_back(std::move(worker));
    }
    std::erase_if(workers_,
                  [this](const auto& worker) { return !worker->WaitUntilReady(results_.size()); });
    at_work_ = workers_.size();
  }

  void Employ(PieceWorker& worker) {
    bool alive = true;
    while (alive) {
      const std::optional<std::size_t> index = TakeNext();
      if (!index) break;
      PieceWorker::Answer answer = worker.Do(*index);
      alive = answer.alive;
      const std::lock_guard lock(mutex_);
      results_[*index] = std::move(answer.result);
      ended_.push_back(*index);
      changed_.notify_one();
    }
    const std::lock_guard lock(mutex_);
    --at_work_;
    changed_.notify_one();
  }

  std::optional<std::size_t> TakeNext() {
    const std::lock_guard lock(mutex_);
    if (Interrupted() || next_ == results_.size()) return {};
    return next_++;
  }

  void TellWhatEnds() {
    std::unique_lock lock(mutex_);
    while (at_work_ > 0 || !ended_.empty()) {
      changed_.wait(lock, [this] { return at_work_ == 0 || !ended_.empty(); });
      const std::vector<std::size_t> ended = std::exchange(ended_, {});
      lock.unlock();
      for (const std::size_t index : ended) pieces_.ended(index);
      lock.lock();
    }
  }

  // Here, because no worker is left.
  void DoTheRest() {
    while (const std::optional<std::size_t> index = TakeNext()) {
      results_[*index] = pieces_.work(*index);
      pieces_.ended(*index);
    }
  }

  std::vector<std::optional<std::string>> results_;
  const std::size_t processes_;
  const SideBySide& pieces_;
  std::vector<std::unique_ptr<PieceWorker>> workers_;

  std::mutex mutex_;
  std::condition_variable changed_;
  std::size_t next_ = 0;
  std::size_t at_work_ = 0;
  std::vector<std::size_t> ended_;  // and not told yet
};

}  // namespace

std::size_t ProcessorCount() {
  return std::max<std::size_t>(std::thread::hardware_concurrency(), 1);
}

std::vector<std::optional<std::string>> RunSideBySide(std::size_t count, std::size_t processes,
                                                      const SideBySide& pieces) {
  if (const std::optional<WorkerPipes> pipes = OwnWorkerPipes()) {
    ServeAndExit(*pipes, count, pieces);
  }
  return WorkerRunner(count, std::max<std::size_t>(processes, 1), pieces).Run();
}

}  // namespace platform
