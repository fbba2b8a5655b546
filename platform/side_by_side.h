#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <vector>

// Pieces of work that run at the same time, each in a process of its own.

namespace platform {

// How many processors there are to work on; at least 1.
[[nodiscard]] std::size_t ProcessorCount();

struct SideBySide {
  // Does piece number `index`, counted from 0, and returns its result as bytes. Runs in another
  // process, which has a copy of everything and shares nothing; an exception ends it without a
  // result.
  std::function<std::string(std::size_t index)> work;

  // Called in this process when a piece has ended.
  std::function<void(std::size_t index)> ended = [](std::size_t) {};
};

// Where a process cannot be copied, as on Windows, the other processes are this program, started
// again with its command line: a program may call this once, and what it does before has to bring
// it to the same call with the same pieces each time. None of them begins before all have come
// there. Such a process has no standard output or error, and does several pieces, one after the
// other.
//
// Runs `count` pieces, no more than `processes` at the same time (0 counts as 1), and returns their
// results in the order of the pieces, nothing for one that ended without. A piece for which there
// is no process to be had is done in this one, while it waits for the others.
//
// The user's wish to stop (platform/interrupt.h) is passed on: running pieces find it with
// Interrupted, and no others are begun.
[[nodiscard]] std::vector<std::optional<std::string>> RunSideBySide(std::size_t count,
                                                                    std::size_t processes,
                                                                    const SideBySide& pieces);

}  // namespace platform
