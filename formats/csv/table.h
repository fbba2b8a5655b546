#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "formats/csv/manner.h"
#include "formats/text/text_buffer.h"

// Tables of what parts of a recording, markers or segments, have in each of its frames. Belongs to
// the writer.
namespace orvane {

struct CsvColumn {
  std::string_view name;  // "x"
  std::string_view unit;  // "mm"
};

// What the table is made of.
class CsvSource {
 public:
  static constexpr std::size_t kMostColumns = 7;

  virtual ~CsvSource() = default;

  [[nodiscard]] virtual std::string_view PartsName() const = 0;  // "marker"
  [[nodiscard]] virtual std::vector<std::string> Parts() const = 0;
  [[nodiscard]] virtual std::vector<CsvColumn> Columns() const = 0;
  [[nodiscard]] virtual std::size_t Frames() const = 0;
  [[nodiscard]] virtual std::int64_t FirstFrame() const = 0;

  // Goes on to `frame`, counted from 0, which is not before the last one.
  virtual void MoveTo(std::size_t frame) = 0;
  // Puts what the part at `index` has in that frame into `values`, a number for each column.
  // Returns false, with whatever there, when it has nothing.
  [[nodiscard]] virtual bool Get(std::size_t index, std::span<double> values) const = 0;
};

void PrintTable(CsvSource& source, const TextTaker& take, const CsvManner& manner);

}  // namespace orvane
