#pragma once

#include <memory>
#include <optional>
#include <string>

#include "host/application/utility_panel.h"
#include "plugin/resources/resource.h"
#include "tests/module/module_fixture.h"

namespace test {

// The controls of the utility panel.
enum PanelControl : int {
  kTrcSpace = IDC_TRC_SPACE,
  kSkelderSpace = IDC_SKELDER_SPACE,
  kBrowseMapping = IDC_BROWSE_MAPPING,
  kBrowseOutput = IDC_BROWSE_OUTPUT,
  kMappingFile = IDC_MAPPING_FILE,
  kOutputFolder = IDC_OUTPUT_FOLDER,
  kConvert = IDC_CONVERT,
  kBatch = IDC_BATCH,
  kTrcName = IDC_TRC_NAME,
  kCreateMapping = IDC_CREATE_MAPPING,
  kFilter = IDC_FILTER,
  kEnableOffset = IDC_ENABLE_OFFSET,
  kOffsetX = IDC_OFFSET_X,
  kOffsetY = IDC_OFFSET_Y,
  kOffsetZ = IDC_OFFSET_Z
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
