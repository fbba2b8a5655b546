#include "inspect/summary/first_time.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/support/trc_text.h"

namespace orvane {
namespace {

double TimeOf(const std::string& bytes) {
  MemorySource source(bytes);
  return FirstTimeOfTrc(source);
}

TEST(FirstTime, IsTheNumberInTheFirstRow) {
  const struct {
    const char* text;
    double seconds;
  } rows[] = {{"2.270", 2.27}, {" 0.5 ", 0.5},    {"-1", -1.0}, {"1e3", 1000.0},
              {"", 0.0},       {"00:00:02", 0.0}, {"x", 0.0},   {"1e999", 0.0}};
  for (const auto& [text, seconds] : rows) {
    test::TrcText take;
    take.markers = {"A"};
    take.frames = {{"1\t2\t3"}, {"4\t5\t6"}};
    take.time = text;
    EXPECT_EQ(TimeOf(take.Text()), seconds) << text;
  }
}

TEST(FirstTime, IsNoneOfAFileWithoutRows) {
  test::TrcText take;
  take.markers = {"A"};
  EXPECT_EQ(TimeOf(take.Text()), 0.0);
  EXPECT_EQ(TimeOf(""), 0.0);
}

}  // namespace
}  // namespace orvane
