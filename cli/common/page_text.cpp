#include "cli/common/page_text.h"

#include <algorithm>

#include "formats/text/numbers.h"

namespace cli {

std::size_t Width(std::string_view text) {
  return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), [](char character) {
    return (static_cast<unsigned char>(character) & 0xC0U) != 0x80U;
  }));
}

std::string PadRight(std::string text, std::size_t width) {
  const std::size_t used = Width(text);
  if (used < width) text.append(width - used, ' ');
  return text;
}

std::string PadLeft(const std::string& text, std::size_t width) {
  const std::size_t used = Width(text);
  return used < width ? std::string(width - used, ' ') + text : text;
}

std::string Counted(std::int64_t count, std::string_view noun) {
  return orvane::FormatInt(count) + " " + std::string(noun) + (count == 1 ? "" : "s");
}

std::string FramesPerSecond(std::int64_t rate) { return Counted(rate, "frame") + " per second"; }

}  // namespace cli
