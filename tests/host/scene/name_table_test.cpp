#include "host/scene/name_table.h"

#include <gtest/gtest.h>

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
