#pragma once

#include <cstddef>

// The user's wish to stop what a function does without the lock of the interpreter.

namespace binding {

class Interruption {
 public:
  // Notes that so many more bytes have been read or written, and looks for the wish now and then.
  // Throws Python's exception when there is one; only the main thread finds it.
  void Pass(std::size_t bytes);

 private:
  std::size_t unwatched_ = 0;
};

}  // namespace binding
