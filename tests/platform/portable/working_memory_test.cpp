#include "platform/working_memory.h"

#include <gtest/gtest.h>
#include <sys/resource.h>

#include <cstdlib>
#include <cstring>
#include <limits>

#if defined(__SANITIZE_ADDRESS__)
#define ORVANE_OTHER_HEAP 1
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define ORVANE_OTHER_HEAP 1
#endif
#endif

namespace platform {
namespace {

constexpr std::size_t kMebibyte = std::size_t{1} << 20U;

// How often the system has given memory to this process.
long GivenSoFar() {
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  return usage.ru_minflt;
}

// Allocates so much, writes to all of it, and frees it.
void Use(std::size_t bytes) {
  void* const block = std::malloc(bytes);
  ASSERT_NE(block, nullptr);
  std::memset(block, 1, bytes);
  std::free(block);
}

TEST(WorkingMemoryTest, IsKeptForWhatComesNext) {
#if !defined(__GLIBC__) || defined(ORVANE_OTHER_HEAP)
  GTEST_SKIP() << "this heap cannot be asked to keep anything";
#endif
  ExpectMemory(64 * kMebibyte);
  Use(60 * kMebibyte);
  const long before = GivenSoFar();
  Use(60 * kMebibyte);
  for (int block = 0; block < 10; ++block) Use(20 * kMebibyte);
  EXPECT_LT(GivenSoFar() - before, 1000);  // 4 KiB at a time there would be 66,560
}

TEST(WorkingMemoryTest, IsAWishThatFailsForNoSize) {
  for (const std::size_t bytes :
       {std::size_t{0}, std::size_t{1}, 2 * kMebibyte, 2 * kMebibyte + 1, 5 * kMebibyte,
        std::size_t{1} << 40U, std::numeric_limits<std::size_t>::max()}) {
    ExpectMemory(bytes);
    Use(3 * kMebibyte);
  }
}

}  // namespace
}  // namespace platform
