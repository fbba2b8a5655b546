#include "plugin/export_htr/export_htr.h"

#include <new>
#include <string>

#include "plugin/resources/resource.h"
#include "tests/plugin/export_htr/export_fixture.h"
#include "tests/support/files.h"
#include "tests/support/forwarding_interface.h"

namespace orvane {
namespace {

using host::ProgressEvent;

constexpr int kFrom = IDC_FROM;
constexpr int kTo = IDC_TO;
constexpr int kSlider = IDC_SLIDER;
constexpr int kRange = IDC_RANGE;
constexpr int kGlobal = IDC_GLOBAL_SCALE;
constexpr int kOffset = IDC_OFFSET;
constexpr int kOk = IDC_OK;
constexpr int kCancel = IDC_CANCEL;
constexpr int kCurrentPose = IDC_CURRENT_POSE;

TEST_F(ExportHTRTest, WritesTheSelectedSkeleton) {
  MakeSkeleton();
  EXPECT_EQ(Export(), 1);
  EXPECT_EQ(desk_.Messages(), "");
  EXPECT_TRUE(ModesResumed());
  EXPECT_EQ(WithoutSignedZeros(test::ReadFile(Path())),
            "# Orvane HTR (source:OrvaneFileLib v1.10)\r\n"
            "[Header]\r\n"
            "# KeyWord<space>Value<CR>\r\n"
            "FileType htr\r\n"
            "DataType HTRS\r\n"
            "FileVersion 1\r\n"
            "NumSegments 2\r\n"
            "NumFrames 3\r\n"
            "DataFrameRate 30\r\n"
            "EulerRotationOrder ZYX\r\n"
            "CalibrationUnits mm\r\n"
            "RotationUnits Degrees\r\n"
            "GlobalAxisofGravity Y\r\n"
            "BoneLengthAxis Y\r\n"
            "ScaleFactor 1.00\r\n"
            "[SegmentNames&Hierarchy]\r\n"
            "# ObjectName<tab>ParentObjectName<CR>\r\n"
            "Hips\tGLOBAL\r\n"
            "Leg\tHips\r\n"
            "[BasePosition]\r\n"
            "# ObjectName<tab>Tx<tab>Ty<tab>Tz<tab>Rx<tab>Ry<tab>Rz<tab>BoneLength<CR>\r\n"
            "Hips\t1.000000\t3.000000\t-2.000000\t180.000000\t0.000000\t90.000000\t4.000000\r\n"
            "Leg\t0.000000\t4.000000\t0.000000\t0.000000\t0.000000\t0.000000\t5.000000\r\n"
            "[Hips]\r\n"
            "# Tx<tab>Ty<tab>Tz<tab>Rx<tab>Ry<tab>Rz<tab>BoneScaleFactor<CR>\r\n"
            "0\t0.000000\t0.000000\t0.000000\t0.000000\t0.000000\t0.000000\t1.000000\r\n"
            "1\t0.000000\t0.000000\t0.000000\t0.000000\t0.000000\t0.000000\t1.000000\r\n"
            "2\t0.000000\t0.000000\t0.000000\t0.000000\t0.000000\t0.000000\t1.000000\r\n"
            "[Leg]\r\n"
            "# Tx<tab>Ty<tab>Tz<tab>Rx<tab>Ry<tab>Rz<tab>BoneScaleFactor<CR>\r\n"
            "0\t0.000000\t0.000000\t0.000000\t0.000000\t0.000000\t0.000000\t1.000000\r\n"
            "1\t0.000000\t0.000000\t0.000000\t0.000000\t0.000000\t0.000000\t1.000000\r\n"
            "2\t0.000000\t0.000000\t0.000000\t0.000000\t0.000000\t0.000000\t1.000000\r\n"
            "[EndOfFile]\r\n");
}

// --- Order of work ---

TEST_F(ExportHTRTest, AFinishedExportLeavesTheModesAsTheyWere) {
  MakeSkeleton();
  host::AnimationState& animation = scene().Animation();
  for (const bool on : {false, true}) {
    animation.AnimateMode().Set(on);
    animation.SetKeyMode().Set(on);
    EXPECT_EQ(Export(), 1);
    EXPECT_TRUE(ModesResumed());
    EXPECT_EQ(animation.AnimateMode().IsOn(), on);
    EXPECT_EQ(animation.SetKeyMode().IsOn(), on);
  }
  EXPECT_EQ(animation.AnimateMode().UnmatchedResumes(), 0U);
  EXPECT_EQ(animation.SetKeyMode().UnmatchedResumes(), 0U);
}

TEST_F(ExportHTRTest, TheHostIsPreparedBeforeTheProgressBarOpens) {
  MakeSkeleton();
  host::AnimationState& animation = scene().Animation();
  animation.AnimateMode().Set(true);
  animation.SetKeyMode().Set(true);
  application_.StartPlayback();
  bool seen = false;
  application_.progress().SetObserver([&](const ProgressEvent& event) {
    if (event.kind != ProgressEvent::Kind::kStart) return;
    seen = true;
    EXPECT_FALSE(application_.IsPlaybackRunning());
    EXPECT_TRUE(ModesSuspended());
    EXPECT_FALSE(animation.AnimateMode().IsOn());
    EXPECT_FALSE(animation.SetKeyMode().IsOn());
  });
  EXPECT_EQ(Export(), 1);
  EXPECT_TRUE(seen);
}

TEST_F(ExportHTRTest, ShowsItsProgress) {
  MakeSkeleton();
  EXPECT_EQ(Export(), 1);
  const std::vector<ProgressEvent>& events = application_.progress().Events();
  ASSERT_FALSE(events.empty());
  EXPECT_EQ(events.front().kind, ProgressEvent::Kind::kStart);
  EXPECT_EQ(events.front().title, "Orvane ExportHTR");
  EXPECT_TRUE(events.front().visible);
  EXPECT_EQ(events.back().kind, ProgressEvent::Kind::kEnd);
  // Started; the two bones; sampled; written.
  EXPECT_EQ(Percentages(), (std::vector<int>{0, 90, 90, 90, 100}));
}

TEST_F(ExportHTRTest, TheProgressBarClosesBeforeTheModesAreResumed) {
  MakeSkeleton();
  bool seen = false;
  application_.progress().SetObserver([&](const ProgressEvent& event) {
    if (event.kind != ProgressEvent::Kind::kEnd) return;
    seen = true;
    EXPECT_TRUE(ModesSuspended());
  });
  EXPECT_EQ(Export(), 1);
  EXPECT_TRUE(seen);
}

// Looks at what the exporter gives the host to poll.
class PollingInterface final : public test::ForwardingInterface {
 public:
  using ForwardingInterface::ForwardingInterface;

