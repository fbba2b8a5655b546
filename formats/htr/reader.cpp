#include "formats/htr/reader.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <new>
#include <string>
#include <utility>
#include <vector>

#include "formats/htr/header_fields.h"
#include "formats/htr/messages.h"
#include "formats/htr/motion_lines.h"
#include "formats/htr/oddities.h"
#include "formats/htr/sections.h"
#include "formats/htr/transform_row.h"
#include "formats/text/files.h"
#include "formats/text/lines.h"
#include "formats/text/tokens.h"
#include "formats/units/units.h"

namespace orvane {
namespace {

constexpr std::array<std::string_view, 7> kBasePositionColumns = {"Tx", "Ty", "Tz",        "Rx",
                                                                  "Ry", "Rz", "BoneLength"};

// Each base-position section links the hierarchy. Beyond this many links, and beyond one for each
// byte of the file, no more are made: a file of such sections alone would fill the memory.
constexpr std::size_t kLinksAlwaysMade = 1 << 20;

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

// The parent of a segment as the hierarchy names it, and where.
struct ParentName {
  explicit ParentName(const HtrCell& cell)
      : name(cell.text), line(cell.line), column(cell.column) {}

  [[nodiscard]] HtrCell Cell() const { return {name, line, column}; }

  std::string name;
  std::size_t line;
  std::size_t column;
};

// One pass over the bytes. Every function that reads returns an empty text or the message that ends
// the reading.
class HtrReader {
 public:
  // `size` is how many bytes the lines have in all.
  HtrReader(HtrDocument& document, LineReader lines, std::size_t size, bool read_motion,
            HtrReadObserver* observer)
      : document_(document),
        lines_(std::move(lines)),
        most_links_(std::max(kLinksAlwaysMade, size)),
        read_motion_(read_motion),
        oddities_(observer),
        motion_(document, oddities_, size) {}

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
  void TellSection(std::string_view name);
  void CheckSectionLine(std::string_view line);
  void EnterBasePosition(std::string_view section);
  void EnterMotion(std::string_view name);
  void LinkHierarchy(std::string_view section);
  void CheckIndentation(std::string_view line);
  std::string ReadDataLine(std::string_view line);
  std::string ReadHeaderLine(std::string_view line);
  std::string ReadHierarchyLine(std::string_view line);
  std::string ReadBasePositionLine(std::string_view line);
  std::string Finish();
  void LookBehindTheEnd();
  void TellEnd();

  HtrDocument& document_;
  LineReader lines_;
  const std::size_t most_links_;
  const bool read_motion_;
  HtrOddities oddities_;
  MotionLines motion_;

