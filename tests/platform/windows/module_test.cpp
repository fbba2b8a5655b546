#include "platform/module.h"

#include <windows.h>
#include <gtest/gtest.h>

namespace {

TEST(ModuleHandle, IsThatOfTheProgramThatThePartsAreLinkedInto) {
  EXPECT_EQ(platform::ModuleHandle(), GetModuleHandleA(nullptr));
}

}  // namespace
