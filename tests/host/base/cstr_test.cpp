#include "sdk/core/cstr.h"

#include <gtest/gtest.h>

#include <cstring>
#include <utility>

#include "host/base/heap_control.h"

namespace {

// Every test gives back all that its texts took.
class CStrTest : public testing::Test {
 protected:
  ~CStrTest() override { EXPECT_EQ(host::LiveAllocations(), live_before_); }

 private:
  std::size_t live_before_ = host::LiveAllocations();
};

TEST_F(CStrTest, IsEmptyAtFirst) {
  const CStr text;
  EXPECT_STREQ(text.data(), "");
  EXPECT_EQ(text.length(), 0U);
}

TEST_F(CStrTest, HoldsACopyOfTheText) {
  char source[] = "Bone";
  const CStr text(source);
  source[0] = 'b';
  EXPECT_STREQ(text.data(), "Bone");
  EXPECT_STREQ(text, "Bone");
  EXPECT_EQ(text.length(), 4U);
}

TEST_F(CStrTest, TakesNullForTheEmptyText) {
  EXPECT_STREQ(CStr(nullptr).data(), "");
  CStr text("Bone");
  text = nullptr;
  EXPECT_STREQ(text.data(), "");
  EXPECT_EQ(text.length(), 0U);
}

TEST_F(CStrTest, CopiesAreIndependent) {
  CStr text("Bone");
  const CStr copy(text);
  CStr assigned;
  assigned = text;
  text = "Dummy";
  EXPECT_STREQ(copy.data(), "Bone");
  EXPECT_STREQ(assigned.data(), "Bone");
  EXPECT_STREQ(text.data(), "Dummy");
}

TEST_F(CStrTest, MovingHandsTheBytesOver) {
  CStr text("Bone");
  const char* bytes = text.data();
  CStr moved(std::move(text));
  EXPECT_EQ(moved.data(), bytes);
  CStr assigned("other");
  assigned = std::move(moved);
  EXPECT_EQ(assigned.data(), bytes);
  EXPECT_EQ(assigned.length(), 4U);
}

TEST_F(CStrTest, TakesAPartOfItself) {
  CStr text("C:/takes/walk");
  text = text.data() + 9;
  EXPECT_STREQ(text.data(), "walk");
  CStr& same = text;
  text = same;
  EXPECT_STREQ(text.data(), "walk");
}

TEST_F(CStrTest, BecomesEmptyWhenTheHeapIsExhausted) {
  CStr text("Bone");
  host::RefuseAllocation(1);
  text = "Dummy";
  EXPECT_STREQ(text.data(), "");
  EXPECT_EQ(text.length(), 0U);
  text = "Dummy";
  EXPECT_STREQ(text.data(), "Dummy");
}

}  // namespace
