#include "plugin/import_htr/options.h"

#include <gtest/gtest.h>

#include "tests/support/desk.h"

namespace orvane {
namespace {

using platform::RegistryType;

constexpr char kKey[] = "Software\\Orvane\\OrvaneFileIO\\Skelder\\ImportHTR";

TEST(ImportHTROptionsTest, HasItsDefaults) {
  test::Desk desk;
  const ImportHTROptions options;
  EXPECT_FALSE(options.apply);
  EXPECT_TRUE(options.animate);
  EXPECT_FALSE(options.endEffectors);
  EXPECT_FALSE(options.spare);
  EXPECT_FALSE(options.keyBasePosition);
  EXPECT_FALSE(options.range);
  EXPECT_FALSE(options.setFrameRate);
  EXPECT_EQ(options.startFrame, 1);
  EXPECT_EQ(options.endFrame, 1);
  EXPECT_EQ(options.frameOffset, 0);
  EXPECT_EQ(options.rotationController, 0);
  EXPECT_EQ(options.size, 1.0F);
  EXPECT_EQ(options.scaleFactor, 1.0);
}

TEST(ImportHTROptionsTest, OpensItsKeyAndReadsOrWritesNothing) {
  test::Desk desk;
  const ImportHTROptions options;
  EXPECT_EQ(desk.settings().OpenKeys(), std::vector<std::string>{kKey});
  EXPECT_FALSE(desk.settings().FindValue(kKey, "Apply"));
}

TEST(ImportHTROptionsTest, SavesNineValuesInTheirForms) {
  test::Desk desk;
  ImportHTROptions options;
  options.apply = true;
  options.rotationController = 1;
  options.size = 1.5F;
  options.scaleFactor = 2.0;
  options.Save();

  const struct {
    const char* name;
    RegistryType type;
    std::string bytes;
  } expected[] = {
      {"Apply", RegistryType::kBinary, std::string("\1", 1)},
      {"Animate", RegistryType::kBinary, std::string("\1", 1)},
      {"KeyBasePosition", RegistryType::kBinary, std::string("\0", 1)},
      {"EndEffectors", RegistryType::kBinary, std::string("\0", 1)},
      {"Range", RegistryType::kBinary, std::string("\0", 1)},
      {"FPS", RegistryType::kBinary, std::string("\0", 1)},
      {"RotationController", RegistryType::kDoubleWord, std::string("\1\0\0\0", 4)},
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

TEST(ImportHTROptionsTest, LoadsWhatWasSaved) {
  test::Desk desk;
  ImportHTROptions saved;
  saved.apply = saved.keyBasePosition = saved.endEffectors = true;
  saved.range = saved.setFrameRate = true;
  saved.animate = false;
  saved.rotationController = 1;
  saved.size = 0.1F;
  saved.scaleFactor = 0.1;
  saved.startFrame = saved.endFrame = saved.frameOffset = 77;
  saved.Save();

  ImportHTROptions loaded;
  loaded.Load();
  EXPECT_TRUE(loaded.apply);
  EXPECT_FALSE(loaded.animate);
  EXPECT_TRUE(loaded.keyBasePosition);
  EXPECT_TRUE(loaded.endEffectors);
  EXPECT_TRUE(loaded.range);
  EXPECT_TRUE(loaded.setFrameRate);
  EXPECT_EQ(loaded.rotationController, 1);
  EXPECT_EQ(loaded.size, 0.1F);
  EXPECT_EQ(loaded.scaleFactor, 0.1);
  EXPECT_EQ(loaded.startFrame, 1);
  EXPECT_EQ(loaded.endFrame, 1);
  EXPECT_EQ(loaded.frameOffset, 0);
}

TEST(ImportHTROptionsTest, MissingValuesKeepTheFields) {
  test::Desk desk;
  ImportHTROptions options;
  options.size = 7.0F;
  options.Load();
  EXPECT_EQ(options.size, 7.0F);
  EXPECT_TRUE(options.animate);
}

TEST(ImportHTROptionsTest, WithoutItsKeyItWorksInMemoryOnly) {
  test::Desk desk;
  desk.settings().RefuseKey(kKey);
  ImportHTROptions options;
  options.size = 3.0F;
  options.Save();
  options.Load();
  EXPECT_EQ(options.size, 3.0F);
}

}  // namespace
}  // namespace orvane
