#include "formats/csv/table.h"

#include <array>
#include <cassert>

#include "formats/text/numbers.h"

namespace orvane {
namespace {

constexpr int kTimeDecimals = 6;

// `text` as a cell, between quotation marks where it would be taken for several.
std::string Cell(const std::string& text) {
  if (text.find_first_of(",\"\r\n") == std::string::npos) return text;
  std::string cell = "\"";
  for (const char character : text) {
    cell += character;
    if (character == '"') cell += '"';
  }
  return cell + '"';
}

class Table {
 public:
  Table(CsvSource& source, const TextTaker& take, const CsvManner& manner)
      : source_(source),
        manner_(manner),
        text_(take),
        parts_(source.Parts()),
        columns_(source.Columns()) {
    assert(columns_.size() <= CsvSource::kMostColumns);
  }

  void Print() {
    const bool is_wide = manner_.layout == CsvLayout::kWide;
    if (is_wide) {
      PrintWideHead();
    } else {
      PrintLongHead();
    }
    const std::size_t frames = source_.Frames();
    for (std::size_t frame = 0; frame < frames; ++frame) {
      source_.MoveTo(frame);
      const std::string start = StartOf(frame);
      if (is_wide) {
        PrintWide(start);
      } else {
        PrintLong(start);
      }
    }
    text_.HandOver();
  }

 private:
  void PrintWideHead() {
    text_.Put("frame,time");
    for (const std::string& part : parts_) {
      for (const CsvColumn& column : columns_) {
        text_.Put(',');
        text_.Put(Cell(part + '.' + std::string(column.name)));
      }
    }
    text_.Put("\r\n,s");
    for (std::size_t part = 0; part < parts_.size(); ++part) PrintUnits();
    text_.Put("\r\n");
  }

  void PrintLongHead() {
    text_.Put("frame,time,");
    text_.Put(source_.PartsName());
    for (const CsvColumn& column : columns_) {
      text_.Put(',');
      text_.Put(column.name);
    }
    text_.Put("\r\n,s,");
    PrintUnits();
    text_.Put("\r\n");
  }

  void PrintUnits() {
    for (const CsvColumn& column : columns_) {
      text_.Put(',');
      text_.Put(column.unit);
    }
  }

  // Number and time.
  [[nodiscard]] std::string StartOf(std::size_t frame) const {
    std::string start = FormatInt(source_.FirstFrame() + static_cast<std::int64_t>(frame)) + ',';
    if (!(manner_.frames_per_second > 0)) return start;
    return start +
           FormatDouble(manner_.first_time + static_cast<double>(frame) / manner_.frames_per_second,
                        kTimeDecimals);
  }

  void PrintWide(const std::string& start) {
    text_.Put(start);
    for (std::size_t part = 0; part < parts_.size(); ++part) PrintValues(part);
    text_.Put("\r\n");
  }

  void PrintLong(const std::string& start) {
    for (std::size_t part = 0; part < parts_.size(); ++part) {
      text_.Put(start);
      text_.Put(',');
      text_.Put(Cell(parts_[part]));
      PrintValues(part);
      text_.Put("\r\n");
    }
  }

  void PrintValues(std::size_t part) {
    std::array<double, CsvSource::kMostColumns> values{};
    const bool has_values = source_.Get(part, values);
    for (std::size_t column = 0; column < columns_.size(); ++column) {
      text_.Put(',');
      if (has_values) text_.PutNumber(values[column], manner_.numbers);
    }
  }

  CsvSource& source_;
  const CsvManner& manner_;
  TextBuffer text_;
  const std::vector<std::string> parts_;
  const std::vector<CsvColumn> columns_;
};

}  // namespace

void PrintTable(CsvSource& source, const TextTaker& take, const CsvManner& manner) {
  Table(source, take, manner).Print();
}

}  // namespace orvane
