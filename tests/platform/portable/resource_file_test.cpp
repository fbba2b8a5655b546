#include "platform/portable/resource_file.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <span>
#include <string>
#include <vector>

#include "tests/support/resource_builder.h"

namespace platform {
namespace {

using test::ByteWriter;
using test::EntryBytes;
using test::FileBytes;
using test::ResourceBytes;

ResourceBytes Data(const std::string& text) {
  const auto bytes = std::as_bytes(std::span(text));
  return {bytes.begin(), bytes.end()};
}

std::string TextOf(std::span<const std::byte> bytes) {
  std::string text;
  for (const std::byte byte : bytes) text += std::to_integer<char>(byte);
  return text;
}

std::string FindText(const ResourceBytes& file, ResourceType type, unsigned int id) {
  return TextOf(FindResource(file, type, id));
}

TEST(FindResourceTest, FindsByTypeAndNumber) {
  const ResourceBytes file =
      FileBytes({EntryBytes(2, 7, Data("bitmap")), EntryBytes(24, 7, Data("manifest")),
                 EntryBytes(24, 8, Data("other"))});
  EXPECT_EQ(FindText(file, ResourceType::kBitmap, 7), "bitmap");
  EXPECT_EQ(FindText(file, ResourceType::kManifest, 7), "manifest");
  EXPECT_EQ(FindText(file, ResourceType::kManifest, 8), "other");
}

TEST(FindResourceTest, GivesNothingForWhatIsAbsent) {
  const ResourceBytes file = FileBytes({EntryBytes(24, 7, Data("manifest"))});
  EXPECT_TRUE(FindResource(file, ResourceType::kManifest, 8).empty());
  EXPECT_TRUE(FindResource(file, ResourceType::kBitmap, 7).empty());
  EXPECT_TRUE(FindResource(file, ResourceType::kManifest, 7 + 0x10000).empty());
  EXPECT_TRUE(FindResource({}, ResourceType::kManifest, 7).empty());
}

TEST(FindResourceTest, StepsOverDataOfEveryLength) {
  for (std::size_t length = 0; length < 9; ++length) {
    const ResourceBytes file = FileBytes(
        {EntryBytes(24, 1, Data(std::string(length, 'x'))), EntryBytes(24, 2, Data("next"))});
    EXPECT_EQ(FindText(file, ResourceType::kManifest, 1), std::string(length, 'x'));
    EXPECT_EQ(FindText(file, ResourceType::kManifest, 2), "next");
  }
}

TEST(FindResourceTest, StepsOverResourcesWithTextsForNames) {
  const ResourceBytes file =
      FileBytes({EntryBytes(ByteWriter().Text(u"KIND").Number(7).Bytes(), Data("named kind")),
                 EntryBytes(ByteWriter().Number(24).Text(u"NAME").Bytes(), Data("named")),
                 EntryBytes(24, 7, Data("numbered"))});
  EXPECT_EQ(FindText(file, ResourceType::kManifest, 7), "numbered");
}

TEST(FindResourceTest, TakesTheFirstOfANumber) {
  const ResourceBytes file =
      FileBytes({EntryBytes(24, 7, Data("first")), EntryBytes(24, 7, Data("second"))});
  EXPECT_EQ(FindText(file, ResourceType::kManifest, 7), "first");
}

TEST(FindResourceTest, FindsWhatLiesBeforeTheEndOfACutFile) {
  const ResourceBytes first = EntryBytes(24, 1, Data("first"));
  const ResourceBytes whole = FileBytes({first, EntryBytes(24, 2, Data("second"))});
  const std::size_t first_end = FileBytes({}).size() + first.size() - 3;  // three bytes of padding
  const std::size_t second_end = whole.size() - 2;
  for (std::size_t length = 0; length <= whole.size(); ++length) {
    const ResourceBytes cut(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(length));
    EXPECT_EQ(FindText(cut, ResourceType::kManifest, 1), length < first_end ? "" : "first");
    EXPECT_EQ(FindText(cut, ResourceType::kManifest, 2), length < second_end ? "" : "second");
  }
}

TEST(FindResourceTest, SurvivesEveryDamagedByte) {
  const ResourceBytes whole = FileBytes({EntryBytes(24, 1, Data("first"))});
  for (std::size_t i = 0; i < whole.size(); ++i) {
    for (const unsigned value : {0x00U, 0x01U, 0x07U, 0x7FU, 0x80U, 0xFFU}) {
      ResourceBytes damaged = whole;
      damaged[i] = static_cast<std::byte>(value);
      const std::span<const std::byte> found = FindResource(damaged, ResourceType::kManifest, 1);
      EXPECT_LE(found.size(), whole.size());
    }
  }
}

TEST(FindResourceTest, StopsAtAHeaderThatIsTooSmallForItsOwnSizes) {
  for (const unsigned header_size : {0U, 4U, 7U, 8U}) {
    const ResourceBytes file = ByteWriter().U32(0).U32(header_size).U32(0).U32(0).Bytes();
    EXPECT_TRUE(FindResource(file, ResourceType::kManifest, 1).empty());
  }
}

TEST(FindStringTest, FindsEveryStringOfABlock) {
  std::vector<std::u16string> strings;
  for (char16_t letter = u'a'; letter < u'a' + 16; ++letter) strings.emplace_back(3, letter);
  const ResourceBytes file =
      FileBytes({EntryBytes(test::kStringType, 3, test::StringBlockBytes(strings))});
  for (unsigned int i = 0; i < 16; ++i) {
    EXPECT_EQ(FindString(file, 32 + i), std::string(3, static_cast<char>('a' + i)));
  }
  EXPECT_EQ(FindString(file, 31), "");
  EXPECT_EQ(FindString(file, 48), "");
}

TEST(FindStringTest, GivesNothingForGapsAndForNumbersThatNoBlockHas) {
  const ResourceBytes file = FileBytes(
      {EntryBytes(test::kStringType, 1, test::StringBlockBytes({u"", u"one", u"", u"three"}))});
  EXPECT_EQ(FindString(file, 0), "");
  EXPECT_EQ(FindString(file, 1), "one");
  EXPECT_EQ(FindString(file, 2), "");
  EXPECT_EQ(FindString(file, 3), "three");
  EXPECT_EQ(FindString(file, 0x100001), "");
  EXPECT_EQ(FindString(file, 0xFFFFFFFF), "");
}

struct Utf16Case {
  std::u16string utf16;
  std::string utf8;
};

TEST(FindStringTest, TurnsUtf16IntoUtf8) {
  const std::vector<Utf16Case> cases = {
      {u"plain", "plain"},
      {u"\u007F\u0080", "\x7F\xC2\x80"},
      {u"\u07FF\u0800", "\xDF\xBF\xE0\xA0\x80"},
      {u"\uFFFF", "\xEF\xBF\xBF"},
      {u"\U00010000", "\xF0\x90\x80\x80"},
      {u"\U0010FFFF", "\xF4\x8F\xBF\xBF"},
      {std::u16string(1, 0xD800), "\xEF\xBF\xBD"},
      {std::u16string(1, 0xDC00) + u"x", "\xEF\xBF\xBDx"},
      {std::u16string(1, 0xD800) + u"x", "\xEF\xBF\xBDx"},
      {std::u16string(2, 0xD83D) + u"\xDE00", "\xEF\xBF\xBD\xF0\x9F\x98\x80"},
  };
  for (const Utf16Case& test_case : cases) {
    const ResourceBytes file =
        FileBytes({EntryBytes(test::kStringType, 1, test::StringBlockBytes({test_case.utf16}))});
    EXPECT_EQ(FindString(file, 0), test_case.utf8);
  }
}

TEST(FindStringTest, GivesNothingWhenALengthReachesBeyondTheBlock) {
  const ResourceBytes block = ByteWriter().U16(2).Units(u"ok").U16(3).Units(u"no").Bytes();
  const ResourceBytes file = FileBytes({EntryBytes(test::kStringType, 1, block)});
  EXPECT_EQ(FindString(file, 0), "ok");
  EXPECT_EQ(FindString(file, 1), "");
  EXPECT_EQ(FindString(file, 2), "");
}

TEST(FindDialogTest, FindsADialogByItsNumber) {
  const ResourceBytes file =
      FileBytes({EntryBytes(test::kDialogType, 5, test::DialogBytes(u"Five", {})),
                 EntryBytes(test::kDialogType, 6, test::DialogBytes(u"Six", {}))});
  ASSERT_TRUE(FindDialog(file, 6).has_value());
  EXPECT_EQ(FindDialog(file, 6)->title, "Six");
  EXPECT_FALSE(FindDialog(file, 7).has_value());
}

}  // namespace
}  // namespace platform
