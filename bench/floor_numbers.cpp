#include "bench/floor_numbers.h"

namespace bench {

double ReadAnyNumber(const char* first, const char*& at) {
  const char* last = first;
  while (*last != '\t' && *last != '\r' && *last != '\n') ++last;
  double value = 0;
  const auto result = std::from_chars(first, last, value);
  at = result.ptr == first ? first + 1 : result.ptr;
  return value;
}

char* PutAnyNumber(char* at, double value) {
  return std::to_chars(at, at + kLongestNumber, value, std::chars_format::fixed, 6).ptr;
}

}  // namespace bench
