#include <gtest/gtest.h>

#include "plugin/resources/resource.h"
#include "tests/plugin/utilities/posix/utilities_stage.h"

// What the utility panel asks of its host, call by call.

namespace test {
namespace {

constexpr int kSkelderSpace = IDC_SKELDER_SPACE;
constexpr int kTrcSpace = IDC_TRC_SPACE;
constexpr int kBrowseMapping = IDC_BROWSE_MAPPING;
constexpr int kBrowseOutput = IDC_BROWSE_OUTPUT;
constexpr int kConvert = IDC_CONVERT;
constexpr int kBatch = IDC_BATCH;
constexpr int kTrcName = IDC_TRC_NAME;
constexpr int kFilter = IDC_FILTER;
constexpr int kEnableOffset = IDC_ENABLE_OFFSET;
constexpr int kOffsetX = IDC_OFFSET_X;
constexpr int kOffsetY = IDC_OFFSET_Y;

TEST(PanelJournal, OpenedAndClosed) {
  UtilitiesStage stage;
  stage.Make();
  stage.Open();
  stage.Open();
  stage.Close();
  stage.utilities.reset();
  ExpectUtilitiesJournal("panel_opened_and_closed", stage.journal.Take());
}

TEST(PanelJournal, DeletedWhileItIsOpen) {
  UtilitiesStage stage;
  stage.Store("OutputPath", platform::RegistryType::kString, "");
  stage.StoreFlag("Batch", true);
  stage.StoreFlag("TRCName", false);
  stage.StoreFlag("TRCSpace", false);
  stage.StoreFlag("Offset", true);
  stage.Make();
  stage.Open();
  stage.utilities.reset();
  ExpectUtilitiesJournal("panel_deleted", stage.journal.Take());
}

TEST(PanelJournal, Used) {
  UtilitiesStage stage;
  stage.Make();
  stage.Open();
  stage.journal.Take();
  for (const int control : {kFilter, kTrcName, kBatch, kBatch, kEnableOffset, kSkelderSpace,
                            kTrcSpace, kEnableOffset}) {
    stage.Page().Click(control);
  }
  ExpectUtilitiesJournal("panel_used", stage.journal.Take());
}

TEST(PanelJournal, FilesAndFoldersChosen) {
  UtilitiesStage stage;
  stage.Make();
  stage.Open();
  stage.journal.Take();
  const std::string other = stage.folder.Write("other.mnm", "");
  for (const bool chosen : {false, true}) {
    stage.desk.ChooseFiles([&](const host::ShownFileDialog&) {
      return chosen ? host::FileChoice{{other}} : host::FileChoice{};
    });
    stage.desk.ChooseFolder(
        [&](const std::string&) { return chosen ? stage.folder.Path().string() : ""; });
    stage.Page().Click(kBrowseMapping);
    stage.Page().Click(kBrowseOutput);
  }
  stage.Close();
  ExpectUtilitiesJournal("panel_browsed", stage.journal.Take());
}

TEST(PanelJournal, OffsetsReadBeforeAConversion) {
  UtilitiesStage stage;
  stage.StoreFlag("Offset", true);
  stage.Make();
  stage.Open();
  stage.desk.ChooseFiles([](const host::ShownFileDialog&) { return host::FileChoice{}; });
  stage.Page().Type(kOffsetX, "2.5");
  stage.Page().Type(kOffsetY, "nothing");
  stage.journal.Take();
  stage.Page().Click(kConvert);
  stage.Page().Click(kEnableOffset);
  stage.Page().Click(kConvert);
  stage.Close();
  ExpectUtilitiesJournal("panel_offsets", stage.journal.Take());
}

}  // namespace
}  // namespace test
