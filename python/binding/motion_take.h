#pragma once

#include <cstdint>
#include <mutex>
#include <optional>
#include <vector>

#include "formats/htr/document.h"
#include "inspect/report/report.h"
#include "python/binding/frame_array.h"
#include "python/binding/reading.h"

// A motion file in Python's hands. Nothing of it changes once it is made, so any thread may ask it.

namespace binding {

class MotionTake {
 public:
  // Where the numbers of a frame stand in a row of Values().
  static constexpr std::size_t kTranslation = 0;
  static constexpr std::size_t kAngles = 3;
  static constexpr std::size_t kScale = 6;
  static constexpr std::size_t kNumbers = 7;

  MotionTake() = default;

  // Of who makes it, before anybody else has it.
  [[nodiscard]] orvane::HtrDocument& document() { return document_; }
  [[nodiscard]] const orvane::HtrDocument& document() const { return document_; }
  [[nodiscard]] Reading& reading() { return reading_; }
  [[nodiscard]] const Reading& reading() const { return reading_; }

  // Translation, angles and scale of every frame of every segment, as the file has them, NaN in
  // frames that the segment lacks: made when it is asked for first. It lives as long as this. Needs
  // no lock of the interpreter.
  [[nodiscard]] const FrameArray& Values() const;

 private:
  orvane::HtrDocument document_;
  Reading reading_;
  mutable std::once_flag made_;
  mutable std::optional<FrameArray> values_;
};

// Frames of the longest segment.
[[nodiscard]] std::size_t FrameCountOf(const orvane::HtrDocument& document);

// The index of each segment's parent; -1 for a root, and for one whose parent is not there.
[[nodiscard]] std::vector<std::int64_t> ParentsOf(const orvane::HtrDocument& document);

}  // namespace binding
