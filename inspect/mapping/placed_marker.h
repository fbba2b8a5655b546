#pragma once

#include <cstddef>
#include <string>

// What is said of a marker by where it sits on the body. Indices count from 0. Values: threads may
// read one together, and each may change its own.

namespace orvane {

// A marker that sits where a standard marker does.
struct PlacedMarker {
  std::string standard;
  std::size_t marker = 0;  // its index in the document
  std::string place;       // in words: "front left of the four markers of the head"
};

// A part of the body of which not all is sure.
struct UnsurePlace {
  std::string part;    // "the head"
  std::string reason;  // "3 markers where four, two by two alike, belong"
};

}  // namespace orvane
