#include "formats/htr/motion_lines.h"

#include <algorithm>
#include <array>

#include "formats/text/numbers.h"
#include "formats/text/tokens.h"

namespace orvane {
namespace {

constexpr std::string_view kFrameColumn = "Frame";
constexpr std::array<std::string_view, 7> kColumns = {
    "Tx", "Ty", "Tz", "Rx", "Ry", "Rz", "BoneScaleFactor"};

// The text of the shortest frame, eight digits and what stands between them. The room that is made
// beforehand keeps in proportion to the file thereby, whatever its header announces.
constexpr std::size_t kShortestFrame = 16;

}  // namespace

void MotionLines::Enter(std::string_view name) {
  segment_ = document_.FindSegment(name);
  if (segment_ == nullptr) return oddities_.Report(HtrOddity::kUnknownSegmentSection, name);
}

void MotionLines::Read(std::string_view line, double radians) {
  if (segment_ == nullptr) return oddities_.Report(HtrOddity::kMotionOfUnknownSegment, line);
  const bool is_watched = oddities_.Observer() != nullptr;
  if (is_watched) TellFrame(line);
  if (!first_frame_read_) TakeStartFrame(line);
  row_.Read(line, 1);
  segment_->AddFrame(row_.Frame(radians));
  if (is_watched && !row_.IsOrdinary()) CheckNumbers(line);
}

bool MotionLines::ReadAhead(LineReader& lines, double radians) {
  if (segment_ == nullptr || !first_frame_read_) return false;
  const std::size_t size = row_.ReadFrame(lines.Ahead());
  if (size == 0) return false;
  Line line;
  lines.Take(size, line);
  oddities_.PassLine(line);
  if (oddities_.Observer() != nullptr) TellFrame(line.text);
  segment_->AddFrame(row_.Frame(radians));
  return true;
}

void MotionLines::TellFrame(std::string_view line) {
  const std::string_view number = TakeFirstToken(line);
  oddities_.Observer()->OnFrame(oddities_.CellOf(number));
  oddities_.CheckWholeNumber(number, kFrameColumn);
}

// A second look, so that reading need not wonder what is odd.
void MotionLines::CheckNumbers(std::string_view line) const {
  static_cast<void>(TakeFirstToken(line));  // the frame number
  oddities_.CheckNumbers(line, kColumns);
}

// Intended: of all frame numbers in a file only the very first counts.
void MotionLines::TakeStartFrame(std::string_view line) {
  first_frame_read_ = true;
  document_.SetStartFrame(ParseInt(TakeFirstToken(line)));
  const std::uint64_t announced =
      std::uint64_t{document_.GetNumFrames()} * document_.segments().size();
  const std::size_t held_at_most = size_ / kShortestFrame;
  document_.ReserveFrames(announced < held_at_most ? static_cast<std::size_t>(announced)
                                                   : held_at_most);
}

}  // namespace orvane
