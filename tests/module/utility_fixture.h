#pragma once

#include <memory>
#include <optional>
#include <string>

#include "host/application/utility_panel.h"
#include "tests/module/module_fixture.h"

namespace test {

// The controls of the utility panel.
enum PanelControl : int {
  kTrcSpace = 1124,
  kSkelderSpace = 1125,
  kBrowseMapping = 1132,
  kBrowseOutput = 1134,
  kMappingFile = 1137,
  kOutputFolder = 1138,
  kConvert = 1200,
  kBatch = 1201,
  kTrcName = 1202,
  kCreateMapping = 1203,
  kFilter = 1204,
  kEnableOffset = 1205,
  kOffsetX = 1206,
  kOffsetY = 1207,
  kOffsetZ = 1208
};

// The utility panel of the module, which a test opens. Every test ends with the panel deleted and
// the host's edit controls given back.
class UtilityTest : public ModuleTest {
 protected:
  void TearDown() override;

  // Opens the panel, a new one if it was deleted.
  void Open();

  // The open page.
  host::ScriptedDialog& Page();

  // What the registry holds of a setting, as it was written; nothing when it was not.
  std::optional<std::string> Stored(const std::string& name);
  void Store(const std::string& name, platform::RegistryType type, const std::string& bytes);

  std::unique_ptr<host::UtilityPanel> panel_;
};

// The bytes that a flag and a number are stored as.
std::string FlagBytes(bool flag);
std::string FloatBytes(float number);

}  // namespace test
