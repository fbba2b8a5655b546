#include <gmock/gmock.h>

#include <map>
#include <ostream>

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

// What is said first of a flaw: by a report, by a complaint where nothing is reported, and by a
// finding of the check.
struct Flaw {
  std::string name;
  std::string (*damage)(const std::string& text);
  std::string cause;
  std::string code;  // without the format
  std::string complaint;
  std::string finding;  // without the format in its code
};

std::ostream& operator<<(std::ostream& out, const Flaw& flaw) { return out << flaw.name; }

const Flaw kFlaws[] = {
    {"Empty", [](const std::string&) { return ""s; }, "The file is empty", "empty",
     "The file is empty\n  Was it saved, or copied, to its end?\n",
     "found an empty file, expected text [FORMAT-empty]\n"},
    {"LittleEndian", LittleEndian, "The file is UTF-16 text", "encoding",
     "The file is UTF-16 text\n  Save it as UTF-8 or ASCII.\n",
     "found UTF-16 text, expected ASCII or UTF-8 [FORMAT-encoding]\n"},
    {"BigEndian", BigEndian, "The file is UTF-16 text", "encoding",
     "The file is UTF-16 text\n  Save it as UTF-8 or ASCII.\n",
     "found UTF-16 text, expected ASCII or UTF-8 [FORMAT-encoding]\n"},
    {"MarkedLittleEndian", [](const std::string& text) { return "\xFF\xFE" + LittleEndian(text); },
     "The file is UTF-16 text", "encoding",
     "The file is UTF-16 text\n  Save it as UTF-8 or ASCII.\n",
     "found UTF-16 text, expected ASCII or UTF-8 [FORMAT-encoding]\n"},
    {"MarkedBigEndian", [](const std::string& text) { return "\xFE\xFF" + BigEndian(text); },
     "The file is UTF-16 text", "encoding",
     "The file is UTF-16 text\n  Save it as UTF-8 or ASCII.\n",
     "found UTF-16 text, expected ASCII or UTF-8 [FORMAT-encoding]\n"},
    {"CarriageReturns", WithReturns, "Lines end with carriage returns alone", "line-ends",
     "Lines end with carriage returns alone, which end no line\n"
     "  Save it with LF or CR LF where lines end.\n",
     "found lines that end with carriage returns alone, expected LF or CR LF where lines end "
     "[FORMAT-line-ends]\n"},
};

class FlawedTextTest : public test::OrvaneTest, public testing::WithParamInterface<Flaw> {
 protected:
  // That the program refuses the file, complains of the flaw first and then of something else.
  void ExpectCauseFirst(const std::vector<std::string>& arguments, const std::string& file) const {
    const ProgramResult result = Orvane(arguments);
    const std::string cause = "orvane: " + file + ": " + GetParam().complaint;
    EXPECT_EQ(result.status, 1) << arguments.front();
    EXPECT_THAT(result.error, StartsWith(cause)) << arguments.front();
  }

