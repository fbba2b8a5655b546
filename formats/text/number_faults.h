#pragma once

#include <string_view>

// What reading numbers lets pass, for those who watch a reader.
namespace orvane {

enum class NumberFault {
  kNone,
  kMissing,      // nothing there
  kUnreadable,   // more or other than one number
  kOutOfBounds,  // a whole number that needs more than 32 bits, or a real one that is infinite in
                 // single precision
  kCut,          // a fraction where a whole number is wanted
};

// Whether `value` is finite in single precision, which lengths have in a scene.
bool FitsSinglePrecision(double value);

// `cell` is what should be one real number, without anything around it.
NumberFault FaultOfNumber(std::string_view cell);

// The same for a whole number of 32 bits.
NumberFault FaultOfWholeNumber(std::string_view cell);

}  // namespace orvane
