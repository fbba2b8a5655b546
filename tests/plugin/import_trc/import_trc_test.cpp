#include "plugin/import_trc/import_trc.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "host/scene/box_object.h"
#include "host/scene/point_helper.h"
#include "host/scene/sphere_object.h"
#include "plugin/resources/resource.h"
#include "tests/plugin/import_trc/import_fixture.h"

namespace orvane {
namespace {

using test::TrcText;
using Ticks = std::vector<TimeValue>;
using Counts = std::pair<std::size_t, std::size_t>;

constexpr int kFrom = IDC_FROM;
constexpr int kTo = IDC_TO;
constexpr int kRange = IDC_RANGE;
constexpr int kOk = IDC_OK;

// --- The cloud ---

TEST_F(ImportTRCTest, CreatesASphereForEachMarkerInTheOrderOfTheFile) {
  options_.size = 3;
  options_.scaleFactor = 2;
  Import(TwoMarkers());
  EXPECT_EQ(SceneNames(), "LFHD RFHD");
  const auto& sphere = dynamic_cast<const host::SphereObject&>(*Node("LFHD").ShownObject());
  EXPECT_EQ(sphere.Radius(), 3.0F);
  EXPECT_EQ(sphere.Parameter(1), 10);
  EXPECT_EQ(sphere.Parameter(2), 1);
  EXPECT_EQ(sphere.Parameter(3), 0.0);
  EXPECT_EQ(sphere.Parameter(6), 1);
  EXPECT_EQ(Node("LFHD").WireColor(), 0x3333CCU);
  EXPECT_EQ(desk_.Messages(), "");
}

TEST_F(ImportTRCTest, CreatesPointsThatAreScaled) {
  options_.geometry = false;
  options_.size = 3;
  options_.scaleFactor = 2;
  Import(TwoMarkers());
  EXPECT_EQ(SceneNames(), "LFHD RFHD");
  EXPECT_NE(dynamic_cast<const host::PointHelper*>(Node("LFHD").ShownObject()), nullptr);
  EXPECT_EQ(Node("LFHD").Transform()->Scale().ValueAt(0), Point3(1.5F, 1.5F, 1.5F));
  EXPECT_EQ(Node("LFHD").Transform()->Scale().KeyCount(), 0u);
  EXPECT_EQ(Node("LFHD").WireColor(), 0x3333CCU);
}

TEST_F(ImportTRCTest, GroupsTheMarkersUnderARootNode) {
  options_.rootNode = true;
  options_.size = 2;
  options_.scaleFactor = 3;
  Import(TwoMarkers());
  EXPECT_EQ(SceneNames(), "TRCCloud");
  EXPECT_EQ(ChildNames(Node("TRCCloud")), "LFHD RFHD");
  const auto& box = dynamic_cast<const host::BoxObject&>(*Node("TRCCloud").ShownObject());
  EXPECT_EQ(box.Box(), Box3(Point3(-6, -6, -6), Point3(6, 6, 6)));
  Import(TwoMarkers());
  EXPECT_EQ(SceneNames(), "TRCCloud TRCCloud001");
}

TEST_F(ImportTRCTest, NamesNewMarkersAsTheFileDoesEvenIfTheNameIsTaken) {
  AddNode("LFHD");
  Import(TwoMarkers());
  EXPECT_EQ(SceneNames(), "LFHD LFHD RFHD");
}

// --- Keys ---

TEST_F(ImportTRCTest, KeysEveryFrameWithZUpAndDropoutsAtTheOrigin) {
  Import(TwoMarkers());
  EXPECT_EQ(KeyTicks("LFHD"), (Ticks{160, 320, 480}));
  EXPECT_EQ(KeyValues("LFHD"), (std::vector<Point3>{{1, -3, 2}, {4, -6, 5}, {7, -9, 8}}));
  EXPECT_EQ(KeyTicks("RFHD"), (Ticks{160, 320, 480}));
  EXPECT_EQ(KeyValues("RFHD"), (std::vector<Point3>{{10, -30, 20}, {0, 0, 0}, {40, -60, 50}}));
}

TEST_F(ImportTRCTest, MultipliesPositionsByTheGlobalScale) {
  options_.scaleFactor = -0.5;
  Import(TwoMarkers());
  EXPECT_EQ(KeyValues("LFHD").front(), Point3(-0.5F, 1.5F, -1));
}

struct Unit {
  const char* file_unit;
  double host_millimeters;  // in one system unit
  float one;                // what a length of 1 in the file becomes
};

class TRCSystemUnitsTest : public ImportTRCTest, public testing::WithParamInterface<Unit> {};

TEST_P(TRCSystemUnitsTest, PositionsAreInSystemUnits) {
  scene().SetMillimetersPerUnit(GetParam().host_millimeters);
  TrcText file{.markers = {"a"}, .frames = {{"1\t0\t0"}, {""}}};
  file.units = GetParam().file_unit;
  Import(file);
  EXPECT_FLOAT_EQ(KeyValues("a")[0].x, GetParam().one);
  EXPECT_EQ(KeyValues("a")[1], Point3(0, 0, 0));
}

INSTANTIATE_TEST_SUITE_P(Units, TRCSystemUnitsTest,
                         testing::Values(Unit{"mm", 1, 1}, Unit{"cm", 1, 10}, Unit{"m", 1, 1000},
                                         Unit{"in", 1, 25.4F}, Unit{"mm", 10, 0.1F},
                                         Unit{"m", 1000, 1}, Unit{"ft", 1, 2.1166667F}));

TEST_F(ImportTRCTest, ClearsEveryTickOfTheFramesItKeys) {
  host::Node& node = AddNode("LFHD");
  scene().Select(node);
  options_.apply = true;
  scene().Animation().AnimateMode().Set(true);
  const Point3 old(9, 9, 9);
  for (const TimeValue tick : {159, 160, 161, 319, 639, 640}) {
    node.Transform()->Position().SetValue(tick, &old, 1, CTRL_ABSOLUTE);
  }
  Import(TwoMarkers());
  EXPECT_EQ(KeyTicks("LFHD"), (Ticks{159, 160, 320, 480, 640}));
}

TEST_F(ImportTRCTest, KeysARangeWithAnOffsetFromTheSamplesOfThatRange) {
  TrcText file{.markers = {"a"}};
  for (int frame = 1; frame <= 30; ++frame) {
    file.frames.push_back({std::to_string(frame) + "\t0\t0"});
  }
  ImportWith(
      [](host::ScriptedDialog& dialog) {
        dialog.Click(kRange);
        dialog.Type(kFrom, "10");
        dialog.Type(kTo, "20");
        dialog.Type(1089, "5");
        dialog.Click(kOk);
      },
      file);
  const Ticks ticks = KeyTicks("a");
  ASSERT_EQ(ticks.size(), 11u);
  EXPECT_EQ(ticks.front(), 15 * 160);
  EXPECT_EQ(ticks.back(), 25 * 160);
  EXPECT_EQ(KeyValues("a").front(), Point3(10, 0, 0));
  EXPECT_EQ(KeyValues("a").back(), Point3(20, 0, 0));
  EXPECT_EQ(scene().Animation().Range(), Interval(160, (5 + 11 + 1) * 160));
}

TEST_F(ImportTRCTest, FramesAreCountedFromTheFilesFirst) {
  TrcText file = TwoMarkers();
  file.first_frame = 101;
  Import(file);
  EXPECT_EQ(KeyTicks("LFHD"), (Ticks{101 * 160, 102 * 160, 103 * 160}));
  EXPECT_EQ(KeyValues("LFHD").front(), Point3(1, -3, 2));
  EXPECT_EQ(scene().Animation().Range(), Interval(160, 4 * 160));
}

TEST_F(ImportTRCTest, AnnouncedFramesThatAreMissingAreKeyedAtTheOrigin) {
  TrcText file = TwoMarkers();
  file.frame_count = 5;
  Import(file);
  EXPECT_EQ(KeyTicks("LFHD"), (Ticks{160, 320, 480, 640, 800}));
  EXPECT_EQ(KeyValues("LFHD")[2], Point3(7, -9, 8));
  EXPECT_EQ(KeyValues("LFHD")[3], Point3(0, 0, 0));
}

TEST_F(ImportTRCTest, FramesBeyondTheAnnouncedAreNotKeyed) {
  TrcText file = TwoMarkers();
  file.frame_count = 2;
  Import(file);
  EXPECT_EQ(KeyTicks("LFHD"), (Ticks{160, 320}));
}

class TRCFrameCountTest : public ImportTRCTest, public testing::WithParamInterface<int> {};

TEST_P(TRCFrameCountTest, OfNoneMakesNoKeysAndLeavesTheRange) {
  const Interval before = scene().Animation().Range();
  std::string bytes = TwoMarkers().Text();
  bytes.replace(bytes.find("\t3\t2\tmm"), 2, "\t" + std::to_string(GetParam()));
  ImportFrom(folder_.Write("walk.trc", bytes));
  EXPECT_EQ(SceneNames(), "LFHD RFHD");
  EXPECT_EQ(KeyTicks("LFHD"), Ticks());
  EXPECT_EQ(scene().Animation().Range(), before);
  EXPECT_EQ(Suspensions(), Counts(0, 0));
}

INSTANTIATE_TEST_SUITE_P(Counts, TRCFrameCountTest, testing::Values(0, -5));

TEST_F(ImportTRCTest, OneFrameIsKeyedAndLeavesTheRange) {
  const Interval before = scene().Animation().Range();
  Import({.markers = {"a"}, .frames = {{"1\t2\t3"}}});
  EXPECT_EQ(KeyTicks("a"), (Ticks{160}));
  EXPECT_EQ(scene().Animation().Range(), before);
}

TEST_F(ImportTRCTest, OneFrameOfAFileOfSeveralSetsTheRange) {
  ImportWith([](host::ScriptedDialog& dialog) {
    dialog.Click(kRange);
    dialog.Type(kFrom, "2");
    dialog.Type(kTo, "2");
    dialog.Click(kOk);
  });
  EXPECT_EQ(KeyTicks("LFHD"), (Ticks{2 * 160}));
  EXPECT_EQ(scene().Animation().Range(), Interval(160, 2 * 160));
}

TEST_F(ImportTRCTest, TheRangeGoesFromFrame1ToOneBehindTheLast) {
  Import(TwoMarkers());
  EXPECT_EQ(scene().Animation().Range(), Interval(160, 4 * 160));
}

TEST_F(ImportTRCTest, FrameNumbersAtTheEndsOfTimeAreNoDanger) {
  for (const std::int64_t first : {std::int64_t{2'147'483'647}, std::int64_t{-2'147'483'647}}) {
    TrcText file = TwoMarkers();
    file.first_frame = first;
    Import(file);
    EXPECT_EQ(KeyTicks("LFHD"), Ticks());
    Node("LFHD").SetName("old");
  }
}

TEST_F(ImportTRCTest, TheFrameRateIsTakenOverWhenAskedFor) {
  TrcText file = TwoMarkers();
  file.data_rate = "119.88";
  Import(file);
  EXPECT_EQ(scene().Animation().FrameRate(), 30);
  Node("LFHD").SetName("old");
  options_.setFrameRate = true;
  Import(file);
  EXPECT_EQ(scene().Animation().FrameRate(), 119);
  const TimeValue frame = scene().Animation().TicksPerFrame();
  EXPECT_EQ(KeyTicks("LFHD"), (Ticks{frame, 2 * frame, 3 * frame}));
  EXPECT_EQ(scene().Animation().Range(), Interval(frame, 4 * frame));
}

TEST_F(ImportTRCTest, ARateOf0IsHeldToTheHostsBounds) {
  TrcText file = TwoMarkers();
  file.data_rate = "0";
  options_.setFrameRate = true;
  Import(file);
  EXPECT_EQ(scene().Animation().FrameRate(), 1);
  EXPECT_EQ(KeyTicks("LFHD"), (Ticks{4800, 9600, 14400}));
}

// --- Applying ---

TEST_F(ImportTRCApplyTest, KeysSelectedNodesAndTheirChildrenOfTheMarkersNames) {
  host::Node& group = AddNode("Group");
  AddNode("LFHD", &group);
  scene().Select(group);
  scene().Select(AddNode("RFHD"));
  Import(TwoMarkers());
  EXPECT_EQ(SceneNames(), "Group RFHD");
  EXPECT_EQ(KeyTicks("LFHD").size(), 3u);
  EXPECT_EQ(KeyTicks("RFHD").size(), 3u);
  EXPECT_EQ(KeyTicks("Group"), Ticks());
}

TEST_F(ImportTRCApplyTest, TheFirstMatchOfTheWalkIsTaken) {
  host::Node& first = AddNode("First");
  host::Node& child = AddNode("LFHD", &first);
  host::Node& selected = AddNode("LFHD");
  scene().Select(first);
  scene().Select(selected);
  options_.selectedOnly = true;
  Import({.markers = {"LFHD"}, .frames = {{"1\t2\t3"}}});
  EXPECT_EQ(child.Transform()->Position().KeyCount(), 1u);
  EXPECT_EQ(selected.Transform()->Position().KeyCount(), 0u);
}

TEST_F(ImportTRCApplyTest, NodesThatAreNotSelectedOrDeeperAreNoMatch) {
  host::Node& group = AddNode("Group");
  host::Node& inner = AddNode("Inner", &group);
  host::Node& deep = AddNode("LFHD", &inner);
  host::Node& other = AddNode("RFHD");
  scene().Select(group);
  Import(TwoMarkers());
  EXPECT_EQ(SceneNames(), "Group RFHD LFHD RFHD");
  EXPECT_EQ(deep.Transform()->Position().KeyCount(), 0u);
  EXPECT_EQ(other.Transform()->Position().KeyCount(), 0u);
}

TEST_F(ImportTRCApplyTest, NamesAreComparedByteByByte) {
  scene().Select(AddNode("lfhd"));
  Import({.markers = {"LFHD"}, .frames = {{"1\t2\t3"}}});
  EXPECT_EQ(SceneNames(), "lfhd LFHD");
}

TEST_F(ImportTRCApplyTest, WithoutASelectionEveryMarkerGetsANewObject) {
  Import(TwoMarkers());
  EXPECT_EQ(SceneNames(), "LFHD RFHD");
  EXPECT_EQ(KeyTicks("RFHD").size(), 3u);
}

TEST_F(ImportTRCApplyTest, WithSelectedItemsOnlyWhatMatchesNothingGoesToTheLastSelectedNode) {
  host::Node& first = AddNode("LFHD");
  host::Node& last = AddNode("Other");
  AddNode("Child", &last);
  scene().Select(first);
  scene().Select(last);
  options_.selectedOnly = true;
  Import(TwoMarkers());
  EXPECT_EQ(SceneNames(), "LFHD Other");
  EXPECT_EQ(KeyValues("LFHD").front(), Point3(1, -3, 2));
  EXPECT_EQ(KeyValues("Other").front(), Point3(10, -30, 20));
  EXPECT_EQ(KeyTicks("Child"), Ticks());
}

TEST_F(ImportTRCApplyTest, WithSelectedItemsOnlyAndNoneSelectedMarkersAreSkipped) {
  AddNode("LFHD");
  options_.selectedOnly = true;
  Import(TwoMarkers());
  EXPECT_EQ(SceneNames(), "LFHD");
  EXPECT_EQ(KeyTicks("LFHD"), Ticks());
  EXPECT_EQ(desk_.Messages(), "");
  EXPECT_EQ(Suspensions(), Counts(0, 0));
  EXPECT_EQ(Percentages(), (std::vector<int>{0, 10, 55, 100, 100}));
}

TEST_F(ImportTRCTest, SelectedItemsOnlyMeansNothingWhenCreating) {
  options_.selectedOnly = true;
  Import(TwoMarkers());
  EXPECT_EQ(SceneNames(), "LFHD RFHD");
}

TEST_F(ImportTRCApplyTest, ARootNodeTakesFoundNodesWithTheirLocalValues) {
  host::Node& group = AddNode("Group");
  AddNode("LFHD", &group);
  const Point3 aside(100, 0, 0);
  group.GetTMController()->GetPositionController()->SetValue(0, &aside, 1, CTRL_ABSOLUTE);
  scene().Select(group);
  options_.rootNode = true;
  Import(TwoMarkers());
  EXPECT_EQ(SceneNames(), "Group TRCCloud");
  EXPECT_EQ(ChildNames(Node("TRCCloud")), "LFHD RFHD");
  EXPECT_EQ(KeyValues("LFHD").front(), Point3(1, -3, 2));
}

}  // namespace
}  // namespace orvane
