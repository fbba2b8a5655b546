#include "plugin/import_trc/import_trc.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <new>
#include <stdexcept>
#include <string>
#include <vector>

#include "host/application/application.h"
#include "host/scene/box_object.h"
#include "host/scene/point_helper.h"
#include "host/scene/sphere_object.h"
#include "platform/module.h"
#include "tests/support/desk.h"
#include "tests/support/forwarding_interface.h"
#include "tests/support/temporary_folder.h"
#include "tests/support/trc_text.h"

namespace orvane {
namespace {

using host::ProgressEvent;
using test::TrcText;
using Ticks = std::vector<TimeValue>;

constexpr int kFrom = 1065;
constexpr int kTo = 1066;
constexpr int kRange = 1068;
constexpr int kGlobal = 1088;
constexpr int kOk = 1097;
constexpr int kCancel = 1098;

// Two markers, three frames; the second marker drops out once.
TrcText TwoMarkers() {
  return {.markers = {"LFHD", "RFHD"},
          .frames = {{"1\t2\t3", "10\t20\t30"}, {"4\t5\t6", ""}, {"7\t8\t9", "40\t50\t60"}}};
}

class ImportTRCTest : public testing::Test {
 protected:
  void TearDown() override {
    EXPECT_EQ(scene().Misuse().Messages(), std::vector<std::string>());
    EXPECT_EQ(scene().LooseInstances(), 0u);
    desk_.desktop().RethrowFailure();
    EXPECT_TRUE(desk_.AllAnswered());
    EXPECT_FALSE(application_.progress().IsOpen());
  }

  // Every import answers 1, whatever happens.
  void ImportFrom(const std::string& path, int suppress_prompts = 1) {
    EXPECT_EQ(importer_.DoImport(path.c_str(), nullptr, &interface(), suppress_prompts), 1);
  }
  void Import(const TrcText& file) { ImportFrom(folder_.Write("walk.trc", file.Text())); }
  void ImportWith(const test::Desk::DialogAnswer& user, const TrcText& file = TwoMarkers()) {
    desk_.Expect(user);
    ImportFrom(folder_.Write("walk.trc", file.Text()), 0);
  }
  void ImportThrough(::Interface& other, const TrcText& file = TwoMarkers()) {
    const std::string path = folder_.Write("walk.trc", file.Text());
    EXPECT_EQ(importer_.DoImport(path.c_str(), nullptr, &other, 1), 1);
  }

  host::Node& AddNode(const std::string& name, host::Node* parent = nullptr) {
    auto* object = static_cast<Object*>(scene().CreateInstance(kHelperSuperClass, kDummyClass));
    host::Node* node = scene().CreateNode(object);
    node->SetName(name.c_str());
    if (parent != nullptr) parent->AttachChild(node, false);
    return *node;
  }

  host::Node* Find(const std::string& name) { return scene().FindByName(name); }
  // The same; throws, and so fails the test, when there is none.
  host::Node& Node(const std::string& name) {
    host::Node* const node = Find(name);
    if (node == nullptr) throw std::runtime_error("No node is called " + name);
    return *node;
  }
  const host::PositionController& Positions(const std::string& name) {
    return Node(name).Transform()->Position();
  }
  Ticks KeyTicks(const std::string& name) {
    Ticks ticks;
    const host::PositionController& positions = Positions(name);
    for (std::size_t key = 0; key < positions.KeyCount(); ++key) {
      ticks.push_back(positions.KeyTick(key));
    }
    return ticks;
  }
  std::vector<Point3> KeyValues(const std::string& name) {
    std::vector<Point3> values;
    const host::PositionController& positions = Positions(name);
    for (std::size_t key = 0; key < positions.KeyCount(); ++key) {
      values.push_back(positions.KeyValue(key));
    }
    return values;
  }
  std::string ChildNames(const host::Node& node) {
    std::string names;
    for (const host::Node* child : node.Children()) {
      names += (names.empty() ? "" : " ") + child->Name();
    }
    return names;
  }
  std::string SceneNames() { return ChildNames(scene().Root()); }

  // How many suspensions of animate mode and of set-key mode are left.
  std::pair<std::size_t, std::size_t> Suspensions() {
    return {scene().Animation().AnimateMode().SuspendDepth(),
            scene().Animation().SetKeyMode().SuspendDepth()};
  }
  std::vector<int> Percentages() {
    std::vector<int> percentages;
    for (const ProgressEvent& event : application_.progress().Events()) {
      if (event.kind == ProgressEvent::Kind::kUpdate) percentages.push_back(event.percent);
    }
    return percentages;
  }

  host::Scene& scene() { return application_.scene(); }
  ::Interface& interface() { return application_.plugin_interface(); }

  host::Application application_;
  test::Desk desk_;
  test::TemporaryFolder folder_;
  MessageSink sink_;
  ImportTRCOptions options_;
  ImportTRC importer_{options_, sink_, platform::ModuleHandle()};
};

using Counts = std::pair<std::size_t, std::size_t>;

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

class ImportTRCApplyTest : public ImportTRCTest {
 protected:
  void SetUp() override { options_.apply = true; }
};

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

TEST_F(ImportTRCTest, CancellingTheDialogChangesNothingAndLeavesTheModesSuspended) {
  ImportWith([](host::ScriptedDialog& dialog) { dialog.Click(kCancel); });
  EXPECT_EQ(scene().NodeCount(), 0u);
  EXPECT_EQ(desk_.Messages(), "");
  EXPECT_EQ(Suspensions(), Counts(1, 1));
  EXPECT_EQ(Percentages(), (std::vector<int>{0, 10}));
}

TEST_F(ImportTRCTest, CancellingTheBarKeepsTheMarkersThatAreDone) {
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
