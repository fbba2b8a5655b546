#include "cli/common/page_text.h"

#include <algorithm>

#include "formats/text/numbers.h"

namespace cli {
namespace {

constexpr std::size_t kMostNames = 3;

}  // namespace

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

std::string FramesAtRate(const orvane::FrameSpan& frames, std::int64_t rate) {
  return NumbersOf(frames) + (frames.Count() == 1 ? " alone, at " : " at ") + FramesPerSecond(rate);
}

std::string FewOf(const std::vector<std::string>& names) {
  const std::size_t told = std::min(names.size(), kMostNames);
  const std::size_t left_out = names.size() - told;
  std::string list;
  for (std::size_t at = 0; at < told; ++at) {
    const bool is_last = at + 1 == names.size();
    list += (at == 0 ? "" : is_last ? " and " : ", ") + names[at];
  }
  if (left_out == 0) return list;
  return list + " and " + orvane::FormatInt(static_cast<std::int64_t>(left_out)) + " more";
}

}  // namespace cli
