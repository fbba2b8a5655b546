#include "plugin/export_htr/options.h"

#include <gtest/gtest.h>

#include <bit>

#include "tests/support/desk.h"

namespace orvane {
namespace {

using platform::RegistryType;

constexpr char kKey[] = "Software\\Orvane\\OrvaneFileIO\\Skelder\\ExportHTR";

TEST(ExportHTROptionsTest, HasItsDefaults) {
  test::Desk desk;
  const ExportHTROptions options;
  EXPECT_TRUE(options.savedPose);
  EXPECT_TRUE(options.animate);
  EXPECT_TRUE(options.parentTransforms);
  EXPECT_FALSE(options.range);
  EXPECT_EQ(options.startFrame, 1);
  EXPECT_EQ(options.endFrame, 1);
  EXPECT_EQ(options.frameOffset, 0);
  EXPECT_EQ(options.scaleFactor, 1.0);
}

TEST(ExportHTROptionsTest, OpensItsKeyAndReadsOrWritesNothing) {
  test::Desk desk;
  const ExportHTROptions options;
  EXPECT_EQ(desk.settings().OpenKeys(), std::vector<std::string>{kKey});
  EXPECT_FALSE(desk.settings().FindValue(kKey, "Pose"));
}

TEST(ExportHTROptionsTest, SavesSixValuesInTheirForms) {
  test::Desk desk;
  ExportHTROptions options;
  options.animate = false;
  options.range = true;
  options.frameOffset = -2;
  options.scaleFactor = 2.5;
  options.Save();

  const struct {
    const char* name;
    RegistryType type;
    std::string bytes;
  } expected[] = {
      {"Pose", RegistryType::kBinary, std::string("\1", 1)},
      {"Animate", RegistryType::kBinary, std::string("\0", 1)},
      {"ParentTransforms", RegistryType::kBinary, std::string("\1", 1)},
      {"Range", RegistryType::kBinary, std::string("\1", 1)},
      {"Offset", RegistryType::kDoubleWord, "\xFE\xFF\xFF\xFF"},
      {"ScaleFactor", RegistryType::kDoubleWord, std::string("\0\0\x20\x40", 4)},
  };
  for (const auto& value : expected) {
    const auto stored = desk.settings().FindValue(kKey, value.name);
    ASSERT_TRUE(stored) << value.name;
    EXPECT_EQ(stored->type, value.type) << value.name;
    EXPECT_EQ(stored->bytes, value.bytes) << value.name;
  }
  for (const char* name : {"From", "To", "StartFrame", "EndFrame"}) {
    EXPECT_FALSE(desk.settings().FindValue(kKey, name)) << name;
  }
}

TEST(ExportHTROptionsTest, LoadsTheFlagsAndTheOffsetThatWereSaved) {
  test::Desk desk;
  ExportHTROptions saved;
  saved.savedPose = saved.animate = saved.parentTransforms = false;
  saved.range = true;
  saved.frameOffset = 12;
  saved.startFrame = saved.endFrame = 77;
  saved.Save();

  ExportHTROptions loaded;
  loaded.Load();
  EXPECT_FALSE(loaded.savedPose);
  EXPECT_FALSE(loaded.animate);
  EXPECT_FALSE(loaded.parentTransforms);
  EXPECT_TRUE(loaded.range);
  EXPECT_EQ(loaded.frameOffset, 12);
  EXPECT_EQ(loaded.startFrame, 1);
  EXPECT_EQ(loaded.endFrame, 1);
}

TEST(ExportHTROptionsTest, TheScaleComesBackWithItsLowBytesReplacedAndItsValueKept) {
  test::Desk desk;
  ExportHTROptions saved;
  saved.scaleFactor = 2.5;
  saved.Save();

  ExportHTROptions loaded;
  loaded.Load();
  // 2.5 in single precision is 0x40200000; the high half of 1.0 is 0x3FF00000.
  EXPECT_EQ(std::bit_cast<std::uint64_t>(loaded.scaleFactor), 0x3FF0'0000'4020'0000U);
  EXPECT_NEAR(loaded.scaleFactor, 1.0, 3e-7);

  // In the record that it was typed into it stays nearly what it was.
  saved.Load();
  EXPECT_EQ(std::bit_cast<std::uint64_t>(saved.scaleFactor), 0x4004'0000'4020'0000U);
}

TEST(ExportHTROptionsTest, MissingValuesKeepTheFields) {
  test::Desk desk;
  ExportHTROptions options;
  options.scaleFactor = 7.0;
  options.frameOffset = 3;
  options.Load();
  EXPECT_EQ(options.scaleFactor, 7.0);
  EXPECT_EQ(options.frameOffset, 3);
  EXPECT_TRUE(options.savedPose);
}

TEST(ExportHTROptionsTest, WithoutItsKeyItWorksInMemoryOnly) {
  test::Desk desk;
  desk.settings().RefuseKey(kKey);
  ExportHTROptions options;
  options.scaleFactor = 3.0;
  options.Save();
  options.Load();
  EXPECT_EQ(options.scaleFactor, 3.0);
}

}  // namespace
}  // namespace orvane
