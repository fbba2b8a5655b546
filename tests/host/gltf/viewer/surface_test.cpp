#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <string>
#include <vector>

#include "tests/host/gltf/test_scene.h"
#include "tests/host/gltf/viewer.h"

// Which side of a shape is its outside, and where its surface faces.

namespace test {
namespace {

Vector3 Cross(const Vector3& a, const Vector3& b) {
  return {a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]};
}

Vector3 Between(const Vector3& from, const Vector3& to) {
  return {to[0] - from[0], to[1] - from[1], to[2] - from[2]};
}

double Dot(const Vector3& a, const Vector3& b) { return a[0] * b[0] + a[1] * b[1] + a[2] * b[2]; }

double Length(const Vector3& vector) { return std::sqrt(Dot(vector, vector)); }

// Six times the volume that triangles enclose, positive when they wind outwards.
double Volume(const std::vector<Vector3>& corners, const std::vector<std::size_t>& triangles) {
  double volume = 0;
  for (std::size_t i = 0; i < triangles.size(); i += 3) {
    const Vector3 a = corners.at(triangles[i]);
    const Vector3 b = corners.at(triangles[i + 1]);
    const Vector3 c = corners.at(triangles[i + 2]);
    volume += a[0] * (b[1] * c[2] - b[2] * c[1]) + a[1] * (b[2] * c[0] - b[0] * c[2]) +
              a[2] * (b[0] * c[1] - b[1] * c[0]);
  }
  return volume;
}

struct Surface {
  std::string name;
  std::function<void(host::Scene& scene)> build;
  std::string node;  // that shows it
  double least;      // cosine between where a triangle and where its corners face
};

Matrix3 Scaled(float x, float y, float z) {
  return Matrix3({x, 0, 0}, {0, y, 0}, {0, 0, z}, {10, 20, 30});
}

void AddBeside(host::Scene& scene, const Matrix3& offset, bool ball) {
  (ball ? AddSphere(scene, nullptr, "shape", 300.0F) : AddPoint(scene, nullptr, "shape"))
      .SetObjectOffset(offset);
}

// A bone below one that is turned, below a group of that scale.
void AddBoneBelow(host::Scene& scene, const Point3& scale, const BoneSize& size = {}) {
  host::Node& group = AddDummy(scene, nullptr, "shape");
  group.Transform()->Scale().SetConstant(scale);
  host::Node& turned = AddDummy(scene, &group, "turned");
  turned.Transform()->Rotation().SetConstant(TurnAbout(2, 30.0));
  AddBone(scene, &turned, "bone", size);
}

constexpr double kFlat = 0.9999;
constexpr double kSmooth = 0.95;
constexpr double kSmoothAndSquashed = 0.7;

const Surface kSurfaces[] = {
    {"ball", [](auto& scene) { AddSphere(scene, nullptr, "shape", 300.0F); }, "shape", kSmooth},
    {"ball_of_negative_radius", [](auto& scene) { AddSphere(scene, nullptr, "shape", -300.0F); },
     "shape", kSmooth},
    {"mark", [](auto& scene) { AddPoint(scene, nullptr, "shape"); }, "shape", kFlat},
    {"squashed_ball", [](auto& scene) { AddBeside(scene, Scaled(1, 3, 1), true); }, "shape",
     kSmoothAndSquashed},
    {"mirrored_ball", [](auto& scene) { AddBeside(scene, Scaled(1, -1, 1), true); }, "shape",
     kSmooth},
    {"mirrored_mark", [](auto& scene) { AddBeside(scene, Scaled(-2, -1, -1), false); }, "shape",
     kFlat},
    {"bone",
     [](auto& scene) {
       AddBone(scene, nullptr, "shape", {400.0F, 80.0F, 40.0F});
     },
     "shape bones", kFlat},
    {"bone_backwards",
     [](auto& scene) {
       AddBone(scene, nullptr, "shape", {-400.0F, 80.0F, 40.0F});
     },
     "shape bones", kFlat},
    {"bone_of_negative_width",
     [](auto& scene) {
       AddBone(scene, nullptr, "shape", {400.0F, -80.0F, 40.0F});
     },
     "shape bones", kFlat},
    {"bone_without_length",
     [](auto& scene) {
       AddBone(scene, nullptr, "shape", {0.0F, 1.0F, 1.0F});
     },
     "shape bones", kFlat},
    {"stretched_bone",
     [](auto& scene) {
       AddBoneBelow(scene, {1, 4, 2});
     },
     "shape bones", kFlat},
    {"mirrored_bone",
     [](auto& scene) {
       AddBoneBelow(scene, {1, 1, -1});
     },
     "shape bones", kFlat},
};

class GltfSurface : public testing::TestWithParam<Surface> {};

TEST_P(GltfSurface, IsOutsideAndFacesOutwards) {
  host::Scene scene;
  GetParam().build(scene);
  const Viewer viewer(Written(scene));
  const std::size_t node = viewer.NodeNamed(GetParam().node);
  const std::vector<Vector3> corners = viewer.Corners(node);
  const std::vector<Vector3> normals = viewer.Normals(node);
  const std::vector<std::size_t> triangles = viewer.Triangles(node);
  ASSERT_EQ(normals.size(), corners.size());
  EXPECT_GT(Volume(corners, triangles), 0.0);
  for (const Vector3& normal : normals) EXPECT_NEAR(Length(normal), 1.0, 1e-6);
  for (std::size_t i = 0; i < triangles.size(); ++i) {
    const std::size_t first = i - i % 3;
    const Vector3& start = corners[triangles[first]];
    const Vector3 facing = Cross(Between(start, corners[triangles[first + 1]]),
                                 Between(start, corners[triangles[first + 2]]));
    EXPECT_GE(Dot(facing, normals[triangles[i]]), GetParam().least * Length(facing)) << i;
  }
}

INSTANTIATE_TEST_SUITE_P(Of, GltfSurface, testing::ValuesIn(kSurfaces),
                         [](const auto& surface) { return surface.param.name; });

TEST(GltfSurfaces, OfABallIsSmooth) {
  host::Scene scene;
  AddSphere(scene, nullptr, "ball", 1000.0F);
  const Viewer viewer(Written(scene));
  const std::vector<Vector3> corners = viewer.Corners(0);
  const std::vector<Vector3> normals = viewer.Normals(0);
  EXPECT_EQ(corners.size(), 162U);  // shared by the triangles around them
  for (std::size_t i = 0; i < corners.size(); ++i) {
    EXPECT_NEAR(Dot(corners[i], normals[i]), 1.0, 1e-6);
  }
}

TEST(GltfSurfaces, ThatAreFlattenedStillFaceSomewhere) {
  for (const Point3& scale : {Point3(1, 0, 1), Point3(0, 0, 1), Point3(0, 0, 0)}) {
    host::Scene scene;
    AddSphere(scene, nullptr, "ball", 1000.0F).SetObjectOffset(Scaled(scale.x, scale.y, scale.z));
    for (const Vector3& normal : Viewer(Written(scene)).Normals(0)) {
      EXPECT_NEAR(Length(normal), 1.0, 1e-6);
    }
  }
}

}  // namespace
}  // namespace test
