#include "host/scene/world_memory.h"

#include "host/scene/scene.h"
#include "tests/host/scene/scene_fixture.h"

namespace host {
namespace {

Matrix3 At(float x) {
  Matrix3 transform;
  transform.SetRow(3, Point3(x, 0, 0));
  return transform;
}

class WorldMemoryTest : public SceneFixture {
 protected:
  Node& first_ = *NewBone("First");
  Node& second_ = *NewBone("Second");
  Node& third_ = *NewBone("Third");
};

TEST_F(WorldMemoryTest, KeepsTransformsByNodeAndTime) {
  WorldMemory memory;
  memory.Keep(first_, 10, At(1));
  memory.Keep(first_, -20, At(2));
  memory.Keep(second_, 10, At(3));
  memory.Keep(first_, 10, At(4));
  EXPECT_EQ(memory.Size(), 3U);
  ASSERT_NE(memory.Find(first_, 10), nullptr);
  EXPECT_EQ(*memory.Find(first_, 10), At(4));
  EXPECT_EQ(*memory.Find(first_, -20), At(2));
  EXPECT_EQ(*memory.Find(second_, 10), At(3));
  EXPECT_EQ(memory.Find(first_, 11), nullptr);
  EXPECT_EQ(memory.Find(third_, 10), nullptr);
}

TEST_F(WorldMemoryTest, ForgetsAllTimesOfANode) {
  WorldMemory memory;
  memory.Keep(first_, 1, At(1));
  memory.Keep(first_, 2, At(2));
  memory.Keep(second_, 1, At(3));
  memory.Forget(first_);
  memory.Forget(third_);
  EXPECT_EQ(memory.Size(), 1U);
  EXPECT_EQ(memory.Find(first_, 1), nullptr);
  EXPECT_EQ(*memory.Find(second_, 1), At(3));
}

TEST_F(WorldMemoryTest, WhenItIsFullTheNodeThatWasUsedLongestAgoGoes) {
  WorldMemory memory(4);
  memory.Keep(first_, 1, At(1));
  memory.Keep(first_, 2, At(2));
  memory.Keep(second_, 1, At(3));
  memory.Keep(second_, 2, At(4));
  memory.Find(first_, 1);
  memory.Keep(third_, 1, At(5));
  EXPECT_EQ(memory.Size(), 3U);
  EXPECT_EQ(*memory.Find(first_, 2), At(2));
  EXPECT_EQ(memory.Find(second_, 2), nullptr);
  EXPECT_EQ(*memory.Find(third_, 1), At(5));
}

TEST_F(WorldMemoryTest, OneNodeOverMoreTimesThanFitStartsAfresh) {
  WorldMemory memory(4);
  for (int time = 0; time < 100; ++time) memory.Keep(first_, time, At(1));
  EXPECT_EQ(memory.Size(), 4U);
  EXPECT_NE(memory.Find(first_, 99), nullptr);
}

}  // namespace
}  // namespace host