  // That the program refuses the file, reports the flaw first, and says nothing of what follows
  // from it but in the words of a reader that refuses the file.
  void ExpectCauseReported(const std::vector<std::string>& arguments, const std::string& file,
                           const std::string& severity = "error") const {
    const ProgramResult result = Orvane(arguments);
    const std::string format = file.substr(file.size() - 3);
    const std::string first = result.error.substr(0, result.error.find('\n'));
    EXPECT_EQ(result.status, 1) << arguments.front();
    EXPECT_THAT(first, StartsWith("orvane: " + file + ": " + severity + ": " + GetParam().cause +
                                  " (line 1, column 1). "))
        << arguments.front();
    EXPECT_THAT(first, EndsWith(" [" + format + "-" + GetParam().code + "]"));
    for (const char* const follows : {"holds no segments", "has no root", "Please choose"}) {
      EXPECT_THAT(result.error, Not(HasSubstr(follows))) << arguments.front();
    }
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
  ExpectCauseReported({"info", "walk.htr"}, "walk.htr");
  ExpectCauseReported({"import", "walk.htr", "-o", "walk.glb"}, "walk.htr");
  ExpectCauseFirst({"info", "walk.htr", "--hierarchy"}, "walk.htr");
  ExpectCauseFirst({"info", "walk.htr", "--no-report"}, "walk.htr");
  ExpectCauseFound("walk.htr", "htr");
  EXPECT_THAT(Orvane({"check", "walk.htr"}).output, Not(HasSubstr("[htr-segments-missing]")));
}

TEST_P(FlawedTextTest, OfAMarkerFileIsTheCauseThatIsNamedFirst) {
  Write("walk.trc", GetParam().damage(Markers()));
  ExpectCauseReported({"info", "walk.trc"}, "walk.trc");
  ExpectCauseReported({"import", "walk.trc", "-o", "walk.glb"}, "walk.trc");
  ExpectCauseFirst({"info", "walk.trc", "--no-report"}, "walk.trc");
  ExpectCauseFound("walk.trc", "trc");
  // A longer file of lines that do not end is converted into what it does not say.
  const std::string severity = GetParam().code == "line-ends" ? "warning" : "error";
  for (const std::string& flag : {"--quiet"s, "--dry-run"s}) {
    const std::vector<std::string> convert = {"convert", "walk.trc", "--force", flag};
    if (GetParam().code == "empty") {
      EXPECT_THAT(test::CodesIn(Orvane(convert).error), testing::ElementsAre("trc-empty"));
    } else {
      ExpectCauseReported(convert, "walk.trc", severity);
    }
  }
}

TEST_P(FlawedTextTest, OfAMarkerFileIsTheCauseWhyAMappingIsNotComparedWithIt) {
  Write("walk.trc", GetParam().damage(Markers()));
  Write("map.mnm", "LFHD\tHead\n");
  ExpectCauseFirst({"map", "lint", "map.mnm", "walk.trc"}, "walk.trc");
}

TEST_P(FlawedTextTest, OfAMappingIsNamedBeforeWhatFollowsFromIt) {
  Write("walk.trc", Markers());
  Write("map.mnm", GetParam().damage("LFHD\tHat\nC7\tHead\n"));
  const std::map<std::string, std::string> causes = {
      {"empty",
       "The mapping has no entries (line 1, column 1). Every marker would be dropped, and nothing "
       "is converted; --allow empty converts all the same. [mnm-entries-missing]"},
      {"encoding",
       "The mapping is UTF-16 text (line 1, column 1). No entry can be read, and nothing is "
       "converted; save it as UTF-8 or ASCII. [mnm-encoding]"},
      {"line-ends",
       "Lines of the mapping end with carriage returns alone (line 1, column 1). Only its first "
       "two words can be read, and nothing is converted; save it with LF or CR LF. "
       "[mnm-line-ends]"}};
  for (const std::string& flag : {"--quiet"s, "--dry-run"s}) {
    const test::ProgramResult result =
        Orvane({"convert", "walk.trc", "--mapping", "map.mnm", "--force", flag});
    EXPECT_EQ(result.error, "orvane: map.mnm: error: " + causes.at(GetParam().code) + "\n") << flag;
    EXPECT_EQ(result.status, 1);
    EXPECT_FALSE(Exists("walk.bvk"));
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

class LongTextTest : public test::OrvaneTest {};

// Its pieces pass for lines, and numbers for names.
TEST_F(LongTextTest, WithoutLineFeedsIsNamedThoughItIsTaken) {
  std::string line(10239, '\t');
  std::string bytes;
  for (const std::string& start :
       {"PathFileType\t4\t(X/Y/Z)\ta\rb"s, "names"s, "60\t60\t2\t1\tmm\t60\t1\t2\t"s,
        "Frame#\tTime\tHead\t\t\t"s, "\t\tX1\tY1\tZ1"s, "1\t0\t1\t2\t3"s, "2\t0\t1\t2\t3"s}) {
    bytes += line.replace(0, start.size(), start);
    line.assign(10239, '\t');
  }
  Write("walk.trc", bytes);
  const std::string cause =
      "orvane: walk.trc: error: Lines end with carriage returns alone (line 1";
  const std::vector<std::string> import = {"import", "walk.trc", "-o", "walk.glb", "--force"};
  EXPECT_EQ(Orvane(import).status, 1);
  EXPECT_THAT(Orvane(import).error, StartsWith(cause));
  EXPECT_THAT(Orvane({"info", "walk.trc"}).error, StartsWith(cause));
  const ProgramResult converted = Orvane({"convert", "walk.trc", "--quiet"});
  EXPECT_EQ(converted.status, 0);
  EXPECT_EQ(converted.error,
            "orvane: walk.trc: warning: Lines end with carriage returns alone (line 1, column 1). "
            "No line ends there for the reader: what is written is not what the file says. "
            "[trc-line-ends]\n");
  std::vector<std::string> strict = import;
  strict.push_back("--strict");
  EXPECT_THAT(Orvane(strict).error, StartsWith(cause));
  EXPECT_THAT(Orvane(strict).error.substr(cause.size()), Not(HasSubstr(cause))) << "once";
  EXPECT_THAT(Orvane({"check", "walk.trc"}).output,
              EndsWith("The import makes markers of what holds none; what else is odd about it is "
                       "not told.\nwalk.trc: 1 error\n"));
}

class MarkedTextTest : public test::OrvaneTest {};

TEST_F(MarkedTextTest, BeforeTheFirstSectionIsTheCauseThatIsNamedFirst) {
  Write("walk.htr", kMark + SmallMotion());
  const std::string cause =
      "orvane: walk.htr: error: A byte-order mark stands before the first section line (line 1, "
      "column 1). That section is not read; save the file without the mark. "
      "[htr-first-section-lost]\n";
  const std::string refusal = "\norvane: walk.htr: Incorrect number of segments defined in file\n";
  for (const auto& arguments :
       {std::vector<std::string>{"info", "walk.htr"}, {"import", "walk.htr", "-o", "walk.glb"}}) {
    EXPECT_THAT(Orvane(arguments).error, StartsWith(cause)) << arguments.front();
    EXPECT_THAT(Orvane(arguments).error, HasSubstr(refusal)) << arguments.front();
  }
  EXPECT_THAT(Orvane({"info", "walk.htr", "--no-report"}).error,
              StartsWith("orvane: walk.htr: A byte-order mark keeps the first line from being a "
                         "section line\n  Save it without a byte-order mark." +
                         refusal));
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
    EXPECT_EQ(Orvane({"import", "walk.htr", "-o", "walk.glb", "--force", "--quiet"}).error, "");
    EXPECT_EQ(Orvane({"info", "walk.htr"}).error,
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
            "orvane: map.mnm: warning: A byte-order mark stands at the start of the mapping (line "
            "1, column 1). It belongs to the first name, which is then not what it looks like. "
            "[mnm-byte-order-mark]\n");
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
    EXPECT_THAT(result.error, Not(HasSubstr("LFHD")));
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
