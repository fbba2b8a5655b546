#pragma once

#include "formats/text/number_form.h"

// What a table says of a document, and how.
namespace orvane {

enum class CsvLayout {
  kWide,  // a row a frame, and columns for each marker or segment
  kLong,  // a row for each marker or segment of each frame
};

// What the places and rotations of segments are told in.
enum class CsvSpace { kWorld, kParent };

enum class CsvRotations {
  kEuler,       // three angles in the document's unit, by the default Euler order
  kQuaternion,  // x, y, z and w
};

struct CsvManner {
  NumberForm numbers = NumberForm::Shortest();
  CsvLayout layout = CsvLayout::kWide;
  double frames_per_second = 0.0;  // what times count by; 0 or less: none are told
  double first_time = 0.0;         // of the first frame, in seconds
  // Of segments alone.
  CsvSpace space = CsvSpace::kWorld;
  CsvRotations rotations = CsvRotations::kEuler;
};

}  // namespace orvane
