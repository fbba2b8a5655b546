#include "tests/support/posix/journal/deleted_keys.h"

#include <algorithm>

#include "tests/support/posix/journal/shown.h"

namespace test {
namespace {

std::string Line(const std::vector<std::string>& controllers, std::size_t count, int first,
                 int last) {
  std::string names;
  for (std::size_t i = 0; i < count; ++i) names += (i == 0 ? "" : ", ") + controllers[i];
  return names + " delete keys " + Shown(Interval(first, last));
}

}  // namespace

bool DeletedKeys::Take(const std::string& controller, int tick) {
  const bool is_whole = at_last_ == controllers_.size();
  if (is_whole && tick == last_ + 1 && controller == controllers_.front()) {
    last_ = tick;
    at_last_ = 1;
    return true;
  }
  if (tick != last_) return false;
  if (is_whole) {
    const bool is_new =
        std::find(controllers_.begin(), controllers_.end(), controller) == controllers_.end();
    if (first_ != last_ || !is_new) return false;
    controllers_.push_back(controller);
  } else if (controllers_[at_last_] != controller) {
    return false;
  }
  ++at_last_;
  return true;
}

std::vector<std::string> DeletedKeys::Lines() const {
  const std::size_t all = controllers_.size();
  if (at_last_ == all) return {Line(controllers_, all, first_, last_)};
  return {Line(controllers_, all, first_, last_ - 1), Line(controllers_, at_last_, last_, last_)};
}

}  // namespace test
