#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>

// The bound of arrays that documents make of what they hold in less room.
namespace orvane {

// Thrown in place of an array that is out of proportion to what is in it, with the document
// unchanged.
class ArrayTooLarge : public std::length_error {
 public:
  ArrayTooLarge(std::uint64_t needed, std::uint64_t held)
      : std::length_error("an array of " + std::to_string(needed) + " bytes for " +
                          std::to_string(held) + " bytes of numbers"),
        needed_(needed),
        held_(held) {}

  // What the array would take.
  std::uint64_t NeededBytes() const { return needed_; }
  // What the numbers take that would be in it.
  std::uint64_t HeldBytes() const { return held_; }

 private:
  std::uint64_t needed_;
  std::uint64_t held_;
};

// Throws ArrayTooLarge for an array of more than 512 MiB that takes more than eight times what is
// held. Both are in bytes.
inline void RequireProportion(std::uint64_t needed, std::uint64_t held) {
  constexpr std::uint64_t kAlwaysMade = std::uint64_t{512} * 1024 * 1024;
  constexpr std::uint64_t kMostTimes = 8;
  if (needed > kAlwaysMade && needed / kMostTimes > held) throw ArrayTooLarge(needed, held);
}

}  // namespace orvane
