#pragma once

#include <ostream>
#include <string>
#include <utility>
#include <vector>

// A table of a page: headings, and below them rows of the same columns, two blanks apart.

namespace cli {

class Table {
 public:
  enum class Side { kLeft, kRight };
  struct Column {
    std::string heading;
    Side side = Side::kLeft;
  };

  explicit Table(std::vector<Column> columns) : columns_(std::move(columns)) {}

  // REQUIRES: there is a cell for each column.
  void Add(std::vector<std::string> cells);

  [[nodiscard]] bool IsEmpty() const { return rows_.empty(); }

  // Long names push their lines out instead of all of them.
  void Print(std::ostream& out) const;

 private:
  std::vector<Column> columns_;
  std::vector<std::vector<std::string>> rows_;
};

}  // namespace cli
