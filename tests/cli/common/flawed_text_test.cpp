#include <gmock/gmock.h>

#include <ostream>

#include "cli/common/input.h"
#include "tests/cli/orvane_test.h"
#include "tests/support/saved_text.h"
#include "tests/support/trc_text.h"

namespace {

using test::BigEndian;
using test::kMark;
using test::LittleEndian;
using test::ProgramResult;
using test::Replaced;
using test::SmallMotion;
using test::TrcText;
using test::WithReturns;
using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;
using namespace std::string_literals;

std::string Markers() {
  return TrcText{.markers = {"Head"}, .frames = {{"1\t2\t3"}, {"4\t5\t6"}}}.Text();
}

// What is said first of a flaw, by a complaint and by a finding.
struct Flaw {
  std::string name;
  std::string (*damage)(const std::string& text);
  std::string complaint;
  std::string finding;  // without the format in its code
  std::string told;     // before an import, the same
};

std::ostream& operator<<(std::ostream& out, const Flaw& flaw) { return out << flaw.name; }

const Flaw kFlaws[] = {
    {"Empty", [](const std::string&) { return ""s; },
     "The file is empty\n  Was it saved, or copied, to its end?\n",
     "found an empty file, expected text [FORMAT-empty]\n",
     "The file is empty (line 1, column 1). Nothing is VERB; was it saved, or copied, to its end? "
     "[FORMAT-empty]\n"},
    {"LittleEndian", LittleEndian, "The file is UTF-16 text\n  Save it as UTF-8 or ASCII.\n",
     "found UTF-16 text, expected ASCII or UTF-8 [FORMAT-encoding]\n",
     "The file is UTF-16 text (line 1, column 1). None of it is read; save it as UTF-8 or ASCII. "
     "[FORMAT-encoding]\n"},
    {"BigEndian", BigEndian, "The file is UTF-16 text\n  Save it as UTF-8 or ASCII.\n",
     "found UTF-16 text, expected ASCII or UTF-8 [FORMAT-encoding]\n",
     "The file is UTF-16 text (line 1, column 1). None of it is read; save it as UTF-8 or ASCII. "
     "[FORMAT-encoding]\n"},
    {"MarkedLittleEndian", [](const std::string& text) { return "\xFF\xFE" + LittleEndian(text); },
     "The file is UTF-16 text\n  Save it as UTF-8 or ASCII.\n",
     "found UTF-16 text, expected ASCII or UTF-8 [FORMAT-encoding]\n",
     "The file is UTF-16 text (line 1, column 1). None of it is read; save it as UTF-8 or ASCII. "
     "[FORMAT-encoding]\n"},
    {"MarkedBigEndian", [](const std::string& text) { return "\xFE\xFF" + BigEndian(text); },
     "The file is UTF-16 text\n  Save it as UTF-8 or ASCII.\n",
     "found UTF-16 text, expected ASCII or UTF-8 [FORMAT-encoding]\n",
     "The file is UTF-16 text (line 1, column 1). None of it is read; save it as UTF-8 or ASCII. "
     "[FORMAT-encoding]\n"},
    {"CarriageReturns", WithReturns,
     "Lines end with carriage returns alone, which end no line\n"
     "  Save it with LF or CR LF where lines end.\n",
     "found lines that end with carriage returns alone, expected LF or CR LF where lines end "
     "[FORMAT-line-ends]\n",
     "Lines end with carriage returns alone (line 1, column 1). No line ends there for the reader; "
     "save it with LF or CR LF. [FORMAT-line-ends]\n"},
};

class FlawedTextTest : public test::OrvaneTest, public testing::WithParamInterface<Flaw> {
 protected:
  // That `verb` refuses the file, and tells the flaw first and then something else.
  void ExpectCauseFirst(const std::vector<std::string>& arguments, const std::string& file) const {
    const ProgramResult result = Orvane(arguments);
    const std::string cause = "orvane: " + file + ": " + GetParam().complaint;
    EXPECT_EQ(result.status, 1) << arguments.front();
    EXPECT_THAT(result.error, StartsWith(cause + "orvane: " + file + ": ")) << arguments.front();
  }

  // That an import is refused, and tells the flaw before what follows from it.
  void ExpectCauseTold(const std::string& file, const std::string& format,
                       const std::string& verb) const {
    const ProgramResult result = Orvane({"import", file, "-o", "walk.glb"});
    std::string told = Replaced(GetParam().told, "FORMAT", format);
    if (GetParam().name == "Empty") told = Replaced(told, "VERB", verb);
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.error,
                StartsWith("orvane: " + file + ": error: " + told + "orvane: " + file + ": "));
  }

