#include <sys/stat.h>

#include "tests/cli/orvane_test.h"

// The desktop's way to open a page, which here is a program in its place.

namespace {

using test::ProgramResult;
using test::ProgramRun;
using testing::IsEmpty;
using testing::MatchesRegex;

class ViewOpeningTest : public test::OrvaneTest {
 protected:
  ViewOpeningTest() { Write(kTake, test::SmallMotion()); }

  ProgramRun ViewOn(const std::string& display) const {
    ProgramRun run = Command({"view", kTake});
    run.environment.insert(
        run.environment.end(),
        {"DISPLAY=" + display, "WAYLAND_DISPLAY=", "PATH=" + folder_.File("programs")});
    return run;
  }

  // Makes the program that opens files. What it is given comes out of the pipe "opened".
  void MakeOpener() const {
    std::filesystem::create_directory(folder_.Path() / "programs");
    const std::string program = folder_.File("programs/xdg-open");
    test::WriteFile(program,
                    "#!/bin/sh\nprintf '%s\\n' \"$#\" \"$@\" > '" + folder_.File("opened") + "'\n");
    std::filesystem::permissions(program, std::filesystem::perms::owner_all);
    ASSERT_EQ(mkfifo(folder_.File("opened").c_str(), S_IRUSR | S_IWUSR), 0);
  }

  static constexpr char kTake[] = "-a $(walk) & \"b\".htr";
  static constexpr char kPage[] = "-a $(walk) & \"b\".html";
};

TEST_F(ViewOpeningTest, ThePageIsGivenToTheDesktopWithoutAShell) {
  MakeOpener();
  ProgramRun run = ViewOn(":7");
  run.command.back() = std::string("./") + kTake;
  const ProgramResult result = RunProgram(run);
  EXPECT_EQ(result.status, 0);
  EXPECT_THAT(result.error, IsEmpty());
  EXPECT_EQ(Read("opened"), "1\n" + folder_.File(kPage) + "\n");
  EXPECT_THAT(result.output, testing::Not(testing::HasSubstr("Open it")));
}

TEST_F(ViewOpeningTest, WithoutADisplayItTellsWhereThePageIs) {
  ProgramRun run = ViewOn("");
  run.command.back() = folder_.File(kTake);
  const ProgramResult result = RunProgram(run);
  EXPECT_EQ(result.status, 0);
  EXPECT_THAT(result.error, IsEmpty());
  EXPECT_THAT(result.output,
              testing::EndsWith("Open it in any browser: " + folder_.File(kPage) + "\n"));
}

TEST_F(ViewOpeningTest, WhatCannotBeOpenedIsToldAndMadeAllTheSame) {
  ProgramRun run = ViewOn(":7");
  run.command.back() = folder_.File(kTake);
  const ProgramResult result = RunProgram(run);
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.error, "orvane: " + folder_.File(kPage) +
                              ": could not be shown: xdg-open: No such file or directory\n");
  EXPECT_THAT(result.output,
              testing::EndsWith("Open it in any browser: " + folder_.File(kPage) + "\n"));
  EXPECT_TRUE(Exists(kPage));
}

}  // namespace
