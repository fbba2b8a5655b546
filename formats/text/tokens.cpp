#include "formats/text/tokens.h"

#include <cstddef>

namespace orvane {

std::string_view SkipSeparators(std::string_view line) {
  std::size_t begin = 0;
  while (begin < line.size() && IsSeparator(line[begin])) ++begin;
  return line.substr(begin);
}

std::string_view TrimTrailingSeparators(std::string_view line) {
  std::size_t end = line.size();
  while (end > 0 && IsSeparator(line[end - 1])) --end;
  return line.substr(0, end);
}

std::string_view TakeFirstToken(std::string_view& line) {
  line = SkipSeparators(line);
  std::size_t end = 0;
  while (end < line.size() && !IsSeparator(line[end])) ++end;
  const std::string_view token = line.substr(0, end);
  line.remove_prefix(end);
  return token;
}

std::string_view TakeLastToken(std::string_view& line) {
  line = TrimTrailingSeparators(line);
  std::size_t begin = line.size();
  while (begin > 0 && !IsSeparator(line[begin - 1])) --begin;
  const std::string_view token = line.substr(begin);
  line = line.substr(0, begin == 0 ? 0 : begin - 1);
  return token;
}

}  // namespace orvane
