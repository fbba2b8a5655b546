#include "formats/text/name_index.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace orvane {
namespace {

// A list with its index.
class Names {
 public:
  bool Add(const std::string& name) {
    list_.push_back(name);
    const bool is_new = index_.Add(name, list_.size() - 1, NameAt());
    if (!is_new) list_.pop_back();
    return is_new;
  }
  std::optional<std::size_t> Find(std::string_view name) const {
    return index_.Find(name, NameAt());
  }
  NameIndex& Index() { return index_; }

 private:
  struct At {
    const std::vector<std::string>& list;
    const std::string& operator()(std::size_t index) const { return list[index]; }
  };
  At NameAt() const { return {list_}; }

  std::vector<std::string> list_;
  NameIndex index_;
};

TEST(NameIndex, FindsNothingWithoutNames) {
  const Names names;
  EXPECT_FALSE(names.Find("a"));
  EXPECT_FALSE(names.Find(""));
}

TEST(NameIndex, TellsNamesApartByEveryByte) {
  Names names;
  EXPECT_TRUE(names.Add("a"));
  EXPECT_TRUE(names.Add(""));
  EXPECT_TRUE(names.Add(std::string("a\0", 2)));
  EXPECT_EQ(names.Find("a"), 0U);
  EXPECT_EQ(names.Find(""), 1U);
  EXPECT_EQ(names.Find({"a\0", 2}), 2U);
  for (const char* other : {"A", "ab", "b", " "}) EXPECT_FALSE(names.Find(other)) << other;
}

TEST(NameIndex, KeepsTheFirstOfAName) {
  Names names;
  EXPECT_TRUE(names.Add("a"));
  EXPECT_TRUE(names.Add("b"));
  EXPECT_FALSE(names.Add("a"));
  EXPECT_EQ(names.Find("a"), 0U);
  EXPECT_EQ(names.Index().Size(), 2U);
}

TEST(NameIndex, FindsEachOfVeryMany) {
  Names names;
  constexpr std::size_t kCount = 20000;
  for (std::size_t index = 0; index < kCount; ++index) {
    EXPECT_TRUE(names.Add("Segment" + std::to_string(index)));
  }
  EXPECT_EQ(names.Index().Size(), kCount);
  for (std::size_t index = 0; index < kCount; ++index) {
    EXPECT_EQ(names.Find("Segment" + std::to_string(index)), index);
    EXPECT_FALSE(names.Find("Bone" + std::to_string(index)));
  }
}

TEST(NameIndex, StartsAnewWhenCleared) {
  Names names;
  names.Add("a");
  names.Index().Clear();
  EXPECT_EQ(names.Index().Size(), 0U);
  EXPECT_FALSE(names.Find("a"));
  EXPECT_TRUE(names.Add("a"));
}

}  // namespace
}  // namespace orvane
