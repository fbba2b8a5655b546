#include <windows.h>
#include <gtest/gtest.h>

#include "host/desktop/settings.h"
#include "tests/support/program.h"

namespace host {
namespace {

bool Exists(const std::string& key_name) {
  HKEY key = nullptr;
  if (RegOpenKeyExA(HKEY_CURRENT_USER, key_name.c_str(), 0, KEY_READ, &key) != ERROR_SUCCESS) {
    return false;
  }
  RegCloseKey(key);
  return true;
}

// The program tells the name of its key, when that exists.
TEST(AbandonedSettingsTest, AreRemovedWithTheNextOnes) {
  test::ProgramRun run;
  run.command = {ORVANE_BINARY_DIR "/bin/abandoned_settings"};
  const std::string name = test::RunProgram(run).output;
  ASSERT_TRUE(name.starts_with("Skelder Fresh Settings ")) << name;
  { const FreshSettings settings; }
  EXPECT_FALSE(Exists(name));
}

TEST(AbandonedSettingsTest, AreNotThoseOfAProcessThatRuns) {
  FreshSettings outer;
  outer.StoreValue("Software", "Flag", {platform::RegistryType::kBinary, "1"});
  { const FreshSettings inner; }
  EXPECT_TRUE(outer.FindValue("Software", "Flag").has_value());
}

}  // namespace
}  // namespace host
