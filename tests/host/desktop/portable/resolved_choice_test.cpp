#include "host/desktop/portable/resolved_choice.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <filesystem>
#include <string>
#include <utility>
#include <vector>

#include "host/desktop/script_failure.h"
#include "host/desktop/scripted_desktop.h"
#include "tests/support/temporary_folder.h"

namespace host {
namespace {

using namespace std::string_literals;
using platform::FileDialog;

class FileChoiceTest : public testing::Test {
 protected:
  FileChoiceTest() {
    dialog_.title = "Select";
    dialog_.default_extension = "trc";
    dialog_.initial_folder = folder_path_.c_str();
    for (const char* name : {"a.trc", "b.trc", "plain"}) folder_.Write(name, "");
    std::filesystem::create_directory(folder_.Path() / "sub");
    folder_.Write("sub/c.trc", "");
  }

  // What the plug-in gets when the user makes `choice`: the bytes that a buffer of `size` holds,
  // without the zeros behind the second NUL; nothing when the dialog was cancelled.
  std::string Choose(FileChoice choice, std::size_t size = 1000) {
    ScriptedUser user;
    user.choose_files = [&choice](const ShownFileDialog&) { return choice; };
    desktop_.SetUser(std::move(user));
    std::string buffer(size, '#');
    if (!platform::ChooseFiles(dialog_, buffer.data(), size, name_offset_)) return "";
    return buffer.substr(0, buffer.find('#'));
  }

  // Why the dialog does not let the user make `choice`.
  std::string Refusal(const FileChoice& choice) const {
    try {
      static_cast<void>(ResolveChoice(dialog_, choice));
    } catch (const ScriptError& error) {
      return error.what();
    }
    return "";
  }

  std::string Refused(const std::string& reason) const {
    return "The dialog \"Select\" does not accept the choice: " + reason + ".";
  }

  std::string Path(const std::string& name) const { return folder_.File(name); }

