#include "inspect/check/next_number.h"

#include <limits>

namespace orvane {
namespace {

constexpr std::int64_t kLargest = std::numeric_limits<std::int32_t>::max();

}  // namespace

NextNumber::NextNumber(std::int64_t number) : number_(number), first_(digits_.size()) {
  if (number < 0 || number > kLargest) return;
  do {
    digits_[--first_] = static_cast<char>('0' + number % 10);
    number /= 10;
  } while (number > 0);
}

void NextNumber::Advance() {
  ++number_;
  if (number_ > kLargest || first_ == digits_.size()) {
    *this = NextNumber(number_);
    return;
  }
  std::size_t at = digits_.size();
  while (at > first_ && digits_[at - 1] == '9') digits_[--at] = '0';
  if (at > first_) {
    ++digits_[at - 1];
  } else {
    digits_[--first_] = '1';
  }
}

}  // namespace orvane
