#pragma once

#include <cstdint>
#include <cstring>

// Numbers as bytes, the lowest first, whatever the machine's own order.
namespace orvane {

// Each writes behind `first` and returns the place behind what it wrote.

inline char* WriteByte(std::uint32_t value, char* first) {
  *first = static_cast<char>(static_cast<unsigned char>(value & 0xFFU));
  return first + 1;
}

// The lower 16 bits.
inline char* WriteWord(std::uint32_t value, char* first) {
  return WriteByte(value >> 8U, WriteByte(value, first));
}

inline char* WriteFloat(float value, char* first) {
  static_assert(sizeof(float) == sizeof(std::uint32_t));
  std::uint32_t bits = 0;
  std::memcpy(&bits, &value, sizeof bits);
  return WriteWord(bits >> 16U, WriteWord(bits, first));
}

}  // namespace orvane
