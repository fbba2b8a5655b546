#include "host/animation/suspendable_mode.h"

#include <gtest/gtest.h>

namespace host {
namespace {

TEST(SuspendableMode, StartsAndSwitchesAsTold) {
  SuspendableMode mode(true);
  EXPECT_TRUE(mode.IsOn());
  mode.Set(false);
  EXPECT_FALSE(mode.IsOn());
  EXPECT_FALSE(SuspendableMode(false).IsOn());
}

TEST(SuspendableMode, SuspendingSwitchesOffAndResumingRestores) {
  for (const bool on : {false, true}) {
    SuspendableMode mode(on);
    mode.Suspend();
    EXPECT_FALSE(mode.IsOn());
    EXPECT_EQ(mode.SuspendDepth(), 1U);
    mode.Resume();
    EXPECT_EQ(mode.IsOn(), on);
    EXPECT_EQ(mode.SuspendDepth(), 0U);
  }
}

TEST(SuspendableMode, CanBeSwitchedOnWhileSuspended) {
  SuspendableMode mode(false);
  mode.Suspend();
  mode.Set(true);
  EXPECT_TRUE(mode.IsOn());
  mode.Resume();
  EXPECT_FALSE(mode.IsOn());
}

// As an import does: the whole of it suspended and off, and on within for one node's keys.
TEST(SuspendableMode, EachResumeRestoresWhatItsSuspensionFound) {
  SuspendableMode mode(true);
  mode.Suspend();
  mode.Set(false);
  for (int node = 0; node < 2; ++node) {
    mode.Suspend();
    mode.Set(true);
    EXPECT_EQ(mode.SuspendDepth(), 2U);
    mode.Resume();
    EXPECT_FALSE(mode.IsOn());
  }
  mode.Resume();
  EXPECT_TRUE(mode.IsOn());
  EXPECT_EQ(mode.UnmatchedResumes(), 0U);
}

TEST(SuspendableMode, CountsResumesWithoutASuspension) {
  SuspendableMode mode(true);
  mode.Resume();
  mode.Resume();
  EXPECT_TRUE(mode.IsOn());
  EXPECT_EQ(mode.UnmatchedResumes(), 2U);
  EXPECT_EQ(mode.SuspendDepth(), 0U);
}

TEST(SuspendableMode, CanBeMadeAnewAsItIs) {
  SuspendableMode mode(true);
  mode.Resume();
  mode.Suspend();
  mode.Suspend();
  mode.Set(true);
  SuspendableMode again(mode.IsOn(), mode.Remembered(), mode.UnmatchedResumes());
  EXPECT_TRUE(again.IsOn());
  EXPECT_EQ(again.UnmatchedResumes(), 1U);
  again.Resume();
  EXPECT_FALSE(again.IsOn());
  again.Resume();
  EXPECT_TRUE(again.IsOn());
  EXPECT_EQ(again.SuspendDepth(), 0U);
}

}  // namespace
}  // namespace host
