#include <gtest/gtest.h>

#include <array>
#include <map>
#include <string>

#include "platform/module.h"
#include "platform/string_table.h"

namespace {

const std::map<unsigned int, std::string>& ExpectedStrings() {
  static const std::map<unsigned int, std::string> strings = {
      {1, "OrvaneFileIO Post-Process Motion Capture Utility (Zerubel)"},
      {2, "Motion Capture"},
      {3, "OrvaneFileIO"},
      {4, "OrvaneFileIO Options"},
      {5, "Select Mapping File..."},
      {6, "Convert TRC to BVK"},
      {11, "Orvane HTR Files (*.HTR)"},
      {13, "Orvane TRC Files (*.TRC)"},
      {22, "ImportHTR Options"},
      {23, "ExportHTR Options"},
      {24, "ImportTRC Options"},
      {29, "ImportHTR"},
      {31, "ExportHTR"},
      {32, "ImportTRC"},
      {33, "OrvaneUtilities"},
      {34, "Marker Name Mapping Files (*.MNM)"},
      {35, "Kinarch Marker Files (*.BVK)"},
  };
  return strings;
}

TEST(StringResourcesTest, EveryNumberHasItsTextOrNone) {
  for (unsigned int id = 0; id <= 1000; ++id) {
    const auto expected = ExpectedStrings().find(id);
    std::array<char, 256> text{};
    platform::LoadStringResource(platform::ModuleHandle(), id, text.data(), text.size());
    EXPECT_EQ(text.data(), expected == ExpectedStrings().end() ? "" : expected->second)
        << "string " << id;
  }
}

}  // namespace
