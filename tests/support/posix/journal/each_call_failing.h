#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <new>
#include <string>

#include "tests/support/posix/journal/journal.h"

namespace test {

// Whether the call that is noted so, and has been carried out then, may throw and leave nothing
// behind: not when the host has made something or taken it over, not when something is taken back.
// What users and hosts do by themselves is no call.
inline bool MayThrow(const std::string& line) {
  for (const char* start : {"the user", "the host", "returned", "create", "add rollup page", "show",
                            "progress end", "leave the pick mode", "unregister", "destroy",
                            "delete", "settings close", "obtain edit", "release edit"}) {
    if (line.rfind(start, 0) == 0) return false;
  }
  return line.find(" delete") == std::string::npos && line.find(" take the ") == std::string::npos;
}

// Does `work` with one new stage after the other, whose first call that is noted throws, then whose
// second, and so on until there is no such call. Returns how many there are. What is thrown must
// not come here, and the progress bar must be closed.
template <typename Stage>
int EachCallFailing(const std::function<void(Stage&)>& work) {
  for (int n = 1;; ++n) {
    Stage stage;
    std::string failed;
    int calls = 0;
    stage.journal.WhenNoted([&](const std::string& line) {
      if (!MayThrow(line) || ++calls != n) return;
      failed = line;
      throw std::bad_alloc();
    });
    EXPECT_NO_THROW(work(stage)) << failed;
    stage.journal.WhenNoted(nullptr);
    stage.desk.ExpectNoMore();
    EXPECT_FALSE(stage.application.progress().IsOpen()) << failed;
    if (failed.empty()) return n - 1;
  }
}

}  // namespace test
