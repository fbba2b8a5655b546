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

// A folder within `folder` whose path is as long as `length`, made with all that it takes.
std::string DeepFolder(const std::string& folder, std::size_t length) {
  constexpr std::size_t kLongestName = 200;
  std::string path = folder;
  while (path.size() + 1 + kLongestName < length) path += '/' + std::string(kLongestName, 'd');
  path += '/' + std::string(length - path.size() - 1, 'e');
  std::filesystem::create_directories(path);
  return path;
}

// What the plug-in writes lies in a folder within that of the outputs, where a path may be too
// long.
TEST_F(PosixConvertTest, GoesOnBehindAnOutputThatThePluginCannotCreate) {
  const std::string deep = DeepFolder(folder_.File("out"), 3835);
  const std::string long_name(245, 'n');
  for (const std::string& name : {std::string("a"), long_name, std::string("z")}) {
    Write(name + ".trc", Take());
  }
  const ProgramResult result =
      Orvane({"convert", "a.trc", long_name + ".trc", "z.trc", "--output-dir", deep});
  EXPECT_EQ(result.status, 3);
  EXPECT_THAT(result.error, HasSubstr(long_name + ".bvk: The plug-in could not create the file\n"));
  const std::string log = test::ReadTextFile(deep + "/ConvertBVKLog.txt");
  EXPECT_THAT(log, HasSubstr("/a.trc done.\nOrvane OrvaneFileIO TRC to BVK"));
  EXPECT_THAT(log, HasSubstr("\nProcessing 1 files...\nfile: "));
  EXPECT_THAT(log, testing::EndsWith("/z.trc done.\n"));
}

}  // namespace
