#include "plugin/htr/reader.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <new>
#include <optional>
#include <vector>

#include "plugin/htr/header_fields.h"
#include "plugin/htr/number_cells.h"
#include "plugin/htr/oddities.h"
#include "plugin/text/files.h"
#include "plugin/text/lines.h"
#include "plugin/text/tokens.h"
#include "plugin/units/units.h"

namespace orvane {
namespace {

constexpr const char* kNotOpened = "The file could not be opened";

constexpr std::string_view kHeaderSection = "Header";
constexpr std::string_view kHierarchySection = "SegmentNames&Hierarchy";
constexpr std::string_view kBasePositionSection = "BasePosition";
constexpr std::string_view kGlobalParent = "GLOBAL";

// A count that a file merely announces reserves no more frames than this.
constexpr std::size_t kMostFramesReserved = 1 << 16;

// Each base-position section links the hierarchy. Beyond this many links, and beyond one for each
// byte of the file, no more are made: a file of such sections alone would fill the memory.
constexpr std::size_t kLinksAlwaysMade = 1 << 20;

// Intended: these four spellings only; any other is the name of a segment.
bool IsEndOfFile(std::string_view name) {
  return name == "EndOfFile" || name == "EndofFile" || name == "ENDOFFILE" || name == "endoffile";
}

// What a line holds besides a comment and the blanks before it or before the line break.
std::string_view ContentOf(const Line& line) {
  const std::size_t comment = line.text.find('#');
  const bool has_comment = comment != std::string_view::npos;
  const std::string_view content = line.text.substr(0, comment);
  return has_comment || line.ends_with_break ? TrimTrailingSeparators(content) : content;
}

std::string_view SectionName(std::string_view line) {
  line.remove_prefix(1);
  return line.substr(0, line.find(']'));
}

// One pass over the bytes. Every function that reads returns an empty text or the message that ends
// the reading.
class HtrReader {
 public:
  HtrReader(HtrDocument& document, std::string_view bytes, bool read_motion,
            HtrReadObserver* observer)
      : document_(document),
        lines_(bytes),
        most_links_(std::max(kLinksAlwaysMade, bytes.size())),
        read_motion_(read_motion),
        oddities_(observer) {}

  std::string Read();

 private:
  enum class State {
    kBeforeFirstSection,
    kHeader,
    kHierarchy,
    kBasePosition,
    kMotion,
    kStoppedBeforeMotion,
    kEnded
  };

  bool HasEnded() const { return state_ == State::kStoppedBeforeMotion || state_ == State::kEnded; }
  std::string ReadLine(const Line& line);
  void EnterSection(std::string_view name);
  void EnterBasePosition();
  void EnterMotion(std::string_view name);
  void LeaveMotion();
  void LinkHierarchy();
  std::string ReadDataLine(std::string_view line);
  std::string ReadHeaderLine(std::string_view line);
  std::string ReadHierarchyLine(std::string_view line);
  std::string ReadBasePositionLine(std::string_view line);
  void ReadMotionLine(std::string_view line);
  void ReserveFor(std::int32_t frame_number);
  std::string Finish();

  HtrDocument& document_;
  LineReader lines_;
  const std::size_t most_links_;
  const bool read_motion_;
  HtrOddities oddities_;

  State state_ = State::kBeforeFirstSection;
  std::vector<std::string_view> parent_names_;  // one for each segment
  std::size_t links_made_ = 0;
  std::int64_t segments_awaited_ = 0;  // announced by the header, less the base positions read
  double angle_factor_ = 1.0;

