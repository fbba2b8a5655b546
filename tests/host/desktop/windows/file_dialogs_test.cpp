#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <utility>

#include "host/desktop/scripted_desktop.h"
#include "host/desktop/top_level_window.h"
#include "platform/file_dialog.h"
#include "tests/support/temporary_folder.h"

// The system's own dialogs for files and folders, used by a script.

namespace host {
namespace {

using namespace std::string_literals;
using platform::FileDialog;

class FileDialogsTest : public testing::Test {
 protected:
  FileDialogsTest() {
    dialog_.owner = owner_.Handle();
    dialog_.title = "Select";
    dialog_.filter_name = "Takes (*.TRC)";
    dialog_.filter_pattern = "*.trc";
    dialog_.default_extension = "trc";
    dialog_.initial_folder = folder_path_.c_str();
    dialog_.file_must_exist = true;
    dialog_.folder_must_exist = true;
    for (const char* name : {"a.trc", "b.trc"}) folder_.Write(name, "");
    std::filesystem::create_directory(folder_.Path() / "sub");
  }

  // What the plug-in gets when the user makes `choice`; nothing when the dialog was cancelled.
  std::string Choose(FileChoice choice) {
    ScriptedUser user;
    user.choose_files = [this, choice = std::move(choice)](const ShownFileDialog& shown) {
      shown_ = shown;
      return choice;
    };
    desktop_.SetUser(std::move(user));
    std::string buffer(1000, '#');
    std::size_t name_offset = 0;
    if (!platform::ChooseFiles(dialog_, buffer.data(), buffer.size(), name_offset)) return "";
    return buffer.substr(0, buffer.find("\0\0"s) + 2);
  }

  std::string ChooseFolder(const std::string& folder) {
    ScriptedUser user;
    user.choose_folder = [this, folder](const std::string& title) {
      shown_.title = title;
      return folder;
    };
    desktop_.SetUser(std::move(user));
    std::string buffer(1000, '#');
    return platform::ChooseFolder(owner_.Handle(), "Which?", buffer.data(), buffer.size())
               ? buffer.c_str()
               : "";
  }

  std::string Failure() const {
    try {
      desktop_.RethrowFailure();
    } catch (const ScriptError& error) {
      return error.what();
    }
    return "";
  }

  std::string Path(const std::string& name) const {
    return (folder_.Path() / name).make_preferred().string();
  }

  test::TemporaryFolder folder_;
  std::string folder_path_ = std::filesystem::path(folder_.Path()).make_preferred().string();
  const TopLevelWindow owner_;
  ScriptedDesktop desktop_;
  FileDialog dialog_;
  ShownFileDialog shown_;
};

TEST_F(FileDialogsTest, ShowTheirTitleAndFilter) {
  Choose({});
  EXPECT_EQ(shown_.title, "Select");
  EXPECT_EQ(shown_.filter, "Takes (*.TRC)");
  EXPECT_EQ(Failure(), "");
}

TEST_F(FileDialogsTest, AreCancelledWhenNothingIsChosen) {
  EXPECT_EQ(Choose({}), "");
  EXPECT_EQ(Failure(), "");
}

TEST_F(FileDialogsTest, TakeAPathOrANameInTheirFolder) {
  EXPECT_EQ(Choose({{Path("a.trc")}}), Path("a.trc") + "\0\0"s);
  EXPECT_EQ(Choose({{"b.trc"}}), Path("b.trc") + "\0\0"s);
  EXPECT_EQ(Failure(), "");
}

TEST_F(FileDialogsTest, TakeSeveralFilesOfOneFolder) {
  dialog_.several = true;
  EXPECT_EQ(Choose({{Path("a.trc"), Path("b.trc")}}), folder_path_ + "\0a.trc\0b.trc\0\0"s);
  EXPECT_EQ(Failure(), "");
}

TEST_F(FileDialogsTest, RefuseAFileThatDoesNotExist) {
  EXPECT_EQ(Choose({{Path("new.trc")}}), "");
  EXPECT_NE(Failure().find("does not accept the choice"), std::string::npos) << Failure();
  EXPECT_EQ(Choose({{"a.trc"}}), "") << "nobody is asked any more";
}

TEST_F(FileDialogsTest, RefuseAFolder) {
  EXPECT_EQ(Choose({{Path("sub")}}), "");
  EXPECT_NE(Failure().find("does not accept the choice"), std::string::npos) << Failure();
}

TEST_F(FileDialogsTest, ReplaceAFileWithConsentOnly) {
  dialog_.kind = FileDialog::Kind::kSave;
  dialog_.file_must_exist = false;
  dialog_.ask_before_replacing = true;
  EXPECT_EQ(Choose({{Path("new")}, false}), Path("new.trc") + "\0\0"s);
  EXPECT_EQ(Choose({{Path("a.trc")}, true}), Path("a.trc") + "\0\0"s);
  EXPECT_EQ(Failure(), "");
  EXPECT_EQ(Choose({{Path("a.trc")}, false}), "");
  EXPECT_NE(Failure().find("does not accept the choice"), std::string::npos) << Failure();
}

TEST_F(FileDialogsTest, ThatNobodyAnswersAreAFailure) {
  std::string buffer(1000, '#');
  std::size_t name_offset = 0;
  EXPECT_FALSE(platform::ChooseFiles(dialog_, buffer.data(), buffer.size(), name_offset));
  EXPECT_EQ(Failure(), "Nobody answers the dialog \"Select\".");
}

TEST_F(FileDialogsTest, LetAFolderBeChosen) {
  EXPECT_EQ(ChooseFolder(Path("sub")), Path("sub"));
  EXPECT_EQ(shown_.title, "Which?");
  EXPECT_EQ(ChooseFolder(""), "");
  EXPECT_EQ(Failure(), "");
}

TEST_F(FileDialogsTest, RefuseAFolderThatIsNone) {
  EXPECT_EQ(ChooseFolder(Path("a.trc")), "");
  EXPECT_NE(Failure().find("is no folder"), std::string::npos) << Failure();
}

}  // namespace
}  // namespace host
