#include "host/application/progress_bar.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using host::MisuseLog;
using host::ProgressBar;
using host::ProgressEvent;
using testing::ElementsAre;
using testing::IsEmpty;
using Kind = ProgressEvent::Kind;

// A callback that answers what its argument points at, and counts its calls there.
struct Poll {
  std::uint32_t answer = 0;
  int calls = 0;

  static std::uint32_t Callback(void* argument) {
    Poll& poll = *static_cast<Poll*>(argument);
    ++poll.calls;
    return poll.answer;
  }
};

auto Is(Kind kind, const std::string& title, int percent, bool visible) {
  return testing::AllOf(testing::Field(&ProgressEvent::kind, kind),
                        testing::Field(&ProgressEvent::title, title),
                        testing::Field(&ProgressEvent::percent, percent),
                        testing::Field(&ProgressEvent::visible, visible));
}

class ProgressBarTest : public testing::Test {
 protected:
  MisuseLog misuse_;
  ProgressBar bar_{misuse_};
};

TEST_F(ProgressBarTest, IsClosedAtFirst) {
  EXPECT_FALSE(bar_.IsOpen());
  EXPECT_EQ(bar_.Percent(), 0);
  EXPECT_THAT(bar_.Events(), IsEmpty());
}

TEST_F(ProgressBarTest, RecordsEveryCallInOrder) {
  EXPECT_TRUE(bar_.Start("Work", true, nullptr, nullptr));
  EXPECT_TRUE(bar_.IsOpen());
  bar_.Update(10, true, nullptr);
  bar_.Update(40, false, "More work");
  bar_.Update(20, true, nullptr);
  EXPECT_EQ(bar_.Percent(), 20);
  EXPECT_EQ(bar_.Title(), "More work");
  bar_.End();
  EXPECT_FALSE(bar_.IsOpen());
  EXPECT_THAT(bar_.Events(),
              ElementsAre(Is(Kind::kStart, "Work", 0, true), Is(Kind::kUpdate, "Work", 10, true),
                          Is(Kind::kUpdate, "More work", 40, false),
                          Is(Kind::kUpdate, "More work", 20, true),
                          Is(Kind::kEnd, "More work", 20, false)));
  EXPECT_EQ(misuse_.Count(), 0U);
}

TEST_F(ProgressBarTest, StartsAgainAtZero) {
  bar_.Start("First", true, nullptr, nullptr);
  bar_.Update(100, true, nullptr);
  bar_.End();
  EXPECT_TRUE(bar_.Start("Second", false, nullptr, nullptr));
  EXPECT_EQ(bar_.Percent(), 0);
  EXPECT_THAT(bar_.Events().back(), Is(Kind::kStart, "Second", 0, false));
}

TEST_F(ProgressBarTest, TakesNoTitleForAnEmptyOne) {
  EXPECT_TRUE(bar_.Start(nullptr, true, nullptr, nullptr));
  EXPECT_EQ(bar_.Title(), "");
}

TEST_F(ProgressBarTest, RefusesASecondBar) {
  bar_.Start("First", true, nullptr, nullptr);
  bar_.Update(30, true, nullptr);
  EXPECT_FALSE(bar_.Start("Second", true, nullptr, nullptr));
  EXPECT_EQ(bar_.Title(), "First");
  EXPECT_EQ(bar_.Percent(), 30);
  EXPECT_EQ(bar_.Events().size(), 2U);
  EXPECT_THAT(misuse_.Messages(), ElementsAre("ProgressStart while a progress bar is open"));
}

TEST_F(ProgressBarTest, NotesAnUpdateAndAnEndWithoutABar) {
  EXPECT_TRUE(bar_.Update(10, true, "Nothing"));
  bar_.Start("Work", true, nullptr, nullptr);
  bar_.End();
  bar_.End();
  EXPECT_EQ(bar_.Events().size(), 2U);
  EXPECT_THAT(misuse_.Messages(), ElementsAre("ProgressUpdate without an open progress bar",
                                              "ProgressEnd without an open progress bar"));
}

TEST_F(ProgressBarTest, PollsTheCallbackAtEveryUpdateWhileOpen) {
  Poll poll;
  bar_.Start("Work", true, Poll::Callback, &poll);
  EXPECT_TRUE(bar_.HoldsCallback());
  EXPECT_TRUE(bar_.Update(10, true, nullptr));
  poll.answer = 1;
  EXPECT_FALSE(bar_.Update(20, true, nullptr));
  EXPECT_EQ(poll.calls, 2);
  bar_.End();
  EXPECT_FALSE(bar_.HoldsCallback());
  bar_.Start("Without", true, nullptr, nullptr);
  EXPECT_TRUE(bar_.Update(10, true, nullptr));
  EXPECT_EQ(poll.calls, 2);
}

TEST_F(ProgressBarTest, ShowsEveryEventToItsObserver) {
  std::vector<Kind> seen;
  bar_.SetObserver([&seen](const ProgressEvent& event) { seen.push_back(event.kind); });
  bar_.Start("Work", true, nullptr, nullptr);
  bar_.Update(50, true, nullptr);
  bar_.End();
  bar_.SetObserver(nullptr);
  bar_.Start("Unseen", true, nullptr, nullptr);
  EXPECT_THAT(seen, ElementsAre(Kind::kStart, Kind::kUpdate, Kind::kEnd));
}

}  // namespace
