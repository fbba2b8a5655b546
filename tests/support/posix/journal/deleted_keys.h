#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace test {

// Keys that were deleted tick by tick, at each of them of the same controllers in the same order.
class DeletedKeys {
 public:
  // The first of them.
  DeletedKeys(const std::string& controller, int tick)
      : controllers_{controller}, first_(tick), last_(tick) {}

  // Takes another in. Returns false, taking nothing, when it does not follow.
  bool Take(const std::string& controller, int tick);

  // All of them, in one line where each controller lost its key at the last tick, otherwise in two.
  std::vector<std::string> Lines() const;

 private:
  std::vector<std::string> controllers_;
  int first_;
  int last_;
  std::size_t at_last_ = 1;  // of so many controllers the key at the last tick was deleted
};

}  // namespace test
