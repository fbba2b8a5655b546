#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <new>
#include <optional>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>

#include "formats/text/files.h"
#include "formats/text/lines.h"
#include "formats/text/number_row.h"
#include "formats/text/numbers.h"
#include "formats/trc/data_line_inspector.h"
#include "formats/trc/document.h"
#include "formats/trc/fields.h"
#include "formats/trc/header_lines.h"
#include "formats/trc/line_rules.h"
#include "formats/trc/oddities.h"
#include "formats/trc/row_width.h"

// Reading of marker files.
namespace orvane {
namespace {

constexpr const char* kTooLong = "vector<T> too long";

// The text of a dropout, and of the shortest sample: three tabs, with three digits. The room that
// is made beforehand keeps in proportion to the file thereby, whatever its header announces.
constexpr std::size_t kDropoutSize = 3;
constexpr std::size_t kPositionSize = 1;  // beyond that: rows end with one when not all are whole
constexpr std::size_t kShortestSample = 6;
// The rows that room is made for first when a file cannot hold what it announces.
constexpr std::size_t kFirstRows = 1024;
// Where lines are full of digits, no less than so much is the text of a sample.
constexpr std::size_t kUsualSample = 12;

constexpr std::size_t kCellsBeforeSamples = 2;  // the frame number and the time
constexpr std::size_t kCoordinates = TRCSampleBlock::kCoordinates;

// What the reader is asked for.
struct Wishes {
  bool include_unnamed = false;
  TRCSamples samples = TRCSamples::kKept;
  TRCReadObserver* observer = nullptr;
};

// One pass over the bytes. Functions that return a text return an empty one, or the message that
// ends the reading.
class TRCReader {
 public:
  // `size` is how many bytes the lines have in all.
  TRCReader(TRCDocument& document, LineReader lines, std::size_t size, const Wishes& wishes)
      : document_(document),
        lines_(std::move(lines)),
        size_(size),
        include_unnamed_(wishes.include_unnamed),
        keeps_samples_(wishes.samples == TRCSamples::kKept),
        oddities_(wishes.observer),
        inspector_(oddities_),
        watches_frames_(oddities_.AreOfFramesWanted()) {}

  std::string Read();

 private:
  void ThrowLineAway(bool is_watched);
  std::string ReadLine(const Line& line, std::size_t number);
  std::string ReadColumns(const Line& line);
  bool ReadFrameAhead();
  void ReadFrame(const Line& line);
  void TakeFrame(const Line& line, bool is_all);
  void TellFrame(const Line& line, bool is_ordinary);
  std::size_t MostNumbers() const { return kCoordinates * document_.markers().size(); }
  bool TakeSamples(bool are_all);
  void ReadFirstFrameNumber(const Line& line);
  void ReserveFrames();
  void MakeRoom(std::size_t samples);
  void ReturnRoom();
  void Finish();

  TRCDocument& document_;
  LineReader lines_;
  const std::size_t size_;
  const bool include_unnamed_;
  const bool keeps_samples_;
  TRCOddities oddities_;
  TRCDataLineInspector inspector_;
  const bool watches_frames_;

