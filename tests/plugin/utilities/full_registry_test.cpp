#include "tests/support/full_registry.h"

#include <gtest/gtest.h>

#include "platform/module.h"
#include "plugin/utilities/convert_bvk.h"

// The converter without memory for its settings.

namespace orvane {
namespace {

TEST(ConvertBVKTest, LosesSettingsThatThereIsNoMemoryForAndNothingElse) {
  test::FullRegistry registry;
  MessageSink messages;
  StringTable strings;
  {
    ConvertBVK converter(messages, strings, platform::ModuleHandle());
    converter.SaveSettings();
    EXPECT_EQ(registry.refusals, 1);
  }
  EXPECT_EQ(registry.refusals, 2) << "the end of the converter saves them, too";
}

}  // namespace
}  // namespace orvane
