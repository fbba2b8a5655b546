#pragma once

#include <array>
#include <cstddef>
#include <map>
#include <vector>

#include "formats/text/lines.h"
#include "formats/trc/row_width.h"

// How wide the lines of frames are: a line that has lost cells in its middle looks like one in
// which the last markers drop out. Lines and fields count from 1; nothing is kept of the bytes, and
// nothing fails but for want of memory.

namespace orvane::trc {

struct TrcWidths {
  // The last field that any frame has a value in; 0 without values.
  std::size_t last_value = 0;
  // How many fields most frames have, the widest of them, and in which most have their last value.
  std::size_t usual = 0;
  std::size_t widest = 0;
  std::size_t usual_last_value = 0;

  // Frames that have so many fields, fewer than most, and end with fewer values.
  struct NarrowFrames {
    std::size_t fields = 0;
    std::size_t count = 0;
    std::vector<std::size_t> first_lines;
  };
  // All of them, if they are few; those behind the announced frames by themselves. A line that the
  // end of the file cuts is none of them, nor is one without positions.
  std::vector<NarrowFrames> narrow{};
};

// Counts how wide lines are, one after the other.
class WidthCounts {
 public:
  // Takes the next line, whose width that is.
  void Take(const Line& line, const TRCRowWidth& width) {
    if (width.last_value == 0) return;
    if (current_ == nullptr || width != width_) GoTo(width);
    const bool is_behind = first_line_behind_ != 0 && line.number >= first_line_behind_;
    (*current_)[is_behind ? 1 : 0].Add(line);
  }

  // From now on, lines from this one on are behind the announced frames.
  void SetFirstLineBehind(std::size_t line) { first_line_behind_ = line; }

  // What the lines taken so far come to.
  [[nodiscard]] TrcWidths Sum() const;

 private:
  // Lines of the same width.
  struct Lines {
    void Add(const Line& line);

    std::size_t count = 0;
    std::size_t whole = 0;  // how many of them end with a line break
    std::vector<std::size_t> first_whole;
  };
  struct ByWidth {
    bool operator()(const TRCRowWidth& left, const TRCRowWidth& right) const {
      return left.fields != right.fields ? left.fields < right.fields
                                         : left.last_value < right.last_value;
    }
  };
  using Halves = std::array<Lines, 2>;  // up to the last announced frame, and behind it

  void GoTo(const TRCRowWidth& width);
  // What most lines have: of their fields, or of the last ones with a value.
  [[nodiscard]] std::size_t MostCommon(std::size_t TRCRowWidth::*what) const;
  void FindNarrow(TrcWidths& all) const;

  std::map<TRCRowWidth, Halves, ByWidth> counts_;  // of lines with values
  TRCRowWidth width_;                              // of the line before
  Halves* current_ = nullptr;                      // of that width
  std::size_t first_line_behind_ = 0;
};

}  // namespace orvane::trc
