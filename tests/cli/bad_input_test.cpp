#include <filesystem>
#include <nlohmann/json.hpp>

#include "tests/cli/orvane_test.h"

namespace {

using test::ProgramResult;
using test::Replaced;
using test::SmallMotion;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;

// Both verbs, which say the same of a file that cannot be read or is refused.
class BadInputTest : public test::OrvaneTest {
 protected:
  // Behind the findings of `codes`, which are told in the words of the verb.
  void ExpectRefusal(const std::string& file, int status, const std::string& complaint,
                     const std::vector<std::string>& codes = {}) const {
    const std::string expected = "orvane: " + file + ": " + complaint;
    for (const auto& arguments : {std::vector<std::string>{"info", file},
                                  std::vector<std::string>{"import", file, "-o", "scene.glb"}}) {
      const ProgramResult result = Orvane(arguments);
      EXPECT_EQ(result.status, status) << arguments.front();
      EXPECT_THAT(result.output, IsEmpty());
      ASSERT_THAT(result.error, EndsWith(expected)) << arguments.front();
      const std::string told = result.error.substr(0, result.error.size() - expected.size());
      EXPECT_EQ(test::CodesIn(told), codes) << arguments.front();
      EXPECT_FALSE(Exists("scene.glb"));
    }
  }
};

TEST_F(BadInputTest, MissingFile) { ExpectRefusal("walk.htr", 3, "No such file or directory\n"); }

TEST_F(BadInputTest, MissingFileWhoseNameHasNoExtension) {
  const ProgramResult result = Orvane({"info", "walk"});
  EXPECT_EQ(result.status, 3);
  EXPECT_EQ(result.error,
            "orvane: walk.htr: No such file or directory\n"
            "  A name without an extension of three letters gets \".htr\".\n");
}

TEST_F(BadInputTest, Directory) {
  std::filesystem::create_directory(folder_.File("walk.htr"));
  const ProgramResult result = Orvane({"import", "walk.htr", "-o", "scene.glb"});
  EXPECT_EQ(result.status, 3);
  EXPECT_EQ(result.error, "orvane: walk.htr: Is a directory\n");
}

TEST_F(BadInputTest, DirectoryWhoseNameHasNoExtension) {
  std::filesystem::create_directory(folder_.File("walk"));
  for (const auto& arguments :
       std::vector<std::vector<std::string>>{{"import", "walk", "-o", "scene.glb"},
                                             {"convert", "walk", "--quiet"},
                                             {"convert", "walk", "--quiet", "--dry-run"}}) {
    const ProgramResult result = Orvane(arguments);
    EXPECT_EQ(result.status, 3) << arguments.front();
    EXPECT_EQ(result.error, "orvane: walk: Is a directory\n") << arguments.front();
  }
  Write("walk.htr", test::SmallMotion());
  EXPECT_EQ(Orvane({"import", "walk", "-o", "scene.glb"}).status, 0)
      << "the reader's file is there";
}

constexpr char kNoSegments[] =
    "orvane: walk.htr: The file holds no segments\n"
    "  Is it an HTR file? A file of 0 segments may also have been cut short.\n";

class FileWithoutSegmentsTest : public test::OrvaneTest,
                                public testing::WithParamInterface<std::string> {};

// Without frames either, the importer's dialog is the first to refuse.
TEST_P(FileWithoutSegmentsTest, IsNoMotion) {
  Write("walk.htr", GetParam());
  const ProgramResult info = Orvane({"info", "walk.htr"});
  EXPECT_EQ(info.status, 1);
  EXPECT_THAT(info.error, HasSubstr(" [htr-segments-missing]\n"));
  EXPECT_THAT(info.error, Not(HasSubstr(kNoSegments)));
  EXPECT_THAT(Orvane({"info", "walk.htr", "--no-report"}).error, EndsWith(kNoSegments));
  const ProgramResult import = Orvane({"import", "walk.htr", "-o", "scene.glb"});
  EXPECT_EQ(import.status, 1);
  EXPECT_THAT(import.error, HasSubstr(" [htr-segments-missing]\n"));
  EXPECT_THAT(import.error, HasSubstr("orvane: walk.htr: nothing was written because of htr-"));
  EXPECT_THAT(import.error, Not(HasSubstr("Please choose")));
  EXPECT_THAT(import.error, Not(HasSubstr(kNoSegments)));
  const ProgramResult unreported = Orvane({"import", "walk.htr", "-o", "scene.glb", "--no-report"});
  EXPECT_EQ(unreported.error,
            std::string("orvane: walk.htr: Please choose a start frame that is less than the end "
                        "frame.\n"
                        "  Does \"NumFrames\" in the header announce any frames?\n") +
                kNoSegments);
  EXPECT_THAT(Names(), ElementsAre("walk.htr"));
}

std::string Noise() {
  std::string bytes(10000, '\0');
  for (std::size_t i = 0; i < bytes.size(); ++i) bytes[i] = static_cast<char>(i * i % 251);
  return bytes;
}

INSTANTIATE_TEST_SUITE_P(All, FileWithoutSegmentsTest,
                         testing::Values("\n", Noise(), "[Header]\nFileType HTR\n"));

struct Damage {
  std::string name;
  std::string from;
  std::string to;
  std::string complaint;
  std::vector<std::string> codes = {"htr-value-refused"};
};

class DamagedFileTest : public BadInputTest, public testing::WithParamInterface<Damage> {};

TEST_P(DamagedFileTest, IsRefusedInTheReadersWordsWithAdvice) {
  Write("walk.htr", Replaced(SmallMotion(), GetParam().from, GetParam().to));
  ExpectRefusal("walk.htr", 1, GetParam().complaint, GetParam().codes);
}

INSTANTIATE_TEST_SUITE_P(
    All, DamagedFileTest,
    testing::Values(
        Damage{"FileType", "FileType HTR", "FileType TRC",
               "The file does not have a compatible \"FileType\" header state\n"
               "  The header of an HTR file says \"FileType HTR\".\n"},
        Damage{"DataType", "HTRS", "ABS",
               "The file does not have a compatible \"DataType\" header state\n"
               "  Only files with \"DataType HTRS\" in the header can be read.\n"},
        Damage{"FileVersion", "FileVersion 1", "FileVersion 2",
               "The file does not have a compatible \"FileVersion\" header state\n"
               "  Only files with \"FileVersion 1\" in the header can be read.\n"},
        Damage{"EulerRotationOrder", "ZYX", "XYZ",
               "The file does not have a compatible \"EulerRotationOrder\" header state\n"
               "  Only files with \"EulerRotationOrder ZYX\" in the header can be read.\n"},
        Damage{"GlobalAxisofGravity", "GlobalAxisofGravity Y", "GlobalAxisofGravity X",
               "The file does not have a compatible \"GlobalAxisofGravity\" header state\n"
               "  The axis of gravity may be Y or Z.\n"},
        Damage{"BoneLengthAxis", "BoneLengthAxis Y", "BoneLengthAxis Z",
               "The file does not have a compatible \"BoneLengthAxis\" header state\n"
               "  Only files with \"BoneLengthAxis Y\" in the header can be read.\n"},
        Damage{"DuplicateName",
               "Spine Hips",
               "Hips Hips",
               "The file has duplicate segment names: Hips\n"
               "  Every line of [SegmentNames&Hierarchy] needs a name of its own, without "
               "blanks.\n",
               {"htr-name-taken"}},
        Damage{"UnknownName",
               "Spine 0 100",
               "Spin 1.5 100",
               "Segment name not found: 1.5\n"
               "  A line of [BasePosition] starts with a name that [SegmentNames&Hierarchy] does "
               "not list; the message shows what follows that name.\n",
               {"htr-base-name-unknown"}},
        Damage{"SegmentCount",
               "NumSegments 2",
               "NumSegments 3",
               "Incorrect number of segments defined in file\n"
               "  \"NumSegments\" in the header must be the number of lines in [BasePosition]. A "
               "file that was cut short says this too.\n",
               {"htr-segment-count", "htr-hierarchy-count"}}),
    [](const auto& test_case) { return test_case.param.name; });

TEST_F(BadInputTest, ControlCharactersOfTheFileDoNotReachTheTerminal) {
  Write("walk.htr", Replaced(SmallMotion(), "Spine 0 100", "Spin \033[2J\007 100"));
  const ProgramResult result = Orvane({"info", "walk.htr"});
  EXPECT_EQ(result.status, 1);
  EXPECT_THAT(result.error,
              HasSubstr("\norvane: walk.htr: Segment name not found: \\x1b[2J\\x07\n"));
  EXPECT_THAT(result.error, testing::Not(HasSubstr("\033")));
}

// Parents in a circle leave no segment to start from, which the importer does not say.
TEST_F(BadInputTest, ParentsInACircleAreNoSkeleton) {
  Write("walk.htr", Replaced(SmallMotion(), "Hips GLOBAL", "Hips Spine"));
  const ProgramResult import = Orvane({"import", "walk.htr", "-o", "scene.glb"});
  EXPECT_EQ(import.status, 1);
  EXPECT_THAT(test::CodesIn(import.error),
              ElementsAre("htr-root-missing", "htr-parent-circle",
                          "orvane: walk.htr: nothing was written because of htr-root-missing"));
  EXPECT_FALSE(Exists("scene.glb"));
  const ProgramResult info = Orvane({"info", "walk.htr"});
  EXPECT_EQ(info.status, 0);
  EXPECT_THAT(test::CodesIn(info.error), ElementsAre("htr-root-missing", "htr-parent-circle"));
  EXPECT_THAT(info.output, testing::HasSubstr("Segments that hang from no root\n  Hips"));
}

TEST_F(BadInputTest, EveryTruncationEndsWithAMessageOrAScene) {
  const std::string whole = SmallMotion();
  for (std::size_t size = 0; size < whole.size(); size += 7) {
    Write("walk.htr", whole.substr(0, size));
    const ProgramResult result = Orvane({"import", "walk.htr", "-o", "scene.glb", "--force"});
    if (size > whole.find("3 0 0 0 10 0 0 1")) {
      EXPECT_EQ(result.status, 0) << size;
      EXPECT_THAT(result.error, HasSubstr(" [htr-end-missing]\n")) << size;
    } else {
      EXPECT_THAT(result.status, testing::AnyOf(0, 1)) << size;
      EXPECT_THAT(result.error, testing::StartsWith("orvane: walk.htr: ")) << size;
    }
  }
}

TEST_F(BadInputTest, NumbersThatAreNoneAreZero) {
  Write("walk.htr",
        Replaced(SmallMotion(), "1 0 0 0 0 0 0 1\n2 10 0", "1 nan --5 inf 0 0 0 1\n2 10 0"));
  const ProgramResult result = Orvane({"info", "walk.htr", "--json", "--frames"});
  EXPECT_EQ(result.status, 0);
  const auto frame = nlohmann::json::parse(result.output)["segments"][0]["frames"][0];
  EXPECT_EQ(frame, nlohmann::json::parse("[0, 0, 0, 0, 0, 0, 1]"));
}

TEST_F(BadInputTest, ANumberTooLargeIsShownAsNullAndCannotBeSaved) {
  Write("walk.htr", Replaced(SmallMotion(), "2 10 0 0", "2 1e999 0 0"));
  const ProgramResult info = Orvane({"info", "walk.htr", "--json", "--frames"});
  EXPECT_EQ(info.status, 0);
  const auto frame = nlohmann::json::parse(info.output)["segments"][0]["frames"][1];
  EXPECT_TRUE(frame[0].is_null());
  const std::vector<std::pair<std::vector<std::string>, std::string>> rows = {
      {{},
       "[htr-number-infinite]\norvane: walk.htr: nothing was written because of "
       "htr-number-infinite\n"},
      {{"--dry-run"},
       "[htr-number-infinite]\norvane: walk.htr: nothing would be written because of "
       "htr-number-infinite\n"},
      {{"--no-report"},
       "orvane: walk.htr: Node \"Hips\" cannot be saved: its position at tick 160 is "
       "not finite.\n  A number of the file, or that of --scale, --size or "
       "--segment-size, is too large.\n"}};
  for (const auto& [flags, told] : rows) {
    std::vector<std::string> arguments = {"import", "walk.htr", "-o", "scene.glb"};
    arguments.insert(arguments.end(), flags.begin(), flags.end());
    const ProgramResult import = Orvane(arguments);
    EXPECT_EQ(import.status, 1);
    EXPECT_THAT(import.error, testing::EndsWith(told));
  }
  EXPECT_THAT(Names(), ElementsAre("walk.htr"));
}

}  // namespace
