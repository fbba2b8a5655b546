#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

// A motion file without most of its numbers: what is wrong with its names, its end and its words
// shows in a small part of it.

namespace cli {

// Takes the text of a file piece by piece. A row is a line of the motion sections that begins with
// a digit or a minus and holds no letter: finite numbers, as the plug-in writes them.
class ExportedText {
 public:
  // Takes the next lines of the file. A line is not divided between two calls.
  void Take(std::string_view lines);

  // All lines but the rows that follow another one.
  [[nodiscard]] const std::string& Kept() const { return kept_; }
  // How many rows follow each other, wherever there are any.
  [[nodiscard]] const std::vector<std::size_t>& Rows() const { return rows_; }
  // How many bytes there are in all.
  [[nodiscard]] std::size_t Size() const { return size_; }

 private:
  enum class Part { kHead, kBasePositions, kMotion };

  void TakeLine(std::string_view line);

  Part part_ = Part::kHead;
  bool is_behind_row_ = false;
  std::string kept_;
  std::vector<std::size_t> rows_;
  std::size_t size_ = 0;
};

}  // namespace cli