  HtrSegment* segment_ = nullptr;  // of the current motion section; null for an unknown name
  std::size_t frames_before_section_ = 0;
  std::size_t frames_in_last_section_ = 0;
  bool first_frame_read_ = false;
};

std::string HtrReader::Read() {
  document_.Clear();
  Line line;
  while (!HasEnded() && lines_.Next(line)) {
    std::string message = ReadLine(line);
    if (!message.empty()) return message;
  }
  return Finish();
}

std::string HtrReader::ReadLine(const Line& line) {
  oddities_.SetLine(line.number);
  oddities_.ReportIf(line.text.size() == kLongestPiece, HtrOddity::kLongLine, line.text);
  const std::string_view content = ContentOf(line);
  if (SkipSeparators(content).empty()) return {};
  if (content.front() != '[') return ReadDataLine(content);
  EnterSection(SectionName(content));
  return {};
}

void HtrReader::EnterSection(std::string_view name) {
  LeaveMotion();
  if (name == kHeaderSection) {
    state_ = State::kHeader;
  } else if (name == kHierarchySection) {
    state_ = State::kHierarchy;
  } else if (name == kBasePositionSection) {
    EnterBasePosition();
  } else if (!read_motion_) {
    state_ = State::kStoppedBeforeMotion;
  } else if (IsEndOfFile(name)) {
    state_ = State::kEnded;
  } else {
    EnterMotion(name);
  }
}

void HtrReader::EnterBasePosition() {
  state_ = State::kBasePosition;
  oddities_.ReportIf(links_made_ == 0 && document_.GetNumSegments() != segments_awaited_,
                     HtrOddity::kSegmentCountMismatch, kBasePositionSection);
  LinkHierarchy();
  // Intended: never set back, not even by a header in between that says radians.
  if (document_.GetRotationUnits() == kDegrees) angle_factor_ = kRadiansPerDegree;
}

void HtrReader::LinkHierarchy() {
  oddities_.ReportIf(links_made_ > 0, HtrOddity::kHierarchyLinkedAgain, kBasePositionSection);
  if (links_made_ + parent_names_.size() > most_links_) {
    return oddities_.Report(HtrOddity::kHierarchyLeftUnlinked, kBasePositionSection);
  }
  links_made_ += parent_names_.size();
  auto parent_name = parent_names_.begin();
  for (HtrSegment& segment : document_.segments()) {
    const std::string_view name = *parent_name++;
    if (name == kGlobalParent) {
      segment.SetIsRoot(true);
      continue;
    }
    // Intended: an unknown parent counts as none, without a message.
    HtrSegment* parent = document_.FindSegment(name);
    oddities_.ReportIf(parent == nullptr, HtrOddity::kParentNotFound, name);
    segment.SetParent(parent);
  }
}

void HtrReader::EnterMotion(std::string_view name) {
  state_ = State::kMotion;
  segment_ = document_.FindSegment(name);
  if (segment_ == nullptr) return oddities_.Report(HtrOddity::kUnknownSegmentSection, name);
  frames_before_section_ = segment_->GetNumFrames();
}

void HtrReader::LeaveMotion() {
  if (segment_ == nullptr) return;
  frames_in_last_section_ = segment_->GetNumFrames() - frames_before_section_;
  if (frames_in_last_section_ != document_.GetNumFrames()) {
    oddities_.Report(HtrOddity::kFrameCountMismatch, segment_->GetName());
  }
  segment_ = nullptr;
}

std::string HtrReader::ReadDataLine(std::string_view line) {
  switch (state_) {
    case State::kBeforeFirstSection:
      oddities_.Report(HtrOddity::kLineBeforeFirstSection, line);
      break;
    case State::kHeader:
      return ReadHeaderLine(line);
    case State::kHierarchy:
      return ReadHierarchyLine(line);
    case State::kBasePosition:
      return ReadBasePositionLine(line);
    case State::kMotion:
      ReadMotionLine(line);
      break;
    case State::kStoppedBeforeMotion:
    case State::kEnded:
      break;
  }
  return {};
}

std::string HtrReader::ReadHeaderLine(std::string_view line) {
  const std::string_view keyword = TakeFirstToken(line);
  const std::string_view value = TakeLastToken(line);
  return ReadHeaderField(keyword, value, document_, segments_awaited_, oddities_);
}

std::string HtrReader::ReadHierarchyLine(std::string_view line) {
  const std::string name(TakeFirstToken(line));
  if (document_.AddSegment(HtrSegment(name)) == nullptr) {
    return "The file has duplicate segment names: " + name;
  }
  parent_names_.push_back(TakeLastToken(line));
  return {};
}

std::string HtrReader::ReadBasePositionLine(std::string_view line) {
  HtrSegment* segment = document_.FindSegment(TakeFirstToken(line));
  if (segment == nullptr) {
    // Intended: the text names the cell behind the unknown name, not the name.
    return "Segment name not found: " + std::string(TakeFirstToken(line));
  }
  NumberCells cells(line, oddities_);
  const Vector3 translation = cells.TakeVector(1.0);
  const Vector3 angles = cells.TakeVector(angle_factor_);
  segment->SetBaseTranslation(translation.x(), translation.y(), translation.z());
  segment->SetBaseRotation(angles.x(), angles.y(), angles.z());
  segment->SetBoneLength(cells.Take());
  // Intended: base positions are what is counted, not the lines of the hierarchy.
  --segments_awaited_;
  return {};
}

void HtrReader::ReadMotionLine(std::string_view line) {
  if (segment_ == nullptr) return oddities_.Report(HtrOddity::kMotionOfUnknownSegment, line);
  NumberCells cells(line, oddities_);
  ReserveFor(cells.TakeInt());
  const Vector3 translation = cells.TakeVector(1.0);
  const Vector3 angles = cells.TakeVector(angle_factor_);
  segment_->AddFrame(translation, angles, cells.Take());
}

// Makes room before the first line of a segment. Later segments follow what the last section really
// held, so that room grows with the file and not with what it announces.
void HtrReader::ReserveFor(std::int32_t frame_number) {
  if (!first_frame_read_) {
    // Intended: of all frame numbers in a file only this one counts.
    first_frame_read_ = true;
    document_.SetStartFrame(frame_number);
    segment_->ReserveFrames(std::min<std::size_t>(document_.GetNumFrames(), kMostFramesReserved));
  } else if (segment_->GetNumFrames() == 0) {
    segment_->ReserveFrames(frames_in_last_section_);
  }
}

std::string HtrReader::Finish() {
  LeaveMotion();
  if (state_ == State::kStoppedBeforeMotion || segments_awaited_ == 0) return {};
  return "Incorrect number of segments defined in file";
}

}  // namespace

std::string ReadHtrFile(HtrDocument& document, const std::string& file_name, bool read_motion,
                        HtrReadObserver* observer) {
  const std::optional<std::string> bytes = ReadFileBytes(WithExtension(file_name, ".htr"));
  if (!bytes) return kNotOpened;
  return ReadHtrBytes(document, *bytes, read_motion, observer);
}

std::string ReadHtrBytes(HtrDocument& document, std::string_view bytes, bool read_motion,
                         HtrReadObserver* observer) try {
  return HtrReader(document, bytes, read_motion, observer).Read();
} catch (const std::bad_alloc&) {
  document.Clear();
  return kNotOpened;
}

}  // namespace orvane
