#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "host/application/application.h"
#include "tests/host/application/idle_callbacks.h"

namespace {

using testing::ElementsAre;

class ApplicationInterfaceTest : public testing::Test {
 protected:
  // A node of a new dummy.
  host::Node* MakeNode(const std::string& name) {
    auto* object = static_cast<Object*>(host_.CreateInstance(kHelperSuperClass, kDummyClass));
    INode* node = host_.CreateObjectNode(object);
    node->SetName(name.c_str());
    return static_cast<host::Node*>(node);
  }

  host::Application application_;
  host::Scene& scene_ = application_.scene();
  Interface& host_ = application_.plugin_interface();
};

// --- Progress bar and cancelling ---

TEST_F(ApplicationInterfaceTest, DrivesTheProgressBar) {
  EXPECT_TRUE(host_.ProgressStart("Work", true, nullptr, nullptr));
  EXPECT_FALSE(host_.ProgressStart("Other work", true, nullptr, nullptr));
  host_.ProgressUpdate(10);
  host_.ProgressUpdate(20, false, "More work");
  EXPECT_TRUE(application_.progress().IsOpen());
  EXPECT_EQ(application_.progress().Percent(), 20);
  EXPECT_EQ(application_.progress().Title(), "More work");
  EXPECT_FALSE(application_.progress().Events().back().visible);
  host_.ProgressEnd();
  EXPECT_FALSE(application_.progress().IsOpen());
  host_.ProgressEnd();
  EXPECT_EQ(scene_.Misuse().Count(), 2U);
}

TEST_F(ApplicationInterfaceTest, ReportsACancelSinceTheBarWasOpened) {
  application_.cancellation().Request();
  host_.ProgressStart("Work", true, nullptr, nullptr);
  EXPECT_FALSE(host_.GetCancel());
  application_.cancellation().Request();
  EXPECT_TRUE(host_.GetCancel());
  host_.ProgressStart("Refused", true, nullptr, nullptr);
  EXPECT_TRUE(host_.GetCancel());
}

TEST_F(ApplicationInterfaceTest, CancelsAtThePlannedQueryOrPercentage) {
  application_.cancellation().AtQuery(2);
  host_.ProgressStart("Work", true, nullptr, nullptr);
  EXPECT_FALSE(host_.GetCancel());
  EXPECT_TRUE(host_.GetCancel());
  host_.ProgressEnd();

  application_.cancellation().Clear();
  application_.cancellation().AtPercent(50);
  host_.ProgressStart("Work", true, nullptr, nullptr);
  host_.ProgressUpdate(49);
  EXPECT_FALSE(host_.GetCancel());
  host_.ProgressUpdate(50);
  EXPECT_TRUE(host_.GetCancel());
}

TEST_F(ApplicationInterfaceTest, CancelsWhenTheProgressCallbackAsksToStop) {
  std::uint32_t answer = 0;
  const ProgressCallback callback = [](void* argument) {
    return *static_cast<std::uint32_t*>(argument);
  };
  host_.ProgressStart("Work", true, callback, &answer);
  host_.ProgressUpdate(10);
  EXPECT_FALSE(host_.GetCancel());
  answer = 7;
  host_.ProgressUpdate(20);
  EXPECT_TRUE(host_.GetCancel());
}

// --- Selection ---

TEST_F(ApplicationInterfaceTest, ListsTheSelectionInItsOrder) {
  host::Node* first = MakeNode("first");
  host::Node* second = MakeNode("second");
  EXPECT_EQ(host_.GetSelNodeCount(), 0);
  EXPECT_EQ(host_.GetSelNode(0), nullptr);
  scene_.Select(*second);
  scene_.Select(*first);
  EXPECT_EQ(host_.GetSelNodeCount(), 2);
  EXPECT_EQ(host_.GetSelNode(0), second);
  EXPECT_EQ(host_.GetSelNode(1), first);
  EXPECT_EQ(host_.GetSelNode(2), nullptr);
  EXPECT_EQ(host_.GetSelNode(-1), nullptr);
}

// --- Scene ---

TEST_F(ApplicationInterfaceTest, CreatesInstancesOfTheClassesItKnows) {
  struct Case {
    SuperClassId super_class;
    ClassId class_id;
  };
  for (const Case& c : {Case{16, {0x28BF6E8D, 0x2ECCA840}}, Case{80, {0x876234, 0}},
                        Case{16, {0x11, 0}}, Case{80, {0x2013, 0}}, Case{0x900C, {0x442313, 0}}}) {
    ClassInstance* instance = host_.CreateInstance(c.super_class, c.class_id);
    ASSERT_NE(instance, nullptr) << c.class_id.part_a;
    EXPECT_EQ(instance->SuperClassID(), c.super_class);
    EXPECT_EQ(instance->ClassID(), c.class_id);
    instance->Delete();
  }
  EXPECT_EQ(scene_.LooseInstances(), 0U);
}

TEST_F(ApplicationInterfaceTest, CreatesNothingOfAnUnknownClass) {
  struct Case {
    SuperClassId super_class;
    ClassId class_id;
  };
  for (const Case& c : {Case{80, {0x28BF6E8D, 0x2ECCA840}}, Case{16, {0x28BF6E8D, 0}},
                        Case{16, {0x876234, 0}}, Case{0x900C, {0x442313, 1}},
                        Case{kSceneImportSuperClass, {0x52871D2D, 0x79755925}}, Case{0, {0, 0}}}) {
    EXPECT_EQ(host_.CreateInstance(c.super_class, c.class_id), nullptr)
        << c.super_class << ' ' << c.class_id.part_a;
  }
}

TEST_F(ApplicationInterfaceTest, ShowsAnObjectWithANodeUnderTheRoot) {
  auto* bone = static_cast<Object*>(host_.CreateInstance(kGeometricObjectSuperClass, kBoneClass));
  INode* node = host_.CreateObjectNode(bone);
  ASSERT_NE(node, nullptr);
  EXPECT_EQ(node->GetObjectReference(), bone);
  EXPECT_EQ(node->GetParentNode(), host_.GetRootNode());
  EXPECT_EQ(host_.GetRootNode(), &scene_.Root());
  EXPECT_EQ(host_.CreateObjectNode(nullptr), nullptr);
}

TEST_F(ApplicationInterfaceTest, FindsNodesByHandleUntilTheyAreDeleted) {
  INode* node = MakeNode("bone");
  const NodeHandle handle = node->GetHandle();
  EXPECT_EQ(host_.GetINodeByHandle(handle), node);
  host_.DeleteNode(node, false);
  EXPECT_EQ(host_.GetINodeByHandle(handle), nullptr);
  EXPECT_EQ(host_.GetINodeByHandle(0), nullptr);
}

TEST_F(ApplicationInterfaceTest, RedrawsWhenAsked) {
  host_.DeleteNode(MakeNode("silent"), false);
  EXPECT_EQ(scene_.RedrawCount(), 0U);
  host_.DeleteNode(MakeNode("shown"), true);
  EXPECT_EQ(scene_.RedrawCount(), 1U);
  host_.RedrawViews(host_.GetTime());
  EXPECT_EQ(scene_.RedrawCount(), 2U);
  EXPECT_EQ(scene_.NodeCount(), 0U);
}

TEST_F(ApplicationInterfaceTest, MakesNamesUniqueInTheScene) {
  CStr name = "Cloud";
  host_.MakeNameUnique(name);
  EXPECT_STREQ(name.data(), "Cloud");
  MakeNode("Cloud");
  host_.MakeNameUnique(name);
  EXPECT_STREQ(name.data(), "Cloud001");
  MakeNode("Cloud001");
  name = "Cloud";
  host_.MakeNameUnique(name);
  EXPECT_STREQ(name.data(), "Cloud002");
}

// --- Time ---

TEST_F(ApplicationInterfaceTest, KnowsTimeAndAnimationRange) {
  EXPECT_EQ(host_.GetTime(), 0);
  scene_.Animation().SetTime(-160);
  EXPECT_EQ(host_.GetTime(), -160);
  EXPECT_EQ(host_.GetAnimRange(), Interval(0, 16000));
  host_.SetAnimRange(Interval(-160, 320));
  EXPECT_EQ(host_.GetAnimRange(), Interval(-160, 320));
  EXPECT_EQ(scene_.Animation().Range(), Interval(-160, 320));
}

TEST_F(ApplicationInterfaceTest, StopsPlayback) {
  EXPECT_FALSE(host_.IsPlaybackRunning());
  application_.StartPlayback();
  EXPECT_TRUE(host_.IsPlaybackRunning());
  host_.StopPlayback();
  EXPECT_FALSE(host_.IsPlaybackRunning());
  EXPECT_FALSE(application_.IsPlaybackRunning());
}

// --- User interface ---

TEST_F(ApplicationInterfaceTest, HasAMainWindow) {
  EXPECT_NE(host_.GetSkelderHWnd(), nullptr);
  EXPECT_EQ(host_.GetSkelderHWnd(), application_.main_window());
}

TEST_F(ApplicationInterfaceTest, CountsHowOftenPendingMessagesWereLetIn) {
  host_.ProcessPendingMessages();
  host_.ProcessPendingMessages();
  EXPECT_EQ(application_.PendingMessageCalls(), 2U);
}

TEST_F(ApplicationInterfaceTest, HasNoRollupPageWithoutADialogForIt) {
  EXPECT_EQ(host_.AddRollupPage(nullptr, 9999, nullptr, "Page", 0, 0, 4000), nullptr);
  host_.DeleteRollupPage(nullptr);
  EXPECT_THAT(scene_.Misuse().Messages(),
              ElementsAre("DeleteRollupPage of a page that is not open"));
}

TEST_F(ApplicationInterfaceTest, FindsNothingToPickWhenNobodyClicks) {
  EXPECT_EQ(host_.PickNode(host_.GetSkelderHWnd(), {1, 2}, nullptr), nullptr);
}

class PickMode final : public IdlePickMode {};

TEST_F(ApplicationInterfaceTest, KeepsCallbacksUntilTheyAreWithdrawn) {
  PickMode pick_mode;
  IdleExit exit;
  host_.SetPickMode(&pick_mode);
  host_.RegisterExitSkelderCallback(&exit);
  EXPECT_EQ(application_.callbacks().PickMode(), &pick_mode);
  EXPECT_THAT(application_.callbacks().ExitCallbacks(), ElementsAre(&exit));
  host_.ClearPickMode();
  host_.UnRegisterExitSkelderCallback(&exit);
  EXPECT_EQ(application_.callbacks().PickMode(), nullptr);
  EXPECT_THAT(application_.callbacks().ExitCallbacks(), ElementsAre());
}

}  // namespace
