#include "formats/bvh/joint_names.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

namespace {

using orvane::BvhJointName;
using orvane::NameJoints;
using testing::ElementsAre;

std::vector<std::string> TextsOf(const std::vector<std::string>& names) {
  std::vector<std::string> texts;
  for (const BvhJointName& joint : NameJoints(names)) texts.push_back(joint.text);
  return texts;
}

TEST(BvhJointNamesTest, OrdinaryNamesStay) {
  const std::vector<std::string> names = {"Hips", "left:Arm-2.5",
                                          "H\xC3\xBC"
                                          "fte",
                                          "\xE9\xFF", "_"};
  EXPECT_EQ(TextsOf(names), names);
  for (const BvhJointName& joint : NameJoints(names)) {
    EXPECT_FALSE(joint.is_respelled);
    EXPECT_FALSE(joint.is_numbered);
  }
}

TEST(BvhJointNamesTest, WhateverReadersPartWordsAtIsAnUnderscore) {
  EXPECT_THAT(TextsOf({"Left Arm", "\tA\r\n", std::string("N\0L", 3), "{a}", "\x1F\x7F"}),
              ElementsAre("Left_Arm", "_A__", "N_L", "_a_", "__"));
  // A no-break space, an ideographic one and a byte-order mark.
  EXPECT_THAT(TextsOf({"A\xC2\xA0"
                       "B",
                       "\xE3\x80\x80X", "\xEF\xBB\xBFY"}),
              ElementsAre("A_B", "_X", "_Y"));
  EXPECT_TRUE(NameJoints({"Left Arm"}).front().is_respelled);
}

TEST(BvhJointNamesTest, AnEmptyNameIsAnUnderscore) {
  EXPECT_THAT(TextsOf({""}), ElementsAre("_"));
  EXPECT_TRUE(NameJoints({""}).front().is_respelled);
}

TEST(BvhJointNamesTest, ANameMadeTwiceIsNumbered) {
  const std::vector<BvhJointName> joints = NameJoints({"a b", "a\tb", "a_b"});
  EXPECT_EQ(joints[0].text, "a_b");
  EXPECT_EQ(joints[1].text, "a_b_2");
  EXPECT_EQ(joints[2].text, "a_b_3");
  EXPECT_FALSE(joints[0].is_numbered);
  EXPECT_TRUE(joints[1].is_respelled);
  EXPECT_TRUE(joints[1].is_numbered);
  EXPECT_FALSE(joints[2].is_respelled);
  EXPECT_TRUE(joints[2].is_numbered);
}

TEST(BvhJointNamesTest, ANumberMakesNoNameThatAnotherHas) {
  EXPECT_THAT(TextsOf({"a", "a", "a_2", "a_3", "a"}), ElementsAre("a", "a_4", "a_2", "a_3", "a_5"));
}

TEST(BvhJointNamesTest, VeryManyOfOneNameAreAllAnother) {
  const std::vector<std::string> texts = TextsOf(std::vector<std::string>(50'000, "a"));
  EXPECT_EQ(std::set<std::string>(texts.begin(), texts.end()).size(), texts.size());
  EXPECT_EQ(texts.back(), "a_50000");
}

}  // namespace
