#pragma once

#include <memory>
#include <mutex>
#include <optional>

#include "formats/trc/document.h"
#include "inspect/report/report.h"
#include "inspect/summary/frame_rate.h"
#include "python/binding/frame_array.h"
#include "python/binding/reading.h"

// A marker file in Python's hands. Nothing of it changes once it is made, so any thread may ask it.

namespace binding {

class MarkerTake {
 public:
  MarkerTake() = default;

  // Of who makes it, before anybody else has it.
  [[nodiscard]] orvane::TRCDocument& document() { return document_; }
  [[nodiscard]] const orvane::TRCDocument& document() const { return document_; }
  [[nodiscard]] Reading& reading() { return reading_; }
  [[nodiscard]] const Reading& reading() const { return reading_; }

  // x, y and z of every frame of every marker, NaN in gaps: made when it is asked for first. It
  // lives as long as this. Needs no lock of the interpreter.
  [[nodiscard]] const FrameArray& Points() const;

 private:
  orvane::TRCDocument document_;
  Reading reading_;
  mutable std::once_flag made_;
  mutable std::optional<FrameArray> points_;
};

// Frames of the longest marker.
[[nodiscard]] std::size_t FrameCountOf(const orvane::TRCDocument& document);

}  // namespace binding
