#include <gtest/gtest.h>

#include "host/scene/bone_object.h"
#include "host/scene/box_object.h"
#include "host/scene/point_helper.h"
#include "host/scene/sphere_object.h"
#include "tests/host/scene/scene_fixture.h"

namespace host {
namespace {

class ObjectTest : public SceneFixture {};

TEST_F(ObjectTest, AreOfTheirClasses) {
  struct Case {
    SuperClassId super_class;
    ClassId class_id;
  };
  const Case cases[] = {
      {16, {0x28BF6E8D, 0x2ECCA840}}, {80, {0x876234, 0}}, {16, {0x11, 0}}, {80, {0x2013, 0}}};
  for (const Case& test_case : cases) {
    ClassInstance* object = scene_.CreateInstance(test_case.super_class, test_case.class_id);
    ASSERT_NE(object, nullptr);
    EXPECT_EQ(object->SuperClassID(), test_case.super_class);
    EXPECT_EQ(object->ClassID(), test_case.class_id);
    object->Delete();
  }
  EXPECT_EQ(scene_.LooseInstances(), 0U);
}

TEST_F(ObjectTest, AreNotMadeOfUnknownClasses) {
  EXPECT_EQ(scene_.CreateInstance(16, {1, 2}), nullptr);
  EXPECT_EQ(scene_.CreateInstance(80, kBoneClass), nullptr);
  EXPECT_EQ(scene_.CreateInstance(0, {}), nullptr);
  EXPECT_EQ(scene_.LooseInstances(), 0U);
}

TEST_F(ObjectTest, ABoneHasFloatParametersInItsFirstBlock) {
  Object* object = NewObject(16, kBoneClass);
  EXPECT_EQ(object->GetParamBlock(), nullptr);
  EXPECT_EQ(object->GetParamBlockIndex(0), -1);
  ParameterBlock* block = object->GetFirstParameterBlock();
  ASSERT_NE(block, nullptr);
  EXPECT_TRUE(block->SetValue(0, 0, 1.5F));
  EXPECT_TRUE(block->SetValue(1, 0, 2.5F));
  EXPECT_TRUE(block->SetValue(3, 160, 30.0F));
  EXPECT_EQ(block->GetFloat(0, 0), 1.5F);
  EXPECT_EQ(block->GetFloat(1, -160), 2.5F);
  EXPECT_EQ(block->GetFloat(3, 0), 30.0F);
  const auto* bone = dynamic_cast<BoneObject*>(object);
  ASSERT_NE(bone, nullptr);
  EXPECT_EQ(bone->Parameter(kBoneLengthParameter), 30.0F);
}

TEST_F(ObjectTest, ABoneHasNoOtherParameters) {
  ParameterBlock* block = NewObject(16, kBoneClass)->GetFirstParameterBlock();
  for (const int index : {-1, 4, 1000}) {
    EXPECT_FALSE(block->SetValue(index, 0, 1.0F));
    EXPECT_EQ(block->GetFloat(index, 0), 0.0F);
  }
}

TEST_F(ObjectTest, ADummyIsABox) {
  Object* object = NewObject(80, kDummyClass);
  const Box3 box(Point3(-1, -2, -3), Point3(4, 5, 6));
  auto* dummy = static_cast<DummyObject*>(object);
  dummy->SetBox(box);
  const auto* box_object = dynamic_cast<BoxObject*>(object);
  ASSERT_NE(box_object, nullptr);
  EXPECT_EQ(box_object->Box(), box);
  EXPECT_EQ(object->GetParamBlock(), nullptr);
  EXPECT_EQ(object->GetFirstParameterBlock(), nullptr);
}

TEST_F(ObjectTest, ASphereTakesItsParametersByNumberAndType) {
  Object* object = NewObject(16, kSphereClass);
  EXPECT_EQ(object->GetFirstParameterBlock(), nullptr);
  IParamBlock* block = object->GetParamBlock();
  ASSERT_NE(block, nullptr);
  EXPECT_TRUE(block->SetValue(object->GetParamBlockIndex(0), 0, 2.5F));
  EXPECT_TRUE(block->SetValue(object->GetParamBlockIndex(1), 0, 10));
  EXPECT_TRUE(block->SetValue(object->GetParamBlockIndex(2), 0, 1));
  EXPECT_TRUE(block->SetValue(object->GetParamBlockIndex(3), 0, 0.25F));
  EXPECT_TRUE(block->SetValue(object->GetParamBlockIndex(6), 0, 1));
  const auto* sphere = dynamic_cast<SphereObject*>(object);
  ASSERT_NE(sphere, nullptr);
  EXPECT_EQ(sphere->Radius(), 2.5F);
  EXPECT_EQ(sphere->Parameter(1), 10.0);
  EXPECT_EQ(sphere->Parameter(2), 1.0);
  EXPECT_EQ(sphere->Parameter(3), 0.25);
  EXPECT_EQ(sphere->Parameter(6), 1.0);
}

TEST_F(ObjectTest, ASphereRefusesTheWrongTypeAndUnknownParameters) {
  Object* object = NewObject(16, kSphereClass);
  IParamBlock* block = object->GetParamBlock();
  EXPECT_FALSE(block->SetValue(0, 0, 10));
  EXPECT_FALSE(block->SetValue(1, 0, 10.0F));
  for (const int index : {-1, 7, 1000}) {
    EXPECT_EQ(object->GetParamBlockIndex(index), -1);
    EXPECT_FALSE(block->SetValue(index, 0, 1));
    EXPECT_FALSE(block->SetValue(index, 0, 1.0F));
  }
}

TEST_F(ObjectTest, APointHasNoParameters) {
  Object* object = NewObject(80, kPointHelperClass);
  EXPECT_NE(dynamic_cast<PointHelper*>(object), nullptr);
  EXPECT_EQ(object->GetParamBlock(), nullptr);
  EXPECT_EQ(object->GetFirstParameterBlock(), nullptr);
}

TEST_F(ObjectTest, ParametersMakeAnotherObjectOfTheKindTheSame) {
  struct Case {
    SuperClassId super_class;
    ClassId class_id;
    std::vector<double> parameters;
  };
  const Case cases[] = {{16, kBoneClass, {1, 2, 3.5, 4}},
                        {16, kSphereClass, {0.5, 2, -2147483648.0, 0.25, 5, 6, 2147483647}},
                        {80, kDummyClass, {-1, -2, -3, 4, 5, 6.5}},
                        {80, kPointHelperClass, {}}};
  for (const Case& test_case : cases) {
    auto* object = dynamic_cast<SceneObject*>(NewObject(test_case.super_class, test_case.class_id));
    EXPECT_TRUE(object->SetParameters(test_case.parameters));
    EXPECT_EQ(object->Parameters(), test_case.parameters);
    std::vector<double> too_many = test_case.parameters;
    too_many.push_back(1.0);
    EXPECT_FALSE(object->SetParameters(too_many));
    for (std::size_t i = 0; i < test_case.parameters.size(); ++i) {
      std::vector<double> too_large = test_case.parameters;
      too_large[i] = 1e39;
      EXPECT_FALSE(object->SetParameters(too_large)) << i;
    }
    EXPECT_EQ(object->Parameters(), test_case.parameters);
  }
}

TEST_F(ObjectTest, WholeNumbersOfASphereStayWhole) {
  auto* sphere = dynamic_cast<SceneObject*>(NewObject(16, kSphereClass));
  EXPECT_FALSE(sphere->SetParameters({1, 2.5, 1, 0, 0, 0, 1}));
  EXPECT_TRUE(sphere->SetParameters({1.5, 2, 1, 0, 0, 0, 1}));
}

}  // namespace
}  // namespace host
