#include "platform/output_file.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/files.h"
#include "tests/support/temporary_folder.h"

namespace {

using platform::OutputFile;
using test::NamesIn;
using test::ReadFile;
using test::WriteFile;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::IsSupersetOf;
using testing::SizeIs;

class OutputFileTest : public testing::Test {
 protected:
  test::TemporaryFolder folder_;
  const std::string path_ = folder_.File("scene.glb");
};

TEST_F(OutputFileTest, AppearsOnDelivery) {
  OutputFile file(path_, false);
  EXPECT_EQ(file.WhyImpossible(), "");
  EXPECT_EQ(file.Write("bytes"), "");
  EXPECT_THAT(NamesIn(folder_.Path()), SizeIs(1));
  EXPECT_FALSE(std::filesystem::exists(path_));
  EXPECT_EQ(file.Deliver(), "");
  EXPECT_THAT(NamesIn(folder_.Path()), ElementsAre("scene.glb"));
  EXPECT_EQ(ReadFile(path_), "bytes");
}

TEST_F(OutputFileTest, IsWrittenInPieces) {
  OutputFile file(path_, false);
  EXPECT_EQ(file.Append("one "), "");
  EXPECT_EQ(file.Append(""), "");
  EXPECT_EQ(file.Append("two"), "");
  EXPECT_EQ(file.Finish(), "");
  EXPECT_FALSE(std::filesystem::exists(path_));
  EXPECT_EQ(file.Deliver(), "");
  EXPECT_THAT(NamesIn(folder_.Path()), ElementsAre("scene.glb"));
  EXPECT_EQ(ReadFile(path_), "one two");
}

TEST_F(OutputFileTest, LeavesNothingOfPiecesThatAreNotDelivered) {
  {
    OutputFile file(path_, false);
    EXPECT_EQ(file.Append("one "), "");
  }
  EXPECT_THAT(NamesIn(folder_.Path()), IsEmpty());
}

TEST_F(OutputFileTest, LeavesNothingWhenItIsNotDelivered) {
  {
    OutputFile file(path_, false);
    EXPECT_EQ(file.Write("bytes"), "");
  }
  EXPECT_THAT(NamesIn(folder_.Path()), IsEmpty());
}

TEST_F(OutputFileTest, KeepsAFileThatAppearsBeforeDelivery) {
  {
    OutputFile file(path_, false);
    EXPECT_FALSE(file.IsTaken());
    EXPECT_EQ(file.Write("bytes"), "");
    WriteFile(path_, "somebody else's");
    EXPECT_EQ(file.Deliver(), "File exists");
    EXPECT_TRUE(file.IsTaken());
  }
  EXPECT_THAT(NamesIn(folder_.Path()), ElementsAre("scene.glb"));
  EXPECT_EQ(ReadFile(path_), "somebody else's");
}

TEST_F(OutputFileTest, ReplacesAnExistingFileOnlyOnDelivery) {
  WriteFile(path_, "old");
  OutputFile file(path_, true);
  EXPECT_FALSE(file.IsTaken());
  EXPECT_EQ(file.WhyImpossible(), "");
  EXPECT_EQ(file.Write("new"), "");
  EXPECT_EQ(ReadFile(path_), "old");
  EXPECT_EQ(file.Deliver(), "");
  EXPECT_EQ(ReadFile(path_), "new");
}

TEST_F(OutputFileTest, ReplacesNoFileThatNobodyMayWrite) {
  constexpr auto kWrite = std::filesystem::perms::owner_write |
                          std::filesystem::perms::group_write |
                          std::filesystem::perms::others_write;
  using std::filesystem::perm_options;
  WriteFile(path_, "old");
  OutputFile file(path_, true);
  EXPECT_FALSE(file.IsReadOnly());
  EXPECT_EQ(file.Write("new"), "");
  std::filesystem::permissions(path_, kWrite, perm_options::remove);
  EXPECT_EQ(file.Deliver(), "it is read-only");
  for (const bool replace : {false, true}) {
    const OutputFile other(path_, replace);
    EXPECT_TRUE(other.IsReadOnly());
    EXPECT_EQ(other.WhyImpossible(), "it is read-only");
  }
  EXPECT_EQ(ReadFile(path_), "old");
  std::filesystem::permissions(path_, kWrite, perm_options::add);
}

TEST_F(OutputFileTest, DeliversAFileThatSomebodyElseHasWritten) {
  const std::string made = folder_.Write("made", "bytes");
  OutputFile file(path_, false);
  EXPECT_EQ(file.TakeOver(made), "");
  EXPECT_FALSE(std::filesystem::exists(path_));
  EXPECT_EQ(file.Deliver(), "");
  EXPECT_THAT(NamesIn(folder_.Path()), ElementsAre("scene.glb"));
  EXPECT_EQ(ReadFile(path_), "bytes");
}

TEST_F(OutputFileTest, RemovesWhatItHasTakenOverAndNotDelivered) {
  {
    OutputFile file(path_, false);
    EXPECT_EQ(file.TakeOver(folder_.Write("made", "bytes")), "");
  }
  EXPECT_THAT(NamesIn(folder_.Path()), IsEmpty());
}

TEST_F(OutputFileTest, CannotTakeOverWhatIsNotThere) {
  OutputFile file(path_, false);
  EXPECT_EQ(file.TakeOver(folder_.File("made")), "No such file or directory");
}

TEST_F(OutputFileTest, TwoAtATimeDoNotMeet) {
  OutputFile first(path_, true);
  OutputFile second(path_, true);
  EXPECT_EQ(first.Write("first"), "");
  EXPECT_EQ(second.Write("second"), "");
  EXPECT_EQ(second.Deliver(), "");
  EXPECT_EQ(first.Deliver(), "");
  EXPECT_EQ(ReadFile(path_), "first");
  EXPECT_THAT(NamesIn(folder_.Path()), ElementsAre("scene.glb"));
}

// As a process leaves it that is killed while it writes.
TEST_F(OutputFileTest, RemovesWhatAnEndedProcessHasLeft) {
  WriteFile(folder_.File(".orvane-4194305-0"), "half a scene");
  WriteFile(folder_.File(".orvane-4194305-17"), "");
  OutputFile file(path_, false);
  EXPECT_EQ(file.Write("bytes"), "");
  EXPECT_THAT(NamesIn(folder_.Path()), SizeIs(1));
  EXPECT_EQ(file.Deliver(), "");
  EXPECT_THAT(NamesIn(folder_.Path()), ElementsAre("scene.glb"));
}

TEST_F(OutputFileTest, RemovesNothingThatSomebodyIsWriting) {
  OutputFile first(path_, false);
  EXPECT_EQ(first.Write("first"), "");
  const std::vector<std::string> names = NamesIn(folder_.Path());
  OutputFile second(folder_.File("other.glb"), false);
  EXPECT_EQ(second.Write("second"), "");
  EXPECT_THAT(NamesIn(folder_.Path()), IsSupersetOf(names));
  EXPECT_EQ(first.Deliver(), "");
  EXPECT_EQ(ReadFile(path_), "first");
}

TEST_F(OutputFileTest, RemovesNothingOfAnotherName) {
  const std::vector<std::string> names = {".orvane",
                                          ".orvane-",
                                          ".orvane-0-0",
                                          ".orvane-04194305-0",
                                          ".orvane-4194305",
                                          ".orvane-4194305-00",
                                          ".orvane-4194305-2.x",
                                          ".orvane-99999999999999999999-0",
                                          ".orvane-a",
                                          "orvane-4194305-2"};
  for (const std::string& name : names) WriteFile(folder_.File(name), "mine");
  std::filesystem::create_directory(folder_.File(".orvane-4194305-1"));
  {
    OutputFile file(path_, false);
    EXPECT_EQ(file.Write("bytes"), "");
  }
  EXPECT_THAT(NamesIn(folder_.Path()), SizeIs(names.size() + 1));
}

TEST_F(OutputFileTest, AFolderThatGoesMeanwhileIsAnError) {
  const std::string inner = folder_.File("inner");
  std::filesystem::create_directory(inner);
  OutputFile file(inner + "/scene.glb", false);
  std::filesystem::remove(inner);
  EXPECT_EQ(file.Write("bytes"), "No such file or directory");
}

}  // namespace
