#include <gtest/gtest.h>

#include "plugin/utilities/convert_bvk.h"
#include "tests/support/desk.h"

namespace orvane {
namespace {

using platform::RegistryType;

constexpr char kKey[] = "Software\\Orvane\\OrvaneFileIO\\Skelder\\ConvertBVK";

class ConvertBVKSettingsTest : public testing::Test {
 protected:
  MessageSink messages_;
  StringTable strings_;
};

void Change(ConvertBVK& converter) {
  converter.mnmPath = "maps/standard.mnm";
  converter.inputPath = "takes";
  converter.outputPath = "made";
  converter.filter = converter.trcName = converter.trcSpace = false;
  converter.batch = converter.offset = true;
  converter.offsetX = 1.5F;
  converter.offsetY = -2.0F;
  converter.offsetZ = 0.1F;
}

TEST_F(ConvertBVKSettingsTest, HasItsDefaults) {
  test::Desk desk;
  const ConvertBVK converter(messages_, strings_, nullptr);
  EXPECT_EQ(converter.mnmPath, "<none>");
  EXPECT_EQ(converter.inputPath, "C:\\");
  EXPECT_EQ(converter.outputPath, "<none>");
  EXPECT_TRUE(converter.filter);
  EXPECT_FALSE(converter.batch);
  EXPECT_TRUE(converter.trcName);
  EXPECT_TRUE(converter.trcSpace);
  EXPECT_FALSE(converter.offset);
  EXPECT_EQ(converter.offsetX, 0.0F);
  EXPECT_EQ(converter.offsetY, 0.0F);
  EXPECT_EQ(converter.offsetZ, 0.0F);
}

TEST_F(ConvertBVKSettingsTest, OpensItsKeyAndWritesNothingAtFirst) {
  test::Desk desk;
  const ConvertBVK converter(messages_, strings_, nullptr);
  EXPECT_EQ(desk.settings().OpenKeys(), std::vector<std::string>{kKey});
  EXPECT_FALSE(desk.settings().FindValue(kKey, "Filter"));
}

TEST_F(ConvertBVKSettingsTest, SavesElevenValuesInTheirForms) {
  test::Desk desk;
  ConvertBVK converter(messages_, strings_, nullptr);
  Change(converter);
  converter.SaveSettings();

  const struct {
    const char* name;
    RegistryType type;
    std::string bytes;
  } expected[] = {
      {"MNMPath", RegistryType::kString, "maps/standard.mnm"},
      {"InputPath", RegistryType::kString, "takes"},
      {"OutputPath", RegistryType::kString, "made"},
      {"Filter", RegistryType::kBinary, std::string("\0", 1)},
      {"Batch", RegistryType::kBinary, std::string("\1", 1)},
      {"TRCName", RegistryType::kBinary, std::string("\0", 1)},
      {"TRCSpace", RegistryType::kBinary, std::string("\0", 1)},
      {"Offset", RegistryType::kBinary, std::string("\1", 1)},
      {"OffsetX", RegistryType::kDoubleWord, std::string("\0\0\xC0\x3F", 4)},
      {"OffsetY", RegistryType::kDoubleWord, std::string("\0\0\0\xC0", 4)},
      {"OffsetZ", RegistryType::kDoubleWord, std::string("\xCD\xCC\xCC\x3D", 4)},
  };
  for (const auto& value : expected) {
    const auto stored = desk.settings().FindValue(kKey, value.name);
    ASSERT_TRUE(stored) << value.name;
    EXPECT_EQ(stored->type, value.type) << value.name;
    EXPECT_EQ(stored->bytes, value.bytes) << value.name;
  }
}

TEST_F(ConvertBVKSettingsTest, SavesThemAtItsEndAndLoadsThemAtItsStart) {
  test::Desk desk;
  {
    ConvertBVK converter(messages_, strings_, nullptr);
    Change(converter);
  }
  const ConvertBVK converter(messages_, strings_, nullptr);
  EXPECT_EQ(converter.mnmPath, "maps/standard.mnm");
  EXPECT_EQ(converter.inputPath, "takes");
  EXPECT_EQ(converter.outputPath, "made");
  EXPECT_FALSE(converter.filter);
  EXPECT_TRUE(converter.batch);
  EXPECT_FALSE(converter.trcName);
  EXPECT_FALSE(converter.trcSpace);
  EXPECT_TRUE(converter.offset);
  EXPECT_EQ(converter.offsetX, 1.5F);
  EXPECT_EQ(converter.offsetY, -2.0F);
  EXPECT_EQ(converter.offsetZ, 0.1F);
}

TEST_F(ConvertBVKSettingsTest, WorksWithoutARegistry) {
  test::Desk desk;
  desk.settings().RefuseKey("Software\\Orvane");
  ConvertBVK converter(messages_, strings_, nullptr);
  converter.SaveSettings();
  EXPECT_TRUE(converter.filter);
}

}  // namespace
}  // namespace orvane
