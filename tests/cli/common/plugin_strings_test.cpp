#include "cli/common/plugin_strings.h"

#include <gtest/gtest.h>

#include <array>

#include "platform/module.h"
#include "platform/string_table.h"

namespace {

using cli::PluginString;
using cli::PluginText;

TEST(PluginStringsTest, AreThoseOfTheModule) {
  for (const PluginString& each : cli::kPluginStrings) {
    std::array<char, 256> text{};
    platform::LoadStringResource(platform::ModuleHandle(), each.id, text.data(), text.size());
    EXPECT_EQ(text.data(), each.text) << "string " << each.id;
  }
}

TEST(PluginStringsTest, AreFoundByTheirNumbers) {
  for (const PluginString& each : cli::kPluginStrings) EXPECT_EQ(PluginText(each.id), each.text);
}

}  // namespace
