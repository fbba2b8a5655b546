#include "plugin/exchange/failure_report.h"

#include <gtest/gtest.h>

#include <functional>
#include <new>
#include <stdexcept>
#include <string>

namespace orvane {
namespace {

constexpr FailureTexts kTexts{"Work Error", "no memory", "something else"};

struct FailureCase {
  const char* name;
  std::function<void()> fail;
  const char* told;
};

class FailureReportTest : public testing::TestWithParam<FailureCase> {};

TEST_P(FailureReportTest, TellsWhyTheWorkHasEnded) {
  EXPECT_STREQ(FailureOf(GetParam().fail, kTexts), GetParam().told);
}

TEST(FailureReport, TellsNothingOfWorkThatIsDone) {
  EXPECT_EQ(FailureOf([] {}, kTexts), nullptr);
}

INSTANTIATE_TEST_SUITE_P(
    Exceptions, FailureReportTest,
    testing::Values(
        FailureCase{"Memory", [] { throw std::bad_alloc(); }, "no memory"},
        FailureCase{"ArrayLength", [] { throw std::bad_array_new_length(); }, "no memory"},
        FailureCase{"Length", [] { throw std::length_error("too long"); }, "no memory"},
        FailureCase{"Error", [] { throw std::runtime_error("it broke"); }, "something else"},
        FailureCase{"Number", [] { throw 1; }, "something else"}),
    [](const auto& row) { return std::string(row.param.name); });

}  // namespace
}  // namespace orvane
