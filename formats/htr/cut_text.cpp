#include "formats/htr/cut_text.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>

#include "formats/htr/document.h"
#include "formats/htr/read_observer.h"
#include "formats/htr/reader.h"
#include "formats/text/lines.h"
#include "formats/text/numbers.h"

namespace orvane {
namespace {

constexpr std::string_view kNumFrames = "NumFrames";

// Copies the bytes while they are read, and leaves out or replaces what has to be another. Cells
// are found in the bytes by their places.
class Cutting : public HtrReadObserver {
 public:
  Cutting(std::string_view bytes, std::size_t begin, std::size_t end)
      : bytes_(bytes), begin_(begin), end_(end) {
    cut_.reserve(bytes.size());
  }

  void OnOddity(HtrOddity /*oddity*/, const HtrCell& /*cell*/,
                std::string_view /*field*/) override {}

  void OnSection(HtrSection section, const HtrCell& name) override {
    if (section == HtrSection::kMotion) frames_ = &frames_before_[std::string(name.text)];
  }

  void OnHeaderField(const HtrCell& keyword, const HtrCell& value) override {
    if (keyword.text != kNumFrames) return;
    TakeLine(keyword);
    const std::string count = FormatInt(static_cast<std::int64_t>(end_ - begin_));
    if (value.text.empty()) {
      CopyTo(PlaceOf(keyword) + keyword.text.size());
      cut_ += ' ' + count;
    } else {
      Replace(value, count);
    }
  }

  void OnFrame(const HtrCell& number) override {
    const std::size_t place = (*frames_)++;
    TakeLine(number);
    if (!file_first_) file_first_ = ParseInt(number.text);
    if (place < begin_ || place >= end_) return LeaveOut(number);
    if (has_frames_) return;
    has_frames_ = true;
    const std::int64_t first = *file_first_ + static_cast<std::int64_t>(begin_);
    if (ParseInt(number.text) != first) Replace(number, FormatInt(first));
  }

  std::optional<std::string> Take() {
    if (is_in_pieces_ || !has_frames_) return std::nullopt;
    CopyTo(bytes_.size());
    return std::move(cut_);
  }

 private:
  // Cells are asked for in the order of their lines.
  std::size_t PlaceOf(const HtrCell& cell) { return StartOfLine(cell) + cell.column - 1; }

  std::size_t StartOfLine(const HtrCell& cell) {
    for (; line_ < cell.line; ++line_) line_start_ = bytes_.find('\n', line_start_) + 1;
    return line_start_;
  }

  // Behind its line end.
  std::size_t EndOfLine(const HtrCell& cell) {
    const std::size_t line_feed = bytes_.find('\n', PlaceOf(cell));
    return line_feed == std::string_view::npos ? bytes_.size() : line_feed + 1;
  }

  void TakeLine(const HtrCell& cell) {
    if (EndOfLine(cell) - StartOfLine(cell) >= kLongestPiece) is_in_pieces_ = true;
  }

  void CopyTo(std::size_t place) {
    cut_ += bytes_.substr(copied_, place - copied_);
    copied_ = place;
  }

  void Replace(const HtrCell& cell, const std::string& other) {
    CopyTo(PlaceOf(cell));
    cut_ += other;
    copied_ += cell.text.size();
  }

  void LeaveOut(const HtrCell& cell) {
    if (is_in_pieces_) return;
    CopyTo(StartOfLine(cell));
    copied_ = EndOfLine(cell);
  }

  const std::string_view bytes_;
  const std::size_t begin_;
  const std::size_t end_;
  std::string cut_;
  std::size_t copied_ = 0;
  bool is_in_pieces_ = false;
  std::size_t line_ = 1;  // the last one asked for, counted from 1
  std::size_t line_start_ = 0;
  std::unordered_map<std::string, std::size_t> frames_before_;  // by segment
  std::size_t* frames_ = nullptr;
  std::optional<std::int32_t> file_first_;
  bool has_frames_ = false;
};

}  // namespace

std::optional<std::string> CutHtrFrames(std::string_view bytes, std::size_t begin,
                                        std::size_t end) {
  Cutting cutting(bytes, begin, end);
  HtrDocument document;
  if (!ReadHtrBytes(document, bytes, true, &cutting).empty()) return std::nullopt;
  return cutting.Take();
}

}  // namespace orvane
