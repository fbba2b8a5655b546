#include <filesystem>

#include "tests/cli/orvane_test.h"

// Folders that are linked into each other, and files that links lead to.

namespace {

using test::ProgramResult;
using test::SmallMotion;

class LinkedFoldersTest : public test::OrvaneTest {
 protected:
  LinkedFoldersTest() {
    std::filesystem::create_directories(folder_.Path() / "takes/june");
    Write("takes/june/a.htr", SmallMotion());
    Write("takes/june/b.htr", SmallMotion());
  }

  void Link(const std::string& to, const std::string& link) const {
    std::filesystem::create_symlink(to, folder_.Path() / link);
  }
};

TEST_F(LinkedFoldersTest, ACircleIsWalkedOnce) {
  Link("..", "takes/june/up");
  const ProgramResult result = Orvane({"check", "--recursive", "takes"});
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.output, "2 of 2 files are clean\n");
  EXPECT_EQ(result.error,
            "orvane: takes: note: 1 folder is left out (june/up): a link leads to where others "
            "lead too\n");
}

TEST_F(LinkedFoldersTest, AFolderElsewhereIsLookedInto) {
  std::filesystem::create_directories(folder_.Path() / "elsewhere");
  Write("elsewhere/c.htr", SmallMotion());
  Link("../elsewhere", "takes/more");
  EXPECT_EQ(Orvane({"check", "--recursive", "takes"}).output, "3 of 3 files are clean\n");
}

TEST_F(LinkedFoldersTest, AFileUnderTwoNamesIsToldOfOnce) {
  Link("a.htr", "takes/june/z.htr");
  const ProgramResult result = Orvane({"check", "takes/june"});
  EXPECT_EQ(result.output, "2 of 2 files are clean\n");
  EXPECT_EQ(result.error,
            "orvane: takes/june/z.htr: note: it is left out: the same file as takes/june/a.htr\n");
}

TEST_F(LinkedFoldersTest, ALinkThatLeadsNowhereIsToldAndTheOthersAreChecked) {
  Link("nowhere.htr", "takes/june/gone.htr");
  const ProgramResult result = Orvane({"check", "takes/june"});
  EXPECT_EQ(result.status, 3);
  EXPECT_EQ(result.output, "2 of 3 files are clean, 1 could not be checked\n");
  EXPECT_EQ(result.error, "orvane: takes/june/gone.htr: No such file or directory\n");
}

}  // namespace
