#include "inspect/check/mnm_check.h"

#include "inspect/check/mnm_rules.h"
#include "tests/inspect/check/check_rows.h"
#include "tests/support/saved_text.h"
#include "tests/support/trc_text.h"

namespace {

using orvane::CheckMapping;
using test::AllTold;
using test::CheckRow;
using test::kMark;
using test::LittleEndian;
using testing::IsEmpty;
using namespace std::string_literals;

std::vector<test::Told> ToldOf(const std::string& bytes) {
  return AllTold(CheckMapping("m.mnm", bytes).findings);
}

// Of the mapping and of the capture.
std::vector<test::Told> ToldOfBoth(const std::string& bytes) {
  const orvane::MappedCapture capture{
      "take.trc", {{"Head2", {4, 13, 3}}, {"Right Head", {4, 21, 6}}, {"Toe", {4, 34, 9}}}};
  std::vector<test::Told> all;
  for (const orvane::CheckedFile& file : CheckMapping("m.mnm", bytes, capture)) {
    for (const test::Told& told : AllTold(file.findings)) all.push_back(told);
  }
  return all;
}

const std::vector<CheckRow> kMappingRows = {
    {"OtherKind",
     "PK\x03\x04",
     {"1:1 error mnm-other-kind", "a zip archive", "a mapping",
      "No marker has its entry; \"orvane map create\" makes a mapping."}},
    {"Utf16",
     "\xFF\xFE" + LittleEndian("C7 B\n"),
     {"1:1 error mnm-encoding", "UTF-16 text", "ASCII or UTF-8",
      "No marker has its entry: those of a capture are dropped."}},
    {"CarriageReturnsAlone",
     "C7 Back\rT10 Spine\r",
     {"1:1 error mnm-line-ends", "lines that end with carriage returns alone",
      "LF or CR LF where lines end", "Up to an LF only the first two words are read."}},
    {"ByteOrderMark",
     kMark + "LFHD\tHead1\n"s,
     {"1:1 warning mnm-byte-order-mark", "a byte-order mark", "text without one, in ASCII or UTF-8",
      "It belongs to the first name, which is then not what it looks like."}},
    {"Nul",
     "LFHD\tHead1\0\n"s,
     {"1:11 warning mnm-nul", "a NUL byte", "text", "The rest of its line is not read."}},
    {"LongLine",
     "LFHD " + std::string(1020, 'y') + "\n",
     {"1:1024 warning mnm-line-cut", "a line of more than 1022 bytes", "shorter lines",
      "It is read as several lines, of which one starts here."}},
    {"BlankAtTheStart",
     "\nC7 Back\n",
     {"1:1 note mnm-line-blank", "a blank line", "an entry",
      "It maps a marker without a name to nothing."}},
    {"BlankBehindAnEntry",
     "C7 Back\n \t\n",
     {"2:1 note mnm-line-blank", "a blank line", "an entry",
      "It repeats the entry before it, which changes nothing."}},
    {"OneWordAtTheStart",
     "C7\n",
     {"1:1 warning mnm-name-missing", "the one word \"C7\"",
      "a standard marker and the capture's name for it", "It maps a marker without a name."}},
    {"OneWordBehindAnEntry",
     "LFHD Head1\n  LBHD\t\n",
     {"2:3 warning mnm-name-missing", "the one word \"LBHD\"",
      "a standard marker and the capture's name for it",
      "The marker of the line before is taken, \"Head1\", which has its entry already: the line "
      "changes nothing."}},
    {"NameInAnotherEncoding",
     "C7\tt\xEAte\n",
     {"1:4 warning mnm-name-encoding", "\"t\xEAte\"", "a name in ASCII or UTF-8",
      "It is of no marker but one that is written in these very bytes."}},
    {"NameWithBlank",
     "C7\tUpper Back\t\n",
     {"1:10 warning mnm-rest-ignored", "\"Back\t\"", "the end of the line",
      "It is ignored: names end at the first blank, so that one with blanks cannot be mapped."}},
    {"NoEntries",
     "",
     {"1:1 error mnm-entries-missing", "an empty file", "an entry for every marker to keep",
      "Every marker of a capture is dropped."}},
    {"OtherStandardName",
     "Neck Back\n",
     {"1:1 warning mnm-standard-unknown", "\"Neck\"", "a standard marker",
      "The converted file has a marker of this name all the same."}},
    {"MisspelledStandardName",
     "lfhd Head1\n",
     {"1:1 warning mnm-standard-unknown", "\"lfhd\"", "\"LFHD\"",
      "The converted file has a marker of this name all the same."}},
    {"NamesTheOtherWayRound",
     "Back T10\n",
     {"1:1 warning mnm-standard-unknown", "\"Back\"", "\"T10\" first, and then the capture's name",
      "The converted file has a marker of this name all the same."}},
    {"StandardNameTwice",
     "C7 Back\nC7 Spine\n",
     {"2:1 warning mnm-standard-twice", "\"C7\" again", "it once; line 1 has it",
      "A capture with \"Back\" and \"Spine\" becomes a file with two markers of this name."}},
    {"EntryTwice",
     "C7 Back\nC7 Back\n",
     {"2:4 note mnm-entry-doubled", "\"Back\" again", "it once; line 1 has it",
      "The line changes nothing."}},
    {"EntryShadowed",
     "C7 Back\nT10 Back\n",
     {"2:5 warning mnm-entry-shadowed", "\"Back\" again", "it once; line 1 has it",
      "The line is ignored: the marker is \"C7\", as the earlier one says."}},
};

const std::vector<CheckRow> kCaptureRows = {
    {"MisspelledEntry",
     "LFHD head2\n",
     {"1:6 warning mnm-entry-unused", "\"head2\"", "\"Head2\"",
      "The capture has no such marker: the line changes nothing."}},
    {"EntryForNoMarker",
     "LFHD Neck\n",
     {"1:6 warning mnm-entry-unused", "\"Neck\"", "a marker of the capture",
      "The capture has no such marker: the line changes nothing."}},
    {"OneNameForTwo",
     "LFHD Head2\nLFHD Toe\n",
     {"4:34 warning mnm-name-shared", "\"LFHD\" for 2 markers: Head2, Toe",
      "a name for each of them", "Who reads the converted file cannot tell them apart."}},
    {"MappingOfOthers",
     "LFHD Neck\n",
     {"4:13 error mnm-fits-nothing", "no entry for any of the file's 3 markers",
      "entries for its markers in m.mnm", "Every marker is dropped."}},
    {"MisspelledMarker",
     "LFHD head2\n",
     {"4:13 warning mnm-marker-unmapped", "\"Head2\"", "\"head2\", as in m.mnm",
      "The marker is dropped."}},
    {"MarkerWithoutAnEntry",
     "LFHD Head2\n",
     {"4:34 warning mnm-marker-unmapped", "\"Toe\"", "an entry for it in m.mnm",
      "The marker is dropped."}},
    {"MarkerOfTwoWords",
     "LFHD Head2\n",
     {"4:21 warning mnm-marker-unmappable", "\"Right Head\"",
      "a name of one word, which a mapping can name", "The marker is dropped."}},
};

TEST(MappingCheck, FindsNothingInASoundFile) {
  const orvane::CheckedFile checked =
      CheckMapping("m.mnm", "LFHD\tHead1\t\nC7 Back\r\n RWRI  Wrist");
  EXPECT_EQ(checked.file, "m.mnm");
  EXPECT_EQ(checked.kind, "MNM");
  EXPECT_EQ(checked.contents, "3 markers mapped");
  EXPECT_THAT(AllTold(checked.findings), IsEmpty());
}

TEST(MappingCheck, TellsOfACaptureWhoseMarkersAreMapped) {
  const auto files = CheckMapping("m.mnm", "LFHD Head1\n", {"take.trc", {{"Head1", {4, 13, 3}}}});
  ASSERT_EQ(files.size(), 2U);
  EXPECT_EQ(files[1].file, "take.trc");
  EXPECT_EQ(files[1].kind, "TRC");
  EXPECT_EQ(files[1].contents, "1 marker");
  EXPECT_THAT(AllTold(files[0].findings), IsEmpty());
  EXPECT_THAT(AllTold(files[1].findings), IsEmpty());
}

// The names of another subject are those of the mapping.
TEST(MappingCheck, TellsOfTheMappingAsItIsTaken) {
  const orvane::MappedCapture capture{"take.trc",
                                      {{"anna:Head", {4, 13, 3}}, {"anna:Toe", {4, 25, 6}}},
                                      {{{"anna:Head", "walker:Head"}}, {}}};
  std::vector<std::string> told;
  for (const auto& file : CheckMapping("m.mnm", "LFHD walker:Head\nC7 walker:C7\n", capture)) {
    for (const orvane::Finding& finding : file.findings.Sorted()) {
      told.push_back(std::string(finding.rule.code) + " " + finding.found);
    }
  }
  EXPECT_THAT(told, testing::ElementsAre("mnm-entry-unused \"walker:C7\"",
                                         "mnm-marker-unmapped \"anna:Toe\""));
}

struct HelpRow {
  std::string mapping;
  std::string effect;
  std::string when_converted;
};

TEST(MappingCheck, TellsWhatHelpsAMappingThatFitsNothing) {
  const orvane::MappedCapture capture{
      "take.trc", {{"anna:Toe", {4, 13, 3}}, {"bob:Toe", {4, 22, 6}}, {"bob:LFHD", {4, 30, 9}}}};
  const HelpRow rows[] = {
      {"LTOE Anna:TOE\n",
       "Every marker is dropped; --names case takes 1 name for those of the mapping.",
       "Every marker would be dropped, and nothing is written; --names case takes 1 name for those "
       "of the mapping, and --allow empty writes it all the same."},
      {"LFHD walker:LFHD\n",
       "Every marker is dropped; --names subject takes 1 name for those of the mapping.",
       "Every marker would be dropped, and nothing is written; --names subject takes 1 name for "
       "those of the mapping, and --allow empty writes it all the same."},
      {"LTOE walker:Toe\nC7 walker:LFHD\n",
       "Every marker is dropped; \"orvane map suggest\" makes a mapping of what their names say.",
       "Every marker would be dropped, and nothing is written; \"orvane map suggest\" makes a "
       "mapping of what their names say, and --allow empty writes it all the same."}};
  for (const HelpRow& row : rows) {
    const auto files = CheckMapping("m.mnm", row.mapping, capture);
    const orvane::Finding finding = files[1].findings.Sorted().front();
    EXPECT_EQ(finding.rule.code, "mnm-fits-nothing");
    EXPECT_EQ(finding.effect, row.effect);
    EXPECT_EQ(finding.when_converted, row.when_converted);
  }
}

TEST(MappingCheck, TellsOfEachOddity) {
  test::ExpectTold(kMappingRows, ToldOf);
  test::ExpectTold(kCaptureRows, ToldOfBoth);
}

TEST(MappingCheck, HasAnOddityForEachRule) {
  std::vector<CheckRow> rows = kMappingRows;
  rows.insert(rows.end(), kCaptureRows.begin(), kCaptureRows.end());
  test::ExpectARowForEach(orvane::mnm::kRules, rows);
}

TEST(TrcMarkers, AreListedWithTheirPlaces) {
  const test::TrcText text{.markers = {"Head1", "Toe"}, .frames = {{"1\t2\t3", ""}}};
  std::vector<orvane::TrcMarkerName> markers;
  EXPECT_EQ(orvane::ListTrcMarkers(text.Text(), markers), "");
  ASSERT_EQ(markers.size(), 2U);
  EXPECT_EQ(markers[1].name, "Toe");
  EXPECT_EQ(markers[1].place.line, 4U);
  EXPECT_EQ(markers[1].place.column, 21U);
  EXPECT_THAT(orvane::ListTrcMarkers("PathFileType 4 (X/Y/Z)\n", markers),
              testing::HasSubstr("(X/Y/Z)"));
}

}  // namespace
