#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstddef>
#include <span>
#include <string>

#include "platform/module.h"
#include "platform/portable/module_resources.h"
#include "platform/portable/resource_file.h"

namespace {

using platform::ResourceType;
using testing::HasSubstr;

std::span<const std::byte> File() { return platform::ResourceFileOf(platform::ModuleHandle()); }

std::string TextOf(std::span<const std::byte> bytes) {
  std::string text;
  for (const std::byte byte : bytes) text += std::to_integer<char>(byte);
  return text;
}

std::string Resource(ResourceType type, unsigned int id) {
  return TextOf(platform::FindResource(File(), type, id));
}

// A plain text as it stands in UTF-16.
std::string Wide(const std::string& text) {
  std::string wide;
  for (const char letter : text) wide += std::string{letter, '\0'};
  return wide;
}

std::size_t Count(const std::string& text, const std::string& part) {
  std::size_t count = 0;
  for (auto at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) ++count;
  return count;
}

TEST(BitmapResourceTest, IsAPictureOfSixtyFourPixelsSquare) {
  const std::string bitmap = Resource(ResourceType::kBitmap, 112);
  ASSERT_GT(bitmap.size(), 40U);
  EXPECT_EQ(bitmap.substr(4, 8), std::string("\x40\0\0\0\x40\0\0\0", 8));
}

TEST(BitmapResourceTest, IsThePictureOfTheAboutDialog) {
  // A static control whose text is the number 112.
  EXPECT_THAT(Resource(ResourceType::kDialog, 114),
              HasSubstr(std::string("\xFF\xFF\x82\0\xFF\xFF\x70\0", 8)));
}

TEST(ManifestResourceTest, AsksForTheCommonControlsAndNothingElse) {
  const std::string manifest = Resource(ResourceType::kManifest, 2);
  EXPECT_THAT(manifest, HasSubstr("name=\"Orvane.OrvaneFileIO\" version=\"3.2.1.0\""));
  EXPECT_THAT(manifest,
              HasSubstr("name=\"Microsoft.Windows.Common-Controls\" version=\"6.0.0.0\""));
  EXPECT_EQ(Count(manifest, "<dependentAssembly>"), 1U);
  EXPECT_EQ(Count(manifest, "processorArchitecture=\"amd64\""), 2U);
  EXPECT_EQ(Count(manifest, "<assemblyIdentity"), 2U);
}

TEST(VersionResourceTest, TellsTheVersionOfTheProject) {
  const std::string version = Resource(ResourceType::kVersion, 1);
  EXPECT_THAT(version, HasSubstr(Wide("3.2.1")));
  EXPECT_THAT(version, HasSubstr(std::string("\2\0\3\0\0\0\1\0", 8))) << "as numbers";
  EXPECT_THAT(version, HasSubstr(Wide("Copyright (c) 2026 The OrvaneFileIO authors")));
}

// Whatever is found in a damaged file is found whole.
TEST(ResourceFileTest, IsReadSafelyWhereverItIsCut) {
  const std::string category = "Motion Capture";
  const std::string title = "ImportHTR";
  for (std::size_t length = 0; length < File().size(); ++length) {
    const auto cut = File().first(length);
    const std::string string = platform::FindString(cut, 2);
    EXPECT_TRUE(string.empty() || string == category);
    const auto dialog = platform::FindDialog(cut, 107);
    EXPECT_TRUE(!dialog || dialog->title == title);
  }
}

}  // namespace
