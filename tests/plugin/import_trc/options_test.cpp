#include "plugin/import_trc/options.h"

#include <gtest/gtest.h>

#include "tests/support/desk.h"

namespace orvane {
namespace {

using platform::RegistryType;

constexpr char kKey[] = "Software\\Orvane\\OrvaneFileIO\\Skelder\\ImportTRC";

TEST(ImportTRCOptionsTest, HasItsDefaults) {
  test::Desk desk;
  const ImportTRCOptions options;
  EXPECT_FALSE(options.apply);
  EXPECT_TRUE(options.geometry);
  EXPECT_FALSE(options.selectedOnly);
  EXPECT_FALSE(options.rootNode);
  EXPECT_FALSE(options.range);
  EXPECT_FALSE(options.setFrameRate);
  EXPECT_EQ(options.size, 1.0F);
  EXPECT_EQ(options.scaleFactor, 1.0);
  EXPECT_EQ(options.startFrame, 1);
  EXPECT_EQ(options.endFrame, 1);
  EXPECT_EQ(options.frameOffset, 0);
}

TEST(ImportTRCOptionsTest, OpensItsKeyAndReadsOrWritesNothing) {
  test::Desk desk;
  const ImportTRCOptions options;
  EXPECT_EQ(desk.settings().OpenKeys(), std::vector<std::string>{kKey});
  EXPECT_FALSE(desk.settings().FindValue(kKey, "Apply"));
}

TEST(ImportTRCOptionsTest, SavesEightValuesInTheirForms) {
  test::Desk desk;
  ImportTRCOptions options;
  options.apply = true;
  options.size = 1.5F;
  options.scaleFactor = 2.0;
  options.Save();

  const struct {
    const char* name;
    RegistryType type;
    std::string bytes;
  } expected[] = {
      {"Apply", RegistryType::kBinary, std::string("\1", 1)},
      {"Geometry", RegistryType::kBinary, std::string("\1", 1)},
      {"SelectedOnly", RegistryType::kBinary, std::string("\0", 1)},
      {"RootNode", RegistryType::kBinary, std::string("\0", 1)},
      {"Range", RegistryType::kBinary, std::string("\0", 1)},
      {"FPS", RegistryType::kBinary, std::string("\0", 1)},
      {"Size", RegistryType::kDoubleWord, std::string("\0\0\xC0\x3F", 4)},
      {"ScaleFactor", RegistryType::kQuadWord, std::string("\0\0\0\0\0\0\0\x40", 8)},
  };
  for (const auto& value : expected) {
    const auto stored = desk.settings().FindValue(kKey, value.name);
    ASSERT_TRUE(stored) << value.name;
    EXPECT_EQ(stored->type, value.type) << value.name;
    EXPECT_EQ(stored->bytes, value.bytes) << value.name;
  }
  for (const char* name : {"From", "To", "Offset", "StartFrame", "EndFrame", "FrameOffset"}) {
    EXPECT_FALSE(desk.settings().FindValue(kKey, name)) << name;
  }
}

TEST(ImportTRCOptionsTest, LoadsWhatWasSaved) {
  test::Desk desk;
  ImportTRCOptions saved;
  saved.apply = saved.selectedOnly = saved.rootNode = saved.range = saved.setFrameRate = true;
  saved.geometry = false;
  saved.size = 0.1F;
  saved.scaleFactor = 0.1;
  saved.startFrame = saved.endFrame = saved.frameOffset = 77;
  saved.Save();

  ImportTRCOptions loaded;
  loaded.Load();
  EXPECT_TRUE(loaded.apply);
  EXPECT_FALSE(loaded.geometry);
  EXPECT_TRUE(loaded.selectedOnly);
  EXPECT_TRUE(loaded.rootNode);
  EXPECT_TRUE(loaded.range);
  EXPECT_TRUE(loaded.setFrameRate);
  EXPECT_EQ(loaded.size, 0.1F);
  EXPECT_EQ(loaded.scaleFactor, 0.1);
  EXPECT_EQ(loaded.startFrame, 1);
  EXPECT_EQ(loaded.endFrame, 1);
  EXPECT_EQ(loaded.frameOffset, 0);
}

TEST(ImportTRCOptionsTest, EachValueHasItsOwnName) {
  test::Desk desk;
  ImportTRCOptions options;
  const std::pair<const char*, bool ImportTRCOptions::*> flags[] = {
      {"Apply", &ImportTRCOptions::apply},
      {"Geometry", &ImportTRCOptions::geometry},
      {"SelectedOnly", &ImportTRCOptions::selectedOnly},
      {"RootNode", &ImportTRCOptions::rootNode},
      {"Range", &ImportTRCOptions::range},
      {"FPS", &ImportTRCOptions::setFrameRate}};
  for (const auto& [name, flag] : flags) {
    for (const auto& [other_name, other] : flags) options.*other = other == flag;
    options.Save();
    for (const auto& [other_name, other] : flags) {
      const std::string expected(1, other == flag ? '\1' : '\0');
      EXPECT_EQ(desk.settings().FindValue(kKey, other_name)->bytes, expected) << other_name;
    }
    ImportTRCOptions loaded;
    loaded.Load();
    for (const auto& [other_name, other] : flags) EXPECT_EQ(loaded.*other, other == flag);
  }
}

TEST(ImportTRCOptionsTest, AMissingValueLeavesTheFieldAsItWas) {
  test::Desk desk;
  ImportTRCOptions options;
  options.apply = true;
  options.size = 3.0F;
  options.scaleFactor = 4.0;
  options.Load();
  EXPECT_TRUE(options.apply);
  EXPECT_EQ(options.size, 3.0F);
  EXPECT_EQ(options.scaleFactor, 4.0);
}

}  // namespace
}  // namespace orvane
