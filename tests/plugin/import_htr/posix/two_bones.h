#pragma once

#include "tests/support/htr_text.h"

namespace test {

// Two bones, two frames.
inline HtrText TwoBones() {
  HtrText file;
  file.segments = {{"Hips", "GLOBAL", "1 2 3 10 20 30 10", {"4 0 0 40 50 60", "5 0 0 0 0 0"}},
                   {"Leg", "Hips", "0 4 0 7 8 9 20", {"0 0 0 0 0 0", "0 1 0 0 0 90"}}};
  return file;
}

}  // namespace test
