#pragma once

#include <windows.h>

#include <cstddef>
#include <memory>
#include <optional>
#include <string>

#include "platform/side_by_side.h"
#include "platform/windows/pipe.h"

// The other processes of RunSideBySide: this program, started again with the same command line.
// Such a worker comes to the same call, tells that it is there, and does the pieces that it is
// asked for.

namespace platform {

// A worker, from the side that asks. It ends with this object.
class PieceWorker {
 public:
  // Starts one; null when there is no process to be had.
  [[nodiscard]] static std::unique_ptr<PieceWorker> Start();

  // Waits until the worker has come to the call. Returns false when it never does, or with another
  // number of pieces than `count`.
  [[nodiscard]] bool WaitUntilReady(std::size_t count);

  // What a piece came to, if it came to a result, and whether the worker lives on.
  struct Answer {
    std::optional<std::string> result;
    bool alive = false;
  };

  // Has it do piece `index` and waits for that.
  [[nodiscard]] Answer Do(std::size_t index);

 private:
  PieceWorker(OwnedHandle process, OwnedHandle orders, OwnedHandle answers);

  OwnedHandle process_;
  OwnedHandle orders_;
  OwnedHandle answers_;
};

// The pipes of a process that was started as a worker.
struct WorkerPipes {
  OwnedHandle orders;
  OwnedHandle answers;
};

// Those of this process, if it is a worker.
[[nodiscard]] std::optional<WorkerPipes> OwnWorkerPipes();

// The life of a worker once it has come to the call: does pieces until no more are asked for, and
// ends the process.
[[noreturn]] void ServeAndExit(const WorkerPipes& pipes, std::size_t count,
                               const SideBySide& pieces);

}  // namespace platform
