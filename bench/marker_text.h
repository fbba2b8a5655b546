#pragma once

#include <string>

// Marker files to measure with: made in memory, the same at every run.
namespace bench {

// How much a file holds. The default makes a text of some 62 MB.
struct MarkerSize {
  int markers = 60;
  int frames = 36'000;
};

// Returns the text of a TRC file: each marker moves smoothly within some metres, in millimetres
// with four decimals, as recording systems write them.
std::string MakeMarkerText(MarkerSize size);

}  // namespace bench
