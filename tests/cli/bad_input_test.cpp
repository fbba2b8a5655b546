#include <filesystem>
#include <nlohmann/json.hpp>

#include "tests/cli/orvane_test.h"

namespace {

using test::ProgramResult;
using test::Replaced;
using test::SmallMotion;
using testing::ElementsAre;
using testing::IsEmpty;

// Both verbs, which say the same of a file that cannot be read or is refused; of one that can be
// read the import tells before what is `found` in it.
class BadInputTest : public test::OrvaneTest {
 protected:
  void ExpectRefusal(const std::string& file, int status, const std::string& complaint,
                     const std::string& found = "") const {
    const std::string expected = "orvane: " + file + ": " + complaint;
    for (const auto& arguments : {std::vector<std::string>{"info", file},
                                  std::vector<std::string>{"import", file, "-o", "scene.glb"}}) {
      const ProgramResult result = Orvane(arguments);
      EXPECT_EQ(result.status, status) << arguments.front();
      EXPECT_THAT(result.output, IsEmpty());
      EXPECT_EQ(result.error, arguments.front() == "info" ? expected : found + expected);
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
  ExpectRefusal("walk.htr", 3, "Is a directory\n");
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
  EXPECT_EQ(info.error, kNoSegments);
  const ProgramResult import = Orvane({"import", "walk.htr", "-o", "scene.glb"});
  EXPECT_EQ(import.status, 1);
  EXPECT_THAT(import.error,
              testing::StartsWith("orvane: walk.htr: error: The file holds no segments "
                                  "(line "));
  EXPECT_THAT(
      import.error,
      testing::EndsWith(
          std::string("\norvane: walk.htr: Please choose a start frame that is less than the "
                      "end frame.\n"
                      "  Is --range in order, and does \"NumFrames\" in the header announce "
                      "any frames?\n") +
          kNoSegments));
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
  std::string finding;  // a line or several, without the file
  std::string complaint;
};

class DamagedFileTest : public BadInputTest, public testing::WithParamInterface<Damage> {};

TEST_P(DamagedFileTest, IsRefusedInTheReadersWordsWithAdvice) {
  Write("walk.htr", Replaced(SmallMotion(), GetParam().from, GetParam().to));
  ExpectRefusal("walk.htr", 1, GetParam().complaint,
                "orvane: walk.htr: error: " + GetParam().finding + "\n");
}

INSTANTIATE_TEST_SUITE_P(
    All, DamagedFileTest,
    testing::Values(
        Damage{
            "FileType", "FileType HTR", "FileType TRC",
            "The header has \"TRC\" in place of HTR, Htr or htr for FileType (line 2, column 10). "
            "The file is refused. [htr-value-refused]",
            "The file does not have a compatible \"FileType\" header state\n"
            "  The header of an HTR file says \"FileType HTR\".\n"},
        Damage{"DataType", "HTRS", "ABS",
               "The header has \"ABS\" in place of HTRS, Htrs or htrs for DataType (line 3, column "
               "10). "
               "The file is refused. [htr-value-refused]",
               "The file does not have a compatible \"DataType\" header state\n"
               "  Only files with \"DataType HTRS\" in the header can be read.\n"},
        Damage{"FileVersion", "FileVersion 1", "FileVersion 2",
               "The header has \"2\" in place of 1 for FileVersion (line 4, column 13). "
               "The file is refused. [htr-value-refused]",
               "The file does not have a compatible \"FileVersion\" header state\n"
               "  Only files with \"FileVersion 1\" in the header can be read.\n"},
        Damage{"EulerRotationOrder", "ZYX", "XYZ",
               "The header has \"XYZ\" in place of ZYX for EulerRotationOrder (line 8, column 20). "
               "The file is refused. [htr-value-refused]",
               "The file does not have a compatible \"EulerRotationOrder\" header state\n"
               "  Only files with \"EulerRotationOrder ZYX\" in the header can be read.\n"},
        Damage{
            "GlobalAxisofGravity", "GlobalAxisofGravity Y", "GlobalAxisofGravity X",
            "The header has \"X\" in place of Y or Z for GlobalAxisofGravity (line 11, column 21). "
            "The file is refused. [htr-value-refused]",
            "The file does not have a compatible \"GlobalAxisofGravity\" header state\n"
            "  The axis of gravity may be Y or Z.\n"},
        Damage{"BoneLengthAxis", "BoneLengthAxis Y", "BoneLengthAxis Z",
               "The header has \"Z\" in place of Y for BoneLengthAxis (line 12, column 16). "
               "The file is refused. [htr-value-refused]",
               "The file does not have a compatible \"BoneLengthAxis\" header state\n"
               "  Only files with \"BoneLengthAxis Y\" in the header can be read.\n"},
        Damage{"DuplicateName", "Spine Hips", "Hips Hips",
               "Two segments have one name: \"Hips\" (line 16, column 1). The file is refused. "
               "[htr-name-taken]",
               "The file has duplicate segment names: Hips\n"
               "  Every line of [SegmentNames&Hierarchy] needs a name of its own, without "
               "blanks.\n"},
        Damage{"UnknownName", "Spine 0 100", "Spin 1.5 100",
               "[BasePosition] names a segment that there is not: \"Spin\" (line 19, column 1). "
               "The file is "
               "refused. [htr-base-name-unknown]",
               "Segment name not found: 1.5\n"
               "  A line of [BasePosition] starts with a name that [SegmentNames&Hierarchy] does "
               "not list; the message shows what follows that name.\n"},
        Damage{
            "SegmentCount", "NumSegments 2", "NumSegments 3",
            "The file holds 2 lines in [BasePosition], and NumSegments announces 3 (line 5, column "
            "13). "
            "The "
            "file is refused. [htr-segment-count]\n"
            "orvane: walk.htr: warning: The file holds 2 lines in [SegmentNames&Hierarchy], and "
            "NumSegments announces 3 (line 5, column 13). The segments that are there are taken. "
            "[htr-hierarchy-count]",
            "Incorrect number of segments defined in file\n"
            "  \"NumSegments\" in the header must be the number of lines in [BasePosition]. A "
            "file that was cut short says this too.\n"}),
    [](const auto& test_case) { return test_case.param.name; });

TEST_F(BadInputTest, ControlCharactersOfTheFileDoNotReachTheTerminal) {
  Write("walk.htr", Replaced(SmallMotion(), "Spine 0 100", "Spin \033[2J\007 100"));
  const ProgramResult result = Orvane({"info", "walk.htr"});
  EXPECT_EQ(result.status, 1);
  EXPECT_THAT(result.error,
              testing::StartsWith("orvane: walk.htr: Segment name not found: \\x1b[2J\\x07\n"));
}

// Parents in a circle leave no segment to start from, which the importer does not say.
TEST_F(BadInputTest, ParentsInACircleAreNoSkeleton) {
  Write("walk.htr", Replaced(SmallMotion(), "Hips GLOBAL", "Hips Spine"));
  const ProgramResult import = Orvane({"import", "walk.htr", "-o", "scene.glb"});
  EXPECT_EQ(import.status, 1);
  EXPECT_EQ(
      import.error,
      "orvane: walk.htr: error: No segment has the parent GLOBAL (line 14, column 2). There "
      "is nothing that a skeleton could start from. [htr-root-missing]\n"
      "orvane: walk.htr: warning: Segments are their own ancestors: \"Hips\" (line 15, column "
      "6). A new skeleton goes without them and what hangs from them. [htr-parent-circle]\n"
      "orvane: walk.htr: The file has no root segment\n"
      "  In [SegmentNames&Hierarchy] a root has the parent GLOBAL.\n");
  EXPECT_FALSE(Exists("scene.glb"));
  const ProgramResult info = Orvane({"info", "walk.htr"});
  EXPECT_EQ(info.status, 0);
  EXPECT_THAT(info.output, testing::HasSubstr("Segments that hang from no root\n  Hips"));
}

TEST_F(BadInputTest, EveryTruncationEndsWithAMessageOrAScene) {
  const std::string whole = SmallMotion();
  for (std::size_t size = 0; size < whole.size(); size += 7) {
    Write("walk.htr", whole.substr(0, size));
    const ProgramResult result = Orvane({"import", "walk.htr", "-o", "scene.glb", "--force"});
    if (size > whole.find("3 0 0 0 10 0 0 1")) {
      EXPECT_EQ(result.status, 0) << size;
      EXPECT_THAT(result.error, testing::HasSubstr("note: [EndOfFile] is missing")) << size;
      const bool is_cut = size < whole.find("[EndOfFile]") - 1;
      EXPECT_EQ(result.error.find("[htr-number-missing]") != std::string::npos, is_cut) << size;
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
  const ProgramResult import = Orvane({"import", "walk.htr", "-o", "scene.glb"});
  EXPECT_EQ(import.status, 1);
  EXPECT_THAT(import.error,
              testing::StartsWith(
                  "orvane: walk.htr: warning: A number is out of range: \"1e999\" (line 22, column "
                  "3). It is taken as infinite: a scene that it gets into cannot be saved. "
                  "[htr-number-out-of-range]\n"
                  "orvane: walk.htr: Node \"Hips\" cannot be saved: "));
  EXPECT_THAT(import.error,
              testing::EndsWith("\n  A number of the file, or that of --scale, --size or "
                                "--segment-size, is too large.\n"));
  EXPECT_THAT(Names(), ElementsAre("walk.htr"));
}

}  // namespace
