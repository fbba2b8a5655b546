#include <gtest/gtest.h>

#include <algorithm>
#include <new>
#include <string>
#include <vector>

#include "plugin/resources/resource.h"
#include "tests/plugin/import_trc/import_fixture.h"
#include "tests/support/forwarding_interface.h"

namespace orvane {
namespace {

using host::ProgressEvent;
using test::TrcText;
using Ticks = std::vector<TimeValue>;
using Counts = std::pair<std::size_t, std::size_t>;

constexpr int kFrom = IDC_FROM;
constexpr int kTo = IDC_TO;
constexpr int kRange = IDC_RANGE;
constexpr int kGlobal = IDC_GLOBAL_SCALE;
constexpr int kOk = IDC_OK;
constexpr int kCancel = IDC_CANCEL;

// --- The order of work ---

TEST_F(ImportTRCTest, TheHostIsPreparedBeforeTheProgressBarOpens) {
  host::AnimationState& animation = scene().Animation();
  animation.AnimateMode().Set(true);
  animation.SetKeyMode().Set(true);
  application_.StartPlayback();
  bool seen = false;
  application_.progress().SetObserver([&](const ProgressEvent& event) {
    if (event.kind != ProgressEvent::Kind::kStart) return;
    seen = true;
    EXPECT_EQ(event.title, "Orvane ImportTRC");
    EXPECT_TRUE(event.visible);
    EXPECT_FALSE(application_.IsPlaybackRunning());
    EXPECT_EQ(Suspensions(), Counts(1, 1));
    EXPECT_FALSE(animation.AnimateMode().IsOn());
    EXPECT_FALSE(animation.SetKeyMode().IsOn());
  });
  Import(TwoMarkers());
  EXPECT_TRUE(seen);
  EXPECT_EQ(Suspensions(), Counts(0, 0));
  EXPECT_TRUE(animation.AnimateMode().IsOn());
  EXPECT_TRUE(animation.SetKeyMode().IsOn());
}

TEST_F(ImportTRCTest, TheProgressBarClosesBeforeTheModesAreResumed) {
  bool seen = false;
  application_.progress().SetObserver([&](const ProgressEvent& event) {
    if (event.kind != ProgressEvent::Kind::kEnd) return;
    seen = true;
    EXPECT_EQ(Suspensions(), Counts(1, 1));
  });
  Import(TwoMarkers());
  EXPECT_TRUE(seen);
}

TEST_F(ImportTRCTest, ShowsItsProgressInSinglePrecision) {
  TrcText file;
  for (int index = 0; index < 10; ++index) file.markers.push_back("m" + std::to_string(index));
  Import(file);
  // In double precision, 7 of 10 markers would be 72.
  EXPECT_EQ(Percentages(), (std::vector<int>{0, 10, 19, 28, 37, 46, 55, 64, 73, 82, 91, 100, 100}));
}

// --- What ends an import ---

TEST_F(ImportTRCTest, AReadersMessageIsShownAndTheModesStaySuspended) {
  ImportFrom(folder_.File("missing.trc"));
  EXPECT_EQ(desk_.Messages(), "ImportTRC Error: The file could not be opened\n");
  EXPECT_EQ(Suspensions(), Counts(1, 1));
  EXPECT_EQ(Percentages(), (std::vector<int>{0}));
  EXPECT_EQ(scene().NodeCount(), 0u);
}

TEST_F(ImportTRCTest, AnotherKindOfFileIsRefused) {
  ImportFrom(folder_.Write("walk.trc", "PathFileType,4,(X/Y/Z),walk.trc\r\n"));
  EXPECT_EQ(desk_.Messages(),
            "ImportTRC Error: The file is does not have a compatible \"(X/Y/Z)\" header state\n");
  EXPECT_EQ(Suspensions(), Counts(1, 1));
}

TEST_F(ImportTRCTest, UnnamedMarkersAreLeftOutWithoutAMessage) {
  TrcText file = TwoMarkers();
  file.markers[0] = "Unnamed 12";
  Import(file);
  EXPECT_EQ(SceneNames(), "RFHD");
  EXPECT_EQ(KeyValues("RFHD").front(), Point3(1, -3, 2));
  EXPECT_EQ(desk_.Messages(), "");
}

TEST_F(ImportTRCTest, AFileWithoutMarkersImportsNothing) {
  ImportFrom(folder_.Write("walk.trc", ""));
  EXPECT_EQ(scene().NodeCount(), 0u);
  EXPECT_EQ(desk_.Messages(), "");
  EXPECT_EQ(Suspensions(), Counts(0, 0));
}

TEST_F(ImportTRCTest, CancelingTheDialogChangesNothingAndLeavesTheModesSuspended) {
  ImportWith([](host::ScriptedDialog& dialog) { dialog.Click(kCancel); });
  EXPECT_EQ(scene().NodeCount(), 0u);
  EXPECT_EQ(desk_.Messages(), "");
  EXPECT_EQ(Suspensions(), Counts(1, 1));
  EXPECT_EQ(Percentages(), (std::vector<int>{0, 10}));
}

TEST_F(ImportTRCTest, CancelingTheBarKeepsTheMarkersThatAreDone) {
  application_.cancellation().AtQuery(2);
  Import(TwoMarkers());
  EXPECT_EQ(SceneNames(), "LFHD");
  EXPECT_EQ(KeyTicks("LFHD").size(), 3u);
  EXPECT_EQ(desk_.Messages(), "");
  EXPECT_EQ(Suspensions(), Counts(1, 1));
  EXPECT_EQ(application_.cancellation().Queries(), 2);
}

TEST_F(ImportTRCTest, AControllerThatRefusesAKeyEndsItWithAnimateOnAndNoMessage) {
  scene().Faults().RefuseQuery(5);  // the second key of the second marker
  Import(TwoMarkers());
  EXPECT_EQ(KeyTicks("LFHD").size(), 3u);
  EXPECT_EQ(KeyTicks("RFHD").size(), 1u);
  EXPECT_EQ(desk_.Messages(), "");
  EXPECT_EQ(Suspensions(), Counts(2, 1));
  EXPECT_TRUE(scene().Animation().AnimateMode().IsOn());
}

TEST_F(ImportTRCTest, AMarkerThatCannotBeMadeHasNoPositionController) {
  const std::string message =
      "ImportTRC Error: Position Controller Error. Please Contact Orvane Support.\n";
  test::RefusingInterface refusing(interface());
  refusing.RefuseInstance(2);
  ImportThrough(refusing);
  EXPECT_EQ(SceneNames(), "LFHD");
  EXPECT_EQ(desk_.Messages(), message);
  refusing.RefuseNode(1);
  options_.geometry = false;
  ImportThrough(refusing);
  EXPECT_EQ(SceneNames(), "LFHD");
  EXPECT_EQ(desk_.Messages(), message + message);
}

// Has the scene root, which has no controllers, selected.
class RootSelected final : public test::ForwardingInterface {
 public:
  using ForwardingInterface::ForwardingInterface;
  int GetSelNodeCount() override { return 2; }
  INode* GetSelNode(int i) override { return i == 0 ? nullptr : GetRootNode(); }
};

TEST_F(ImportTRCApplyTest, ANodeWithoutAPositionControllerIsReported) {
  RootSelected selected(interface());
  options_.selectedOnly = true;
  ImportThrough(selected);
  EXPECT_EQ(desk_.Messages(),
            "ImportTRC Error: Position Controller Error. Please Contact Orvane Support.\n");
  EXPECT_EQ(Suspensions(), Counts(1, 1));
}

TEST_F(ImportTRCTest, ARootNodeThatCannotBeMadeEndsIt) {
  options_.rootNode = true;
  test::RefusingInterface refusing(interface());
  refusing.RefuseInstance(1);
  ImportThrough(refusing);
  EXPECT_EQ(scene().NodeCount(), 0u);
  EXPECT_EQ(Suspensions(), Counts(1, 1));
}

class ThrowingInterface final : public test::ForwardingInterface {
 public:
  using ForwardingInterface::ForwardingInterface;
  bool GetCancel() override { throw std::bad_alloc(); }
};

TEST_F(ImportTRCTest, AnExceptionIsToldAndClosesTheProgressBar) {
  ThrowingInterface throwing(interface());
  ImportThrough(throwing);
  EXPECT_EQ(desk_.Messages(), "ImportTRC Error: There is not enough memory to import the file.\n");
  EXPECT_FALSE(application_.progress().IsOpen());
}

// --- The dialog ---

TEST_F(ImportTRCTest, TheDialogStartsWithTheFramesOfTheFile) {
  options_.startFrame = 500;
  options_.endFrame = 600;
  TrcText file = TwoMarkers();
  file.first_frame = 7;
  ImportWith(
      [this](host::ScriptedDialog& dialog) {
        EXPECT_EQ(dialog.Text(kFrom), "7");
        EXPECT_EQ(dialog.Text(kTo), "9");
        EXPECT_EQ(dialog.CenteredOver(), application_.main_window());
        EXPECT_EQ(application_.progress().Percent(), 10);
        dialog.Click(kOk);
      },
      file);
  EXPECT_EQ(Suspensions(), Counts(0, 0));
}

TEST_F(ImportTRCTest, PromptsAreSuppressedByExactly1) {
  const std::string path = folder_.Write("walk.trc", TwoMarkers().Text());
  desk_.Expect([](host::ScriptedDialog& dialog) { dialog.Click(kCancel); });
  ImportFrom(path, 2);
  EXPECT_EQ(scene().NodeCount(), 0u);
  ImportFrom(path, 1);
  EXPECT_EQ(scene().NodeCount(), 2u);
}

TEST_F(ImportTRCTest, AQuietImportUsesTheLastOptionsButTheFilesFrames) {
  ImportWith([](host::ScriptedDialog& dialog) {
    dialog.Click(kRange);
    dialog.Type(kFrom, "2");
    dialog.Type(kTo, "2");
    dialog.Type(kGlobal, "2");
    dialog.Click(kOk);
  });
  EXPECT_EQ(KeyTicks("LFHD"), (Ticks{320}));
  EXPECT_EQ(KeyValues("LFHD").front(), Point3(8, -12, 10));
  Node("LFHD").SetName("old");
  Import(TwoMarkers());
  EXPECT_EQ(KeyTicks("LFHD"), (Ticks{160, 320, 480}));
  EXPECT_EQ(KeyValues("LFHD").front(), Point3(2, -6, 4));
}

TEST_F(ImportTRCTest, WithoutARangeTheFirstFrameThatWasTypedStillCounts) {
  ImportWith([](host::ScriptedDialog& dialog) {
    dialog.Click(kRange);
    dialog.Type(kFrom, "2");
    dialog.Click(1067);
    dialog.Click(kOk);
  });
  EXPECT_EQ(KeyTicks("LFHD"), (Ticks{320, 480, 640}));
  EXPECT_EQ(KeyValues("LFHD"), (std::vector<Point3>{{4, -6, 5}, {7, -9, 8}, {0, 0, 0}}));
}

TEST_F(ImportTRCTest, OneImporterCanImportAgainAfterAFailure) {
  application_.cancellation().AtQuery(2);
  Import(TwoMarkers());
  application_.cancellation().Clear();
  Node("LFHD").SetName("old");
  Import({.markers = {"other"}, .frames = {{"1\t2\t3"}, {"1\t2\t3"}}});
  EXPECT_EQ(SceneNames(), "old other");
  EXPECT_EQ(KeyTicks("other"), (Ticks{160, 320}));
}

// --- Bad input ---

TEST_F(ImportTRCTest, AFileCutAtAnyByteIsImportedOrNot) {
  TrcText file = TwoMarkers();
  file.line_end = "\r\r\n";
  const std::string text = file.Text();
  for (std::size_t length = 0; length < text.size(); ++length) {
    ImportFrom(folder_.Write("walk.trc", text.substr(0, length)));
    EXPECT_FALSE(application_.progress().IsOpen()) << length;
  }
  EXPECT_GT(scene().NodeCount(), 0u);
}

TEST_F(ImportTRCTest, NumbersThatAreNoneAreKeyedAsTheyAreRead) {
  for (const char* odd : {"1e999", "-1e999", "1e300", "nan", "abc", "--5", "1e-999"}) {
    TrcText file{.markers = {"a"}, .frames = {{std::string(odd) + "\t" + odd + "\t" + odd}}};
    Import(file);
    EXPECT_EQ(KeyTicks("a"), (Ticks{160})) << odd;
    Node("a").SetName("old");
  }
}

TEST_F(ImportTRCTest, OfFarTooManyFramesARangeCanBeImported) {
  TrcText file = TwoMarkers();
  file.frame_count = 2'147'483'647;
  ImportWith(
      [](host::ScriptedDialog& dialog) {
        dialog.Click(kRange);
        dialog.Type(kTo, "3");
        dialog.Click(kOk);
      },
      file);
  EXPECT_EQ(KeyTicks("LFHD"), (Ticks{160, 320, 480}));
}

TEST_F(ImportTRCTest, AnswersForItself) {
  EXPECT_EQ(importer_.ExtCount(), 1);
  EXPECT_STREQ(importer_.Ext(5), "TRC");
  EXPECT_STREQ(importer_.LongDesc(), "Orvane TRC Optical Marker Tracking File");
  EXPECT_STREQ(importer_.ShortDesc(), "Orvane TRC File");
  EXPECT_EQ(importer_.Version(), 300u);
}

}  // namespace
}  // namespace orvane
