#include "formats/trc/cut_text.h"

#include <array>
#include <cstdint>

#include "formats/text/lines.h"
#include "formats/text/numbers.h"
#include "formats/trc/fields.h"
#include "formats/trc/header_lines.h"
#include "formats/trc/line_rules.h"

namespace orvane {
namespace {

// Places of fields in their lines, counted from 1.
constexpr std::size_t kPathTypeField = 2;
constexpr std::size_t kNumFramesField = 3;
constexpr std::size_t kUnitsField = 5;
constexpr std::size_t kFirstFrameField = 7;
constexpr std::size_t kOrigNumFramesField = 8;

constexpr std::size_t kChangedLines = 3;  // none behind the header values

std::string_view FieldOf(const Line& line, std::size_t number) {
  TRCFields fields(line);
  fields.Drop(static_cast<int>(number - 1));
  return fields.Get();
}

std::int32_t NumberIn(const Line& line, std::size_t field) {
  return ParseInt(FieldOf(line, field));
}

std::size_t CountFields(const Line& line) {
  std::size_t count = 1;
  for (const char character : line.text) count += character == '\t' ? 1 : 0;
  return count;
}

// What the cut is made of.
struct Parts {
  std::array<Line, kChangedLines> header;
  bool are_changeable = true;     // no such line is read in pieces
  const char* frames = nullptr;   // where the first frame of the file begins
  bool has_blank_line = false;    // before the frames
  Line file_first;                // the first frame of the file
  Line first;                     // and of the cut
  const char* cut_end = nullptr;  // behind the last frame of the cut
  bool ends_inside_line = false;  // which is read in pieces
};

class Finding {
 public:
  Finding(std::string_view bytes, std::size_t begin, std::size_t end)
      : lines_(bytes), begin_(begin), end_(end) {
    parts_.cut_end = bytes.data() + bytes.size();
  }

  Parts Run() {
    Line line;
    for (std::size_t number = 0; frames_ <= end_ && lines_.Next(line); ++number) {
      if (number < kChangedLines) TakeHeaderLine(line, number);
      if (IsFrame(line, number)) {
        TakeFrame(line, number);
      } else if (line.number == last_number_ && number <= kChangedLines) {
        parts_.are_changeable = false;
      }
      last_number_ = line.number;
      if (!ReplacesNextLine(line)) continue;
      if (!lines_.Next(line)) break;
      if (line.number == last_number_ && number < kChangedLines) parts_.are_changeable = false;
      last_number_ = line.number;
    }
    return parts_;
  }

 private:
  void TakeHeaderLine(const Line& line, std::size_t number) {
    parts_.header[number] = line;
    // With a field in front of it, a NUL would no longer hide the next line.
    if (line.text.empty() && ReplacesNextLine(line)) parts_.are_changeable = false;
  }

  void TakeFrame(const Line& line, std::size_t number) {
    if (frames_ == 0) {
      parts_.frames = line.text.data();
      parts_.file_first = line;
      parts_.has_blank_line = number > kPerhapsBlankLine;
    }
    if (frames_ == begin_) parts_.first = line;
    if (frames_ == end_) {
      parts_.cut_end = line.text.data();
      parts_.ends_inside_line = line.number == last_number_;
    }
    ++frames_;
  }

  LineReader lines_;
  const std::size_t begin_;
  const std::size_t end_;
  std::size_t frames_ = 0;
  std::size_t last_number_ = 0;
  Parts parts_;
};

// A line whose fields are replaced.
class ChangedLine {
 public:
  explicit ChangedLine(const Line& line) : line_(line), text_(line.text) {}

  // Puts `number` into the field, and makes those that are missing before.
  void Put(std::size_t field, std::int64_t number) {
    for (std::size_t count = CountFields({text_}); count < field; ++count) AddField(count);
    std::size_t start = 0;
    for (std::size_t at = 1; at < field; ++at) start = text_.find('\t', start) + 1;
    const std::size_t length = FieldOf({text_}, field).size();
    text_.replace(start, length, FormatInt(number));
  }

  [[nodiscard]] bool Has(std::size_t field) const { return field <= CountFields({text_}); }
  [[nodiscard]] bool IsTooLong() const { return text_.size() + 1 > kLongestPiece; }

  // Appends it to `out`, behind the bytes from `copied` on; returns where those behind it begin.
  const char* AppendTo(std::string& out, const char* copied) const {
    out.append(copied, line_.text.data());
    out += text_;
    return line_.text.data() + line_.text.size();
  }

 private:
  // A unit that ends its line is unknown to the reader, and has to stay so.
  void AddField(std::size_t behind) {
    if (behind == kUnitsField && line_.ends_with_break && CountFields(line_) == behind)
      text_ += ' ';
    text_ += '\t';
  }

  Line line_;
  std::string text_;
};

std::int64_t FirstFrameOf(const Parts& parts) {
  switch (NumberIn(parts.header[kFileTypeLine], kPathTypeField)) {
    case kFirstFrameInData:
      return NumberIn(parts.file_first, 1);
    case kFirstFrameInHeader:
      return NumberIn(parts.header[kHeaderValuesLine], kFirstFrameField);
    default:
      return 1;
  }
}

}  // namespace

std::optional<std::string> CutTrcFrames(std::string_view bytes, std::size_t begin,
                                        std::size_t end) {
  const Parts parts = Finding(bytes, begin, end).Run();
  if (!parts.are_changeable || parts.ends_inside_line) return std::nullopt;
  const std::int64_t first = FirstFrameOf(parts) + static_cast<std::int64_t>(begin);
  const bool is_moved = begin > 0;  // else the reader takes the same number
  ChangedLine file_type(parts.header[kFileTypeLine]);
  const std::int32_t path_type = NumberIn(parts.header[kFileTypeLine], kPathTypeField);
  const bool data_tell = path_type == kFirstFrameInData && NumberIn(parts.first, 1) == first;
  const bool header_tells = path_type == kFirstFrameInHeader;
  if (is_moved && !data_tell && !header_tells) file_type.Put(kPathTypeField, kFirstFrameInHeader);

  ChangedLine values(parts.header[kHeaderValuesLine]);
  const auto count = static_cast<std::int64_t>(end - begin);
  values.Put(kNumFramesField, count);
  if (is_moved && (!data_tell || values.Has(kFirstFrameField))) values.Put(kFirstFrameField, first);
  if (values.Has(kOrigNumFramesField)) values.Put(kOrigNumFramesField, count);
  if (file_type.IsTooLong() || values.IsTooLong()) return std::nullopt;

  std::string cut;
  const char* copied = file_type.AppendTo(cut, bytes.data());
  copied = values.AppendTo(cut, copied);
  cut.append(copied, parts.frames);
  const char* const start = parts.first.text.data();
  // Without one more, a frame without anything would be the blank line before the data.
  if (!parts.has_blank_line && IsBreakAlone(parts.first)) {
    cut.append(start, bytes.substr(static_cast<std::size_t>(start - bytes.data())).find('\n') + 1);
  }
  cut.append(start, parts.cut_end);
  return cut;
}

}  // namespace orvane
