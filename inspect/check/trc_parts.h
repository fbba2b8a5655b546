#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

#include "formats/trc/read_observer.h"
#include "inspect/check/findings.h"

// Where the parts of a TRC file stand, as far as it was read. Lines, columns and fields count from
// 1, frames from 0; nothing fails but for want of memory.

namespace orvane::trc {

struct TrcParts {
  static constexpr std::size_t kHeaderValues = 7;

  // By TRCHeaderValue.
  std::array<std::optional<TRCPlace>, kHeaderValues> values;
  std::vector<TRCPlace> markers;  // their names, in the document's order
  // What the first and the last frame are numbered, without blanks; empty without frames.
  std::string_view first_number;
  std::string_view last_number;
  std::string_view bytes;  // the whole file
  // The last field of the last column that has a name or a value; 0 without any.
  std::size_t named_fields = 0;
  // How many fields the rows have, when these are others than the names ask for.
  std::optional<std::size_t> misfit{};
  // How many frames there are before blank lines at the end, when no more are announced.
  std::optional<std::size_t> frames_before_end{};

  // Such a column begins at `field`.
  void AddColumn(std::size_t field) { named_fields = std::max(named_fields, field + 2); }

  // The place behind the last byte.
  [[nodiscard]] TRCPlace End() const {
    const FindingPlace end = EndOf(bytes);
    return {end.line, end.column, 0};
  }

  // The last place of a value; nothing when it was not there.
  [[nodiscard]] const std::optional<TRCPlace>& Value(TRCHeaderValue value) const {
    return values[static_cast<std::size_t>(value)];
  }

  [[nodiscard]] std::size_t FrameCount() const { return frames_; }

  // Keeps where the next frame starts.
  void AddFrame(TRCPlace place);

  // Where frame `index` starts. REQUIRES: it was added.
  [[nodiscard]] TRCPlace PlaceOfFrame(std::size_t index) const;

 private:
  // Frames that start on lines which follow each other, in the same column: the first of them.
  struct Run {
    std::size_t frame;
    std::size_t line;
    std::size_t column;
  };
  [[nodiscard]] static TRCPlace PlaceIn(const Run& run, std::size_t index) {
    return {run.line + (index - run.frame), run.column, 0};
  }

  std::vector<Run> runs_;
  std::size_t frames_ = 0;
};

}  // namespace orvane::trc
