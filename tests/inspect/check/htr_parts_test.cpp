#include "inspect/check/htr_parts.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <initializer_list>
#include <optional>
#include <string_view>

namespace orvane::htr {
namespace {

void Add(std::string_view name, HtrParts& parts) {
  HtrCell cell;
  cell.text = name;
  parts.AddSegment(KeptCell(cell), KeptCell());
}

HtrParts PartsWith(std::initializer_list<std::string_view> names) {
  HtrParts parts;
  for (const std::string_view name : names) Add(name, parts);
  return parts;
}

TEST(HtrParts, HaveSegmentsByTheirNamesInAnyOrder) {
  const HtrParts parts = PartsWith({"a", "b", "c"});
  std::size_t index = 0;
  for (const char* name : {"a", "b", "c"}) EXPECT_EQ(parts.IndexOf(name), index++);
  for (const char* name : {"c", "b", "a"}) EXPECT_EQ(parts.IndexOf(name), --index);
  for (int again = 0; again < 3; ++again) EXPECT_EQ(parts.IndexOf("b"), 1U);
}

TEST(HtrParts, HaveNoSegmentOfAnotherName) {
  const HtrParts parts = PartsWith({"a", "b"});
  for (const char* name : {"", "a", "A", "ab", "b", "c"}) {
    const bool is_there = std::string_view(name) == "a" || std::string_view(name) == "b";
    EXPECT_EQ(parts.Find(name) != nullptr, is_there) << name;
  }
}

TEST(HtrParts, HaveTheFirstSegmentOfANameThatIsThereTwice) {
  const HtrParts parts = PartsWith({"a", "b", "a"});
  EXPECT_EQ(parts.IndexOf("b"), 1U);
  EXPECT_EQ(parts.IndexOf("a"), 0U);
}

}  // namespace
}  // namespace orvane::htr
