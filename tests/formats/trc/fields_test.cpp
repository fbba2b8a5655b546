#include "formats/trc/fields.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

Line LineOf(std::string_view text, bool ends_with_break) {
  Line line;
  line.text = text;
  line.ends_with_break = ends_with_break;
  return line;
}

TEST(TRCFields, AreSeparatedBySingleTabs) {
  TRCFields fields(LineOf("a b\t\t c", true));
  EXPECT_EQ(fields.Number(), 1u);
  EXPECT_EQ(fields.Take(), "a b");
  EXPECT_EQ(fields.Number(), 2u);
  EXPECT_EQ(fields.Take(), "");
  EXPECT_EQ(fields.Get(), " c");
  EXPECT_EQ(fields.Take(), " c");
  EXPECT_TRUE(fields.AtEnd());
  EXPECT_EQ(fields.Take(), "");
}

TEST(TRCFields, GiveTheLineBreakToTheLastOne) {
  TRCFields fields(LineOf("a\tb", true));
  EXPECT_FALSE(fields.CarriesBreak());
  EXPECT_TRUE(fields.HasTab());
  fields.Drop();
  EXPECT_TRUE(fields.CarriesBreak());
  EXPECT_FALSE(fields.HasTab());
  fields.Drop();
  EXPECT_FALSE(fields.CarriesBreak());
}

TEST(TRCFields, KnowALineWithoutABreak) {
  EXPECT_FALSE(TRCFields(LineOf("a", false)).CarriesBreak());
  EXPECT_TRUE(TRCFields(LineOf("", true)).CarriesBreak());
  EXPECT_TRUE(TRCFields(LineOf("", true)).AtEnd());
}

TEST(TRCFields, DropPastTheEndLeavesNothing) {
  TRCFields fields(LineOf("a\tb\tc", true));
  fields.Drop(2);
  EXPECT_EQ(fields.Get(), "c");
  fields.Drop(5);
  EXPECT_EQ(fields.Get(), "");
  EXPECT_TRUE(fields.AtEnd());
}

}  // namespace
}  // namespace orvane
