#include "bench/floor_markers.h"

#include <limits>

#include "bench/floor_numbers.h"

namespace bench {
namespace {

constexpr int kHeadings = 5;  // lines before the rows, without empty ones

// What stands behind so many tabs, to the next.
std::string_view Field(std::string_view line, int tabs) {
  for (; tabs > 0; --tabs) line.remove_prefix(line.find('\t') + 1);
  return line.substr(0, line.find('\t'));
}

}  // namespace

void FloorMarkersReader::Take(std::string_view text) {
  const char* at = text.data();
  const char* const last = at + text.size();
  while (at != last) {
    if (*at == '\r' || *at == '\n') {
      ++at;
    } else if (headings_ == kHeadings) {
      at = TakeFrame(at);
    } else {
      const std::string_view rest(at, static_cast<std::size_t>(last - at));
      const std::size_t length = rest.find('\n');
      TakeHeading(rest.substr(0, length));
      at += length + 1;
    }
  }
}

void FloorMarkersReader::TakeHeading(std::string_view line) {
  ++headings_;
  if (headings_ == 3) {
    const std::string_view frames = Field(line, 2);
    std::from_chars(frames.data(), frames.data() + frames.size(), frames_);
  }
  if (headings_ != 4) return;
  for (std::string_view names = line.substr(line.find('\t', line.find('\t') + 1) + 1);
       !names.empty() && names.front() > ' '; names.remove_prefix(names.find('\t') + 3)) {
    markers_.names.emplace_back(Field(names, 0));
  }
  markers_.values.reserve(3 * markers_.names.size() * frames_);
}

const char* FloorMarkersReader::TakeFrame(const char* at) {
  at = SkipTo(SkipTo(at, '\t') + 1, '\t');  // behind the frame's number and its time
  const std::size_t count = 3 * markers_.names.size();
  std::vector<double>& values = markers_.values;
  values.resize(values.size() + count, std::numeric_limits<double>::quiet_NaN());
  double* value = values.data() + values.size() - count;
  for (std::size_t cell = 0; cell < count && *at == '\t'; ++cell, ++value) {
    ++at;
    if (*at > ' ') *value = ReadNumber(at);
  }
  return SkipTo(at, '\n') + 1;
}

}  // namespace bench
