#include "formats/mnm/marker_name_map.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <filesystem>
#include <string>

#include "tests/support/files.h"
#include "tests/support/temporary_folder.h"

namespace orvane {
namespace {

class MarkerNameMapTest : public ::testing::Test {
 protected:
  // The standard name that `name` is mapped to; empty when it is not mapped.
  std::string Mapped(std::string name) const { return map_.Lookup(name) ? name : ""; }

  bool LoadBytes(const std::string& bytes) { return map_.Load(folder_.Write("m.mnm", bytes)); }

  std::string SavedBytes() const {
    EXPECT_TRUE(map_.Save(folder_.File("saved.mnm")));
    return test::ReadTextFile(folder_.File("saved.mnm"));
  }

  test::TemporaryFolder folder_;
  MarkerNameMap map_;
};

TEST_F(MarkerNameMapTest, IsEmptyAtFirst) {
  EXPECT_EQ(map_.Count(), 0U);
  EXPECT_EQ(Mapped("Head1"), "");
  EXPECT_EQ(Mapped(""), "");
  EXPECT_EQ(map_.RemoveLast(), 0U);
}

TEST_F(MarkerNameMapTest, TellsEntriesInTheirOrder) {
  ASSERT_TRUE(LoadBytes("LFHD\tHead1\t\n"));
  map_.Add("C7", "Back", 5);
  ASSERT_EQ(map_.Count(), 2U);
  EXPECT_EQ(map_.At(0).standard_name, "LFHD");
  EXPECT_EQ(map_.At(0).trc_name, "Head1");
  EXPECT_EQ(map_.At(0).node, 0U);
  EXPECT_EQ(map_.At(1).standard_name, "C7");
  EXPECT_EQ(map_.At(1).trc_name, "Back");
  EXPECT_EQ(map_.At(1).node, 5U);
}

TEST_F(MarkerNameMapTest, MapsTheMarkersOfAFile) {
  ASSERT_TRUE(LoadBytes("LFHD\tHead1\t\nC7\tBack\t\n"));
  EXPECT_EQ(map_.Count(), 2U);
  EXPECT_EQ(Mapped("Head1"), "LFHD");
  EXPECT_EQ(Mapped("Back"), "C7");
  EXPECT_EQ(Mapped("LFHD"), "") << "the other way round nothing is mapped";
}

TEST_F(MarkerNameMapTest, CaseCounts) {
  ASSERT_TRUE(LoadBytes("LFHD\tHead1\t\n"));
  EXPECT_EQ(Mapped("head1"), "");
  EXPECT_EQ(Mapped("Head10"), "");
}

TEST_F(MarkerNameMapTest, LeavesANameThatIsNotMappedAlone) {
  map_.Add("LFHD", "Head1", 0);
  std::string name = "Head2";
  EXPECT_FALSE(map_.Lookup(name));
  EXPECT_EQ(name, "Head2");
}

TEST_F(MarkerNameMapTest, FirstOfSeveralEntriesWins) {
  ASSERT_TRUE(LoadBytes("LFHD\tHead1\t\nRFHD\tHead1\t\n"));
  EXPECT_EQ(map_.Count(), 2U);
  EXPECT_EQ(Mapped("Head1"), "LFHD");
}

TEST_F(MarkerNameMapTest, AFileIsAppendedToWhatIsThere) {
  ASSERT_TRUE(LoadBytes("LFHD\tHead1\t\n"));
  ASSERT_TRUE(LoadBytes("RFHD\tHead1\t\nC7\tBack\t\n"));
  EXPECT_EQ(map_.Count(), 3U);
  EXPECT_EQ(Mapped("Head1"), "LFHD") << "of the first file";
  EXPECT_EQ(Mapped("Back"), "C7");
}

TEST_F(MarkerNameMapTest, EveryFileStartsWithEmptyNames) {
  ASSERT_TRUE(LoadBytes("LFHD\tHead1\t\n"));
  ASSERT_TRUE(LoadBytes("\nC7\n"));
  EXPECT_EQ(SavedBytes(), "LFHD\tHead1\t\n\t\t\nC7\t\t\n");
}

TEST_F(MarkerNameMapTest, ABlankLineRepeatsTheEntryBefore) {
  ASSERT_TRUE(LoadBytes("LFHD Head1\n\nLBHD\n"));
  EXPECT_EQ(SavedBytes(), "LFHD\tHead1\t\nLFHD\tHead1\t\nLBHD\tHead1\t\n");
}

TEST_F(MarkerNameMapTest, LoadsFilesOfOneEntryRepeatedAMillionTimes) {
  ASSERT_TRUE(LoadBytes(std::string(500, 'a') + " " + std::string(500, 'b') + "\n" +
                        std::string(1'000'000, '\n')));
  EXPECT_EQ(map_.Count(), 1'000'001U);
  EXPECT_EQ(Mapped(std::string(500, 'b')), std::string(500, 'a'));
}

TEST_F(MarkerNameMapTest, LooksUpInConstantTime) {
  for (int i = 0; i < 100'000; ++i) map_.Add("S" + std::to_string(i), "M" + std::to_string(i), 0);
  for (int i = 0; i < 100'000; ++i) {
    ASSERT_EQ(Mapped("M" + std::to_string(i)), "S" + std::to_string(i));
  }
}

TEST_F(MarkerNameMapTest, AFileThatCannotBeReadChangesNothing) {
  map_.Add("LFHD", "Head1", 7);
  EXPECT_FALSE(map_.Load(folder_.File("missing.mnm")));
  EXPECT_FALSE(map_.Load(folder_.Path().string())) << "a folder";
  EXPECT_FALSE(map_.Load("<none>"));
  EXPECT_FALSE(map_.Load(""));
  EXPECT_EQ(map_.Count(), 1U);
}

TEST_F(MarkerNameMapTest, AnEmptyFileMapsNothing) {
  EXPECT_TRUE(LoadBytes(""));
  EXPECT_EQ(map_.Count(), 0U);
}

TEST_F(MarkerNameMapTest, RemovesTheLastEntryAndTellsItsNode) {
  map_.Add("LFHD", "Head1", 7);
  map_.Add("RFHD", "Head2", 8);
  EXPECT_EQ(map_.RemoveLast(), 8U);
  EXPECT_EQ(map_.Count(), 1U);
  EXPECT_EQ(Mapped("Head2"), "");
  EXPECT_EQ(Mapped("Head1"), "LFHD");
  EXPECT_EQ(map_.RemoveLast(), 7U);
  EXPECT_EQ(Mapped("Head1"), "");
}

TEST_F(MarkerNameMapTest, AnEntryOfTheSameMarkerStaysWhenALaterOneGoes) {
  map_.Add("LFHD", "Head1", 7);
  map_.Add("RFHD", "Head1", 7);
  EXPECT_EQ(map_.RemoveLast(), 7U);
  EXPECT_EQ(Mapped("Head1"), "LFHD");
}

TEST_F(MarkerNameMapTest, TakesAMarkerAnewAfterItWasRemoved) {
  map_.Add("LFHD", "Head1", 7);
  map_.RemoveLast();
  map_.Add("C7", "Back", 8);
  map_.Add("RFHD", "Head1", 7);
  EXPECT_EQ(Mapped("Head1"), "RFHD");
}

TEST_F(MarkerNameMapTest, IsEmptyAfterClear) {
  map_.Add("LFHD", "Head1", 7);
  map_.Clear();
  EXPECT_EQ(map_.Count(), 0U);
  EXPECT_EQ(Mapped("Head1"), "");
  map_.Add("C7", "Head1", 7);
  EXPECT_EQ(Mapped("Head1"), "C7");
}

TEST_F(MarkerNameMapTest, WritesOneEntryALine) {
  map_.Add("LFHD", "Head1", 7);
  map_.Add("C7", "Back of neck", 8);
  EXPECT_EQ(SavedBytes(), "LFHD\tHead1\t\nC7\tBack of neck\t\n");
}

TEST_F(MarkerNameMapTest, WritesAnEmptyFileWithoutEntries) { EXPECT_EQ(SavedBytes(), ""); }

TEST_F(MarkerNameMapTest, ReplacesAFile) {
  test::WriteFile(folder_.File("saved.mnm"), "something much longer than what follows\n");
  map_.Add("LFHD", "Head1", 7);
  EXPECT_EQ(SavedBytes(), "LFHD\tHead1\t\n");
}

TEST_F(MarkerNameMapTest, CannotWriteWhereThereIsNoFolder) {
  EXPECT_FALSE(map_.Save(folder_.File("missing/m.mnm")));
  EXPECT_FALSE(map_.Save(""));
}

TEST_F(MarkerNameMapTest, ANameWithBlanksDoesNotComeBackWhole) {
  map_.Add("C7", "Back of neck", 8);
  ASSERT_TRUE(map_.Save(folder_.File("m.mnm")));
  map_.Clear();
  ASSERT_TRUE(map_.Load(folder_.File("m.mnm")));
  EXPECT_EQ(Mapped("Back of neck"), "");
  EXPECT_EQ(Mapped("Back"), "C7");
}

TEST_F(MarkerNameMapTest, TakesPathsInUtf8) {
  map_.Add("C7",
           "R\xC3\xBC"
           "cken",
           8);
  const std::string path = folder_.File("L\xC3\xA4uferin \xE6\xAD\xA9.mnm");
  ASSERT_TRUE(map_.Save(path));
  map_.Clear();
  ASSERT_TRUE(map_.Load(path));
  EXPECT_EQ(Mapped("R\xC3\xBC"
                   "cken"),
            "C7");
}

}  // namespace
}  // namespace orvane
