#pragma once

#include <string>

#include "formats/trc/document.h"
#include "formats/trc/points_view.h"
#include "python/binding/reading.h"

// A marker file in Python's hands. Nothing of it changes once it is settled, so any thread may ask
// it.

namespace binding {

class MarkerTake {
 public:
  MarkerTake() = default;

  // Of who makes it, before anybody else has it.
  [[nodiscard]] orvane::TRCDocument& document() { return document_; }
  [[nodiscard]] const orvane::TRCDocument& document() const { return document_; }
  [[nodiscard]] Reading& reading() { return reading_; }
  [[nodiscard]] const Reading& reading() const { return reading_; }

  // Ends the making: from now on its points may be asked for. Throws a FileRefusal about `path`
  // when hardly anything would be in an array of them. Needs no lock of the interpreter.
  void Settle(const std::string& path);

  // x, y and z of every frame of every marker, NaN in gaps, in the memory of the document.
  [[nodiscard]] const orvane::TRCPointsView& Points() const { return points_; }

 private:
  orvane::TRCDocument document_;
  Reading reading_;
  orvane::TRCPointsView points_;
};

// Frames of the longest marker.
[[nodiscard]] std::size_t FrameCountOf(const orvane::TRCDocument& document);

}  // namespace binding
