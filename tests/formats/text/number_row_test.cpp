#include "formats/text/number_row.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "formats/text/lines.h"
#include "formats/text/numbers.h"
#include "tests/support/bits.h"

namespace orvane {
namespace {

constexpr double kNone = kNoNumber;
constexpr std::size_t kAll = 1000;

// In memory of its own, so that nothing before or behind the line can be read unseen.
template <typename Separators>
std::string ReadRow(NumberRow<Separators>& row, std::string_view text, std::size_t first,
                    std::size_t most) {
  const std::vector<char> line(text.begin(), text.end());
  return std::string(row.Read({line.data(), line.size()}, first, most));
}

template <typename Separators>
std::vector<double> NumbersOf(const NumberRow<Separators>& row) {
  std::vector<double> numbers;
  for (std::size_t index = 0; index < row.Count(); ++index) numbers.push_back(row[index]);
  return numbers;
}

void ExpectSame(const std::vector<double>& left, const std::vector<double>& right,
                const std::string& line) {
  ASSERT_EQ(left.size(), right.size()) << line;
  for (std::size_t index = 0; index < left.size(); ++index) {
    if (IsNoNumber(right[index])) {
      EXPECT_TRUE(IsNoNumber(left[index])) << line << ", number " << index;
      continue;
    }
    EXPECT_EQ(test::BitCast<std::uint64_t>(left[index]), test::BitCast<std::uint64_t>(right[index]))
        << line << ", number " << index;
  }
}

struct Row {
  const char* name;
  std::string line;
  std::size_t first;
  std::size_t most;
  std::vector<double> numbers;
  std::string rest;
  bool is_ordinary;
};

class SingleTabsTest : public testing::TestWithParam<Row> {};
class BlanksAndTabsTest : public testing::TestWithParam<Row> {};

template <typename Separators>
void ExpectRow(const Row& row) {
  NumberRow<Separators> numbers;
  EXPECT_EQ(ReadRow(numbers, row.line, row.first, row.most), row.rest);
  ExpectSame(NumbersOf(numbers), row.numbers, row.line);
  EXPECT_EQ(numbers.AreOrdinary(), row.is_ordinary);
  for (std::size_t spare = 0; spare < numbers.kSpareNumbers; ++spare) {
    EXPECT_TRUE(IsNoNumber(numbers[numbers.Count() + spare]));
  }
}

TEST_P(SingleTabsTest, GivesTheNumbersOfTheCells) { ExpectRow<SingleTabs>(GetParam()); }

TEST_P(BlanksAndTabsTest, GivesTheNumbersOfTheCells) { ExpectRow<BlanksAndTabs>(GetParam()); }

constexpr auto kName = [](const auto& info) { return std::string(info.param.name); };

INSTANTIATE_TEST_SUITE_P(
    Rows, SingleTabsTest,
    testing::Values(
        Row{"NothingOfAnEmptyLine", "", 0, kAll, {}, "", true},
        Row{"OneCell", "1.5", 0, kAll, {1.5}, "", true},
        Row{"SeveralCells", "1\t-2.25\t.5\t4.", 0, kAll, {1, -2.25, .5, 4}, "", true},
        Row{"EmptyCells", "1\t\t\t4", 0, kAll, {1, kNone, kNone, 4}, "", true},
        Row{"AnEmptyCellInFront", "\t2", 0, kAll, {kNone, 2}, "", true},
        Row{"NoCellBehindTheLastTab", "1\t2\t", 0, kAll, {1, 2}, "", true},
        Row{"TabsAlone", "\t\t\t", 0, kAll, {kNone, kNone, kNone}, "", true},
        Row{"CellsLeftOutWhateverTheyAre", "x\t\t3.25", 2, kAll, {3.25}, "", true},
        Row{"NothingWhereAllIsLeftOut", "1\t2", 3, kAll, {}, "", true},
        Row{"TheRestBehindTheMost", "1\t2\t3\tx", 1, 2, {2, 3}, "x", true},
        Row{"NoRestBehindATab", "1\t2\t3\t", 1, 2, {2, 3}, "", true},
        Row{"TheRestOfEmptyCells", "1\t2\t3\t\t", 1, 2, {2, 3}, "\t", true},
        Row{"ABlankBefore", "1.5\t 2.5\t3.5", 0, kAll, {1.5, 2.5, 3.5}, "", false},
        Row{"TextBehind", "1.5\t2.5x\t3.5", 0, kAll, {1.5, 2.5, 3.5}, "", false},
        Row{"NoNumber", "1.5\tx\t3.5", 0, kAll, {1.5, 0, 3.5}, "", false},
        Row{"BlanksAlone", "1.5\t  \t3.5", 0, kAll, {1.5, 0, 3.5}, "", false},
        Row{"APointAlone", "1.5\t.\t-.\t-", 0, kAll, {1.5, 0, 0, 0}, "", false},
        Row{"Signs", "+1.5\t-0.0000\t--1", 0, kAll, {1.5, -0.0, 0}, "", false},
        Row{"Exponents", "1.5e3\t15E-1", 0, kAll, {1500, 1.5}, "", true},
        Row{"BeyondSinglePrecision", "1e39", 0, kAll, {1e39}, "", false},
        Row{"BeyondDoublePrecision",
            "-1e400",
            0,
            kAll,
            {-std::numeric_limits<double>::infinity()},
            "",
            false},
        Row{"WordsForNoNumber", "nan\tinf", 0, kAll, {0, 0}, "", false},
        Row{"TwoPoints", "1.25\t1.2.3\t4.25", 0, kAll, {1.25, 1.2, 4.25}, "", false},
        // The point of the cell before stands where that of the cell itself is looked for.
        Row{"WholeNumbersBehindDecimals",
            "-12.345678\t8.7\t8\t-8\t1234567\t12345678\t123456789",
            0,
            kAll,
            {-12.345678, 8.7, 8, -8, 1234567, 12345678, 123456789},
            "",
            true},
        Row{"DecimalsThatChange",
            "12345678.12345678\t0.5\t-99999999.99999999\t1.25\t12345678.5\t123456789.5",
            0,
            kAll,
            {12345678.12345678, 0.5, -99999999.99999999, 1.25, 12345678.5, 123456789.5},
            "",
            true},
        Row{"LongTails",
            "0.1000000000000000055511151231257827\t1.000000000000000000000000000001",
            0,
            kAll,
            {0.1, 1.0},
            "",
            true},
        // Halfway between two doubles, and just above.
        Row{"Ties",
            "9007199254740993\t9007199254740993.0000001",
            0,
            kAll,
            {9007199254740992, 9007199254740994},
            "",
            true},
        Row{"OtherBytes", "1.5\t\x80\xFF.5\t1\xB0.25", 0, kAll, {1.5, 0, 1}, "", false}),
    kName);

INSTANTIATE_TEST_SUITE_P(
    Rows, BlanksAndTabsTest,
    testing::Values(
        Row{"NothingOfAnEmptyLine", "", 0, kAll, {}, "", true},
        Row{"NothingOfSeparators", " \t \t", 0, kAll, {}, "", true},
        Row{"AnyNumberOfSeparators", "  1.5\t \t2.5   -3.5 ", 0, kAll, {1.5, 2.5, -3.5}, "", true},
        Row{"CellsLeftOut", " name  1.5\t2.5", 1, kAll, {1.5, 2.5}, "", true},
        Row{"TheRestBehindTheMost", "1 2.5 3.5  4.5", 1, 2, {2.5, 3.5}, " 4.5", true},
        Row{"TextBehind", "1.5 2.5x 3.5", 0, kAll, {1.5, 2.5, 3.5}, "", false},
        Row{"NoNumber", "1.5 x 3.5", 0, kAll, {1.5, 0, 3.5}, "", false},
        Row{"ACarriageReturn", "1.5 2.5\r", 0, kAll, {1.5, 2.5}, "", false}),
    kName);

// A line of every length up to three blocks, with cells of all lengths at all places.
TEST(NumberRow, FindsCellsWhereverTheyStand) {
  for (std::size_t length = 1; length <= 12; ++length) {
    const std::string cell = std::string(length - 1, '0') + "7";
    std::string line = cell;
    for (std::size_t cells = 1; line.size() < 200; ++cells, line += "\t" + cell) {
      NumberRow<SingleTabs> row;
      EXPECT_EQ(ReadRow(row, line, 0, kAll), "");
      ExpectSame(NumbersOf(row), std::vector<double>(cells, 7.0), line);
      EXPECT_TRUE(row.AreOrdinary());
    }
  }
}

// The rows before differ: longer, shorter and empty cells stand above each, and separators where
// one of those ended.
TEST(NumberRow, ReadsCellsWhateverStandsAboveThem) {
  const std::vector<std::string> lines = {"1\t0.5\t-12.250\t3.125\t1234.567",
                                          "2\t0.5\t12.250\t-3.125\t1234.567\t",
                                          "3\t\t\t\t",
                                          "4\t1.5\t2.5\t3.5\t4.5",
                                          "5\t1000.5\t2\t3\t4",
                                          "6\t1\t2\t3.5\t4.500000\t5",
                                          "",
                                          "12345\t0.5\t-1x.250\t3..25\t-"};
  for (const std::string& above : lines) {
    for (const std::string& line : lines) {
      NumberRow<SingleTabs> alone;
      const std::string rest = ReadRow(alone, line, 1, 4);
      NumberRow<SingleTabs> row;
      ReadRow(row, above, 1, 4);
      const std::vector<char> bytes(line.begin(), line.end());
      EXPECT_EQ(row.Read({bytes.data(), bytes.size()}, 1, 4), rest);
      ExpectSame(NumbersOf(row), NumbersOf(alone), above + " above " + line);
      EXPECT_EQ(row.AreOrdinary(), alone.AreOrdinary()) << above << " above " << line;
      const auto tabs = std::count(line.begin(), line.end(), '\t');
      EXPECT_EQ(row.CellsOfLine(), static_cast<std::size_t>(tabs) + 1) << line;
    }
  }
}

TEST(NumberRow, TakesTheLongestPieceOfALine) {
  NumberRow<SingleTabs> row;
  EXPECT_EQ(ReadRow(row, std::string(kLongestPiece, '\t'), 0, kLongestPiece), "");
  EXPECT_EQ(row.Count(), kLongestPiece);
}

// Behind a line, so that there is enough to look at.
std::string WithMore(const std::string& line) { return line + std::string(200, '7') + "\n"; }

TEST(NumberRow, ReadsLinesAheadAsItReadsOthers) {
  const std::vector<std::string> lines = {
      "1\t0.5\t-12.250\t3.125\t1234.567",
      "2\t0.5\t12.250\t-3.125\t1234.567\t",
      "3\t\t\t\t",
      "4\t1.5\t2.5\t\t4.5",
      "5\t\t2\t3",
      "-6:0/x\t1.5\t1e3\t.5\t12345678901234567890",
      "\t\t1000.000000\t1000.000000\t-1000.000000",
      "7\t0.5\t",
  };
  for (const std::string& above : lines) {
    for (const std::string& line : lines) {
      for (const std::string end : {"\n", "\r\n"}) {
        NumberRow<SingleTabs> alone;
        EXPECT_EQ(ReadRow(alone, line, 2, 3), "");
        NumberRow<SingleTabs> row;
        EXPECT_EQ(row.ReadAhead(WithMore(above + end), 2, 3), above.size() + end.size());
        const std::string bytes = WithMore(line + end);
        EXPECT_EQ(row.ReadAhead(bytes, 2, 3), line.size() + end.size()) << line;
        ExpectSame(NumbersOf(row), NumbersOf(alone), above + " above " + line);
        EXPECT_TRUE(IsNoNumber(row[row.Count()]));
        EXPECT_TRUE(row.AreOrdinary());
        const auto tabs = std::count(line.begin(), line.end(), '\t');
        EXPECT_EQ(row.CellsOfLine(), static_cast<std::size_t>(tabs) + 1) << line;
      }
    }
  }
}

TEST(NumberRow, LeavesLinesAheadThatAreOdd) {
  using namespace std::string_literals;
  for (const std::string& line : {""s,
                                  "\n"s,
                                  "\r\n"s,
                                  "1\n"s,
                                  "1\t2\n"s,
                                  "#\t0.5\t1\t2\t3\n"s,
                                  "1\t \t1\t2\t3\n"s,
                                  "1\t0.5\t1\t2\t3\t4\n"s,
                                  "1\t0.5\t1\t2\t3\t\t\n"s,
                                  "1\t0.5\t1\t2\t3 \n"s,
                                  "1\t0.5\t1 \t2\t3\n"s,
                                  "1\t0.5\t 1\t2\t3\n"s,
                                  "1\t0.5\t1\tx\t3\n"s,
                                  "1\t0.5\t1\t2x\t3\n"s,
                                  "1\t0.5\t1\t1e39\t3\n"s,
                                  "1\t0.5\t1\t-\t3\n"s,
                                  "1\t0.5\t1\t2\t3\r\r\n"s,
                                  "1\t0.5\t1\t\r2\t3\n"s,
                                  "1\t0.5\t1\t2\t3\r"s,
                                  "1\t0.5\t1\t2\t3"s,
                                  "1\t0.5\t1\t2\t"s,
                                  "1\t0.5\t1\t2\0\t3\n"s,
                                  "1\0\t0.5\t1\t2\t3\n"s,
                                  "1\t0.5\t1\t2\t3\0\n"s,
                                  "1\r\t0.5\t1\t2\t3\n"s}) {
    NumberRow<SingleTabs> row;
    const std::vector<char> bytes(line.begin(), line.end());
    EXPECT_EQ(row.ReadAhead({bytes.data(), bytes.size()}, 2, 3), 0U) << line;
    const std::string above = "1\t0.5\t1\t2\t3\n";
    EXPECT_EQ(row.ReadAhead(above, 2, 3), above.size());
    EXPECT_EQ(row.ReadAhead({bytes.data(), bytes.size()}, 2, 3), 0U) << line;
  }
}

// Numbers of up to nineteen digits, each with as many decimals as the one before, or others.
TEST(NumberRow, ReadsWhatParseDoubleReads) {
  std::mt19937_64 random(20261122);
  NumberRow<SingleTabs> row;
  std::size_t decimals = 0;
  for (int round = 0; round < 10'000; ++round) {
    std::string line;
    std::vector<double> expected;
    while (line.size() < 150) {
      if (random() % 8 == 0) decimals = random() % 12;
      std::string cell = std::to_string(random() >> (random() % 64));
      if (cell.size() <= decimals) cell.insert(0, decimals + 1 - cell.size(), '0');
      if (random() % 16 != 0) cell.insert(cell.size() - decimals, ".");
      if (random() % 3 == 0) cell.insert(0, "-");
      if (random() % 64 == 0) cell[random() % cell.size()] = static_cast<char>(random() % 255 + 1);
      if (cell.find('\t') != std::string::npos) continue;
      expected.push_back(ParseDouble(cell));
      line += cell + "\t";
    }
    ReadRow(row, line, 0, kAll);
    ExpectSame(NumbersOf(row), expected, line);
  }
}

}  // namespace
}  // namespace orvane
