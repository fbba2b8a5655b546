#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <vector>

#include "plugin/trc/read_observer.h"

// Where the parts of a TRC file stand, as far as it was read.

namespace cli::trc {

struct Parts {
  static constexpr std::size_t kHeaderValues = 7;

  // By TRCHeaderValue.
  std::array<std::optional<orvane::TRCPlace>, kHeaderValues> values;
  std::vector<orvane::TRCPlace> markers;  // their names, in the document's order
  orvane::TRCPlace end;                   // behind the last byte

  const std::optional<orvane::TRCPlace>& Value(orvane::TRCHeaderValue value) const {
    return values[static_cast<std::size_t>(value)];
  }

  // Keeps that the next frame stands on `line`.
  void AddFrame(std::size_t line) {
    if (runs_.empty() || line != runs_.back().line + (frames_ - runs_.back().frame)) {
      runs_.push_back({frames_, line});
    }
    ++frames_;
  }

  // The line of frame `index`, counted from 0, which was added.
  std::size_t LineOfFrame(std::size_t index) const;

 private:
  // Frames that stand on lines which follow each other: the first of them.
  struct Run {
    std::size_t frame;
    std::size_t line;
  };
  std::vector<Run> runs_;
  std::size_t frames_ = 0;
};

}  // namespace cli::trc