  void ExpectCauseFound(const std::string& file, const std::string& format) const {
    const ProgramResult result = Orvane({"check", file});
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(
        result.output,
        StartsWith(file + ":1:1: error: " + Replaced(GetParam().finding, "FORMAT", format)));
    EXPECT_THAT(result.output, Not(HasSubstr(": warning: ")));
    EXPECT_THAT(result.output, Not(HasSubstr(": note: ")));
  }
};

TEST_P(FlawedTextTest, OfAMotionFileIsTheCauseThatIsNamedFirst) {
  Write("walk.htr", GetParam().damage(SmallMotion()));
  ExpectCauseFirst({"info", "walk.htr"}, "walk.htr");
  ExpectCauseTold("walk.htr", "htr", "imported");
  ExpectCauseFound("walk.htr", "htr");
  EXPECT_THAT(Orvane({"check", "walk.htr"}).output, EndsWith("\nwalk.htr: 1 error\n"));
}

TEST_P(FlawedTextTest, OfAMarkerFileIsTheCauseThatIsNamedFirst) {
  Write("walk.trc", GetParam().damage(Markers()));
  ExpectCauseFirst({"info", "walk.trc"}, "walk.trc");
  ExpectCauseTold("walk.trc", "trc", "read");
  ExpectCauseFound("walk.trc", "trc");
  for (const std::string& flag : {"--quiet"s, "--dry-run"s}) {
    EXPECT_THAT(Orvane({"convert", "walk.trc", "--force", flag}).error,
                StartsWith("orvane: walk.trc: " + GetParam().complaint + "orvane: walk.trc: "))
        << flag;
  }
}

TEST_P(FlawedTextTest, OfAMappingIsNamedBeforeWhatFollowsFromIt) {
  Write("walk.trc", Markers());
  Write("map.mnm", GetParam().damage("LFHD\tHat\nC7\tHead\n"));
  for (const std::string& flag : {"--quiet"s, "--dry-run"s}) {
    EXPECT_THAT(Orvane({"convert", "walk.trc", "--mapping", "map.mnm", "--force", flag}).error,
                StartsWith("orvane: map.mnm: " + GetParam().complaint + "orvane: walk.trc: "))
        << flag;
  }
  if (GetParam().name == "Empty") {
    EXPECT_THAT(Orvane({"check", "map.mnm"}).output,
                StartsWith("map.mnm:1:1: error: found an empty file, expected an entry for every "
                           "marker to keep [mnm-entries-missing]\n"));
  } else {
    ExpectCauseFound("map.mnm", "mnm");
  }
}

INSTANTIATE_TEST_SUITE_P(All, FlawedTextTest, testing::ValuesIn(kFlaws),
                         [](const auto& each) { return each.param.name; });

class CauseTest : public test::OrvaneTest {};

TEST_F(CauseTest, IsPutBeforeComplaintsOnce) {
  const std::string file = folder_.File("walk.trc");
  Write("walk.trc", "");
  std::vector<cli::Complaint> complaints = {{"map.mnm", "The file is empty", ""}};
  for (int time = 0; time < 2; ++time) {
    PutCauseFirst(file, cli::FileKind::kTrc, complaints);
    ASSERT_EQ(complaints.size(), 2U);
    EXPECT_EQ(complaints[0].subject, file);
    EXPECT_EQ(complaints[0].text, "The file is empty");
    EXPECT_EQ(complaints[1].subject, "map.mnm") << "which the same is said of";
  }
  complaints.clear();
  PutCauseFirst(file, cli::FileKind::kTrc, complaints);
  EXPECT_TRUE(complaints.empty()) << "there is nothing to say";
}

class LongTextTest : public test::OrvaneTest {};

// Its pieces pass for lines, and numbers for names.
TEST_F(LongTextTest, WithoutLineFeedsIsNamedThoughItsReaderTakesIt) {
  std::string line(10239, '\t');
  std::string bytes;
  for (const std::string& start :
       {"PathFileType\t4\t(X/Y/Z)\ta\rb"s, "names"s, "60\t60\t2\t1\tmm\t60\t1\t2\t"s,
        "Frame#\tTime\tHead\t\t\t"s, "\t\tX1\tY1\tZ1"s, "1\t0\t1\t2\t3"s, "2\t0\t1\t2\t3"s}) {
    bytes += line.replace(0, start.size(), start);
    line.assign(10239, '\t');
  }
  Write("walk.trc", bytes);
  const std::string cause = "orvane: walk.trc: Lines end with carriage returns alone";
  EXPECT_THAT(Orvane({"info", "walk.trc"}).error, StartsWith(cause));
  const std::vector<std::string> import = {"import", "walk.trc", "-o", "walk.glb"};
  const ProgramResult result = Orvane(import);
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(result.error,
            "orvane: walk.trc: error: Lines end with carriage returns alone (line 1, column 1). No "
            "line ends there for the reader; save it with LF or CR LF. [trc-line-ends]\n"
            "orvane: walk.trc: nothing was written because of this error\n"
            "  --no-report imports it anyway.\n");
  EXPECT_FALSE(Exists("walk.glb"));
  std::vector<std::string> anyway = import;
  anyway.push_back("--no-report");
  EXPECT_EQ(Orvane(anyway).status, 0);
  EXPECT_THAT(Orvane({"check", "walk.trc"}).output,
              EndsWith("The import makes markers of what holds none; what else is odd about it is "
                       "not told.\nwalk.trc: 1 error\n"));
}

