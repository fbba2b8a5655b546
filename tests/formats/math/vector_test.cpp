#include "formats/math/vector.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

TEST(Vector3, StartsAtZero) {
  const Vector3 vector;
  for (unsigned int index = 0; index < 3; ++index) EXPECT_EQ(vector[index], 0.0);
}

TEST(Vector4, StartsAtZero) {
  const Vector4 vector;
  for (unsigned int index = 0; index < 4; ++index) EXPECT_EQ(vector[index], 0.0);
}

TEST(Vector3, HasComponentsByIndexAndByName) {
  const Vector3 vector(1, 2, 3);
  EXPECT_EQ(vector[0], vector.x());
  EXPECT_EQ(vector[1], vector.y());
  EXPECT_EQ(vector[2], vector.z());
  EXPECT_EQ(vector.x(), 1);
  EXPECT_EQ(vector.y(), 2);
  EXPECT_EQ(vector.z(), 3);
}

TEST(Vector4, HasComponentsByIndexAndByName) {
  const Vector4 vector(1, 2, 3, 4);
  for (unsigned int index = 0; index < 4; ++index) EXPECT_EQ(vector[index], index + 1);
  EXPECT_EQ(vector.x(), 1);
  EXPECT_EQ(vector.y(), 2);
  EXPECT_EQ(vector.z(), 3);
  EXPECT_EQ(vector.w(), 4);
}

TEST(Vector3, AnswersZeroForTheFourthComponent) { EXPECT_EQ(Vector3(1, 2, 3).w(), 0.0); }

TEST(Vector, IsReadAndWrittenThroughTheBase) {
  Vector3 three(1, 2, 3);
  Vector4 four(1, 2, 3, 4);
  for (OrvaneVector<double>* vector :
       {static_cast<OrvaneVector<double>*>(&three), static_cast<OrvaneVector<double>*>(&four)}) {
    (*vector)[1] = 7;
    EXPECT_EQ(vector->y(), 7);
  }
  const OrvaneVector<double>& base = three;
  EXPECT_EQ(base.w(), 0.0);
  EXPECT_EQ(base[1], 7);
}

TEST(Vector, IsAValue) {
  const Vector3 original(1, 2, 3);
  Vector3 copy = original;
  copy[0] = 9;
  EXPECT_EQ(original.x(), 1);
}

}  // namespace
}  // namespace orvane
