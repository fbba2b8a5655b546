#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "formats/htr/document.h"
#include "formats/htr/frames_view.h"
#include "python/binding/reading.h"

// A motion file in Python's hands. Nothing of it changes once it is settled, so any thread may ask
// it.

namespace binding {

class MotionTake {
 public:
  // Where the numbers of a frame stand in Values().
  static constexpr std::size_t kTranslation = 0;
  static constexpr std::size_t kAngles = 3;
  static constexpr std::size_t kScale = 6;

  MotionTake() = default;

  // Of who makes it, before anybody else has it.
  [[nodiscard]] orvane::HtrDocument& document() { return document_; }
  [[nodiscard]] const orvane::HtrDocument& document() const { return document_; }
  [[nodiscard]] Reading& reading() { return reading_; }
  [[nodiscard]] const Reading& reading() const { return reading_; }

  // Ends the making: from now on its values may be asked for. Throws a FileRefusal about `path`
  // when hardly anything would be in an array of them. Needs no lock of the interpreter.
  void Settle(const std::string& path);

  // Translation, angles and scale of every frame of every segment, as the file has them, NaN in
  // frames that the segment lacks, in the memory of the document.
  [[nodiscard]] const orvane::HtrFramesView& Values() const { return values_; }

 private:
  orvane::HtrDocument document_;
  Reading reading_;
  orvane::HtrFramesView values_;
};

// Frames of the longest segment.
[[nodiscard]] std::size_t FrameCountOf(const orvane::HtrDocument& document);

// The index of each segment's parent; -1 for a root, and for one whose parent is not there.
[[nodiscard]] std::vector<std::int64_t> ParentsOf(const orvane::HtrDocument& document);

}  // namespace binding
