#include "inspect/check/trc_widths.h"

#include <algorithm>
#include <cstdint>
#include <map>
#include <tuple>

#include "formats/text/lines.h"
#include "formats/trc/line_rules.h"

namespace orvane::trc {
namespace {

// More frames than one in so many are no accident.
constexpr std::size_t kFewOf = 10;

constexpr std::size_t kFieldsBeforeMarkers = 2;

struct Width {
  std::size_t fields = 0;      // that the line has
  std::size_t last_value = 0;  // of its fields; 0 for a blank line

  bool operator<(const Width& other) const {
    return std::tie(fields, last_value) < std::tie(other.fields, other.last_value);
  }
};

// Of lines with values: how many have each width.
using WidthCounts = std::map<Width, std::size_t>;

// By pieces whose tabs a byte can count, so that sixteen bytes are compared at once.
std::size_t CountFields(std::string_view text) {
  constexpr std::size_t kPiece = 255;
  std::size_t fields = 1;
  for (; !text.empty(); text.remove_prefix(std::min(kPiece, text.size()))) {
    std::uint8_t tabs = 0;
    for (const char character : text.substr(0, kPiece)) {
      tabs = static_cast<std::uint8_t>(tabs + (character == '\t' ? 1 : 0));
    }
    fields += tabs;
  }
  return fields;
}

Width WidthOf(std::string_view text) {
  const std::size_t end = text.find_last_not_of(" \t\r");
  if (end == std::string_view::npos) return {CountFields(text), 0};
  const std::size_t last_value = CountFields(text.substr(0, end + 1));
  return {last_value + CountFields(text.substr(end + 1)) - 1, last_value};
}

template <typename Take>
void ForEachFrame(std::string_view bytes, const Take& take) {
  LineReader lines(bytes);
  Line line;
  for (std::size_t number = 0; lines.Next(line); ++number) {
    if (IsFrame(line, number) && number >= kPerhapsBlankLine) take(line, WidthOf(line.text));
  }
}

// What most frames have: of their fields, or of the last ones with a value.
std::size_t MostCommon(const WidthCounts& counts, std::size_t Width::*what) {
  std::map<std::size_t, std::size_t> sums;
  for (const auto& [width, count] : counts) sums[width.*what] += count;
  const auto most = std::max_element(
      sums.begin(), sums.end(),
      [](const auto& left, const auto& right) { return left.second < right.second; });
  return most == sums.end() ? 0 : most->first;
}

}  // namespace

TrcWidths MeasureWidths(std::string_view bytes) {
  TrcWidths all;
  WidthCounts counts;
  ForEachFrame(bytes, [&](const Line& line, const Width& width) {
    all.last_value = std::max(all.last_value, width.last_value);
    if (width.last_value > 0) {
      all.widest = std::max(all.widest, width.fields);
      ++counts[width];
      all.blank_end.reset();
    } else if (!all.blank_end && !counts.empty()) {
      all.blank_end = TRCPlace{line.number, 1, 0};
    }
  });
  const Width usual = {MostCommon(counts, &Width::fields), MostCommon(counts, &Width::last_value)};
  all.usual = usual.fields;
  all.usual_last_value = usual.last_value;
  const auto is_narrow = [&usual](const Width& width) {
    return width.last_value > kFieldsBeforeMarkers && width.fields < usual.fields &&
           width.last_value < usual.last_value;
  };
  std::size_t frames = 0;
  std::size_t narrow = 0;
  for (const auto& [width, count] : counts) {
    frames += count;
    if (is_narrow(width)) narrow += count;
  }
  if (narrow == 0 || narrow * kFewOf > frames) return all;
  ForEachFrame(bytes, [&](const Line& line, const Width& width) {
    const bool is_cut = !line.ends_with_break;
    if (is_narrow(width) && !is_cut) all.narrow.push_back({{line.number, 1, 0}, width.fields});
  });
  return all;
}

}  // namespace orvane::trc