class MarkedTextTest : public test::OrvaneTest {};

TEST_F(MarkedTextTest, BeforeTheFirstSectionIsTheCauseThatIsNamedFirst) {
  Write("walk.htr", kMark + SmallMotion());
  const std::string cause =
      "orvane: walk.htr: A byte-order mark keeps the first line from being a section line\n"
      "  Save it without a byte-order mark.\n"
      "orvane: walk.htr: Incorrect number of segments defined in file\n";
  EXPECT_THAT(Orvane({"info", "walk.htr"}).error, StartsWith(cause));
  const std::string import = Orvane({"import", "walk.htr", "-o", "walk.glb"}).error;
  EXPECT_THAT(
      import,
      StartsWith("orvane: walk.htr: error: A byte-order mark stands before the first section "
                 "line (line 1, column 1). That section is not read; save the file without "
                 "the mark. [htr-first-section-lost]\n"));
  EXPECT_THAT(import,
              HasSubstr("orvane: walk.htr: Incorrect number of segments defined in file\n"));
  EXPECT_THAT(Orvane({"check", "walk.htr"}).output,
              StartsWith("walk.htr:1:1: error: found a byte-order mark before a section line, "
                         "expected [ as the first character [htr-first-section-lost]\n"));
}

TEST_F(MarkedTextTest, ThatHarmsNothingIsANote) {
  for (const std::string& line : {"# a walk\n"s, "  # a walk\n"s, "\n"s}) {
    Write("walk.htr", kMark + line + SmallMotion());
    EXPECT_THAT(Orvane({"check", "walk.htr"}).output,
                EndsWith("[htr-byte-order-mark]\n  It belongs to the first line, which does not "
                         "count.\nwalk.htr: 1 note\n"))
        << line;
    const std::vector<std::string> import = {"import",  "walk.htr", "-o",     "walk.glb",
                                             "--force", "--strict", "--quiet"};
    EXPECT_EQ(Orvane(import).error, "");
    EXPECT_EQ(Orvane({import.begin(), import.end() - 1}).error,
              "orvane: walk.htr: note: A byte-order mark stands at the start of the file (line 1, "
              "column 1). It belongs to the first line, which does not count. "
              "[htr-byte-order-mark]\n");
  }
}

TEST_F(MarkedTextTest, OfAMappingBelongsToItsFirstName) {
  Write("walk.trc", Markers());
  Write("map.mnm", kMark + "LFHD\tHead\n"s);
  const ProgramResult result = Orvane({"convert", "walk.trc", "--mapping", "map.mnm", "--quiet"});
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.error,
            "orvane: map.mnm: A byte-order mark belongs to the first name, which is then not what "
            "it looks like\n  Save it without a byte-order mark.\n");
}

TEST_F(MarkedTextTest, IsTheCauseOfWhatATableOfPicksIsRefusedFor) {
  Write("walk.trc", Markers());
  for (const auto& [bytes, cause] :
       {std::pair(kMark + "LFHD\tHead\n"s, "A byte-order mark belongs to the first name"s),
        std::pair(LittleEndian("LFHD\tHead\n"), "The file is UTF-16 text"s),
        std::pair(""s, "The file is empty"s)}) {
    Write("picks", bytes);
    const ProgramResult result =
        Orvane({"map", "create", "walk.trc", "-o", "map.mnm", "--picks", "picks"});
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.error, StartsWith("orvane: picks: " + cause));
    EXPECT_THAT(result.error, HasSubstr("orvane: picks: LFHD cannot be skipped"));
  }
}

// A second header makes up for the first.
TEST_F(MarkedTextTest, OfAFileThatIsTakenAllTheSameIsNoCause) {
  Write("walk.htr", kMark + "[Notes]\n"s + SmallMotion());
  EXPECT_EQ(Orvane({"import", "walk.htr", "-o", "walk.glb"}).status, 0);
  const std::string output = Orvane({"check", "walk.htr"}).output;
  EXPECT_THAT(output, HasSubstr("1:1: note: found a byte-order mark"));
  EXPECT_THAT(output, HasSubstr("1:1: warning: found \"\xEF\xBB\xBF[Notes]\""));
  EXPECT_THAT(output, EndsWith("walk.htr: 1 warning, 1 note\n"));
}

}  // namespace
