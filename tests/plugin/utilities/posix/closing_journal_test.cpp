#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "plugin/resources/resource.h"
#include "tests/plugin/utilities/posix/utilities_stage.h"

// Closing the utility panel, or deleting it, in the middle of what it does with the host's edit
// controls.

namespace test {
namespace {

using testing::AnyOf;
using testing::Each;
using testing::Not;
using testing::StartsWith;

constexpr int kConvert = IDC_CONVERT;

enum class Ending { kClosed, kDeleted };

// A panel that has an offset to show.
struct Stage : UtilitiesStage {
  Stage() {
    StoreFlag("Offset", true);
    desk.ChooseFiles([](const host::ShownFileDialog&) { return host::FileChoice{}; });
    Make();
    journal.Take();
  }

  // Ends the panel when the host is asked for the n-th time to do something with an edit control,
  // and does `work` meanwhile. Returns whether there was such a time.
  bool EndAt(std::size_t n, Ending ending, const std::function<void()>& work) {
    bool has_ended = false;
    std::size_t times = 0;
    journal.WhenNoted([&](const std::string& line) {
      if (line.find("edit control") == std::string::npos || ++times != n) return;
      has_ended = true;
      ending == Ending::kClosed ? Close() : utilities.reset();
      journal.Take();
    });
    work();
    journal.WhenNoted(nullptr);
    return has_ended;
  }

  std::size_t OpenPages() { return application.rollup_pages().Open().size(); }
};

constexpr std::size_t kTimes = 3 * 3;  // obtained, used and released

class ClosingJournal : public testing::TestWithParam<Ending> {
 protected:
  static void ExpectNothingMore(Stage& stage) {
    EXPECT_THAT(stage.journal.Take(),
                Each(Not(AnyOf(StartsWith("obtain"), StartsWith("open file")))));
    EXPECT_EQ(stage.OpenPages(), 0U);
  }
};

TEST_P(ClosingJournal, WhatIsBeingOpenedIsGone) {
  for (std::size_t n = 1; n <= kTimes; ++n) {
    SCOPED_TRACE(n);
    Stage stage;
    EXPECT_TRUE(stage.EndAt(n, GetParam(), [&] { stage.Open(); }));
    ExpectNothingMore(stage);
    if (stage.utilities == nullptr) continue;
    stage.Open();
    EXPECT_EQ(stage.OpenPages(), 1U);
  }
}

TEST_P(ClosingJournal, NothingIsConvertedWhenTheOffsetCannotBeRead) {
  for (std::size_t n = 1; n <= kTimes; ++n) {
    SCOPED_TRACE(n);
    Stage stage;
    stage.Open();
    EXPECT_TRUE(stage.EndAt(n, GetParam(), [&] { stage.Page().Click(kConvert); }));
    ExpectNothingMore(stage);
  }
}

INSTANTIATE_TEST_SUITE_P(Endings, ClosingJournal,
                         testing::Values(Ending::kClosed, Ending::kDeleted));

}  // namespace
}  // namespace test
