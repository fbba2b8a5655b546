#include "host/application/picking.h"

#include <gtest/gtest.h>

#include <string>

#include "host/application/application.h"
#include "tests/host/application/idle_callbacks.h"

namespace {

// Picks what its filter lets pass; notes what it is told.
class PickMode final : public IdlePickMode, public PickNodeCallback {
 public:
  explicit PickMode(Interface& host) : host_(host) {}

  bool HitTest(HWND window, ViewportView*, const ViewportPoint& point, int) override {
    told += "h";
    return host_.PickNode(window, point, this) != nullptr;
  }
  bool Pick(ViewportView* viewport) override {
    told += "p";
    picked = viewport->GetClosestHit();
    if (leaves_by_itself) host_.ClearPickMode();
    return ends;
  }
  bool RightClick(ViewportView*) override {
    told += "r";
    return ends;
  }
  void EnterMode() override { told += "+"; }
  void ExitMode() override { told += "-"; }
  bool Filter(INode* node) override { return node != refused; }

  std::string told;
  INode* picked = nullptr;
  INode* refused = nullptr;
  bool ends = true;
  bool leaves_by_itself = false;

 private:
  Interface& host_;
};

class PickingTest : public testing::Test {
 protected:
  PickingTest() {
    node_ = host_.CreateObjectNode(
        static_cast<Object*>(host_.CreateInstance(kHelperSuperClass, kDummyClass)));
    host_.SetPickMode(&mode_);
  }
  ~PickingTest() override { host_.ClearPickMode(); }

  host::Application application_;
  host::Picking& picking_ = application_.picking();
  Interface& host_ = application_.plugin_interface();
  PickMode mode_{host_};
  INode* node_ = nullptr;
};

TEST_F(PickingTest, ClickPicksTheNodeAndEndsTheMode) {
  EXPECT_TRUE(picking_.IsActive());
  EXPECT_TRUE(picking_.Click(node_));
  EXPECT_EQ(mode_.picked, node_);
  EXPECT_EQ(mode_.told, "+hp-");
  EXPECT_FALSE(picking_.IsActive());
}

TEST_F(PickingTest, ClickOnNothingOrOnWhatTheFilterStopsPicksNothing) {
  EXPECT_FALSE(picking_.Click(nullptr));
  mode_.refused = node_;
  EXPECT_FALSE(picking_.Click(node_));
  EXPECT_EQ(mode_.told, "+hh");
  EXPECT_TRUE(picking_.IsActive());
}

TEST_F(PickingTest, ModeGoesOnWhenThePlugInSaysSo) {
  mode_.ends = false;
  EXPECT_TRUE(picking_.Click(node_));
  picking_.RightClick();
  EXPECT_EQ(mode_.told, "+hpr");
  EXPECT_TRUE(picking_.IsActive());
}

TEST_F(PickingTest, ModeThatThePlugInLeftItselfIsLeftOnce) {
  mode_.leaves_by_itself = true;
  EXPECT_TRUE(picking_.Click(node_));
  EXPECT_EQ(mode_.told, "+hp-");
}

TEST_F(PickingTest, RightClickEndsTheMode) {
  picking_.RightClick();
  EXPECT_EQ(mode_.told, "+r-");
  EXPECT_FALSE(picking_.IsActive());
}

TEST_F(PickingTest, ApplicationMayLeaveTheMode) {
  picking_.Leave();
  EXPECT_EQ(mode_.told, "+-");
}

TEST_F(PickingTest, NothingHappensWithoutAMode) {
  picking_.Leave();
  EXPECT_FALSE(picking_.Click(node_));
  picking_.RightClick();
  picking_.Leave();
  EXPECT_EQ(mode_.told, "+-");
}

TEST_F(PickingTest, NothingIsUnderTheCursorAfterAClick) {
  picking_.Click(node_);
  EXPECT_EQ(host_.PickNode(nullptr, {}, nullptr), nullptr);
}

TEST_F(PickingTest, RefusedModeIsNotEntered) {
  application_.callbacks().RefusePickModes();
  host_.SetPickMode(&mode_);
  EXPECT_EQ(mode_.told, "+-") << "left, and not entered again";
  EXPECT_FALSE(picking_.IsActive());
}

// Unregisters another callback when it is told.
class Exit final : public ExitSkelderCallback {
 public:
  void HostExiting(HWND window) override {
    told_window = window;
    ++told;
    if (other != nullptr) host->UnRegisterExitSkelderCallback(other);
  }

  int told = 0;
  HWND told_window = nullptr;
  Interface* host = nullptr;
  ExitSkelderCallback* other = nullptr;
};

TEST_F(PickingTest, ExitTellsTheCallbacksAndLeavesTheMode) {
  Exit first;
  Exit second;
  host_.RegisterExitSkelderCallback(&first);
  host_.RegisterExitSkelderCallback(&second);
  first.host = &host_;
  first.other = &second;
  EXPECT_FALSE(application_.HasExited());
  application_.Exit();
  EXPECT_TRUE(application_.HasExited());
  EXPECT_EQ(first.told, 1);
  EXPECT_EQ(first.told_window, application_.main_window());
  EXPECT_EQ(second.told, 0) << "unregistered by the first";
  EXPECT_EQ(mode_.told, "+-");
  host_.UnRegisterExitSkelderCallback(&first);
}

TEST_F(PickingTest, ApplicationExitsWhenItWaitsForNobody) {
  host_.ProcessPendingMessages();
  EXPECT_TRUE(application_.HasExited());
  EXPECT_EQ(mode_.told, "+-");
}

TEST_F(PickingTest, ApplicationDoesNotWaitWithoutAMode) {
  picking_.Leave();
  host_.ProcessPendingMessages();
  EXPECT_FALSE(application_.HasExited());
}

}  // namespace
