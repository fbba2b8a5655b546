#include "formats/htr/transform_row.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <vector>

namespace orvane {
namespace {

using namespace std::string_literals;

// Behind the line, so that there is enough to look at.
std::string WithMore(const std::string& line) { return line + std::string(200, '7') + "\n"; }

std::size_t SizeOfFrame(const std::string& line) {
  TransformRow row;
  return row.ReadFrame(WithMore(line));
}

TEST(TransformRowTest, ReadsFramesAsItReadsOtherLines) {
  for (const std::string text :
       {"1\t0.000000\t950.000000\t-0.000000\t33.528187\t-14.297548\t-166.310589\t1.000000",
        "1\t2\t3\t4\t5\t6\t7\t8", "12 1.5 -2.25 +3 1e3 -4E-2 .5 7.", "x\t-0\t-0.0\t1\t2\t3\t4\t5",
        "4711\t12345678.12345678\t1234567.123456789\t0.1\t0.123456789012345678\t1\t2\t1000000",
        "1\t123456789012345678901234567890\t1e-320\t3e38\t0001\t0.0001\t00\t-1",
        "-1000000000000000000000000000000000000000000000000000000000000\t1\t2\t3\t4\t5\t6\t7"}) {
    for (const std::string end : {"\n", "\r\n"}) {
      TransformRow ahead;
      TransformRow row;
      EXPECT_EQ(ahead.ReadFrame(WithMore(text + end)), text.size() + end.size()) << text;
      row.Read(text, 1);
      EXPECT_EQ(ahead.Frame(0.25), row.Frame(0.25)) << text;
      EXPECT_TRUE(row.IsOrdinary()) << text;
    }
  }
}

TEST(TransformRowTest, ReadsFramesWhateverStandsAboveThem) {
  const std::vector<std::string> lines = {
      "9\t0.500000\t-12.250000\t3.125000\t1234.567000\t1.000000\t2.000000\t1.000000\n",
      "10\t-0.500000\t2.250000\t3.125000\t1234.567000\t-1.000000\t22.000000\t10.000000\r\n",
      "11 1 2 3 4 5 6 7\n", "12\t1.5\t2.5\t3.5\t4.5\t5.5\t6.5\t7.5\n"};
  for (const std::string& above : lines) {
    for (const std::string& line : lines) {
      TransformRow alone;
      EXPECT_EQ(alone.ReadFrame(WithMore(line)), line.size());
      TransformRow row;
      EXPECT_EQ(row.ReadFrame(WithMore(above)), above.size());
      EXPECT_EQ(row.ReadFrame(WithMore(line)), line.size());
      EXPECT_EQ(row.Frame(1.0), alone.Frame(1.0)) << above << "above " << line;
    }
    TransformRow row;
    EXPECT_EQ(row.ReadFrame(WithMore(above)), above.size());
    EXPECT_EQ(row.ReadFrame(WithMore("9\t0.500000\t-12.250000\t3.125000\n")), 0U);
    EXPECT_EQ(row.ReadFrame(above.substr(0, above.size() - 1)), 0U);
  }
}

TEST(TransformRowTest, LeavesWhatIsOddInAFrame) {
  for (const std::string& line : {"\n"s,
                                  "\r\n"s,
                                  "[a]\t1\t2\t3\t4\t5\t6\t7\n"s,
                                  "[a\t1\t2\t3\t4\t5\t6\t7\n"s,
                                  "1\t1\t2\t3\t4\t5\t6\n"s,
                                  "1\t1\t2\t3\t4\t5\t6\t7\t8\n"s,
                                  "1\t1\t2\t3\t4\t5\t6\t7\t\n"s,
                                  "1\t1\t2\t3\t4\t5\t6\t7 \n"s,
                                  "\t1\t1\t2\t3\t4\t5\t6\t7\n"s,
                                  "1\t\t1\t2\t3\t4\t5\t6\t7\n"s,
                                  "1\t1\t2 \t3\t4\t5\t6\t7\n"s,
                                  "1\t1\t2\t3\t4\t5\t6\t7#\n"s,
                                  "1#\t1\t2\t3\t4\t5\t6\t7\n"s,
                                  "1\t1\t2\t3\t4\t5\t6\t7\r\r\n"s,
                                  "1\t1\t2\t3\t4\t5\t6\t7\r"s,
                                  "1\t1\t2\t3\t4\t5\t6\t7"s,
                                  "1\t1\t2\t3\0\t4\t5\t6\t7\n"s,
                                  "1\t1\t2\t3\t4\t5\t6\t7\0\n"s,
                                  "1\t1\t2\t3\v4\t5\t6\t7\n"s,
                                  "1\t1\t2\t3\t4\t5\t6\tx\n"s,
                                  "1\t1\t2\t3\t4\t5\t6\t7x\n"s,
                                  "1\t1\t2\t3\t4\t5\t6,5\t7\n"s,
                                  "1\t1\t2\t3\t4\t5\t6\t1e39\n"s,
                                  "1\t1\t2\t3\t4\t5\t6\t\xC2\xA0\n"s,
                                  "1\t1\t2\t\n"s,
                                  "1\t1\t2\t3\t4\t5\t6\t-\n"s,
                                  "1\t1\t2\t3\t4\t5\t6\t1.2.3\n"s,
                                  "1\r\t1\t2\t3\t4\t5\t6\t7\n"s,
                                  "1\t1\t2\t3\t4\t5\t6\tinf\n"s}) {
    EXPECT_EQ(SizeOfFrame(line), 0U) << line;
  }
}

// The end of what has been read is not the end of the line.
TEST(TransformRowTest, LeavesFramesThatAreNotThereAsAWhole) {
  const std::string line = "1\t1.5\t2.5\t3.5\t4.5\t5.5\t6.5\t7.5\r\n";
  for (std::size_t size = 0; size < line.size(); ++size) {
    TransformRow row;
    EXPECT_EQ(row.ReadFrame(line.substr(0, size)), 0U) << size;
  }
}

TEST(TransformRowTest, LeavesLinesThatMayBeReadInPieces) {
  const std::string numbers = "\t1\t2\t3\t4\t5\t6\t7\n";
  EXPECT_EQ(SizeOfFrame(std::string(20'000, '1') + numbers), 0U);
  EXPECT_EQ(SizeOfFrame("1" + numbers), 1 + numbers.size());
}

}  // namespace
}  // namespace orvane
