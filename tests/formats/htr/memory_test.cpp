#include <gtest/gtest.h>

#include <cstddef>
#include <new>
#include <string>

#include "formats/htr/document.h"
#include "formats/htr/document_checker.h"
#include "tests/support/failing_memory.h"

// Motions that are made while memory runs out, at any moment.
namespace orvane {
namespace {

std::string NameOf(std::size_t index) {
  return "a_name_that_is_long_enough_for_a_block_" + std::to_string(index);
}

// At every size, since the table of names grows at some of them alone.
TEST(HtrMemoryTest, AddsASegmentOrChangesNothing) {
  HtrDocument document;
  std::size_t failures = 0;
  for (std::size_t index = 0; index < 20;) {
    const HtrSegment segment(NameOf(index));
    bool has_failed = true;
    for (int count = 0; has_failed; ++count) {
      SCOPED_TRACE(std::to_string(index) + " segments, " + std::to_string(count) + " allocations");
      test::FailAllocationAfter(count);
      const HtrSegment* added_segment = nullptr;
      try {
        added_segment = document.AddSegment(segment);
      } catch (const std::bad_alloc&) {
        ++failures;
      }
      has_failed = test::StopFailingAllocations();
      EXPECT_EQ(added_segment == nullptr, has_failed);
      if (!has_failed) ++index;
      ASSERT_EQ(document.segments().size(), index);
      EXPECT_EQ(FindFault(document), "");
      for (std::size_t added = 0; added < index; ++added) {
        ASSERT_EQ(document.FindSegment(NameOf(added)), &document.segments()[added]);
        ASSERT_EQ(document.IndexOf(document.segments()[added]), added);
      }
    }
  }
  EXPECT_GT(failures, 20U);
}

}  // namespace
}  // namespace orvane
