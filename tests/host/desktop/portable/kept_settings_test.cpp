#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "host/desktop/settings.h"
#include "tests/support/temporary_folder.h"
#include "tests/support/user_settings.h"

// The settings file that earlier versions have written: it is read for good.

namespace host {
namespace {

using platform::RegistryType;

struct StoredValue {
  const char* plugin_class;
  const char* name;
  RegistryType type;
  std::string bytes;
};

std::string Bytes(const char* bytes, std::size_t count) { return {bytes, count}; }

const std::string kYes("\1", 1);
const std::string kNo("\0", 1);

const std::vector<StoredValue>& StoredValues() {
  static const std::vector<StoredValue> values = {
      {"ImportHTR", "Apply", RegistryType::kBinary, kNo},
      {"ImportHTR", "Animate", RegistryType::kBinary, kYes},
      {"ImportHTR", "KeyBasePosition", RegistryType::kBinary, kYes},
      {"ImportHTR", "EndEffectors", RegistryType::kBinary, kYes},
      {"ImportHTR", "Range", RegistryType::kBinary, kYes},
      {"ImportHTR", "FPS", RegistryType::kBinary, kYes},
      {"ImportHTR", "RotationController", RegistryType::kDoubleWord, Bytes("\1\0\0\0", 4)},
      {"ImportHTR", "Size", RegistryType::kDoubleWord, Bytes("\0\0\x48\x41", 4)},  // 12.5
      {"ImportHTR", "ScaleFactor", RegistryType::kQuadWord,
       Bytes("\0\0\0\0\0\0\x02\x40", 8)},  // 2.25
      {"ImportTRC", "Apply", RegistryType::kBinary, kNo},
      {"ImportTRC", "Geometry", RegistryType::kBinary, kNo},
      {"ImportTRC", "SelectedOnly", RegistryType::kBinary, kNo},
      {"ImportTRC", "RootNode", RegistryType::kBinary, kYes},
      {"ImportTRC", "Range", RegistryType::kBinary, kYes},
      {"ImportTRC", "FPS", RegistryType::kBinary, kYes},
      {"ImportTRC", "Size", RegistryType::kDoubleWord, Bytes("\0\0\x20\x42", 4)},  // 40
      {"ImportTRC", "ScaleFactor", RegistryType::kQuadWord,
       Bytes("\0\0\0\0\0\0\xE0\x3F", 8)},  // 0.5
      {"ExportHTR", "Pose", RegistryType::kBinary, kNo},
      {"ExportHTR", "Animate", RegistryType::kBinary, kYes},
      {"ExportHTR", "ParentTransforms", RegistryType::kBinary, kYes},
      {"ExportHTR", "Range", RegistryType::kBinary, kYes},
      {"ExportHTR", "Offset", RegistryType::kDoubleWord, Bytes("\7\0\0\0", 4)},
      {"ExportHTR", "ScaleFactor", RegistryType::kDoubleWord, Bytes("\0\0\x20\x40", 4)},  // 2.5
  };
  return values;
}

TEST(KeptSettings, AreWhatWasChosen) {
  const test::TemporaryFolder folder;
  const test::NoUserSettings place(folder.File("config"));
  std::filesystem::create_directories(folder.File("config/orvane"));
  std::filesystem::copy_file(ORVANE_SOURCE_DIR "/tests/data/settings/settings.sqlite",
                             folder.File("config/orvane/settings.sqlite"));
  const UserSettings settings;
  ASSERT_TRUE(settings.IsOpen());
  for (const StoredValue& expected : StoredValues()) {
    const std::string key =
        std::string("Software\\Orvane\\OrvaneFileIO\\Skelder\\") + expected.plugin_class;
    const auto found = settings.FindValue(key, expected.name);
    ASSERT_TRUE(found) << key << " " << expected.name;
    EXPECT_EQ(found->type, expected.type) << key << " " << expected.name;
    EXPECT_EQ(found->bytes, expected.bytes) << key << " " << expected.name;
  }
}

}  // namespace
}  // namespace host
