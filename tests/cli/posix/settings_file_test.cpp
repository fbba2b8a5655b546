#include "tests/cli/orvane_test.h"

// The file that keeps the user's settings where there is no registry.

namespace {

using test::ProgramResult;
using testing::IsEmpty;

class SettingsFileTest : public test::OrvaneTest {
 protected:
  SettingsFileTest() { Write("walk.htr", test::SmallMotion()); }

  test::ProgramRun Import(const std::string& settings) const {
    return Command({"import", "walk.htr", "-o", "walk.glb", "--settings", settings});
  }
};

TEST_F(SettingsFileTest, AUserWithoutAnyFolderIsTold) {
  test::ProgramRun run = Import("user");
  run.environment = {"XDG_CONFIG_HOME=", "HOME="};
  const ProgramResult result = RunProgram(run);
  EXPECT_EQ(result.status, 3);
  EXPECT_EQ(result.error, "orvane: --settings user: this user has no folder for settings\n");
}

TEST_F(SettingsFileTest, SettingsThatCannotBeReadAreNotPassedOver) {
  const std::string path = folder_.File("config/orvane/settings.sqlite");
  std::filesystem::create_directories(folder_.File("config/orvane"));
  test::WriteFile(path, "no settings");
  const ProgramResult result = RunProgram(Import("user"));
  EXPECT_EQ(result.status, 3);
  EXPECT_THAT(result.output, IsEmpty());
  EXPECT_EQ(result.error, "orvane: " + path +
                              ": the settings cannot be read, or are in use\n"
                              "  --settings fresh does without them.\n");
  EXPECT_EQ(test::ReadFile(path), "no settings");
  EXPECT_FALSE(Exists("walk.glb"));
  EXPECT_EQ(RunProgram(Import("fresh")).status, 0);
}

}  // namespace