  test::TemporaryFolder folder_;
  std::string folder_path_ = folder_.Path().string();
  FileDialog dialog_;
  ScriptedDesktop desktop_;
  std::size_t name_offset_ = 0;
};

TEST_F(FileChoiceTest, OneFileIsItsPath) {
  for (const bool several : {false, true}) {
    dialog_.several = several;
    EXPECT_EQ(Choose({{Path("a.trc")}}), Path("a.trc") + "\0\0"s);
    EXPECT_EQ(name_offset_, folder_path_.size() + 1);
  }
}

TEST_F(FileChoiceTest, SeveralFilesAreTheirFolderAndTheirNames) {
  dialog_.several = true;
  EXPECT_EQ(Choose({{Path("b.trc"), Path("a.trc")}}), folder_path_ + "\0b.trc\0a.trc\0\0"s);
  EXPECT_EQ(name_offset_, folder_path_.size() + 1);
}

TEST_F(FileChoiceTest, AFileOfTheRootKeepsItsSeparator) {
  EXPECT_EQ(Choose({{"/new.trc"}}), "/new.trc\0\0"s);
  EXPECT_EQ(name_offset_, 1U);
  dialog_.several = true;
  EXPECT_EQ(Choose({{"/one.trc", "/two.trc"}}), "/\0one.trc\0two.trc\0\0"s);
  EXPECT_EQ(name_offset_, 2U);
}

TEST_F(FileChoiceTest, RelativePathsCountFromTheInitialFolder) {
  EXPECT_EQ(Choose({{"a.trc"}}), Path("a.trc") + "\0\0"s);
  EXPECT_EQ(Choose({{"sub/../a.trc"}}), Path("a.trc") + "\0\0"s);
}

TEST_F(FileChoiceTest, AnInitialFolderThatDoesNotExistIsTheCurrentOne) {
  const std::string current = std::filesystem::current_path().string();
  for (const char* folder : {"C:\\", "", "/no/such/folder"}) {
    dialog_.initial_folder = folder;
    EXPECT_EQ(Choose({{"new.trc"}}), current + "/new.trc\0\0"s) << folder;
  }
}

TEST_F(FileChoiceTest, TheDefaultExtensionIsAppendedToANameWithoutOne) {
  dialog_.kind = FileDialog::Kind::kSave;
  EXPECT_EQ(Choose({{"walk"}}), Path("walk.trc") + "\0\0"s);
  EXPECT_EQ(Choose({{"walk.txt"}}), Path("walk.txt") + "\0\0"s);
  EXPECT_EQ(Choose({{"plain"}}), Path("plain.trc") + "\0\0"s);
  dialog_.default_extension = "";
  EXPECT_EQ(Choose({{"walk"}}), Path("walk") + "\0\0"s);
}

TEST_F(FileChoiceTest, AFileToOpenThatExistsIsTakenAsItIs) {
  EXPECT_EQ(Choose({{"plain"}}), Path("plain") + "\0\0"s);
  EXPECT_EQ(Choose({{"a"}}), Path("a.trc") + "\0\0"s);
}

TEST_F(FileChoiceTest, CancelledDialogChoosesNothing) {
  EXPECT_EQ(Choose({}), "");
  desktop_.RethrowFailure();
}

TEST_F(FileChoiceTest, AChoiceThatDoesNotFitIsLikeCancelling) {
  const std::size_t length = Path("a.trc").size();
  EXPECT_EQ(Choose({{"a.trc"}}, length + 2), Path("a.trc") + "\0\0"s);
  EXPECT_EQ(Choose({{"a.trc"}}, length + 1), Path("a.trc") + "\0"s);
  EXPECT_EQ(Choose({{"a.trc"}}, length), "");
  desktop_.RethrowFailure();
}

TEST_F(FileChoiceTest, FilesThatHaveToExistDo) {
  dialog_.file_must_exist = true;
  EXPECT_EQ(Refusal({{"a.trc"}}), "");
  EXPECT_EQ(Refusal({{"new.trc"}}), Refused(Path("new.trc") + " does not exist"));
  dialog_.file_must_exist = false;
  EXPECT_EQ(Refusal({{"new.trc"}}), "");
}

TEST_F(FileChoiceTest, FoldersThatHaveToExistDo) {
  EXPECT_EQ(Refusal({{"no/new.trc"}}), "");
  dialog_.folder_must_exist = true;
  EXPECT_EQ(Refusal({{"sub/new.trc"}}), "");
  EXPECT_EQ(Refusal({{"no/new.trc"}}), Refused(Path("no") + " does not exist"));
}

TEST_F(FileChoiceTest, ExistingFilesAreReplacedWithConsent) {
  dialog_.kind = FileDialog::Kind::kSave;
  EXPECT_EQ(Refusal({{"a"}, false}), "") << "the dialog does not ask";
  dialog_.ask_before_replacing = true;
  EXPECT_EQ(Refusal({{"a"}, true}), "");
  EXPECT_EQ(Refusal({{"new"}, false}), "");
  EXPECT_EQ(Refusal({{"a"}, false}), Refused(Path("a.trc") + " exists and is not to be replaced"));
}

TEST_F(FileChoiceTest, SeveralFilesNeedADialogForThemAndOneFolder) {
  EXPECT_EQ(Refusal({{"a.trc", "b.trc"}}), Refused("it is for one file only"));
  dialog_.several = true;
  EXPECT_EQ(Refusal({{"a.trc", "sub/c.trc"}}), Refused("all files have to lie in one folder"));
}

TEST_F(FileChoiceTest, AFolderIsNoFile) {
  EXPECT_EQ(Refusal({{"sub"}}), Refused("sub is no file"));
  EXPECT_EQ(Refusal({{"sub/"}}), Refused("sub/ is no file"));
  EXPECT_EQ(Refusal({{""}}), Refused(" is no file"));
}

TEST_F(FileChoiceTest, AScriptThatIsRefusedHasFailed) {
  EXPECT_EQ(Choose({{"sub"}}), "");
  EXPECT_THROW(desktop_.RethrowFailure(), ScriptError);
  EXPECT_EQ(Choose({{"a.trc"}}), "") << "nobody is asked any more";
}

TEST_F(FileChoiceTest, ADialogThatNobodyAnswersIsAFailure) {
  std::array<char, 100> buffer{};
  EXPECT_FALSE(platform::ChooseFiles(dialog_, buffer.data(), buffer.size(), name_offset_));
  try {
    desktop_.RethrowFailure();
    ADD_FAILURE() << "no failure";
  } catch (const ScriptError& error) {
    EXPECT_STREQ(error.what(), "Nobody answers the dialog \"Select\".");
  }
}

class FolderChoiceTest : public FileChoiceTest {
 protected:
  // The folder that the plug-in gets when the user chooses `folder`; empty when he cancels.
  std::string ChooseFolder(const std::string& folder, std::size_t size = 1000) {
    ScriptedUser user;
    user.choose_folder = [&folder](const std::string& title) {
      EXPECT_EQ(title, "Folder");
      return folder;
    };
    desktop_.SetUser(std::move(user));
    std::string buffer(size, '#');
    return platform::ChooseFolder(nullptr, "Folder", buffer.data(), size) ? buffer.c_str() : "";
  }
};

TEST_F(FolderChoiceTest, IsThePathWithoutASeparatorAtTheEnd) {
  EXPECT_EQ(ChooseFolder(Path("sub")), Path("sub"));
  EXPECT_EQ(ChooseFolder(Path("sub/")), Path("sub"));
  EXPECT_EQ(ChooseFolder("/"), "/");
  desktop_.RethrowFailure();
}

TEST_F(FolderChoiceTest, CancellingOrNotFittingChoosesNothing) {
  EXPECT_EQ(ChooseFolder(""), "");
  EXPECT_EQ(ChooseFolder(Path("sub"), Path("sub").size() + 1), Path("sub"));
  EXPECT_EQ(ChooseFolder(Path("sub"), Path("sub").size()), "");
  desktop_.RethrowFailure();
}

TEST_F(FolderChoiceTest, AFolderThatIsNoneIsAFailure) {
  EXPECT_EQ(ChooseFolder(Path("a.trc")), "");
  EXPECT_THROW(desktop_.RethrowFailure(), ScriptError);
}

TEST_F(FolderChoiceTest, ADialogThatNobodyAnswersIsAFailure) {
  std::array<char, 100> buffer{};
  EXPECT_FALSE(platform::ChooseFolder(nullptr, "Folder", buffer.data(), buffer.size()));
  EXPECT_THROW(desktop_.RethrowFailure(), ScriptError);
}

}  // namespace
}  // namespace host