  State state_ = State::kBeforeFirstSection;
  std::vector<ParentName> parent_names_;  // one for each segment
  std::size_t links_made_ = 0;
  std::int64_t segments_awaited_ = 0;  // announced by the header, less the base positions read
  double angle_factor_ = 1.0;
  TransformRow row_;  // of base positions
};

std::string HtrReader::Read() {
  document_.Clear();
  Line line;
  while (!HasEnded()) {
    if (state_ == State::kMotion && motion_.ReadAhead(lines_, angle_factor_)) continue;
    if (!lines_.Next(line)) break;
    std::string message = ReadLine(line);
    if (!message.empty()) return message;
  }
  std::string message = Finish();
  if (oddities_.Observer() == nullptr) return message;
  LookBehindTheEnd();
  if (state_ != State::kStoppedBeforeMotion) TellEnd();
  return message;
}

void HtrReader::TellEnd() {
  Line line;
  while (lines_.Next(line)) continue;
  const LinePlace end = lines_.End();
  oddities_.Observer()->OnEnd({{}, end.line, end.column});
}

void HtrReader::LookBehindTheEnd() {
  Line line;
  while (lines_.Next(line)) {
    oddities_.PassLine(line);
    const std::string_view content = SkipSeparators(ContentOf(line));
    if (content.empty()) continue;
    return oddities_.Report(HtrOddity::kLineAfterEnd, content);
  }
}

std::string HtrReader::ReadLine(const Line& line) {
  oddities_.StartLine(line);
  const std::string_view content = ContentOf(line);
  if (SkipSeparators(content).empty()) return {};
  if (content.front() != '[') return ReadDataLine(content);
  EnterSection(SectionName(content));
  CheckSectionLine(content);
  return {};
}

void HtrReader::EnterSection(std::string_view name) {
  TellSection(name);
  switch (SectionOf(name)) {
    case HtrSection::kHeader:
      state_ = State::kHeader;
      break;
    case HtrSection::kHierarchy:
      state_ = State::kHierarchy;
      break;
    case HtrSection::kBasePosition:
      EnterBasePosition(name);
      break;
    case HtrSection::kEndOfFile:
      state_ = read_motion_ ? State::kEnded : State::kStoppedBeforeMotion;
      break;
    case HtrSection::kMotion:
      EnterMotion(name);
      break;
  }
}

void HtrReader::TellSection(std::string_view name) {
  HtrReadObserver* const observer = oddities_.Observer();
  if (observer != nullptr) observer->OnSection(SectionOf(name), oddities_.CellOf(name));
}

void HtrReader::CheckSectionLine(std::string_view line) {
  const std::string_view name = SectionName(line);
  const std::string_view rest = line.substr(1 + name.size());
  if (rest.empty()) return oddities_.Report(HtrOddity::kUnclosedSection, name);
  oddities_.ReportWords(HtrOddity::kTextAfterSection, rest.substr(1));
}

void HtrReader::EnterBasePosition(std::string_view section) {
  state_ = State::kBasePosition;
  oddities_.ReportIf(links_made_ == 0 && document_.GetNumSegments() != segments_awaited_,
                     HtrOddity::kSegmentCountMismatch, section);
  LinkHierarchy(section);
  // Intended: never set back, not even by a header in between that says radians.
  if (document_.GetRotationUnits() == kDegrees) angle_factor_ = kRadiansPerDegree;
}

void HtrReader::LinkHierarchy(std::string_view section) {
  oddities_.ReportIf(links_made_ > 0, HtrOddity::kHierarchyLinkedAgain, section);
  if (links_made_ + parent_names_.size() > most_links_) {
    return oddities_.Report(HtrOddity::kHierarchyLeftUnlinked, section);
  }
  links_made_ += parent_names_.size();
  auto parent_name = parent_names_.begin();
  for (HtrSegment& segment : document_.segments()) {
    const ParentName& parent_cell = *parent_name++;
    if (parent_cell.name == kGlobalParent) {
      segment.SetIsRoot(true);
      continue;
    }
    // Intended: an unknown parent counts as none, without a message.
    HtrSegment* parent = document_.FindSegment(parent_cell.name);
    if (parent == nullptr) oddities_.Report(HtrOddity::kParentNotFound, parent_cell.Cell());
    segment.SetParent(parent);
  }
}

void HtrReader::EnterMotion(std::string_view name) {
  if (!read_motion_) {
    state_ = State::kStoppedBeforeMotion;
    return;
  }
  state_ = State::kMotion;
  motion_.Enter(name);
}

void HtrReader::CheckIndentation(std::string_view line) {
  const std::string_view words = SkipSeparators(line);
  oddities_.ReportIf(words.front() == '[', HtrOddity::kIndentedSection, words);
}

std::string HtrReader::ReadDataLine(std::string_view line) {
  if (oddities_.Observer() != nullptr) CheckIndentation(line);
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
      motion_.Read(line, angle_factor_);
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
  if (HtrReadObserver* const observer = oddities_.Observer()) {
    observer->OnHeaderField(oddities_.CellOf(keyword), oddities_.CellOf(value));
  }
  oddities_.ReportWords(HtrOddity::kExtraHeaderWords, TrimTrailingSeparators(line));
  return ReadHeaderField(keyword, value, document_, segments_awaited_, oddities_);
}

std::string HtrReader::ReadHierarchyLine(std::string_view line) {
  const std::string_view name = TakeFirstToken(line);
  if (document_.AddSegment(HtrSegment(std::string(name))) == nullptr) {
    oddities_.Report(HtrOddity::kRefusedSegmentName, name);
    return kDuplicateSegmentNames + std::string(name);
  }
  const HtrCell parent = oddities_.CellOf(TakeLastToken(line));
  parent_names_.emplace_back(parent);
  oddities_.ReportWords(HtrOddity::kExtraHierarchyWords, TrimTrailingSeparators(line));
  if (HtrReadObserver* const observer = oddities_.Observer()) {
    observer->OnSegment(oddities_.CellOf(name), parent);
  }
  return {};
}

std::string HtrReader::ReadBasePositionLine(std::string_view line) {
  const std::string_view name = TakeFirstToken(line);
  HtrSegment* segment = document_.FindSegment(name);
  if (segment == nullptr) {
    oddities_.Report(HtrOddity::kRefusedBasePosition, name);
    // Intended: the text names the cell behind the unknown name, not the name.
    return kSegmentNameNotFound + std::string(TakeFirstToken(line));
  }
  if (HtrReadObserver* const observer = oddities_.Observer()) {
    observer->OnBasePosition(oddities_.CellOf(name));
    oddities_.CheckNumbers(line, kBasePositionColumns);
  }
  row_.Read(line, 0);
  const Vector3 translation = row_.Translation();
  const Vector3 angles = row_.Angles(angle_factor_);
  segment->SetBaseTranslation(translation.x(), translation.y(), translation.z());
  segment->SetBaseRotation(angles.x(), angles.y(), angles.z());
  segment->SetBoneLength(row_.LengthOrScale());
  // Intended: base positions are what is counted, not the lines of the hierarchy.
  --segments_awaited_;
  return {};
}

std::string HtrReader::Finish() {
  if (state_ == State::kStoppedBeforeMotion || segments_awaited_ == 0) return {};
  oddities_.Report(HtrOddity::kRefusedBasePositionCount, oddities_.EndOfLine());
  return kIncorrectSegmentCount;
}

// All lines of `bytes`, which are in memory or come from a source, `size` of them.
template <typename Bytes>
std::string ReadAll(HtrDocument& document, Bytes& bytes, std::size_t size, bool read_motion,
                    HtrReadObserver* observer) try {
  return HtrReader(document, LineReader(bytes), size, read_motion, observer).Read();
} catch (const std::bad_alloc&) {
  document.Clear();
  return kNotOpened;
}

}  // namespace

std::string ReadHtrFile(HtrDocument& document, const std::string& file_name, bool read_motion,
                        HtrReadObserver* observer) {
  FileSource source(WithExtension(file_name, ".htr"));
  if (!source.IsOpen()) return kNotOpened;
  std::string message = ReadHtrFrom(document, source, read_motion, observer);
  if (!source.HasFailed()) return message;
  document.Clear();
  return kNotOpened;
}

std::string ReadHtrFrom(HtrDocument& document, ByteSource& source, bool read_motion,
                        HtrReadObserver* observer) {
  return ReadAll(document, source, source.Size(), read_motion, observer);
}

std::string ReadHtrBytes(HtrDocument& document, std::string_view bytes, bool read_motion,
                         HtrReadObserver* observer) {
  return ReadAll(document, bytes, bytes.size(), read_motion, observer);
}

}  // namespace orvane
