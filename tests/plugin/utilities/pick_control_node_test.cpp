#include "plugin/utilities/pick_control_node.h"

#include <gtest/gtest.h>

#include <new>
#include <string>
#include <vector>

#include "host/application/application.h"
#include "tests/support/forwarding_interface.h"
#include "tests/support/hooked_interface.h"

namespace orvane {
namespace {

// An object of some super class, for nodes that the host has no object of that kind for.
class AnyObject final : public Object {
 public:
  explicit AnyObject(SuperClassId super_class) : super_class_(super_class) {}

  ClassId ClassID() override { return {1, 2}; }
  SuperClassId SuperClassID() override { return super_class_; }
  void Delete() override {}
  IParamBlock* GetParamBlock() override { return nullptr; }
  int GetParamBlockIndex(int /*i*/) override { return -1; }
  ParameterBlock* GetFirstParameterBlock() override { return nullptr; }

 private:
  SuperClassId super_class_;
};

// A node of which only the object is asked for, at one time.
class AnyNode final : public INode {
 public:
  explicit AnyNode(Object* object) : object_(object) {}

  Object* EvaluateWorldObject(TimeValue time) override {
    EXPECT_EQ(time, 0);
    return object_;
  }

  const char* GetName() override { return ""; }
  void SetName(const char* /*name*/) override {}
  NodeHandle GetHandle() override { return 1; }
  int NumberOfChildren() override { return 0; }
  INode* GetChildNode(int /*i*/) override { return nullptr; }
  INode* GetParentNode() override { return nullptr; }
  void AttachChild(INode* /*child*/, bool /*keep_position*/) override {}
  void SetWireColor(WireColor /*color*/) override {}
  Control* GetTMController() override { return nullptr; }
  Object* GetObjectReference() override { return nullptr; }
  Matrix3 NodeTransform(TimeValue /*time*/) override { return {}; }
  Matrix3 ObjectTransform(TimeValue /*time*/) override { return {}; }
  void Move(TimeValue /*time*/, const Matrix3& /*axes*/, const Point3& /*offset*/,
            bool /*local_origin*/, bool /*affect_children*/, int /*pivot_mode*/,
            bool /*ignore_locks*/) override {}
  void Scale(TimeValue /*time*/, const Matrix3& /*axes*/, const Point3& /*factors*/,
             bool /*local_origin*/) override {}
  void SetUserPropertyFloat(const char* /*key*/, float /*value*/) override {}
  bool GetUserPropertyFloat(const char* /*key*/, float& /*value*/) override { return false; }
  void SetBoneDisplay(int /*shown*/) override {}
  void SetBoneEnabled(int /*enabled*/, TimeValue /*time*/) override {}

 private:
  Object* object_;
};

struct FilterCase {
  SuperClassId super_class;
  bool passes;
};

TEST(PickControlNode, LetsGeometryShapesAndHelpersPass) {
  PickControlNode pick;
  for (const FilterCase& c : std::vector<FilterCase>{{16, true},
                                                     {64, true},
                                                     {80, true},
                                                     {0, false},
                                                     {32, false},
                                                     {48, false},
                                                     {0x900C, false}}) {
    AnyObject object(c.super_class);
    AnyNode node(&object);
    EXPECT_EQ(pick.Filter(&node), c.passes) << c.super_class;
  }
  AnyNode empty(nullptr);
  EXPECT_FALSE(pick.Filter(&empty));
  EXPECT_FALSE(pick.Filter(nullptr));
}

TEST(PickControlNode, AnswersForItself) {
  PickControlNode pick;
  EXPECT_TRUE(pick.AllowAnimatablePick());
  EXPECT_EQ(pick.DefaultCursor(), nullptr);
  EXPECT_EQ(pick.HitCursor(), nullptr);
  EXPECT_EQ(pick.GetFilter(), &pick);
  EXPECT_FALSE(pick.AllowMultipleSelection());
}

TEST(PickControlNode, IsActiveFromEnteringToLeaving) {
  PickControlNode pick;
  EXPECT_FALSE(pick.IsActive());
  pick.EnterMode();
  EXPECT_TRUE(pick.IsActive());
  pick.ExitMode();
  EXPECT_FALSE(pick.IsActive());
}

// Finds `node` under every point, and notes what it was asked.
class Finder final : public test::ForwardingInterface {
 public:
  using ForwardingInterface::ForwardingInterface;

