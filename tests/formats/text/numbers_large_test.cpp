#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <charconv>
#include <cstdint>
#include <cstring>
#include <random>
#include <string_view>

#include "formats/text/number_row.h"
#include "formats/text/numbers.h"

namespace orvane {
namespace {

constexpr int kValues = 10'000'000;

// `digits` with a point before the last `decimals` of them, zeros in front where there are too few.
std::string_view WriteDecimal(std::uint64_t digits, int decimals, std::array<char, 64>& buffer) {
  char* const end = buffer.data() + buffer.size();
  char* cursor = end;
  for (int place = 0; digits > 0 || place <= decimals; ++place) {
    if (place == decimals && place > 0) *--cursor = '.';
    *--cursor = static_cast<char>('0' + digits % 10);
    digits /= 10;
  }
  return {cursor, static_cast<std::size_t>(end - cursor)};
}

// Reads `text` within `line`, so that other characters than the end stop the number too.
void ExpectLikeTheStandardLibrary(std::string_view text, std::string_view line) {
  double expected = 0.0;
  std::from_chars(text.data(), text.data() + text.size(), expected);
  const LeadingDouble number = ReadDouble(line.data(), line.data() + line.size());
  ASSERT_EQ(std::bit_cast<std::uint64_t>(number.value), std::bit_cast<std::uint64_t>(expected))
      << line;
  ASSERT_EQ(number.end, line.data() + text.size()) << line;
}

// Plain decimals of every length, on both sides of where digits or power of ten stop being exact.
TEST(ReadDouble, AgreesWithTheStandardLibraryOnTenMillionPlainDecimals) {
  std::mt19937_64 random(20240607);
  constexpr std::array<char, 9> kBehind = {' ', '\t', '\r', '-', '/', ':', 'x', '\x7F', '\xB0'};
  for (int round = 0; round < kValues && !HasFatalFailure(); ++round) {
    const std::uint64_t bits = random();
    const std::uint64_t digits = random() >> (bits % 64);  // of every size alike
    const int decimals = static_cast<int>(bits >> 8 & 31) % 25;
    std::array<char, 64> buffer;
    const std::string_view text = WriteDecimal(digits, decimals, buffer);
    std::array<char, 80> line;
    std::memcpy(line.data(), text.data(), text.size());
    std::memset(line.data() + text.size(), kBehind[(bits >> 16) % kBehind.size()], 8);
    const std::size_t behind = (bits >> 24) % 9;
    ExpectLikeTheStandardLibrary({line.data(), text.size()}, {line.data(), text.size() + behind});
  }
}

// The same as cells of a row, where numbers of few digits take a shorter way.
TEST(NumberRow, AgreesWithTheStandardLibraryOnTenMillionPlainDecimals) {
  std::mt19937_64 random(20261122);
  NumberRow<SingleTabs> row;
  int decimals = 0;
  for (int round = 0; round < kValues && !HasFatalFailure(); ++round) {
    const std::uint64_t bits = random();
    const std::uint64_t digits = random() >> (bits % 64);  // of every size alike
    if (bits >> 13 & 1) decimals = static_cast<int>(bits >> 8 & 31) % 12;
    std::array<char, 64> buffer;
    const std::string_view text = WriteDecimal(digits, decimals, buffer);
    std::array<char, 80> line{};
    std::memset(line.data(), '\t', 16);
    std::memcpy(line.data() + 16, text.data(), text.size());
    double expected = 0.0;
    std::from_chars(text.data(), text.data() + text.size(), expected);
    ASSERT_TRUE(row.Read({line.data(), 16 + text.size()}, 16, 1).empty());
    ASSERT_EQ(std::bit_cast<std::uint64_t>(row[0]), std::bit_cast<std::uint64_t>(expected)) << text;
  }
}

}  // namespace
}  // namespace orvane
