#include "sdk/core/heap.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <new>

#include "host/base/heap_control.h"

namespace {

struct Plugin : SkelderHeapOperators {
  int value = 7;
};

class HeapTest : public testing::Test {
 protected:
  ~HeapTest() override {
    host::RefuseAllocation(0);
    EXPECT_EQ(host::LiveAllocations(), live_before_);
  }

  std::size_t live_before_ = host::LiveAllocations();
};

TEST_F(HeapTest, CountsWhatIsAlive) {
  void* first = SkelderAllocate(1);
  void* second = SkelderAllocate(100);
  EXPECT_EQ(host::LiveAllocations(), live_before_ + 2);
  SkelderFree(first);
  EXPECT_EQ(host::LiveAllocations(), live_before_ + 1);
  SkelderFree(second);
}

TEST_F(HeapTest, FreesNothingForNull) { SkelderFree(nullptr); }

TEST_F(HeapTest, GivesAlignedMemoryEvenForNoBytes) {
  void* memory = SkelderAllocate(0);
  ASSERT_NE(memory, nullptr);
  EXPECT_EQ(reinterpret_cast<std::uintptr_t>(memory) % alignof(std::max_align_t), 0U);
  SkelderFree(memory);
}

TEST_F(HeapTest, ServesObjectsOfPlugins) {
  const auto plugin = std::make_unique<Plugin>();
  EXPECT_EQ(host::LiveAllocations(), live_before_ + 1);
  EXPECT_EQ(plugin->value, 7);
}

TEST_F(HeapTest, RefusesTheAllocationItIsToldTo) {
  host::RefuseAllocation(2);
  void* first = SkelderAllocate(1);
  EXPECT_NE(first, nullptr);
  EXPECT_EQ(SkelderAllocate(1), nullptr);
  void* third = SkelderAllocate(1);
  EXPECT_NE(third, nullptr);
  SkelderFree(first);
  SkelderFree(third);
}

TEST_F(HeapTest, TakesARefusalBack) {
  host::RefuseAllocation(1);
  host::RefuseAllocation(0);
  void* memory = SkelderAllocate(1);
  EXPECT_NE(memory, nullptr);
  SkelderFree(memory);
}

TEST_F(HeapTest, RefusedObjectsAreNullOrThrowAsAskedFor) {
  host::RefuseAllocation(1);
  EXPECT_EQ(new (std::nothrow) Plugin, nullptr);
  host::RefuseAllocation(1);
  EXPECT_THROW(delete new Plugin, std::bad_alloc);
}

}  // namespace
