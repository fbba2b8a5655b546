#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "formats/htr/document.h"
#include "formats/htr/oddities.h"
#include "formats/htr/transform_row.h"

// The lines of motion sections, each a frame of the section's segment. Belongs to the reader.
namespace orvane {

class MotionLines {
 public:
  // Both must outlive this.
  MotionLines(HtrDocument& document, HtrOddities& oddities)
      : document_(document), oddities_(oddities) {}

  // The section of the segment `name` begins.
  void Enter(std::string_view name);
  // A section ends, if there is one.
  void Leave();

  // Reads a line of the current section; angles are in a unit of so many `radians`.
  void Read(std::string_view line, double radians);

 private:
  void TellFrame(std::string_view line);
  void CheckNumbers(std::string_view line) const;
  void TakeStartFrame(std::int32_t frame_number);
  void ReserveFor(std::string_view line);

  HtrDocument& document_;
  HtrOddities& oddities_;

  HtrSegment* segment_ = nullptr;  // of the current section; null for an unknown name
  std::size_t frames_before_section_ = 0;
  std::size_t frames_in_last_section_ = 0;
  bool first_frame_read_ = false;
  TransformRow row_;
};

}  // namespace orvane
