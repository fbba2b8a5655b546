#include "inspect/check/checked_file.h"

#include <gtest/gtest.h>

namespace {

using orvane::CheckFailure;

TEST(CheckFailure, TellsOfAFileThatCouldNotBeRead) {
  EXPECT_NO_THROW(orvane::RequireRead(""));
  try {
    orvane::RequireRead("could not be read");
    FAIL() << "nothing was thrown";
  } catch (const CheckFailure& failure) {
    EXPECT_STREQ(failure.what(), "could not be read");
    EXPECT_EQ(failure.Advice(), "There may be too little memory.");
  }
}

TEST(CheckFailure, TellsOfAFileThatWasReadWrongly) {
  EXPECT_NO_THROW(orvane::RequireSound(""));
  try {
    orvane::RequireSound("a bone is its own parent");
    FAIL() << "nothing was thrown";
  } catch (const CheckFailure& failure) {
    EXPECT_STREQ(failure.what(), "was read wrongly: a bone is its own parent");
    EXPECT_EQ(failure.Advice(), "This is a fault of orvane; please report it.");
  }
}

}  // namespace
