#include "inspect/check/text_flaw.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "tests/support/saved_text.h"

namespace {

using orvane::FindHtrTextFlaw;
using orvane::FindTextFlaw;
using orvane::TextFlaw;
using test::BigEndian;
using test::kMark;
using test::LittleEndian;
using test::WithReturns;
using namespace std::string_literals;

struct Bytes {
  std::string bytes;
  std::optional<TextFlaw> flaw;
};

TEST(TextFlaw, IsSeenInTheBytes) {
  for (const Bytes& each : {
           Bytes{"", TextFlaw::kEmpty},
           {kMark, TextFlaw::kEmpty},
           {"\n", std::nullopt},
           {BigEndian("C7\tBack\n"), TextFlaw::kUtf16},
           {LittleEndian("C7\tBack\n"), TextFlaw::kUtf16},
           {"\xFE\xFF" + BigEndian("C7"), TextFlaw::kUtf16},
           {"\xFF\xFE" + LittleEndian("C7"), TextFlaw::kUtf16},
           {"\xFF\xFE", TextFlaw::kUtf16},
           {"\xFF\xFE\0\0C\0\0\0"s, std::nullopt},  // four bytes a character
           {"\xFF\xFE"
            "C7\tBack\n",
            std::nullopt},
           {"C7\tBack\0\0\n"s, std::nullopt},
           {"C7\tBack" + std::string(100, '\0'), std::nullopt},
           {WithReturns("C7\tBack\nT10\tLow\n"), TextFlaw::kCarriageReturns},
           {std::string(11, '\r') + "C7\n", std::nullopt},
           {"C7\rC7\rC7\rC7\rC7\rC7\rC7\rC7\rC7\rC7\rC7\rC7\n", TextFlaw::kCarriageReturns},
           {"C7\rC7\rC7\rC7\rC7\rC7\rC7\rC7\rC7\rC7\rC7\n", std::nullopt},
           {"C7\rBack\0"s, std::nullopt},
           {"C7\tBack\r", std::nullopt},
           {"C7\tBack\r\r\nT10\tLow\r\r\n", std::nullopt},
           {WithReturns("C7\n" + std::string(100'000, 'x')), TextFlaw::kCarriageReturns},
           {std::string(65'536, 'x') + "\rC7", std::nullopt},  // behind what is looked at
       }) {
    EXPECT_EQ(FindTextFlaw(each.bytes), each.flaw) << testing::PrintToString(each.bytes);
    EXPECT_EQ(FindHtrTextFlaw(each.bytes), each.flaw) << testing::PrintToString(each.bytes);
  }
}

TEST(TextFlaw, IsAMarkOnlyBeforeASection) {
  EXPECT_EQ(FindHtrTextFlaw(kMark + "[Header]\n"s), TextFlaw::kMarkedSection);
  EXPECT_EQ(FindHtrTextFlaw("\xFF\xFE[Header]\n"), TextFlaw::kMarkedSection);
  EXPECT_EQ(FindHtrTextFlaw(kMark + "# a walk\n[Header]\n"s), std::nullopt);
  EXPECT_EQ(FindHtrTextFlaw("[Header]\n"), std::nullopt);
  EXPECT_EQ(FindTextFlaw(kMark + "[Header]\n"s), std::nullopt);
}

}  // namespace
