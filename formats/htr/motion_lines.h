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
  // Of a file of so many bytes. The others must outlive this.
  MotionLines(HtrDocument& document, HtrOddities& oddities, std::size_t size)
      : document_(document), oddities_(oddities), size_(size) {}

  // The section of the segment `name` begins.
  void Enter(std::string_view name);

  // Reads the next of `lines` and returns true, if it is one that holds a frame of the current
  // section and nothing that is odd. All others are left where they are.
  [[nodiscard]] bool ReadAhead(LineReader& lines, double radians);
  // Reads a line of the current section; angles are in a unit of so many `radians`.
  void Read(std::string_view line, double radians);

 private:
  void TellFrame(std::string_view line);
  void CheckNumbers(std::string_view line) const;
  void TakeStartFrame(std::string_view line);

  HtrDocument& document_;
  HtrOddities& oddities_;
  const std::size_t size_;

  HtrSegment* segment_ = nullptr;  // of the current section; null for an unknown name
  bool first_frame_read_ = false;
  TransformRow row_;
};

}  // namespace orvane
