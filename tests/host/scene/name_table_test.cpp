#include "host/scene/name_table.h"

#include <gtest/gtest.h>

#include <map>
#include <random>
#include <string>

namespace host {
namespace {

TEST(NameTable, KnowsWhichNamesAreInUse) {
  NameTable names;
  EXPECT_FALSE(names.Contains("Hips"));
  names.Add("Hips");
  names.Add("Hips");
  names.Remove("Hips");
  EXPECT_TRUE(names.Contains("Hips"));
  names.Remove("Hips");
  EXPECT_FALSE(names.Contains("Hips"));
}

// Against plain counts, with few names for many steps, so that all of them meet.
TEST(NameTable, KeepsManyNamesApartAsTheyComeAndGo) {
  NameTable names;
  std::map<std::string, int> uses;
  std::mt19937 random(1);
  for (int step = 0; step < 20000; ++step) {
    const std::string name = "Bone" + std::to_string(random() % 300);
    int& count = uses[name];
    ASSERT_EQ(names.Contains(name), count > 0) << step;
    if (count > 0 && random() % 2 == 0) {
      names.Remove(name);
      --count;
    } else {
      names.Add(name);
      ++count;
    }
  }
  for (const auto& [name, count] : uses) EXPECT_EQ(names.Contains(name), count > 0) << name;
}

TEST(NameTable, LeavesAFreeNameAlone) {
  NameTable names;
  names.Add("Hips");
  EXPECT_EQ(names.MakeUnique("hips"), "hips");
  EXPECT_EQ(names.MakeUnique(""), "");
}

TEST(NameTable, NumbersATakenName) {
  NameTable names;
  names.Add("TRCCloud");
  EXPECT_EQ(names.MakeUnique("TRCCloud"), "TRCCloud001");
  names.Add("TRCCloud003");
  EXPECT_EQ(names.MakeUnique("TRCCloud"), "TRCCloud002");
  EXPECT_EQ(names.MakeUnique("TRCCloud"), "TRCCloud004");
}

TEST(NameTable, NumbersGrowBeyondThreeDigits) {
  NameTable names;
  for (int i = 1; i < 1000; ++i) names.Numbered("Bone");
  EXPECT_EQ(names.Numbered("Bone"), "Bone1000");
}

}  // namespace
}  // namespace host
