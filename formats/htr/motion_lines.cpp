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

// A count that a file merely announces reserves no more frames than this.
constexpr std::size_t kMostFramesReserved = 1 << 16;

}  // namespace

void MotionLines::Enter(std::string_view name) {
  segment_ = document_.FindSegment(name);
  if (segment_ == nullptr) return oddities_.Report(HtrOddity::kUnknownSegmentSection, name);
  frames_before_section_ = segment_->GetNumFrames();
}

void MotionLines::Leave() {
  if (segment_ == nullptr) return;
  frames_in_last_section_ = segment_->GetNumFrames() - frames_before_section_;
  segment_ = nullptr;
}

void MotionLines::Read(std::string_view line, double radians) {
  if (segment_ == nullptr) return oddities_.Report(HtrOddity::kMotionOfUnknownSegment, line);
  const bool is_watched = oddities_.Observer() != nullptr;
  if (is_watched) TellFrame(line);
  if (segment_->GetNumFrames() == 0) ReserveFor(line);
  row_.Read(line, 1);
  segment_->AddFrame(row_.Translation(), row_.Angles(radians), row_.LengthOrScale());
  if (is_watched && !row_.IsOrdinary()) CheckNumbers(line);
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
void MotionLines::TakeStartFrame(std::int32_t frame_number) {
  first_frame_read_ = true;
  document_.SetStartFrame(frame_number);
}

// Makes room before the first line of a segment. Later segments follow what the last section really
// held, so that room grows with the file and not with what it announces.
void MotionLines::ReserveFor(std::string_view line) {
  if (first_frame_read_) return segment_->ReserveFrames(frames_in_last_section_);
  TakeStartFrame(ParseInt(TakeFirstToken(line)));
  segment_->ReserveFrames(std::min<std::size_t>(document_.GetNumFrames(), kMostFramesReserved));
}

}  // namespace orvane