  bool ProgressStart(const char* title, bool show_bar, ProgressCallback callback,
                     void* argument) override {
    answer_ = callback == nullptr ? -1 : static_cast<int>(callback(argument));
    return ForwardingInterface::ProgressStart(title, show_bar, callback, argument);
  }

  int answer_ = -1;
};

TEST_F(ExportHTRTest, ItsCancelCallbackAlwaysGoesOn) {
  MakeSkeleton();
  PollingInterface polling(interface());
  EXPECT_EQ(exporter_.DoExport(Path().c_str(), nullptr, &polling, 1, 0), 1);
  EXPECT_EQ(polling.answer_, 0);
}

// --- Options and dialog ---

TEST_F(ExportHTRTest, TheDialogStartsWithTheFramesOfTheAnimationRange) {
  MakeSkeleton();
  SetRange(7 * 160, 9 * 160);
  options_.startFrame = 500;
  options_.endFrame = 600;
  EXPECT_EQ(ExportWith([this](host::ScriptedDialog& dialog) {
              EXPECT_EQ(dialog.Text(kFrom), "7");
              EXPECT_EQ(dialog.Text(kTo), "9");
              EXPECT_EQ(dialog.CenteredOver(), application_.main_window());
              EXPECT_EQ(application_.progress().Percent(), 0);
              dialog.Click(kOk);
            }),
            1);
  EXPECT_TRUE(ModesResumed());
  EXPECT_EQ(Written().GetStartFrame(), 7);
}

TEST_F(ExportHTRTest, ARangeOffAFrameIsTruncatedTowardsZero) {
  MakeSkeleton();
  SetRange(-250, 499);
  EXPECT_EQ(ExportWith([](host::ScriptedDialog& dialog) {
              EXPECT_EQ(dialog.Text(kFrom), "-1");
              EXPECT_EQ(dialog.Text(kTo), "3");
              dialog.Click(kOk);
            }),
            1);
  EXPECT_EQ(Written().GetStartFrame(), -1);
  EXPECT_EQ(Written().GetNumFrames(), 5U);
}

TEST_F(ExportHTRTest, CancelingTheDialogIsASuccessThatWritesNothing) {
  MakeSkeleton();
  EXPECT_EQ(ExportWith([](host::ScriptedDialog& dialog) { dialog.Click(kCancel); }), 1);
  EXPECT_FALSE(IsWritten());
  EXPECT_TRUE(ModesSuspended());
  EXPECT_EQ(desk_.Messages(), "");
  EXPECT_EQ(Percentages(), (std::vector<int>{0}));
}

TEST_F(ExportHTRTest, TheDialogComesBeforeTheSelectionIsLookedAt) {
  EXPECT_EQ(ExportWith([](host::ScriptedDialog& dialog) { dialog.Click(kCancel); }), 1);
  EXPECT_EQ(desk_.Messages(), "");
}

TEST_F(ExportHTRTest, ADialogThatCannotBeCreatedCountsAsCanceled) {
  MakeSkeleton();
  desk_.desktop().RefuseDialog(126);
  EXPECT_EQ(Export(0), 1);
  EXPECT_FALSE(IsWritten());
  EXPECT_TRUE(ModesSuspended());
}

TEST_F(ExportHTRTest, PromptsAreSuppressedByAnythingButZero) {
  MakeSkeleton();
  for (const int suppress : {1, 2, -1}) EXPECT_EQ(Export(suppress), 1) << suppress;
}

TEST_F(ExportHTRTest, WithoutPromptsTheRecordIsUsedAsItStandsInMemory) {
  MakeSkeleton();
  ExportHTROptions stored;
  stored.animate = false;
  stored.frameOffset = 50;
  stored.Save();
  EXPECT_EQ(Export(), 1);
  EXPECT_EQ(Written().GetNumFrames(), 3U);
  EXPECT_EQ(Written().GetStartFrame(), 0);
}

TEST_F(ExportHTRTest, WithoutPromptsTheLastOptionsAreUsedButTheFramesOfTheAnimationRange) {
  MakeSkeleton();
  SetRange(0, 1600);
  EXPECT_EQ(ExportWith([](host::ScriptedDialog& dialog) {
              dialog.Click(kRange);
              dialog.Click(kCurrentPose);
              dialog.Type(kFrom, "2");
              dialog.Type(kTo, "3");
              dialog.Type(kOffset, "10");
              dialog.Type(kGlobal, "2");
              dialog.Click(kOk);
            }),
            1);
  EXPECT_EQ(Written().GetStartFrame(), 12);
  EXPECT_EQ(Written().GetNumFrames(), 2U);
  EXPECT_EQ(WrittenSegment("Leg").GetBoneLength(), 10.0);
  EXPECT_EQ(Export(), 1);
  EXPECT_EQ(Written().GetStartFrame(), 10);
  EXPECT_EQ(Written().GetNumFrames(), 11U);
  EXPECT_EQ(WrittenSegment("Leg").GetBoneLength(), 10.0);
}

// The file announces the frames of the dialog and holds the first of the range.
TEST_F(ExportHTRTest, TheNumberOfFramesFollowsTheDialogEvenUnderSlider) {
  MakeSkeleton();
  SetRange(0, 1600);
  EXPECT_EQ(ExportWith([](host::ScriptedDialog& dialog) {
              dialog.Click(kRange);
              dialog.Type(kFrom, "2");
              dialog.Type(kTo, "3");
              dialog.Click(kSlider);
              dialog.Click(kOk);
            }),
            1);
  EXPECT_EQ(Written().GetNumFrames(), 2U);
  EXPECT_EQ(Written().GetStartFrame(), 0);
  EXPECT_EQ(WrittenSegment("Hips").GetNumFrames(), 2U);
}

TEST_F(ExportHTRTest, WithoutAnimationTheFileHoldsOneFrameAtTheBase) {
  MakeSkeleton();
  options_.animate = false;
  options_.frameOffset = 10;
  EXPECT_EQ(Export(), 1);
  EXPECT_EQ(Written().GetNumFrames(), 1U);
  EXPECT_EQ(Written().GetStartFrame(), 1);
  test::ExpectVector(WrittenSegment("Hips").GetFramePosition(0), 1, 3, -2);
}

TEST_F(ExportHTRTest, ARangeThatEndsBeforeItStartsHasNoFrames) {
  MakeSkeleton();
  SetRange(1600, 160);
  EXPECT_EQ(Export(), 1);
  EXPECT_EQ(Written().GetNumFrames(), 1U);
  EXPECT_EQ(Written().GetStartFrame(), 1);
  EXPECT_LT(std::filesystem::file_size(Path()), 2000U);
}

// --- Header and units ---

TEST_F(ExportHTRTest, TheFrameRateIsThatOfTheTicks) {
  MakeSkeleton();
  // 29 frames a second are 165 ticks each, and so many give 29 again; 4799 are 1, which gives 4800.
  for (const auto& [rate, written] : {std::pair(30, 30), {1, 1}, {29, 29}, {4799, 4800}}) {
    scene().Animation().SetFrameRate(rate);
    SetRange(0, scene().Animation().TicksPerFrame());
    EXPECT_EQ(Export(), 1);
    EXPECT_EQ(Written().GetDataFrameRate(), written) << rate;
  }
}

TEST_F(ExportHTRTest, LengthsAreInMillimetersTimesTheGlobalScale) {
  MakeSkeleton();
  scene().SetMillimetersPerUnit(25.4);
  options_.scaleFactor = -2;
  EXPECT_EQ(Export(), 1);
  EXPECT_EQ(Written().GetCalibrationUnits(), 0U);
  const HtrSegment& leg = WrittenSegment("Leg");
  EXPECT_NEAR(leg.GetBoneLength(), -2 * 25.4 * 5, 1e-5);
  test::ExpectVector(leg.GetBaseTranslation(), 0, -2 * 25.4 * 4, 0, 1e-5);
}

// --- Failures ---

TEST_F(ExportHTRTest, NothingSelected) {
  AddBone("Hips");
  EXPECT_EQ(Export(), 0);
  EXPECT_EQ(desk_.Messages(),
            "Export Error: Please select the root bone of the skeleton you wish to export\n");
  EXPECT_FALSE(IsWritten());
  EXPECT_TRUE(ModesSuspended());
  EXPECT_EQ(Percentages(), (std::vector<int>{0}));
}

TEST_F(ExportHTRTest, NoBoneSelected) {
  scene().Select(AddDummy("Helper"));
  EXPECT_EQ(Export(), 0);
  EXPECT_EQ(desk_.Messages(), "Export Error: Please select a Skelder 4 bone object to export\n");
  EXPECT_TRUE(ModesSuspended());
}

TEST_F(ExportHTRTest, ARefusedRootFails) {
  MakeSkeleton();
  scene().FindByName("Hips")->SetName("My Hips");
  EXPECT_EQ(Export(), 0);
  EXPECT_EQ(desk_.Messages(),
            "ExportHTR Error: There are multiple identical names or spaces in a bone name.\n");
  EXPECT_FALSE(IsWritten());
  EXPECT_TRUE(ModesSuspended());
}

TEST_F(ExportHTRTest, ARootThatIsAnEffectorLeavesNothingToWrite) {
  scene().Select(AddBone("Hand_Effector"));
  EXPECT_EQ(Export(), 0);
  EXPECT_EQ(desk_.Messages(), "ExportHTR Error: No segments to write\n");
  EXPECT_FALSE(IsWritten());
  EXPECT_TRUE(ModesSuspended());
  EXPECT_EQ(Percentages(), (std::vector<int>{0, 90}));
}

TEST_F(ExportHTRTest, TheWritersMessageIsShownAsItStands) {
  MakeSkeleton();
  const std::string path = folder_.File("nowhere/walk.htr");
  EXPECT_EQ(exporter_.DoExport(path.c_str(), nullptr, &interface(), 1, 0), 0);
  EXPECT_EQ(desk_.Messages(), "ExportHTR Error: The file could not be opened\n");
  EXPECT_TRUE(ModesSuspended());
  EXPECT_EQ(Percentages(), (std::vector<int>{0, 90, 90, 90}));
}

// Without memory for the whole of it.
class FullInterface final : public test::ForwardingInterface {
 public:
  using ForwardingInterface::ForwardingInterface;
  Interval GetAnimRange() override { throw std::bad_alloc(); }
};

TEST_F(ExportHTRTest, RunningOutOfMemoryIsToldAndClosesTheProgressBar) {
  MakeSkeleton();
  FullInterface full(interface());
  EXPECT_EQ(exporter_.DoExport(Path().c_str(), nullptr, &full, 1, 0), 0);
  EXPECT_EQ(desk_.Messages(),
            "ExportHTR Error: There is not enough memory to export the skeleton.\n");
  EXPECT_FALSE(IsWritten());
  EXPECT_FALSE(application_.progress().IsOpen());
  EXPECT_TRUE(ModesSuspended());
}

// A failed export keeps its document; the next one starts from an empty one.
TEST_F(ExportHTRTest, AnExportStartsFromAnEmptyDocument) {
  MakeSkeleton();
  const std::string path = folder_.File("nowhere/walk.htr");
  EXPECT_EQ(exporter_.DoExport(path.c_str(), nullptr, &interface(), 1, 0), 0);
  options_.animate = false;
  EXPECT_EQ(Export(), 1);
  EXPECT_EQ(Written().GetNumSegments(), 2);
  EXPECT_EQ(Written().GetNumFrames(), 1U);
  EXPECT_EQ(Export(), 1);
  EXPECT_EQ(Written().GetNumSegments(), 2);
}

TEST_F(ExportHTRTest, BonesOfLength0LeaveNoNumberThatIsNone) {
  MakeSkeleton();
  for (const char* name : {"Hips", "Leg"}) {
    host::Node& bone = *scene().FindByName(name);
    test::SetBoneLength(bone, 0);
    KeepBase(bone, {0, 0, 0, 0, 0, 0, 0});
  }
  for (const bool saved : {true, false}) {
    options_.savedPose = saved;
    EXPECT_EQ(Export(), 1);
    const std::string text = test::ReadFile(Path());
    EXPECT_EQ(text.find("nan"), std::string::npos);
    EXPECT_EQ(text.find("inf"), std::string::npos);
  }
}

}  // namespace
}  // namespace orvane
