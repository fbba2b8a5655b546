#include "web/core/file_lines.h"

#include <algorithm>
#include <string_view>
#include <unordered_map>

#include "formats/text/lines.h"
#include "formats/text/numbers.h"
#include "formats/text/tokens.h"
#include "web/core/take_reading.h"

namespace web {
namespace {

using orvane::Line;
using orvane::LineReader;

constexpr std::size_t kShownBytes = 2000;

LineText ShownPart(std::string_view line, std::size_t column) {
  if (line.size() <= kShownBytes) return {std::string(line), 1};
  const std::size_t at = std::min(column > 0 ? column - 1 : 0, line.size());
  std::size_t begin = at > kShownBytes / 2 ? at - kShownBytes / 2 : 0;
  begin = std::min(begin, line.size() - kShownBytes);
  return {std::string(line.substr(begin, kShownBytes)), begin + 1};
}

// Which object a line or a column is about, and which frame.
class PlaceFinder {
 public:
  PlaceFinder(const Take& take, const Header& header, const Contents& contents)
      : is_motion_(take.IsMotion()), first_frame_(header.first_frame), frames_(contents.frames) {
    for (const std::string& name : contents.objects) index_of_.emplace(name, index_of_.size());
  }

  // Of all lines in their order.
  void Pass(const Line& line) {
    if (is_motion_ && line.text.starts_with('[')) section_ = SectionName(line.text);
    if (!is_motion_ && line.number == kLineOfNames) names_ = CellsOf(line.text);
  }

  [[nodiscard]] PlaceInTake At(const Line& line, std::size_t column) const {
    PlaceInTake place;
    place.object = is_motion_ ? Find(section_) : MarkerAt(line.text, column);
    const bool has_frame = is_motion_ ? place.object.has_value() : line.number > kLineOfNames + 1;
    if (has_frame) place.frame = FrameOf(line.text);
    return place;
  }

 private:
  static constexpr std::size_t kLineOfNames = 4;
  static constexpr std::size_t kCellsBefore = 2;  // frame and time

  static std::string SectionName(std::string_view line) {
    return std::string(line.substr(1, line.find(']') - 1));
  }

  static std::vector<std::string> CellsOf(std::string_view line) {
    std::vector<std::string> cells;
    for (std::size_t tab = 0; tab != std::string_view::npos; line.remove_prefix(tab + 1)) {
      tab = line.find('\t');
      cells.emplace_back(line.substr(0, tab));
      if (tab == std::string_view::npos) break;
    }
    return cells;
  }

  [[nodiscard]] std::optional<std::size_t> Find(const std::string& name) const {
    const auto found = index_of_.find(name);
    return found == index_of_.end() ? std::nullopt : std::optional(found->second);
  }

  [[nodiscard]] std::optional<std::size_t> MarkerAt(std::string_view line,
                                                    std::size_t column) const {
    const std::string_view before = line.substr(0, column > 0 ? column - 1 : 0);
    const auto cell = static_cast<std::size_t>(std::count(before.begin(), before.end(), '\t'));
    if (cell < kCellsBefore) return std::nullopt;
    const std::size_t of_name = cell - (cell - kCellsBefore) % 3;
    return of_name < names_.size() ? Find(names_[of_name]) : std::nullopt;
  }

  [[nodiscard]] std::optional<std::size_t> FrameOf(std::string_view line) const {
    const std::string_view number = orvane::TakeFirstToken(line);
    if (number.empty() || number.find_first_not_of("0123456789") != std::string_view::npos) {
      return std::nullopt;
    }
    const std::int64_t frame = std::int64_t{orvane::ParseInt(number)} - first_frame_;
    const bool is_held = frame >= 0 && static_cast<std::uint64_t>(frame) < frames_;
    return is_held ? std::optional(static_cast<std::size_t>(frame)) : std::nullopt;
  }

  const bool is_motion_;
  const std::int32_t first_frame_;
  const std::size_t frames_;
  std::unordered_map<std::string, std::size_t> index_of_;
  std::string section_;
  std::vector<std::string> names_;  // cells of the line of names
};

}  // namespace

std::optional<LineText> FindLine(const Take& take, std::size_t number, std::size_t column) {
  orvane::FileSource source = OpenFile(take.Path());
  LineReader lines(source);
  Line line;
  while (lines.Next(line)) {
    if (line.number == number) return ShownPart(line.text, column);
  }
  return std::nullopt;
}

std::vector<PlaceInTake> FindPlaces(const Take& take, const Header& header,
                                    const Contents& contents,
                                    const std::vector<LinePlace>& places) {
  std::multimap<std::size_t, std::size_t> by_line;
  for (std::size_t i = 0; i < places.size(); ++i) by_line.emplace(places[i].line, i);
  by_line.erase(0);
  std::vector<PlaceInTake> found(places.size());
  orvane::FileSource source = OpenFile(take.Path());
  LineReader lines(source);
  PlaceFinder finder(take, header, contents);
  Line line;
  while (!by_line.empty() && lines.Next(line)) {
    finder.Pass(line);
    for (; !by_line.empty() && by_line.begin()->first == line.number;
         by_line.erase(by_line.begin())) {
      const std::size_t place = by_line.begin()->second;
      found[place] = finder.At(line, places[place].column);
    }
  }
  return found;
}

}  // namespace web
