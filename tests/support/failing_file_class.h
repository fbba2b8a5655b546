#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "host/application/application.h"
#include "tests/support/desk.h"
#include "tests/support/failing_calls.h"

namespace test {

// What an import or an export works with.
struct FileClassHost {
  HookedInterface& interface;  // of `application`
  host::Application& application;
  Desk& desk;
};

// Lets each call of the host that `work` makes fail in turn. `work`, which returns what the entry
// of the file class has, tells `told` by a message each time, answers `failed`, and leaves no
// progress bar; only the end of the bar may fail without a word. Returns how often it was told.
inline int ExpectEachFailureIsTold(const FileClassHost& host, const FailingCalls::Failure& fail,
                                   const std::function<int()>& work, int failed,
                                   const std::string& told) {
  int answer = 0;
  int failures = 0;
  std::size_t told_before = 0;
  const auto begin = [&] {
    told_before = host.desk.Messages().size();
    answer = work();
  };
  const auto check = [&] {
    const std::string messages = host.desk.Messages().substr(told_before);
    EXPECT_FALSE(host.application.progress().IsOpen());
    EXPECT_EQ(messages, messages.empty() ? "" : told + "\n");
    EXPECT_EQ(answer, messages.empty() ? 1 : failed);
    if (!messages.empty()) ++failures;
  };
  const int calls = FailAtEachCall(host.interface, fail, begin, check);
  EXPECT_EQ(failures, calls - 1);
  EXPECT_EQ(answer, 1);
  return failures;
}

}  // namespace test
