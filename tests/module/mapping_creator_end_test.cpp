#include <filesystem>
#include <string>

#include "tests/host/application/idle_callbacks.h"
#include "tests/module/mapping_creator_fixture.h"

namespace test {
namespace {

// --- Abort ---

TEST_F(MappingCreatorTest, AbortAtAnyMarkerRestoresEverything) {
  for (const std::string& code : kCodes) {
    SCOPED_TRACE(code);
    asked_.clear();
    Plan(code, [this] { Creator().Click(kAbort); });
    Create();
    ExpectAborted();
    EXPECT_EQ(asked_.back(), code) << "nothing is asked after it";
  }
  ExpectMappingIsEmpty();
}

TEST_F(MappingCreatorTest, ClosingTheDialogAborts) {
  Plan("LBHD", [this] { Creator().PressEscape(); });
  Create();
  ExpectAborted();
  EXPECT_EQ(Page().Text(kMappingFile), "<none>");
}

TEST_F(MappingCreatorTest, AbortCountsMoreThanAnotherButton) {
  Plan("LILB", [this] {
    Creator().Click(kSkip);
    Creator().Click(kAbort);
  });
  Create();
  ExpectAborted();
}

TEST_F(MappingCreatorTest, AbortsWhenThePickModeIsNotEntered) {
  application_.callbacks().RefusePickModes();
  Create();
  ExpectAborted();
  EXPECT_TRUE(asked_.empty());
}

TEST_F(MappingCreatorTest, AbortsWhenTheHostExits) {
  for (const char* code : {"LFHD", "LWRA", "LWRB", "RPRPT"}) {
    Plan(code, [this] { application_.Exit(); });
    Create();
    ExpectAborted();
  }
  ExpectMappingIsEmpty();
}

TEST_F(MappingCreatorTest, AbortsWhenTheUserHasNothingLeftToDo) {
  int acts = 0;
  desk_.Act([&acts] { return ++acts < 5; });
  try {
    Create();
    ADD_FAILURE() << "the script has not failed";
  } catch (const host::ScriptError& error) {
    EXPECT_STREQ(error.what(), "The plug-in waits, and its user has nothing left to do.");
  }
  EXPECT_EQ(acts, 5);
  EXPECT_TRUE(application_.HasExited());
  ExpectAborted();
  script_fails_ = true;
}

TEST_F(MappingCreatorTest, ClosingThePanelAbortsAtOnce) {
  for (const std::string& code : kCodes) {
    SCOPED_TRACE(code);
    Plan(code, [this] {
      panel_->Close();
      ExpectAborted();
    });
    Create();
    ExpectAborted();
    panel_->Open();
  }
  ExpectMappingIsEmpty();
}

TEST_F(MappingCreatorTest, DeletingThePanelAbortsAtOnce) {
  for (const std::string& code : kCodes) {
    SCOPED_TRACE(code);
    Plan(code, [this] {
      panel_->Delete();
      ExpectAborted();
    });
    Create();
    ExpectAborted();
    Open();
  }
  ExpectMappingIsEmpty();
}

TEST_F(MappingCreatorTest, ThePanelMayBeOpenedAgainBeforeTheAbortIsNoticed) {
  Plan("LBHD", [this] {
    panel_->Close();
    panel_->Open();
  });
  Create();
  ExpectAborted();
  EXPECT_EQ(Page().Text(kMappingFile), "<none>");
  ExpectMappingIsEmpty();
}

TEST_F(MappingCreatorTest, ClosingThePanelWhileAFileIsChosenWritesNothing) {
  watch_file_dialog_ = [this](const host::ShownFileDialog&) { panel_->Delete(); };
  Create();
  ExpectNothingLeft();
  EXPECT_FALSE(std::filesystem::exists(folder_.File("made.mnm")));
}

TEST_F(MappingCreatorTest, ThePanelMayBeDeletedWhileItTellsItsSuccess) {
  std::size_t redraws = 0;
  desk_.WhenTold([&] {
    panel_->Delete();
    redraws = application_.scene().RedrawCount();
  });
  Create();
  ExpectNothingLeft();
  EXPECT_EQ(Made(), FileOf(kCodes));
  EXPECT_EQ(application_.scene().RedrawCount(), redraws) << "the host is touched no more";
}

class OtherPickMode final : public IdlePickMode {};

TEST_F(MappingCreatorTest, ClosingThePanelLeavesAnyPickMode) {
  OtherPickMode other;
  application_.plugin_interface().SetPickMode(&other);
  panel_->Close();
  EXPECT_FALSE(application_.picking().IsActive());
}

TEST_F(MappingCreatorTest, OneCommandIsAtWorkAtATime) {
  LoadMapping("");
  Plan("LBHD", [this] {
    Page().Click(kCreateMapping);
    Page().Click(kConvert);
    Pick("LBHD");
  });
  Create();
  EXPECT_EQ(Made(), FileOf(kCodes));
  EXPECT_EQ(file_dialogs_, 1);
}

TEST_F(MappingCreatorTest, DoesNothingWithoutItsDialog) {
  desk_.desktop().RefuseDialog(117);
  Create();
  ExpectAborted();
  EXPECT_TRUE(asked_.empty());
}

// --- Saving ---

TEST_F(MappingCreatorTest, AsksWhereToSave) {
  watch_file_dialog_ = [this](const host::ShownFileDialog& dialog) {
    EXPECT_EQ(dialog.title, "Select Mapping File...");
    EXPECT_EQ(dialog.filter, "Marker Name Mapping Files (*.MNM)");
    EXPECT_EQ(desk_.desktop().ShownDialog(117), nullptr) << "the creator's dialog is closed";
  };
  Create();
  EXPECT_EQ(file_dialogs_, 1);
}

TEST_F(MappingCreatorTest, KeepsEntriesAndColorsWhenNoFileIsChosen) {
  choice_.paths.clear();
  Create();
  EXPECT_EQ(ObjectsIn(kPickedColor).size(), kCodes.size());
  EXPECT_EQ(Page().Text(kMappingFile), "<none>");
  choice_.paths = {folder_.File("made.mnm")};
  Create();
  EXPECT_EQ(Made(), FileOf(kCodes) + FileOf(kCodes)) << "the entries of both times";
  ExpectNothingLeft();
}

TEST_F(MappingCreatorTest, KeepsEntriesAndColorsWhenTheFileCannotBeMade) {
  // What leads nowhere does not exist, and cannot be made either.
  std::error_code error;
  std::filesystem::create_symlink(folder_.File("no/such/file"), folder_.File("made.mnm"), error);
  if (error) GTEST_SKIP() << "there are no links to make: " << error.message();
  Create();
  EXPECT_EQ(desk_.desktop().Messages().back().text,
            "MNM File Creation Failed: Unable to open output file.");
  EXPECT_EQ(desk_.desktop().Messages().back().caption, "MNM File Creation Status");
  EXPECT_EQ(ObjectsIn(kPickedColor).size(), kCodes.size());
  EXPECT_EQ(Page().Text(kMappingFile), "<none>");
}

TEST_F(MappingCreatorTest, BeginsWithTheEntriesThatAConversionHasLoaded) {
  LoadMapping("HEAD\tHead1\t\n");
  Plan("LBHD", [this] { Creator().Click(kBack); });
  Create();
  EXPECT_EQ(Made(), "HEAD\tHead1\t\n" + FileOf(kCodes));
  EXPECT_EQ(Page().Text(kMappingFile), folder_.File("made.mnm"));
}

TEST_F(MappingCreatorTest, AbortEmptiesTheMappingOfWhatWasLoadedToo) {
  LoadMapping("HEAD\tHead1\t\n");
  Plan("LBHD", [this] { Creator().Click(kAbort); });
  Create();
  ExpectAborted();
  ExpectMappingIsEmpty();
}

TEST_F(MappingCreatorTest, GoingBackMayTakeAnEntryThatWasLoaded) {
  LoadMapping("HEAD\tHead1\t\n");
  Plan("LFHD", [this] { application_.picking().Leave(); });
  Plan("LBHD", [this] { Creator().Click(kBack); });
  Create();
  EXPECT_EQ(Made(), FileOf(kCodes));
}

TEST_F(MappingCreatorTest, ReplacesAFileWithConsent) {
  Write("made.mnm", "something else\n");
  choice_.agrees_to_replace = true;
  Create();
  EXPECT_EQ(Made(), FileOf(kCodes));
}

}  // namespace
}  // namespace test
