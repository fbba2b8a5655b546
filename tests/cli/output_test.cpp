#include <filesystem>

#include "tests/cli/orvane_test.h"

namespace {

using test::ProgramResult;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::StartsWith;

class OutputTest : public test::OrvaneTest {
 protected:
  OutputTest() { Write("walk.htr", test::SmallMotion()); }

  ProgramResult Import(const std::string& output,
                       const std::vector<std::string>& flags = {}) const {
    std::vector<std::string> arguments = {"import", "walk.htr", "-o", output};
    arguments.insert(arguments.end(), flags.begin(), flags.end());
    return Orvane(arguments);
  }

  void ExpectCannotWrite(const ProgramResult& result, const std::string& complaint) const {
    EXPECT_EQ(result.status, 3);
    EXPECT_THAT(result.output, IsEmpty());
    EXPECT_EQ(result.error, "orvane: " + complaint);
  }
};

TEST_F(OutputTest, SummaryOnStandardOutputSaysWhatWasMade) {
  const ProgramResult result = Import("walk.glb");
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.output,
            "Imported walk.htr\n"
            "  Nodes   3\n"
            "  Keys    12\n"
            "  Frames  1 to 3 at 60 frames per second\n"
            "  Scene   walk.glb (" +
                std::to_string(Read("walk.glb").size()) + " bytes)\n");
  EXPECT_THAT(result.error, IsEmpty());
  EXPECT_THAT(Names(), ElementsAre("walk.glb", "walk.htr"));
}

TEST_F(OutputTest, TheExtensionChoosesTheContainer) {
  EXPECT_EQ(Import("walk.glb").status, 0);
  EXPECT_THAT(Read("walk.glb"), StartsWith("glTF"));
  EXPECT_EQ(Import("walk.gltf").status, 0);
  EXPECT_THAT(Read("walk.gltf"), StartsWith("{"));
  EXPECT_EQ(Import("RUN.GLB").status, 0);
  EXPECT_THAT(Read("RUN.GLB"), StartsWith("glTF"));
}

TEST_F(OutputTest, SameInputGivesTheSameBytes) {
  EXPECT_EQ(Import("walk.glb").status, 0);
  const std::string first = Read("walk.glb");
  EXPECT_EQ(Import("walk.glb", {"--force"}).status, 0);
  EXPECT_EQ(Read("walk.glb"), first);
}

TEST_F(OutputTest, AnExistingFileIsKept) {
  Write("walk.glb", "the old scene");
  ExpectCannotWrite(Import("walk.glb"),
                    "walk.glb: File exists\n  It is kept; --force replaces it.\n");
  EXPECT_EQ(Read("walk.glb"), "the old scene");
}

TEST_F(OutputTest, ForceReplacesIt) {
  Write("walk.glb", "the old scene");
  EXPECT_EQ(Import("walk.glb", {"--force"}).status, 0);
  EXPECT_THAT(Read("walk.glb"), StartsWith("glTF"));
  EXPECT_THAT(Names(), ElementsAre("walk.glb", "walk.htr"));
}

TEST_F(OutputTest, ForceKeepsTheOldFileWhenTheImportIsRefused) {
  Write("walk.glb", "the old scene");
  EXPECT_EQ(Import("walk.glb", {"--force", "--scale", "0"}).status, 1);
  EXPECT_EQ(Read("walk.glb"), "the old scene");
}

TEST_F(OutputTest, ForceDoesNotReplaceTheInput) {
  std::filesystem::rename(folder_.File("walk.htr"), folder_.File("walk.glb"));
  const ProgramResult result =
      Orvane({"import", "walk.glb", "--as", "htr", "-o", "./walk.glb", "--force"});
  EXPECT_EQ(result.status, 2);
  EXPECT_EQ(result.error, "orvane: ./walk.glb: is an input, and would be an output too\n");
  EXPECT_EQ(Read("walk.glb"), test::SmallMotion());
}

TEST_F(OutputTest, ADirectoryIsNeverReplaced) {
  std::filesystem::create_directory(folder_.File("walk.glb"));
  ExpectCannotWrite(Import("walk.glb"), "walk.glb: Is a directory\n");
  ExpectCannotWrite(Import("walk.glb", {"--force"}), "walk.glb: Is a directory\n");
}

TEST_F(OutputTest, AMissingFolderIsNamed) {
  ExpectCannotWrite(Import("nowhere/walk.glb"),
                    "nowhere/walk.glb: nowhere: No such file or directory\n");
}

TEST_F(OutputTest, AFileIsNoFolder) {
  ExpectCannotWrite(Import("walk.htr/walk.glb"), "walk.htr/walk.glb: walk.htr: Not a directory\n");
}

}  // namespace
