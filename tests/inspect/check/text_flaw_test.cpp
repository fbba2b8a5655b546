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

TEST(TextFlaw, IsToldInWords) {
  struct Words {
    TextFlaw flaw;
    std::string text, advice, found, expected;
  };
  for (const Words& words :
       {Words{TextFlaw::kEmpty, "The file is empty", "Was it saved, or copied, to its end?",
              "an empty file", "text"},
        {TextFlaw::kUtf16, "The file is UTF-16 text", "Save it as UTF-8 or ASCII.", "UTF-16 text",
         "ASCII or UTF-8"},
        {TextFlaw::kCarriageReturns, "Lines end with carriage returns alone, which end no line",
         "Save it with LF or CR LF where lines end.", "lines that end with carriage returns alone",
         "LF or CR LF where lines end"},
        {TextFlaw::kMarkedSection,
         "A byte-order mark keeps the first line from being a section line",
         "Save it without a byte-order mark.", "a byte-order mark before a section line",
         "[ as the first character"},
        {TextFlaw::kMarkedName,
         "A byte-order mark belongs to the first name, which is then not what it looks like",
         "Save it without a byte-order mark.", "a byte-order mark before a name",
         "a name at the start"}}) {
    const orvane::TextFlawWords& told = orvane::WordsFor(words.flaw);
    EXPECT_EQ(told.text, words.text);
    EXPECT_EQ(told.advice, words.advice);
    EXPECT_EQ(told.found, words.found);
    EXPECT_EQ(told.expected, words.expected);
  }
}

}  // namespace
