#include "formats/c3d/parameter_section.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using orvane::C3dParameterSection;

TEST(C3dParameterSectionTest, IsFilledUpToBlocksAndCountsThem) {
  for (const std::size_t length : {1U, 480U, 484U, 485U, 1000U}) {
    C3dParameterSection section;
    section.AddGroup("G", "");                          // 6 bytes
    section.AddTexts("P", "", {std::string_view("")});  // 10 bytes
    section.AddWords("W", "", std::vector<std::uint32_t>(length / 8, 7));
    const std::string bytes = section.Finish();
    EXPECT_EQ(bytes.size() % 512, 0U);
    EXPECT_EQ(static_cast<unsigned char>(bytes[2]), bytes.size() / 512);
  }
}

TEST(C3dParameterSectionTest, NumbersGroupsDownwards) {
  C3dParameterSection section;
  section.AddGroup("FIRST", "");
  section.AddGroup("SECOND", "");
  section.AddFloat("PARAMETER", "", 0.0F);
  const std::string bytes = section.Finish();
  EXPECT_EQ(bytes[bytes.find("FIRST") - 1], '\xFF');
  EXPECT_EQ(bytes[bytes.find("SECOND") - 1], '\xFE');
  EXPECT_EQ(bytes[bytes.find("PARAMETER") - 1], '\x02');
}

TEST(C3dParameterSectionTest, WritesTheLowestByteFirst) {
  C3dParameterSection section;
  section.AddGroup("G", "");
  section.AddWords("W", "", {0x1234, 0xFFFE});
  EXPECT_NE(section.Finish().find("\x34\x12\xFE\xFF"), std::string::npos);
}

}  // namespace
