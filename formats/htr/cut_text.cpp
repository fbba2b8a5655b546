#include "formats/htr/cut_text.h"

#include <cstdint>
#include <unordered_map>

#include "formats/htr/document.h"
#include "formats/htr/read_observer.h"
#include "formats/htr/reader.h"
#include "formats/text/lines.h"
#include "formats/text/numbers.h"

namespace orvane {
namespace {

constexpr std::string_view kNumFrames = "NumFrames";

// Copies the bytes while they are read, and leaves out or replaces what has to be another.
class Cutting : public HtrReadObserver {
 public:
  Cutting(std::string_view bytes, std::size_t begin, std::size_t end)
      : bytes_(bytes), begin_(begin), end_(end) {
    cut_.reserve(bytes.size());
  }

  void OnOddity(HtrOddity /*oddity*/, const HtrCell& /*cell*/,
                std::string_view /*field*/) override {}

  void OnSection(HtrSection section, const HtrCell& name) override {
    if (section == HtrSection::kMotion) frames_ = &frames_before_[name.text];
  }

  void OnHeaderField(const HtrCell& keyword, const HtrCell& value) override {
    if (keyword.text != kNumFrames) return;
    TakeLine(keyword);
    const std::string count = FormatInt(static_cast<std::int64_t>(end_ - begin_));
    if (value.text.empty()) {
      CopyTo(PlaceOf(keyword) + keyword.text.size());
      cut_ += ' ' + count;
    } else {
      Replace(value.text, count);
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
    if (ParseInt(number.text) != first) Replace(number.text, FormatInt(first));
  }

  std::optional<std::string> Take() {
    if (is_in_pieces_ || !has_frames_) return std::nullopt;
    CopyTo(bytes_.size());
    return std::move(cut_);
  }

 private:
  std::size_t PlaceOf(const HtrCell& cell) const { return PlaceOf(cell.text); }
  std::size_t PlaceOf(std::string_view text) const {
    return static_cast<std::size_t>(text.data() - bytes_.data());
  }

  std::size_t StartOfLine(const HtrCell& cell) const { return PlaceOf(cell) + 1 - cell.column; }

  // Behind its line end.
  std::size_t EndOfLine(const HtrCell& cell) const {
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

  void Replace(std::string_view text, const std::string& other) {
    CopyTo(PlaceOf(text));
    cut_ += other;
    copied_ += text.size();
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
  std::unordered_map<std::string_view, std::size_t> frames_before_;  // by segment
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
