#include <gtest/gtest.h>

#include "plugin/resources/resource.h"
#include "tests/plugin/import_htr/import_fixture.h"
#include "tests/support/forwarding_interface.h"

namespace orvane {
namespace {

using test::ChildNames;
using test::HtrText;
using test::KeyTicks;
using Ticks = std::vector<TimeValue>;

constexpr int kApply = IDC_APPLY;
constexpr int kTo = IDC_TO;
constexpr int kRange = IDC_RANGE;
constexpr int kOk = IDC_OK;

// --- Create mode ---

TEST_F(ImportHTRTest, AFileWithoutARootFailsSilently) {
  HtrText file = TwoBones();
  file.segments[0].parent = "Leg";  // in a circle
  EXPECT_EQ(Import(file), 0);
  EXPECT_EQ(scene().NodeCount(), 0U);
  EXPECT_EQ(desk_.Messages(), "");
  EXPECT_TRUE(ModesSuspended());
}

TEST_F(ImportHTRTest, ASkeletonThatCannotBeMadeFailsSilently) {
  scene().Faults().RefuseQuery(4);
  EXPECT_EQ(Import(TwoBones()), 0);
  EXPECT_EQ(ChildNames(scene().Root()), "Leg");
  EXPECT_EQ(desk_.Messages(), "");
  EXPECT_TRUE(ModesSuspended());
}

TEST_F(ImportHTRTest, CancelingAfterCreationKeepsTheBonesAndKeysNothing) {
  application_.cancellation().AtQuery(1);
  EXPECT_EQ(Import(TwoBones()), 0);
  EXPECT_EQ(ChildNames(scene().Root()), "Hips");
  EXPECT_EQ(Node("Hips").Transform()->Position().KeyCount(), 0U);
  EXPECT_EQ(desk_.Messages(), "");
  EXPECT_TRUE(ModesSuspended());
  EXPECT_EQ(application_.PendingMessageCalls(), 1U);
}

TEST_F(ImportHTRTest, ADummyThatCannotBeMadeFails) {
  options_.animate = false;
  test::RefusingInterface refusing(interface());
  const std::string path = folder_.Write("walk.htr", TwoBones().Text());
  refusing.RefuseInstance(3);
  EXPECT_EQ(importer_.DoImport(path.c_str(), nullptr, &refusing, 1), 0);
  refusing.RefuseNode(3);
  EXPECT_EQ(importer_.DoImport(path.c_str(), nullptr, &refusing, 1), 0);
}

TEST_F(ImportHTRTest, AMotionThatIsRefusedFailsAndLeavesTheInnerSuspensionToo) {
  scene().Faults().RefuseQuery(5);  // the first key, after the four values of two bones
  EXPECT_EQ(Import(TwoBones()), 0);
  EXPECT_EQ(desk_.Messages(), "");
  EXPECT_EQ(scene().Animation().AnimateMode().SuspendDepth(), 2U);
  EXPECT_EQ(scene().Animation().SetKeyMode().SuspendDepth(), 1U);
  EXPECT_EQ(scene().Animation().Range(), Interval(0, 16000));
}

// --- Apply mode ---

TEST_F(ImportHTRApplyTest, KeysTheSelectedSkeleton) {
  host::Node& hips = AddBone("Hips");
  host::Node& leg = AddBone("Leg", &hips);
  scene().Select(hips);
  EXPECT_EQ(Import(TwoBones()), 1);
  EXPECT_EQ(scene().NodeCount(), 2U);
  EXPECT_EQ(KeyTicks(hips.Transform()->Position()), (Ticks{160, 320, 480}));
  EXPECT_EQ(leg.Transform()->Position().KeyValue(1), Point3(5, 0, 0));
  EXPECT_EQ(scene().Animation().Range(), Interval(160, 480));
  EXPECT_TRUE(ModesResumed());
  // Cancelling is asked for after creation only.
  EXPECT_EQ(application_.cancellation().Queries(), 0);
}

TEST_F(ImportHTRApplyTest, ABranchIsKeyedFromTheSelectedBoneDown) {
  host::Node& hips = AddBone("Hips");
  host::Node& leg = AddBone("Leg", &hips);
  scene().Select(leg);
  EXPECT_EQ(Import(TwoBones()), 1);
  EXPECT_EQ(hips.Transform()->Position().KeyCount(), 0U);
  EXPECT_EQ(leg.Transform()->Position().KeyCount(), 3U);
  // One of two segments.
  EXPECT_EQ(Percentages(), (std::vector<int>{0, 10, 55, 100}));
}

TEST_F(ImportHTRApplyTest, TheGroupOfAnEarlierImportCanBeSelected) {
  options_.apply = false;
  EXPECT_EQ(Import(TwoBones()), 1);
  options_.apply = true;
  options_.frameOffset = 100;
  scene().Select(Node("walk"));
  EXPECT_EQ(Import(TwoBones()), 1);
  EXPECT_EQ(KeyTicks(Node("Leg").Transform()->Position()),
            (Ticks{160, 320, 480, 16160, 16320, 16480}));
}

TEST_F(ImportHTRApplyTest, WithoutAnimationOnlyTheFirstFramesKeysAreCleared) {
  options_.animate = false;
  options_.keyBasePosition = true;
  host::Node& hips = AddBone("Hips");
  for (const TimeValue time : {160, 319, 320, 480}) {
    hips.Transform()->Position().SetKey(time, Point3(7, 7, 7));
  }
  scene().Select(hips);
  EXPECT_EQ(Import(TwoBones()), 1);
  EXPECT_EQ(KeyTicks(hips.Transform()->Position()), (Ticks{0, 320, 480}));
}

TEST_F(ImportHTRApplyTest, EverySelectionThatDoesNotDoIsTold) {
  EXPECT_EQ(Import(TwoBones()), 0);
  host::Node& unknown = AddBone("Unknown");
  scene().Select(unknown);
  EXPECT_EQ(Import(TwoBones()), 0);
  unknown.Transform()->SetClassId({12305, 0});
  EXPECT_EQ(Import(TwoBones()), 0);
  EXPECT_EQ(desk_.Messages(),
            "Import Error: Please select the root of a skeleton before applying animation.\n"
            "Import Error: Please select a branch to apply to that exists in the source HTR "
            "file.\n"
            "Import Error: You can't import .htr directly onto a biped node.\n");
  EXPECT_EQ(scene().Animation().SetKeyMode().SuspendDepth(), 3U);
}

TEST_F(ImportHTRApplyTest, WithoutARootThereIsNothingToApply) {
  HtrText file = TwoBones();
  file.segments[0].parent = "Leg";
  host::Node& dummy = AddDummy("Group");
  scene().Select(dummy);
  EXPECT_EQ(Import(file), 0);
  EXPECT_EQ(desk_.Messages(), "");
  EXPECT_TRUE(ModesSuspended());
}

TEST_F(ImportHTRApplyTest, ABonesNameFindsItsSegmentEvenWithoutARoot) {
  HtrText file = TwoBones();
  file.segments[0].parent = "Leg";
  host::Node& leg = AddBone("Leg");
  scene().Select(leg);
  EXPECT_EQ(Import(file), 1);
  EXPECT_EQ(leg.Transform()->Position().KeyCount(), 3U);
}

TEST_F(ImportHTRTest, ApplyingWithTheDialogWorksTheSame) {
  host::Node& hips = AddBone("Hips");
  scene().Select(hips);
  EXPECT_EQ(ImportWith([](host::ScriptedDialog& dialog) {
              dialog.Click(kApply);
              dialog.Click(kOk);
            }),
            1);
  EXPECT_EQ(hips.Transform()->Position().KeyCount(), 3U);
}

// --- Files that ask for too much ---

TEST_F(ImportHTRTest, AHierarchyListedTwiceIsCreatedTwice) {
  const HtrText twice = TwoBones();
  // The count of base positions must still be the announced one.
  std::string text = twice.Text();
  const std::string announced = "NumSegments 2";
  text.replace(text.find(announced), announced.size(), "NumSegments 4");
  text.replace(text.find("[Hips]"), 0, twice.BasePosition());
  EXPECT_EQ(Import(folder_.Write("twice.htr", text)), 1);
  EXPECT_EQ(ChildNames(Node("Hips")), "Leg Leg");
}

// A chain of 60 segments, each listed twice. Its frames lie beyond the end of time, so that none of
// them takes any.
std::string DoubledChain() {
  HtrText file;
  file.first_frame = 2'147'483'647;
  file.frame_count = 1000;
  for (int i = 0; i < 60; ++i) {
    file.segments.push_back({"S" + std::to_string(i),
                             i == 0 ? "GLOBAL" : "S" + std::to_string(i - 1),
                             "0 0 0 0 0 0 0",
                             {"0 0 0 0 0 0"}});
  }
  std::string text = file.Text();
  text.replace(text.find("NumSegments 60"), 14, "NumSegments 120");
  text.replace(text.find("[S0]"), 0, file.BasePosition());
  return text;
}

TEST_F(ImportHTRTest, AFileCutAtAnyByteIsImportedOrNot) {
  const std::string text = TwoBones().Text();
  int imported = 0;
  for (std::size_t length = 0; length < text.size(); ++length) {
    const int result = Import(folder_.Write("walk.htr", text.substr(0, length)));
    EXPECT_TRUE(result == 0 || result == 1) << length;
    EXPECT_FALSE(application_.progress().IsOpen()) << length;
    imported += result;
  }
  EXPECT_GT(imported, 0);
}

class OddNumberTest : public ImportHTRTest, public testing::WithParamInterface<const char*> {};

TEST_P(OddNumberTest, IsKeyedAsItIsRead) {
  const std::string odd = GetParam();
  HtrText file = TwoBones();
  file.segments[0].base = odd + " " + odd + " " + odd + " " + odd + " 0 0 " + odd;
  file.segments[1].frames[1] = odd + " 0 0 0 " + odd + " 0";
  EXPECT_EQ(Import(file), 1);
  EXPECT_EQ(KeyTicks(Node("Hips").Transform()->Rotation()), (Ticks{160, 320, 480}));
  EXPECT_EQ(KeyTicks(Node("Leg").Transform()->Position()), (Ticks{160, 320, 480}));
}

INSTANTIATE_TEST_SUITE_P(Numbers, OddNumberTest,
                         testing::Values("1e999", "-1e999", "1e300", "1e-999", "nan", "--5",
                                         "abc"));

// A few lines that announce more frames than there is time for.
HtrText EndlessFrames() {
  HtrText file = TwoBones();
  file.frame_count = 2'147'483'647;
  return file;
}

TEST_F(ImportHTRTest, OfFarTooManyFramesARangeCanBeImported) {
  EXPECT_EQ(ImportWith(
                [](host::ScriptedDialog& dialog) {
                  dialog.Click(kRange);
                  dialog.Type(kTo, "3");
                  dialog.Click(kOk);
                },
                EndlessFrames()),
            1);
  EXPECT_EQ(KeyTicks(Node("Hips").Transform()->Position()), (Ticks{160, 320, 480}));
}

TEST_F(ImportHTRTest, SomeMoreFramesThanTheFileHoldsAreKeyedAsZero) {
  HtrText file = TwoBones();
  file.frame_count = 5;
  EXPECT_EQ(Import(file), 1);
  const host::PositionController& hips = Node("Hips").Transform()->Position();
  EXPECT_EQ(KeyTicks(hips), (Ticks{160, 320, 480, 640, 800}));
  EXPECT_EQ(hips.KeyValue(4), Point3(0, 0, 0));
  EXPECT_EQ(scene().Animation().Range(), Interval(160, 800));
}

TEST_F(ImportHTRTest, AHierarchyThatDoublesAtEveryLevelIsRefused) {
  EXPECT_EQ(Import(folder_.Write("doubled.htr", DoubledChain())), 0);
  EXPECT_EQ(scene().NodeCount(), 0U);
  EXPECT_EQ(desk_.Messages(),
            "ImportHTR Error: The file is damaged: it lists its hierarchy over and over.\n");
}

TEST_F(ImportHTRApplyTest, AHierarchyThatDoublesAtEveryLevelIsRefused) {
  host::Node* bone = &AddBone("S0");
  scene().Select(*bone);
  for (int i = 1; i < 60; ++i) bone = &AddBone("S" + std::to_string(i), bone);
  EXPECT_EQ(Import(folder_.Write("doubled.htr", DoubledChain())), 0);
  EXPECT_EQ(desk_.Messages(),
            "ImportHTR Error: The file is damaged: it lists its hierarchy over and over.\n");
}

// --- What the importer says of itself ---

TEST_F(ImportHTRTest, AnswersForItself) {
  for (const int n : {0, 5, -1}) EXPECT_STREQ(importer_.Ext(n), "HTR");
  EXPECT_EQ(importer_.ExtCount(), 1);
  EXPECT_EQ(importer_.ZoomExtents(), -1);
}

// An exception on the host's side of the border.
class ThrowingInterface final : public test::ForwardingInterface {
 public:
  using ForwardingInterface::ForwardingInterface;
  TimeValue GetTime() override { throw std::bad_alloc(); }
};

TEST_F(ImportHTRTest, RunningOutOfMemoryIsToldAndClosesTheProgressBar) {
  ThrowingInterface throwing(interface());
  const std::string path = folder_.Write("walk.htr", TwoBones().Text());
  EXPECT_EQ(importer_.DoImport(path.c_str(), nullptr, &throwing, 1), 0);
  EXPECT_EQ(desk_.Messages(), "ImportHTR Error: There is not enough memory to import the file.\n");
  EXPECT_FALSE(application_.progress().IsOpen());
  EXPECT_TRUE(ModesSuspended());
}

TEST_F(ImportHTRTest, OneImporterCanImportAgain) {
  EXPECT_EQ(Import(folder_.File("missing.htr")), 0);
  EXPECT_EQ(Import(TwoBones()), 1);
  EXPECT_EQ(Import(TwoBones()), 1);
  EXPECT_EQ(scene().NodeCount(), 6U);
}

}  // namespace
}  // namespace orvane
