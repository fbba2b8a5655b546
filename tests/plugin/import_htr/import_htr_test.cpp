#include "plugin/import_htr/import_htr.h"

#include <gtest/gtest.h>

#include "host/scene/box_object.h"
#include "plugin/resources/resource.h"
#include "tests/plugin/import_htr/import_fixture.h"
#include "tests/support/forwarding_interface.h"

namespace orvane {
namespace {

using host::ProgressEvent;
using test::ChildNames;
using test::HtrText;
using test::KeyTicks;
using Ticks = std::vector<TimeValue>;

constexpr int kGlobal = IDC_GLOBAL_SCALE;
constexpr int kFrom = IDC_FROM;
constexpr int kTo = IDC_TO;
constexpr int kRange = IDC_RANGE;
constexpr int kOk = IDC_OK;
constexpr int kCancel = IDC_CANCEL;

TEST_F(ImportHTRTest, CreatesASkeletonUnderADummyNamedAfterTheFile) {
  options_.size = 2;
  options_.scaleFactor = 3;
  EXPECT_EQ(Import(TwoBones()), 1);
  EXPECT_EQ(ChildNames(scene().Root()), "walk");
  EXPECT_EQ(ChildNames(Node("walk")), "Hips");
  EXPECT_EQ(ChildNames(Node("Hips")), "Leg");
  const auto& dummy = dynamic_cast<const host::BoxObject&>(*Node("walk").ShownObject());
  EXPECT_EQ(dummy.Box(), Box3(Point3(-6, -6, -6), Point3(6, 6, 6)));
  EXPECT_EQ(Node("walk").WireColor(), 0x7FB2CCU);
  EXPECT_EQ(desk_.Messages(), "");
}

TEST_F(ImportHTRTest, KeysTheFramesOfTheFile) {
  EXPECT_EQ(Import(TwoBones()), 1);
  const host::PositionController& hips = Node("Hips").Transform()->Position();
  EXPECT_EQ(KeyTicks(hips), (Ticks{160, 320, 480}));
  EXPECT_EQ(hips.KeyValue(0), Point3(11, -3, 2));
  EXPECT_EQ(hips.KeyValue(2), Point3(31, -3, 2));
  EXPECT_EQ(Node("Leg").Transform()->Position().KeyValue(2), Point3(6, 0, 0));
}

struct FileName {
  const char* file;
  const char* node;
};

class DummyNameTest : public ImportHTRTest, public testing::WithParamInterface<FileName> {};

TEST_P(DummyNameTest, IsTheNameWithoutFolderAndLastExtension) {
  std::filesystem::create_directory(folder_.Path() / "takes.1");
  EXPECT_EQ(Import(folder_.Write(GetParam().file, TwoBones().Text())), 1);
  EXPECT_EQ(ChildNames(scene().Root()), GetParam().node);
}

INSTANTIATE_TEST_SUITE_P(Names, DummyNameTest,
                         testing::Values(FileName{"walk.htr", "walk"},
                                         FileName{"walk.slow.htr", "walk.slow"},
                                         FileName{"takes.1\\walk.htr", "walk"},
                                         FileName{"a b.htr", "a b"}, FileName{".htr", ""}));

TEST_F(ImportHTRTest, AFolderWithADotDoesNotCutTheName) {
  std::filesystem::create_directories(folder_.Path() / "day.1");
  folder_.Write("day.1/walk.htr", TwoBones().Text());
  EXPECT_EQ(Import(folder_.File("day.1/walk")), 1);
  EXPECT_EQ(ChildNames(scene().Root()), "walk");
}

TEST_F(ImportHTRTest, AFinishedImportLeavesTheModesAsTheyWere) {
  host::AnimationState& animation = scene().Animation();
  for (const bool on : {false, true}) {
    animation.AnimateMode().Set(on);
    animation.SetKeyMode().Set(on);
    EXPECT_EQ(Import(TwoBones()), 1);
    EXPECT_TRUE(ModesResumed());
    EXPECT_EQ(animation.AnimateMode().IsOn(), on);
    EXPECT_EQ(animation.SetKeyMode().IsOn(), on);
  }
  EXPECT_EQ(animation.AnimateMode().UnmatchedResumes(), 0U);
  EXPECT_EQ(animation.SetKeyMode().UnmatchedResumes(), 0U);
}

TEST_F(ImportHTRTest, TheHostIsPreparedBeforeTheProgressBarOpens) {
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
  EXPECT_EQ(Import(TwoBones()), 1);
  EXPECT_TRUE(seen);
}

TEST_F(ImportHTRTest, ShowsItsProgress) {
  EXPECT_EQ(Import(TwoBones()), 1);
  const std::vector<ProgressEvent>& events = application_.progress().Events();
  ASSERT_FALSE(events.empty());
  EXPECT_EQ(events.front().kind, ProgressEvent::Kind::kStart);
  EXPECT_EQ(events.front().title, "Orvane ImportHTR");
  EXPECT_TRUE(events.front().visible);
  EXPECT_EQ(events.back().kind, ProgressEvent::Kind::kEnd);
  EXPECT_EQ(events.back().title, "Orvane ImportHTR");
  for (const ProgressEvent& event : events) {
    EXPECT_EQ(event.title, "Orvane ImportHTR");
    EXPECT_TRUE(event.visible || event.kind == ProgressEvent::Kind::kEnd) << event.percent;
  }
  // Read, converted; the two segments; done.
  EXPECT_EQ(Percentages(), (std::vector<int>{0, 10, 55, 100, 100}));
}

TEST_F(ImportHTRTest, TheProgressBarClosesBeforeTheModesAreResumed) {
  bool seen = false;
  application_.progress().SetObserver([&](const ProgressEvent& event) {
    if (event.kind != ProgressEvent::Kind::kEnd) return;
    seen = true;
    EXPECT_TRUE(ModesSuspended());
  });
  EXPECT_EQ(Import(TwoBones()), 1);
  EXPECT_TRUE(seen);
}

// --- Reading ---

TEST_F(ImportHTRTest, AReadersMessageIsShownAsItStands) {
  EXPECT_EQ(Import(folder_.File("missing.htr")), 0);
  EXPECT_EQ(desk_.Messages(), "ImportHTR Error: The file could not be opened\n");
  EXPECT_TRUE(ModesSuspended());
  EXPECT_EQ(Percentages(), (std::vector<int>{0}));
  EXPECT_EQ(scene().NodeCount(), 0U);
}

TEST_F(ImportHTRTest, ADuplicateNameIsTheReadersToTell) {
  HtrText file = TwoBones();
  file.segments[1].name = "Hips";
  EXPECT_EQ(Import(file), 0);
  EXPECT_EQ(desk_.Messages(), "ImportHTR Error: The file has duplicate segment names: Hips\n");
}

class ScaleFactorTest : public ImportHTRTest, public testing::WithParamInterface<const char*> {};

TEST_P(ScaleFactorTest, AnotherFactorThan1IsWarnedOfAndIgnored) {
  HtrText file = TwoBones();
  file.scale_factor = GetParam();
  EXPECT_EQ(Import(file), 1);
  EXPECT_EQ(desk_.Messages(),
            "ImportHTR Warning: ScaleFactor is not 1.0, this plugin does not support the "
            "ScaleFactor header variable.\n");
  EXPECT_EQ(Node("Hips").Transform()->Position().KeyValue(0), Point3(11, -3, 2));
  EXPECT_TRUE(ModesResumed());
}

INSTANTIATE_TEST_SUITE_P(Factors, ScaleFactorTest, testing::Values("0.999", "1.001", "0", "-1"));

TEST_F(ImportHTRTest, AFactorOf1IsNotWarnedOf) {
  EXPECT_EQ(Import(TwoBones()), 1);
  EXPECT_EQ(desk_.Messages(), "");
}

// --- Units ---

struct Unit {
  const char* file_unit;
  double host_millimeters;  // in one system unit
  float one;                // what a length of 1 in the file becomes
};

class UnitsTest : public ImportHTRTest, public testing::WithParamInterface<Unit> {};

TEST_P(UnitsTest, LengthsAreInSystemUnits) {
  scene().SetMillimetersPerUnit(GetParam().host_millimeters);
  HtrText file;
  file.units = GetParam().file_unit;
  file.segments = {{"Hips", "GLOBAL", "1 0 0 0 0 0 1", {"1 0 0 0 0 0", "0 0 0 0 0 0"}}};
  EXPECT_EQ(Import(file), 1);
  const host::Node& hips = Node("Hips");
  EXPECT_FLOAT_EQ(hips.Properties().Find("HTRBaseTransX").value(), GetParam().one);
  EXPECT_FLOAT_EQ(hips.Properties().Find("HTRBaseLength").value(), GetParam().one);
  EXPECT_FLOAT_EQ(hips.Transform()->Position().KeyValue(0).x, 2 * GetParam().one);
}

INSTANTIATE_TEST_SUITE_P(Units, UnitsTest,
                         testing::Values(Unit{"mm", 1, 1}, Unit{"cm", 1, 10}, Unit{"m", 1, 1000},
                                         Unit{"in", 1, 25.4F}, Unit{"mm", 10, 0.1F},
                                         Unit{"m", 1000, 1}, Unit{"in", 25.4, 1},
                                         Unit{"ft", 1, 2.1166667F}));

// --- Options and dialog ---

TEST_F(ImportHTRTest, TheDialogStartsWithTheFramesOfTheFile) {
  options_.startFrame = 500;
  options_.endFrame = 600;
  HtrText file = TwoBones();
  file.first_frame = 7;
  EXPECT_EQ(ImportWith(
                [this](host::ScriptedDialog& dialog) {
                  EXPECT_EQ(dialog.Text(kFrom), "7");
                  EXPECT_EQ(dialog.Text(kTo), "9");
                  EXPECT_EQ(dialog.CenteredOver(), application_.main_window());
                  EXPECT_EQ(application_.progress().Percent(), 10);
                  dialog.Click(kOk);
                },
                file),
            1);
  EXPECT_TRUE(ModesResumed());
}

TEST_F(ImportHTRTest, CancelingTheDialogIsASuccessThatChangesNothing) {
  EXPECT_EQ(ImportWith([](host::ScriptedDialog& dialog) { dialog.Click(kCancel); }), 1);
  EXPECT_EQ(scene().NodeCount(), 0U);
  EXPECT_TRUE(ModesSuspended());
  EXPECT_EQ(desk_.Messages(), "");
  EXPECT_EQ(Percentages(), (std::vector<int>{0, 10}));
}

TEST_F(ImportHTRTest, ADialogThatCannotBeCreatedCountsAsCanceled) {
  desk_.desktop().RefuseDialog(107);
  EXPECT_EQ(Import(folder_.Write("walk.htr", TwoBones().Text()), 0), 1);
  EXPECT_EQ(scene().NodeCount(), 0U);
  EXPECT_TRUE(ModesSuspended());
}

TEST_F(ImportHTRTest, PromptsAreSuppressedByExactly1) {
  const std::string path = folder_.Write("walk.htr", TwoBones().Text());
  desk_.Expect([](host::ScriptedDialog& dialog) { dialog.Click(kCancel); });
  EXPECT_EQ(Import(path, 2), 1);
  EXPECT_EQ(scene().NodeCount(), 0U);
  EXPECT_EQ(Import(path, 1), 1);
  EXPECT_EQ(scene().NodeCount(), 3U);
}

TEST_F(ImportHTRTest, AQuietImportNeverLoadsTheRecord) {
  ImportHTROptions options;  // opened while there is a registry
  ImportHTROptions stored;
  stored.endEffectors = true;
  stored.Save();
  ImportHTR importer(options, sink_, platform::ModuleHandle());
  const std::string path = folder_.Write("walk.htr", TwoBones().Text());
  EXPECT_EQ(importer.DoImport(path.c_str(), nullptr, &interface(), 1), 1);
  EXPECT_EQ(Find("Leg_Effector"), nullptr);
  EXPECT_FALSE(options.endEffectors);
}

TEST_F(ImportHTRTest, AQuietImportUsesTheLastOptionsButTheFilesFrames) {
  EXPECT_EQ(ImportWith([](host::ScriptedDialog& dialog) {
              dialog.Click(kRange);
              dialog.Type(kFrom, "2");
              dialog.Type(kTo, "2");
              dialog.Type(kGlobal, "2");
              dialog.Click(kOk);
            }),
            1);
  EXPECT_EQ(KeyTicks(Node("Hips").Transform()->Position()), (Ticks{320}));
  // The data are the file's from its first frame on, whatever the range.
  EXPECT_EQ(Node("Hips").Transform()->Position().KeyValue(0), Point3(22, -6, 4));
  Node("Hips").SetName("Old");
  EXPECT_EQ(Import(TwoBones()), 1);
  EXPECT_EQ(KeyTicks(Node("Hips").Transform()->Position()), (Ticks{160, 320, 480}));
  EXPECT_EQ(Node("Hips").Transform()->Position().KeyValue(0), Point3(22, -6, 4));
}

TEST_F(ImportHTRTest, TheFrameRateIsTakenOverWhenAskedFor) {
  HtrText file = TwoBones();
  file.frame_rate = 120;
  EXPECT_EQ(Import(file), 1);
  EXPECT_EQ(scene().Animation().FrameRate(), 30);
  options_.setFrameRate = true;
  EXPECT_EQ(Import(file), 1);
  EXPECT_EQ(scene().Animation().FrameRate(), 120);
}

TEST_F(ImportHTRTest, KeysStandAtTheNewFrameRate) {
  options_.setFrameRate = true;
  HtrText file = TwoBones();
  file.frame_rate = 120;
  EXPECT_EQ(Import(file), 1);
  EXPECT_EQ(KeyTicks(Node("Hips").Transform()->Position()), (Ticks{40, 80, 120}));
  EXPECT_EQ(scene().Animation().Range(), Interval(40, 120));
}

// --- Frames and animation range ---

struct RangeCase {
  const char* name;
  int first_frame;
  int frames;
  bool base_position;
  bool range;
  int offset;
  Ticks keys;  // of a position
  Interval animation;
};

class AnimationRangeTest : public ImportHTRTest, public testing::WithParamInterface<RangeCase> {};

TEST_P(AnimationRangeTest, FollowsTheFirstFrameCountAndOffset) {
  const RangeCase& its = GetParam();
  HtrText file;
  file.first_frame = its.first_frame;
  file.segments = {{"Hips"}};
  for (int i = 0; i < its.frames; ++i) file.segments[0].frames.push_back("0 0 0 0 0 0");
  const int result = ImportWith(
      [&](host::ScriptedDialog& dialog) {
        if (its.range) {
          dialog.Click(kRange);
          dialog.Type(kFrom, std::to_string(its.first_frame + 1));
          dialog.Type(kTo, std::to_string(its.first_frame + 2));
        }
        if (its.base_position) dialog.Click(1017);
        dialog.Type(1089, std::to_string(its.offset));
        dialog.Click(kOk);
      },
      file);
  EXPECT_EQ(result, 1);
  EXPECT_EQ(KeyTicks(Node("Hips").Transform()->Position()), its.keys);
  EXPECT_EQ(scene().Animation().Range(), its.animation);
}

// At 30 frames a second a frame has 160 ticks; a new scene's range is 0 to 16000.
INSTANTIATE_TEST_SUITE_P(
    Cases, AnimationRangeTest,
    testing::Values(RangeCase{"All", 1, 4, false, false, 0, {160, 320, 480, 640}, {160, 640}},
                    RangeCase{"BasePosition", 1, 3, true, false, 0, {0, 160, 320, 480}, {0, 480}},
                    RangeCase{"FromFrame0", 0, 3, true, false, 0, {-160, 0, 160, 320}, {-160, 320}},
                    RangeCase{"Offset", 1, 3, false, false, 10, {1760, 1920, 2080}, {160, 2080}},
                    RangeCase{"NegativeOffset", 1, 3, false, false, -3, {-320, -160, 0}, {160, 0}},
                    // The range starts at the file's first frame even then.
                    RangeCase{"Range", 1, 4, false, true, 0, {320, 480}, {160, 320}},
                    RangeCase{"RangeWithBase", 1, 4, true, true, 5, {960, 1120, 1280}, {0, 1120}},
                    RangeCase{"OneFrame", 5, 1, true, false, 0, {640, 800}, {0, 16000}}),
    [](const auto& range_case) { return range_case.param.name; });

TEST_F(ImportHTRTest, WithoutAnimationOneFrameCountsAndTheRangeStays) {
  options_.animate = false;
  options_.keyBasePosition = true;
  scene().Animation().SetTime(960);
  EXPECT_EQ(Import(TwoBones()), 1);
  EXPECT_EQ(KeyTicks(Node("Hips").Transform()->Position()), (Ticks{960}));
  EXPECT_EQ(scene().Animation().Range(), Interval(0, 16000));
}

TEST_F(ImportHTRTest, WithNothingToKeyOnlyTheSkeletonIsMade) {
  options_.animate = false;
  EXPECT_EQ(Import(TwoBones()), 1);
  EXPECT_EQ(Node("Hips").Transform()->Position().KeyCount(), 0U);
  EXPECT_EQ(Percentages(), (std::vector<int>{0, 10, 100}));
  EXPECT_TRUE(ModesResumed());
}

TEST_F(ImportHTRTest, AFileWithoutFramesMakesASkeletonWithoutKeys) {
  HtrText file = TwoBones();
  for (HtrText::Segment& segment : file.segments) segment.frames.clear();
  EXPECT_EQ(Import(file), 1);
  EXPECT_EQ(Node("Hips").Transform()->Position().KeyCount(), 0U);
  EXPECT_EQ(scene().Animation().Range(), Interval(0, 16000));
}

TEST_F(ImportHTRTest, FrameNumbersAtTheEndsOfTimeAreNoDanger) {
  for (const int first : {2'147'483'646, -2'147'483'647}) {
    HtrText file = TwoBones();
    file.first_frame = first;
    file.segments.pop_back();
    file.segments[0].frames.resize(2);
    EXPECT_EQ(Import(file), 1) << first;
    EXPECT_EQ(Node("Hips").Transform()->Position().KeyCount(), 0U);
    Node("Hips").SetName("Old");
  }
}

}  // namespace
}  // namespace orvane