  TRCHeader header_;
  NumberRow<SingleTabs> numbers_;
  TRCSampleBlock* samples_ = nullptr;  // of the document; null while it keeps no samples
  std::size_t frames_read_ = 0;
  std::size_t bytes_of_frames_ = 0;
};

std::string TRCReader::Read() {
  document_.Reset();
  Line line;
  for (std::size_t number = 0;; ++number) {
    if (ReadFrameAhead()) continue;
    if (!lines_.Next(line)) break;
    const bool is_watched = watches_frames_ || !IsFrame(line, number);
    const bool replaces_next = ReplacesNextLine(line);
    if (number <= kPerhapsBlankLine) oddities_.TellHeaderLine(number, line);
    oddities_.StartLine(line);
    if (is_watched) oddities_.LookAtLine();
    if (replaces_next) oddities_.ReportLine(TRCOddity::kCommentReplacesLine, line.text);
    std::string message = ReadLine(line, number);
    if (!message.empty()) return message;
    if (replaces_next) ThrowLineAway(is_watched);
  }
  Finish();
  oddities_.TellEnd(lines_.End());
  return {};
}

// What may follow it on the same line has its place behind it.
void TRCReader::ThrowLineAway(bool is_watched) {
  Line line;
  if (!lines_.Next(line)) return;
  oddities_.StartLine(line);
  if (!is_watched) return;
  oddities_.TellLineThrownAway(line);
  oddities_.LookAtLength();
}

std::string TRCReader::ReadLine(const Line& line, std::size_t number) {
  switch (number) {
    case kFileTypeLine:
      return ReadFileTypeLine(line, header_, oddities_);
    case kHeaderNamesLine:
      return {};
    case kHeaderValuesLine:
      ReadHeaderValues(line, header_, document_, oddities_);
      return {};
    case kMarkerNamesLine:
      return ReadColumns(line);
    case kSubHeaderLine:
      InspectSubHeader(line, oddities_);
      return {};
    default:
      if (IsFrame(line, number)) ReadFrame(line);
      return {};
  }
}

std::string TRCReader::ReadColumns(const Line& line) {
  std::string message = ReadMarkerNames(line, header_, include_unnamed_, document_, oddities_);
  if (message.empty()) ReserveFrames();
  return message;
}

void TRCReader::ReserveFrames() {
  const std::size_t markers = document_.markers().size();
  if (markers == 0 || !keeps_samples_) return;
  const std::size_t announced = static_cast<std::size_t>(std::max(document_.NumFrames(), 0));
  samples_ = &document_.ShareBlock();
  const bool is_possible = announced <= size_ / (kShortestSample * markers);
  const std::size_t tried = std::min({announced, kFirstRows, size_ / (kDropoutSize * markers)});
  samples_->Reserve(markers * (is_possible ? announced : tried));
}

// For `samples` more, when more frames come than there is room for: as much as the rest of the file
// takes when it goes on like that. When that is a large part of eight bytes for each of the file,
// room is made for all that can come, because another copy would take too much: what is never
// written to takes no memory.
void TRCReader::MakeRoom(std::size_t samples) {
  if (samples <= samples_->Room() || bytes_of_frames_ >= size_) return;
  const std::size_t rest = size_ - bytes_of_frames_;
  const std::size_t held = samples_->SampleCount();
  const double rate = static_cast<double>(held) / static_cast<double>(bytes_of_frames_);
  const std::size_t likely =
      held + samples + held / 8 + static_cast<std::size_t>(rate * static_cast<double>(rest));
  const std::size_t row = kDropoutSize * document_.markers().size();
  const std::size_t most_rows = rest / (samples_->IsWhole() ? row : row + kPositionSize);
  const std::size_t most = held + samples + (most_rows + 1) * document_.markers().size();
  samples_->Reserve(likely < size_ / kUsualSample ? likely : most);
}

// Reads the next line and returns true, if it is a frame behind the first one and nothing about its
// cells is odd. All others are left where they are.
bool TRCReader::ReadFrameAhead() {
  if (frames_read_ == 0) return false;
  const std::string_view ahead = lines_.Ahead().substr(0, kLongestPiece);
  const std::size_t size = numbers_.ReadAhead(ahead, kCellsBeforeSamples, MostNumbers());
  if (size == 0) return false;
  Line line;
  lines_.Take(size, line);
  oddities_.StartLine(line);
  TakeFrame(line, true);
  return true;
}

// Intended: columns are given to the markers as they come, so that a column whose name made no
// marker shifts those behind it.
void TRCReader::ReadFrame(const Line& line) {
  if (frames_read_ == 0) ReadFirstFrameNumber(line);
  const std::string_view rest = numbers_.Read(line.text, kCellsBeforeSamples, MostNumbers());
  TakeFrame(line, rest.empty());
}

// Takes what was read of `line`, which is all of it or not.
void TRCReader::TakeFrame(const Line& line, bool is_all) {
  bytes_of_frames_ += line.text.size() + 1;
  const bool is_ordinary = TakeSamples(is_all);
  if (watches_frames_) TellFrame(line, is_ordinary);
  ++frames_read_;
}

void TRCReader::TellFrame(const Line& line, bool is_ordinary) {
  const std::string_view number = TRCFields(line).Get();
  const std::size_t samples = (numbers_.Count() + kCoordinates - 1) / kCoordinates;
  oddities_.TellFrame({line, number, WidthOf(line.text, numbers_.CellsOfLine()),
                       numbers_.First(kCoordinates * samples)});
  if (!line.text.empty()) inspector_.InspectFrameNumber(number);
  if (!is_ordinary) inspector_.Inspect(line, document_.markers().size());
}

// Returns true when nothing about the samples is odd. False says nothing.
bool TRCReader::TakeSamples(bool are_all) {
  const std::size_t count = numbers_.Count();
  bool is_ordinary = count > 0 && count + 1 >= MostNumbers() && are_all && numbers_.AreOrdinary();
  const std::size_t samples = (count + kCoordinates - 1) / kCoordinates;
  const std::span<double> row = numbers_.First(kCoordinates * samples);
  for (std::size_t at = 0; at < row.size(); at += kCoordinates) {
    const bool has_x = !IsNoNumber(row[at]);
    const bool is_whole = IsNoNumber(row[at + 1]) != has_x && IsNoNumber(row[at + 2]) != has_x;
    if (is_whole) continue;
    is_ordinary = false;
    row[at + 1] = has_x ? NumberOrZero(row[at + 1]) : kNoNumber;
    row[at + 2] = has_x ? NumberOrZero(row[at + 2]) : kNoNumber;
  }
  if (samples_ != nullptr) {
    MakeRoom(samples);
    samples_->AppendRow(row);
  }
  return is_ordinary;
}

void TRCReader::ReadFirstFrameNumber(const Line& line) {
  if (header_.path_type != kFirstFrameInData) return;
  document_.SetFirstFrame(ParseInt(TRCFields(line).Get()));
}

// Not for a few rows that were announced and did not come, nor when the copy takes too much.
void TRCReader::ReturnRoom() {
  constexpr std::size_t kSmallPart = 8;
  const std::size_t held = samples_->SampleCount();
  if (samples_->Room() > held / kSmallPart && 2 * held <= size_ / kDropoutSize) {
    samples_->ShrinkToFit();
  }
}

void TRCReader::Finish() {
  if (samples_ != nullptr) ReturnRoom();
  const bool as_announced = static_cast<std::int64_t>(frames_read_) == document_.NumFrames();
  if (as_announced) return;
  oddities_.ReportLine(TRCOddity::kFrameCountMismatch,
                       FormatInt(static_cast<std::int64_t>(frames_read_)));
}

// All lines of `bytes`, which are in memory or come from a source, `size` of them.
template <typename Bytes>
std::string ReadAll(TRCDocument& document, Bytes& bytes, std::size_t size,
                    const Wishes& wishes) try {
  return TRCReader(document, LineReader(bytes), size, wishes).Read();
} catch (const std::length_error&) {
  return kTooLong;
} catch (const std::bad_alloc&) {
  return kTooLong;
}

}  // namespace

std::string TRCDocument::Read(const std::string& file_name, bool include_unnamed,
                              TRCReadObserver* observer) {
  FileSource source(WithExtension(file_name, ".TRC"));
  if (!source.IsOpen()) return kNotOpened;
  std::string message = ReadFrom(source, include_unnamed, observer);
  if (!source.HasFailed()) return message;
  Reset();
  return kNotOpened;
}

std::string TRCDocument::ReadFrom(ByteSource& source, bool include_unnamed,
                                  TRCReadObserver* observer, TRCSamples samples) {
  return ReadAll(*this, source, source.Size(), {include_unnamed, samples, observer});
}

std::string TRCDocument::ReadBytes(std::string_view bytes, bool include_unnamed,
                                   TRCReadObserver* observer) {
  return ReadAll(*this, bytes, bytes.size(), {include_unnamed, TRCSamples::kKept, observer});
}

}  // namespace orvane
