#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "plugin/resources/resource.h"
#include "tests/module/utility_fixture.h"
#include "tests/support/files.h"
#include "tests/support/trc_text.h"

namespace test {
namespace {

using platform::RegistryType;

class UtilityPanelTest : public UtilityTest {
 protected:
  bool IsOffsetEnabled() {
    std::vector<bool> states;
    for (const int control : {kTrcSpace, kSkelderSpace, kOffsetX, kOffsetY, kOffsetZ}) {
      states.push_back(Page().IsEnabled(control));
    }
    for (const bool state : states) EXPECT_EQ(state, states[0]);
    return states[0];
  }

  // Writes a file of one marker that stands at (1, 2, 3), and an empty mapping, and lets the panel
  // convert the former without the latter.
  void PrepareConversion() {
    Store("MNMPath", RegistryType::kString, Write("empty.mnm", ""));
    Store("Filter", RegistryType::kBinary, FlagBytes(false));
    TrcText text{{"Head1"}};
    text.frames = {{"1\t2\t3"}};
    const std::string take = Write("take.trc", text.Text());
    desk_.ChooseFiles([take](const host::ShownFileDialog&) { return host::FileChoice{{take}}; });
  }
};

TEST_F(UtilityPanelTest, IsAPageOfTheCommandPanel) {
  Open();
  const auto& pages = application_.rollup_pages().Open();
  ASSERT_EQ(pages.size(), 1U);
  EXPECT_EQ(pages[0].title, "Convert TRC to BVK");
  EXPECT_EQ(pages[0].category, 4000);
  EXPECT_EQ(pages[0].flags, 0U);
  EXPECT_EQ(pages[0].window, Page().Window());
  panel_->Open();
  EXPECT_EQ(pages.size(), 1U) << "it is open already";
  panel_->Close();
  EXPECT_TRUE(pages.empty());
  panel_->Open();
  EXPECT_EQ(pages.size(), 1U);
}

TEST_F(UtilityPanelTest, ShowsTheSettingsOfANewUser) {
  Open();
  EXPECT_EQ(Page().Text(kMappingFile), "<none>");
  EXPECT_EQ(Page().Text(kOutputFolder), "<none>");
  EXPECT_TRUE(Page().IsChecked(kFilter));
  EXPECT_FALSE(Page().IsChecked(kBatch));
  EXPECT_TRUE(Page().IsChecked(kTrcName));
  EXPECT_TRUE(Page().IsEnabled(kTrcName));
  EXPECT_FALSE(Page().IsChecked(kEnableOffset));
  EXPECT_TRUE(Page().IsChecked(kTrcSpace));
  EXPECT_FALSE(Page().IsChecked(kSkelderSpace));
  EXPECT_FALSE(IsOffsetEnabled());
  for (const int control : {kOffsetX, kOffsetY, kOffsetZ}) {
    EXPECT_EQ(Page().Text(control), "0.000000");
  }
}

TEST_F(UtilityPanelTest, ShowsTheSettingsOfTheLastTime) {
  Store("MNMPath", RegistryType::kString, "C:\\set.mnm");
  Store("OutputPath", RegistryType::kString, "C:\\out");
  Store("Filter", RegistryType::kBinary, FlagBytes(false));
  Store("TRCName", RegistryType::kBinary, FlagBytes(false));
  Store("TRCSpace", RegistryType::kBinary, FlagBytes(false));
  Store("Offset", RegistryType::kBinary, FlagBytes(true));
  Store("OffsetX", RegistryType::kDoubleWord, FloatBytes(1.5F));
  Store("OffsetY", RegistryType::kDoubleWord, FloatBytes(-2.0F));
  Store("OffsetZ", RegistryType::kDoubleWord, FloatBytes(0.1F));
  Open();
  EXPECT_EQ(Page().Text(kMappingFile), "C:\\set.mnm");
  EXPECT_EQ(Page().Text(kOutputFolder), "C:\\out");
  EXPECT_FALSE(Page().IsChecked(kFilter));
  EXPECT_FALSE(Page().IsChecked(kTrcName));
  EXPECT_TRUE(Page().IsEnabled(kTrcName));
  EXPECT_FALSE(Page().IsChecked(kTrcSpace));
  EXPECT_TRUE(Page().IsChecked(kSkelderSpace));
  EXPECT_TRUE(Page().IsChecked(kEnableOffset));
  EXPECT_TRUE(IsOffsetEnabled());
  EXPECT_EQ(Page().Text(kOffsetX), "1.500000");
  EXPECT_EQ(Page().Text(kOffsetY), "-2.000000");
  EXPECT_EQ(Page().Text(kOffsetZ), "0.100000");
}

TEST_F(UtilityPanelTest, ShowsThatNoPathIsSet) {
  Store("MNMPath", RegistryType::kString, "");
  Store("OutputPath", RegistryType::kString, "");
  Open();
  EXPECT_EQ(Page().Text(kMappingFile), "<none>");
  EXPECT_EQ(Page().Text(kOutputFolder), "<none>");
}

TEST_F(UtilityPanelTest, ABatchIsAlwaysNamedAfterItsInputs) {
  Store("Batch", RegistryType::kBinary, FlagBytes(true));
  Store("TRCName", RegistryType::kBinary, FlagBytes(false));
  Open();
  EXPECT_TRUE(Page().IsChecked(kBatch));
  EXPECT_TRUE(Page().IsChecked(kTrcName));
  EXPECT_FALSE(Page().IsEnabled(kTrcName));
  panel_->Close();
  EXPECT_EQ(Stored("TRCName"), FlagBytes(true)) << "what is shown is what happens";
}

TEST_F(UtilityPanelTest, ChoosingABatchChecksAndDisablesTheName) {
  Store("TRCName", RegistryType::kBinary, FlagBytes(false));
  Open();
  Page().Click(kBatch);
  EXPECT_TRUE(Page().IsChecked(kTrcName));
  EXPECT_FALSE(Page().IsEnabled(kTrcName));
  Page().Click(kBatch);
  EXPECT_TRUE(Page().IsChecked(kTrcName)) << "it stays checked";
  EXPECT_TRUE(Page().IsEnabled(kTrcName));
  panel_->Close();
  EXPECT_EQ(Stored("Batch"), FlagBytes(false));
  EXPECT_EQ(Stored("TRCName"), FlagBytes(true));
}

TEST_F(UtilityPanelTest, SavesWhatWasChosenWhenItIsClosed) {
  Open();
  Page().Click(kFilter);
  Page().Click(kTrcName);
  Page().Click(kEnableOffset);
  EXPECT_TRUE(IsOffsetEnabled());
  Page().Click(kSkelderSpace);
  EXPECT_TRUE(Page().IsChecked(kSkelderSpace));
  EXPECT_FALSE(Page().IsChecked(kTrcSpace));
  EXPECT_EQ(Stored("Filter"), std::nullopt) << "not before";
  panel_->Close();
  EXPECT_EQ(Stored("Filter"), FlagBytes(false));
  EXPECT_EQ(Stored("TRCName"), FlagBytes(false));
  EXPECT_EQ(Stored("Batch"), FlagBytes(false));
  EXPECT_EQ(Stored("Offset"), FlagBytes(true));
  EXPECT_EQ(Stored("TRCSpace"), FlagBytes(false));
  EXPECT_EQ(Stored("MNMPath"), "<none>");
  EXPECT_EQ(Stored("InputPath"), "C:\\");
  EXPECT_EQ(Stored("OffsetX"), FloatBytes(0.0F));
  panel_->Open();
  Page().Click(kTrcSpace);
  EXPECT_TRUE(Page().IsChecked(kTrcSpace));
  EXPECT_FALSE(Page().IsChecked(kSkelderSpace));
  Page().Click(kEnableOffset);
  EXPECT_FALSE(IsOffsetEnabled());
  panel_->Close();
  EXPECT_EQ(Stored("TRCSpace"), FlagBytes(true));
  EXPECT_EQ(Stored("Offset"), FlagBytes(false));
}

TEST_F(UtilityPanelTest, SavesWhatWasChosenWhenItIsDeleted) {
  Open();
  Page().Click(kFilter);
  panel_->Delete();
  EXPECT_EQ(Stored("Filter"), FlagBytes(false));
  EXPECT_TRUE(application_.rollup_pages().Open().empty());
}

TEST_F(UtilityPanelTest, WorksWithoutAPlaceForItsSettings) {
  desk_.settings().RefuseKey("Software\\Orvane\\OrvaneFileIO\\Skelder\\ConvertBVK");
  Open();
  Page().Click(kFilter);
  panel_->Close();
  panel_->Open();
  EXPECT_FALSE(Page().IsChecked(kFilter)) << "kept as long as the panel";
}

TEST_F(UtilityPanelTest, WithoutADialogThereIsNoPage) {
  desk_.desktop().RefuseDialog(IDD_UTILITIES);
  Open();
  EXPECT_TRUE(application_.rollup_pages().Open().empty());
  panel_->Close();
}

TEST_F(UtilityPanelTest, AsksForAMappingFile) {
  const std::string path = Write("set.mnm", "");
  desk_.ChooseFiles([&](const host::ShownFileDialog& dialog) {
    EXPECT_EQ(dialog.title, "Select Mapping File...");
    EXPECT_EQ(dialog.filter, "Marker Name Mapping Files (*.MNM)");
    return host::FileChoice{{path}};
  });
  Open();
  Page().Click(kBrowseMapping);
  EXPECT_EQ(Page().Text(kMappingFile), path);
  desk_.ChooseFiles([](const host::ShownFileDialog&) { return host::FileChoice{}; });
  Page().Click(kBrowseMapping);
  EXPECT_EQ(Page().Text(kMappingFile), path) << "cancelling changes nothing";
  panel_->Close();
  EXPECT_EQ(Stored("MNMPath"), path);
}

TEST_F(UtilityPanelTest, MayBeClosedOrDeletedWhileTheUserChooses) {
  const std::string path = Write("set.mnm", "");
  for (const int button : {kBrowseMapping, kBrowseOutput}) {
    for (const bool is_deleted : {false, true}) {
      const auto close = [&] { is_deleted ? panel_->Delete() : panel_->Close(); };
      desk_.ChooseFiles([&](const host::ShownFileDialog&) {
        close();
        return host::FileChoice{{path}};
      });
      desk_.ChooseFolder([&](const std::string&) {
        close();
        return folder_.Path().string();
      });
      Open();
      Page().Click(button);
      panel_->Delete();
      EXPECT_EQ(Stored("MNMPath"), "<none>");
      EXPECT_EQ(Stored("OutputPath"), "<none>");
    }
  }
}

TEST_F(UtilityPanelTest, AsksForAnOutputFolder) {
  const std::string folder = folder_.Path().string();
  desk_.ChooseFolder([&folder](const std::string& title) {
    EXPECT_EQ(title, "Choose BVK Files Destination Folder...");
    return folder;
  });
  Open();
  Page().Click(kBrowseOutput);
  EXPECT_EQ(Page().Text(kOutputFolder), folder);
  desk_.ChooseFolder([](const std::string&) { return std::string(); });
  Page().Click(kBrowseOutput);
  EXPECT_EQ(Page().Text(kOutputFolder), folder) << "cancelling changes nothing";
  panel_->Close();
  EXPECT_EQ(Stored("OutputPath"), folder);
}

TEST_F(UtilityPanelTest, ConvertsWithTheOffsetThatIsTyped) {
  PrepareConversion();
  Open();
  Page().Click(kEnableOffset);
  Page().Type(kOffsetX, "10");
  Page().Type(kOffsetY, "20.5");
  Page().Type(kOffsetZ, "-30");
  Page().Click(kConvert);
  const std::string written = ReadTextFile(folder_.File("take.bvk"));
  EXPECT_NE(written.find("1\t11.000000\t27.000000\t22.500000\t\n"), std::string::npos) << written;
  panel_->Close();
  EXPECT_EQ(Stored("OffsetX"), FloatBytes(10.0F));
  EXPECT_EQ(Stored("OffsetY"), FloatBytes(20.5F));
  EXPECT_EQ(Stored("OffsetZ"), FloatBytes(-30.0F));
}

TEST_F(UtilityPanelTest, KeepsAnOffsetInPlaceOfWhatIsNoNumber) {
  PrepareConversion();
  Store("OffsetX", RegistryType::kDoubleWord, FloatBytes(5.0F));
  Open();
  Page().Click(kEnableOffset);
  Page().Type(kOffsetX, "much");
  Page().Type(kOffsetY, "7");
  Page().Click(kConvert);
  panel_->Close();
  EXPECT_EQ(Stored("OffsetX"), FloatBytes(5.0F));
  EXPECT_EQ(Stored("OffsetY"), FloatBytes(7.0F));
}

TEST_F(UtilityPanelTest, ReadsNoOffsetThatIsNotEnabled) {
  PrepareConversion();
  Open();
  Page().Click(kEnableOffset);
  Page().Type(kOffsetX, "10");
  Page().Click(kEnableOffset);
  Page().Click(kConvert);
  EXPECT_NE(ReadTextFile(folder_.File("take.bvk")).find("1\t1.000000\t-3.000000\t2.000000\t\n"),
            std::string::npos);
  panel_->Close();
  EXPECT_EQ(Stored("OffsetX"), FloatBytes(0.0F));
}

TEST_F(UtilityPanelTest, AnswersNothingElse) {
  Open();
  Page().PressEscape();
  EXPECT_EQ(application_.rollup_pages().Open().size(), 1U);
}

}  // namespace
}  // namespace test