  INode* PickNode(HWND window, const ViewportPoint& point, PickNodeCallback* filter) override {
    asked_window = window;
    asked_point = point;
    asked_filter = filter;
    return node;
  }

  INode* node = nullptr;
  HWND asked_window = nullptr;
  ViewportPoint asked_point;
  PickNodeCallback* asked_filter = nullptr;
};

class Viewport final : public ViewportView {
 public:
  INode* GetClosestHit() override { return hit; }

  INode* hit = nullptr;
};

class PickTest : public testing::Test {
 protected:
  PickTest() { pick_.Prepare(finder_); }

  host::Application application_;
  Finder finder_{application_.plugin_interface()};
  PickControlNode pick_;
  Viewport viewport_;
  AnyNode node_{nullptr};
};

TEST_F(PickTest, HitsWhatTheHostFindsThroughTheFilter) {
  EXPECT_FALSE(pick_.HitTest(application_.main_window(), &viewport_, {3, 4}, 0));
  finder_.node = &node_;
  EXPECT_TRUE(pick_.HitTest(application_.main_window(), &viewport_, {3, 4}, 0));
  EXPECT_EQ(finder_.asked_window, application_.main_window());
  EXPECT_EQ(finder_.asked_point.x, 3);
  EXPECT_EQ(finder_.asked_point.y, 4);
  EXPECT_EQ(finder_.asked_filter, &pick_);
}

TEST_F(PickTest, PicksTheClosestHitAndEndsTheMode) {
  viewport_.hit = &node_;
  pick_.EnterMode();
  EXPECT_TRUE(pick_.Pick(&viewport_));
  EXPECT_EQ(pick_.PickedNode(), &node_);
  EXPECT_FALSE(pick_.IsActive());
  EXPECT_FALSE(pick_.WasRightClicked());
}

TEST_F(PickTest, RightClickEndsTheModeWithoutANode) {
  pick_.EnterMode();
  EXPECT_TRUE(pick_.RightClick(&viewport_));
  EXPECT_TRUE(pick_.WasRightClicked());
  EXPECT_EQ(pick_.PickedNode(), nullptr);
  EXPECT_TRUE(pick_.IsActive()) << "the host leaves the mode";
}

// A host whose calls throw during a pick.
class ThrowingObject final : public Object {
 public:
  ClassId ClassID() override { return {1, 2}; }
  SuperClassId SuperClassID() override { throw std::bad_alloc(); }
  void Delete() override {}
  IParamBlock* GetParamBlock() override { return nullptr; }
  int GetParamBlockIndex(int /*i*/) override { return -1; }
  ParameterBlock* GetFirstParameterBlock() override { return nullptr; }
};

class ThrowingViewport final : public ViewportView {
 public:
  INode* GetClosestHit() override { throw 1; }
};

TEST_F(PickTest, HitsNothingWhereTheHostThrows) {
  test::HookedInterface host(application_.plugin_interface());
  host.before = [](const std::string& /*operation*/) { throw 1; };
  pick_.Prepare(host);
  EXPECT_FALSE(pick_.HitTest(nullptr, &viewport_, {3, 4}, 0));
}

TEST_F(PickTest, GoesOnWaitingWhereTheHostThrows) {
  ThrowingViewport throwing;
  pick_.EnterMode();
  EXPECT_FALSE(pick_.Pick(&throwing));
  EXPECT_TRUE(pick_.IsActive());
  EXPECT_EQ(pick_.PickedNode(), nullptr);
}

TEST_F(PickTest, LetsNothingPassWhereTheHostThrows) {
  ThrowingObject object;
  AnyNode node(&object);
  EXPECT_FALSE(pick_.Filter(&node));
}

TEST_F(PickTest, ForgetsTheLastPick) {
  viewport_.hit = &node_;
  pick_.Pick(&viewport_);
  pick_.RightClick(&viewport_);
  pick_.Prepare(finder_);
  EXPECT_EQ(pick_.PickedNode(), nullptr);
  EXPECT_FALSE(pick_.WasRightClicked());
}

}  // namespace
}  // namespace orvane
