#pragma once

#include <cstdint>

// The convention of a triple of Euler angles, packed into one code (Ken Shoemake, "Euler Angle
// Conversion", Graphics Gems IV, 1994). From the least significant bit:
//
//   bit 0     frame       0 static axes; 1 rotating axes: first and third angle change places
//   bit 1     repetition  0 three distinct axes (i, j, k); 1 the first axis again (i, j, i)
//   bit 2     parity      0 even: j follows i in the cycle X, Y, Z; 1 odd: j precedes i
//   bits 3-4  inner axis  i: 0 X, 1 Y, 2 Z; 3 is read as X
//
// Code 0 stands for M = Rz(z) Ry(y) Rx(x) on column vectors: about fixed X first, then fixed Y,
// then fixed Z. With the angles (90, 0, 90) degrees it takes +Y to +Z and then leaves it there.
// Nothing fails: any code can be taken apart. Threads may read one together, and each may change
// its own.
namespace orvane {

class OrvaneEulerOrder {
 public:
  // A code taken apart. Axis indices: 0 X, 1 Y, 2 Z.
  struct Axes {
    unsigned int i = 0;
    unsigned int j = 0;
    unsigned int k = 0;
    bool odd_parity = false;
    bool repeats_first_axis = false;
    bool rotating_frame = false;
  };

  constexpr OrvaneEulerOrder() = default;
  constexpr explicit OrvaneEulerOrder(std::uint32_t code) : code_(code) {}
  constexpr OrvaneEulerOrder(const OrvaneEulerOrder&) = default;
  OrvaneEulerOrder& operator=(const OrvaneEulerOrder&) = default;
  virtual ~OrvaneEulerOrder() = default;

  std::uint32_t code() const { return code_; }

  // Takes the code apart.
  Axes Decode() const;

 private:
  std::uint32_t code_ = 0;
};

}  // namespace orvane
