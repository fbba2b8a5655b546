#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "formats/trc/read_observer.h"
#include "inspect/check/trc_layout.h"
#include "inspect/check/trc_widths.h"

// Where the parts of a TRC file stand, as far as it was read. Lines, columns and fields count from
// 1, frames from 0; nothing fails but for want of memory.

namespace orvane::trc {

struct TrcParts {
  static constexpr std::size_t kHeaderValues = 7;

  // By TRCHeaderValue.
  std::array<std::optional<TRCPlace>, kHeaderValues> values;
  std::vector<TRCPlace> markers;  // their names, in the document's order
  TrcLayout layout;
  TrcWidths widths;
  // What the first and the last frame are numbered, without blanks; empty without frames.
  std::string first_number;
  std::string last_number;
  TRCPlace end{1, 1, 0};  // behind the last byte
  // The last field of the last column that has a name or a value; 0 without any.
  std::size_t named_fields = 0;
  // How many fields the rows have, when these are others than the names ask for.
  std::optional<std::size_t> misfit{};
  // The first of blank lines at the end, when no more frames are announced than stand before. These
  // lines hold none.
  std::optional<TRCPlace> blank_end{};

  // The last place of a value; nothing when it was not there.
  [[nodiscard]] const std::optional<TRCPlace>& Value(TRCHeaderValue value) const {
    return values[static_cast<std::size_t>(value)];
  }

  [[nodiscard]] std::size_t FrameCount() const { return frames_; }

  // Keeps where the next frame starts.
  void AddFrame(TRCPlace place);

  // Takes back all but the first `count` frames.
  void KeepFrames(std::size_t count);

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
