#pragma once

#include <tiny_gltf.h>

#include <array>
#include <cstddef>
#include <string>
#include <vector>

#include "host/gltf/writer.h"

// A glTF viewer without a screen: reads a file and computes what a viewer would draw, in its own
// words, so that tests can compare that with the scene.

namespace test {

using Vector3 = std::array<double, 3>;

// Column by column, for column vectors: the point p comes to M * p.
using Matrix4 = std::array<double, 16>;

Matrix4 Product(const Matrix4& left, const Matrix4& right);
Vector3 Apply(const Matrix4& matrix, const Vector3& point);
Vector3 Origin(const Matrix4& matrix);

// The bytes of `scene` as a file; a test failure when it is refused.
std::string Written(const host::Scene& scene, const host::gltf::WriteOptions& options = {});

class Viewer {
 public:
  // Reads the bytes of a .glb or .gltf file; a test failure, and an empty model, when they are no
  // good.
  explicit Viewer(const std::string& bytes);

  const tinygltf::Model& File() const { return model_; }

  // The only node of that name; a test failure when there is none or another.
  std::size_t NodeNamed(const std::string& name) const;

  // Parents of nodes by index, -1 for the scene's own.
  const std::vector<int>& Parents() const { return parents_; }

  // The world transform of a node without and with animation.
  Matrix4 WorldAtRest(std::size_t node) const;
  Matrix4 WorldAt(std::size_t node, double second) const;

  // The numbers of an accessor, all components one after the other.
  std::vector<double> Numbers(int accessor_index) const;

  // The channel of the only animation that moves `path` of `node`, or null.
  const tinygltf::AnimationChannel* ChannelOf(std::size_t node, const std::string& path) const;
  std::vector<double> Seconds(std::size_t node, const std::string& path) const;
  std::vector<double> Values(std::size_t node, const std::string& path) const;
  bool GoesInSteps(std::size_t node, const std::string& path) const;

  // The corners of all parts of the mesh of `node` in the mesh's own space, and as they are drawn
  // at `second`: skinned where the mesh is.
  std::vector<Vector3> Corners(std::size_t node) const;
  std::vector<Vector3> DrawnCorners(std::size_t node, double second) const;

  // The direction that the surface faces at each corner, in the mesh's own space.
  std::vector<Vector3> Normals(std::size_t node) const;

  // The joint that each of these corners follows, as a node.
  std::vector<std::size_t> JointNodes(std::size_t node) const;

  // The corners of all triangles of the mesh, three each, as numbers of Corners.
  std::vector<std::size_t> Triangles(std::size_t node) const;

 private:
  std::vector<Vector3> Vectors(std::size_t node, const std::string& attribute) const;
  Matrix4 LocalAtRest(std::size_t node) const;
  Matrix4 LocalAt(std::size_t node, double second) const;
  Matrix4 JointMatrix(const tinygltf::Skin& skin, std::size_t joint, double second) const;

  tinygltf::Model model_;
  std::vector<int> parents_;
};

}  // namespace test
