#include "plugin/exchange/failure_report.h"

#include <gtest/gtest.h>

#include <functional>
#include <new>
#include <stdexcept>
#include <string>

#include "tests/support/desk.h"

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
  const test::Desk desk;
  MessageSink messages;
  try {
    GetParam().fail();
  } catch (...) {
    ReportFailure(messages, kTexts);
  }
  EXPECT_EQ(desk.Messages(), std::string("Work Error: ") + GetParam().told + "\n");
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
