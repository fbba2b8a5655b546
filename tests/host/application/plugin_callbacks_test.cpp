#include "host/application/plugin_callbacks.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "tests/host/application/idle_callbacks.h"

namespace {

using host::MisuseLog;
using host::PluginCallbacks;
using testing::ElementsAre;
using testing::IsEmpty;

// Appends its number to `told` with a sign: + when entered, - when left.
class PickMode final : public IdlePickMode {
 public:
  PickMode(std::string& told, char number) : told_(told), number_(number) {}

  void EnterMode() override { told_ += {'+', number_}; }
  void ExitMode() override { told_ += {'-', number_}; }

 private:
  std::string& told_;
  char number_;
};

class PluginCallbacksTest : public testing::Test {
 protected:
  MisuseLog misuse_;
  PluginCallbacks callbacks_{misuse_};
  IdleExit first_;
  IdleExit second_;
};

TEST_F(PluginCallbacksTest, AreNoneAtFirst) {
  EXPECT_EQ(callbacks_.PickMode(), nullptr);
  EXPECT_THAT(callbacks_.ExitCallbacks(), IsEmpty());
}

TEST_F(PluginCallbacksTest, KeepExitCallbacksUntilTheyAreUnregistered) {
  callbacks_.RegisterExit(&first_);
  callbacks_.RegisterExit(&second_);
  callbacks_.RegisterExit(&first_);
  callbacks_.RegisterExit(nullptr);
  EXPECT_THAT(callbacks_.ExitCallbacks(), ElementsAre(&first_, &second_, &first_));
  callbacks_.UnregisterExit(&first_);
  EXPECT_THAT(callbacks_.ExitCallbacks(), ElementsAre(&second_, &first_));
  EXPECT_EQ(misuse_.Count(), 0U);
}

TEST_F(PluginCallbacksTest, NoteAnExitCallbackThatWasNotRegistered) {
  callbacks_.RegisterExit(&first_);
  callbacks_.UnregisterExit(&second_);
  EXPECT_THAT(callbacks_.ExitCallbacks(), ElementsAre(&first_));
  EXPECT_THAT(misuse_.Messages(),
              ElementsAre("UnRegisterExitSkelderCallback of a callback that is not registered"));
}

TEST_F(PluginCallbacksTest, TellPickModesWhenTheyBeginAndEnd) {
  std::string told;
  PickMode one(told, '1');
  PickMode two(told, '2');
  callbacks_.SetPickMode(&one);
  EXPECT_EQ(callbacks_.PickMode(), &one);
  callbacks_.SetPickMode(&two);
  EXPECT_EQ(callbacks_.PickMode(), &two);
  callbacks_.SetPickMode(nullptr);
  callbacks_.SetPickMode(nullptr);
  EXPECT_EQ(callbacks_.PickMode(), nullptr);
  EXPECT_EQ(told, "+1-1+2-2");
}

}  // namespace
