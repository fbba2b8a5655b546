#include "cli/common/table.h"

#include <algorithm>
#include <cassert>

#include "cli/common/page_text.h"

namespace cli {

void Table::Add(std::vector<std::string> cells) {
  assert(cells.size() == columns_.size());
  rows_.push_back(std::move(cells));
}

void Table::Print(std::ostream& out) const {
  std::vector<std::size_t> widths;
  for (std::size_t column = 0; column < columns_.size(); ++column) {
    widths.push_back(Width(columns_[column].heading));
    for (const auto& row : rows_) {
      widths.back() = std::max(widths.back(), std::min(Width(row[column]), kWidestNames));
    }
  }
  const auto cell = [&](std::size_t column, const std::string& text) {
    if (columns_[column].side == Side::kRight) return PadLeft(text, widths[column]);
    return column + 1 == columns_.size() ? text : PadRight(text, widths[column]);
  };
  const auto print = [&](const auto& text_of) {
    for (std::size_t column = 0; column < columns_.size(); ++column) {
      out << (column == 0 ? "" : "  ") << cell(column, text_of(column));
    }
    out << '\n';
  };
  print([this](std::size_t column) { return columns_[column].heading; });
  for (const auto& row : rows_) {
    print([&row](std::size_t column) { return row[column]; });
  }
}

}  // namespace cli
