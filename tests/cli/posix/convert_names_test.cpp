#include "tests/cli/orvane_test.h"
#include "tests/support/trc_text.h"

// What a conversion takes that Windows does not have: names of any bytes, and symbolic links.

namespace {

using test::ProgramResult;
using testing::HasSubstr;

std::string Take(const std::string& x = "1") {
  return test::TrcText{.markers = {"Head1"}, .frames = {{x + "\t2\t3"}}}.Text();
}

class PosixConvertTest : public test::OrvaneTest {};

TEST_F(PosixConvertTest, TakesNamesOfAnyBytes) {
  std::filesystem::create_directory(folder_.File("o u't"));
  const std::vector<std::string> stems = {"it's \"x\"", "caf\xC3\xA9", "\xE9\xFF", "tab\there"};
  std::vector<std::string> arguments = {"convert", "--output-dir", "o u't"};
  for (const std::string& stem : stems) {
    Write(stem + ".trc", Take());
    arguments.push_back(stem + ".trc");
  }
  const ProgramResult result = Orvane(arguments);
  EXPECT_EQ(result.status, 0) << result.error;
  for (const std::string& stem : stems) {
    EXPECT_THAT(Read("o u't/" + stem + ".bvk"), HasSubstr("$Filename   " + stem + "\n")) << stem;
  }
}

TEST_F(PosixConvertTest, RefusesOneOutputInAFolderOfTwoNames) {
  std::filesystem::create_directory_symlink(".", folder_.File("here"));
  Write("walk.trc", Take("1"));
  Write("walk.xyz", Take("9"));
  const ProgramResult result = Orvane({"convert", "walk.trc", "here/walk.xyz"});
  EXPECT_EQ(result.status, 2);
  EXPECT_EQ(result.error, "orvane: here/walk.bvk: the output of walk.trc and of here/walk.xyz\n");
  EXPECT_FALSE(Exists("walk.bvk"));
}

// The folder above "link" is not the one that the link lies in.
TEST_F(PosixConvertTest, ReadsTheFileThatThePathLeadsTo) {
  std::filesystem::create_directories(folder_.File("takes/new"));
  std::filesystem::create_directory_symlink("takes/new", folder_.File("link"));
  Write("walk.trc", Take("1"));
  Write("takes/walk.trc", Take("7"));
  Write("map.mnm", "WRONG\tHead1\t\n");
  Write("takes/map.mnm", "HEAD\tHead1\t\n");
  const std::vector<std::string> command = {"convert", "link/../walk.trc", "--mapping",
                                            "link/../map.mnm"};
  EXPECT_EQ(Orvane(command).status, 0);
  EXPECT_FALSE(Exists("walk.bvk"));
  EXPECT_THAT(Read("takes/walk.bvk"), HasSubstr("$Order\nHEAD \n\n$Points\n1\t7.000000\t"));
}

}  // namespace
