#include "tests/host/gltf/viewer.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>

namespace test {

namespace {

using Numbers4 = std::array<double, 4>;

Matrix4 Identity() { return {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1}; }

// translation * rotation * scale, as the format says.
Matrix4 Composed(const std::vector<double>& t, const std::vector<double>& q,
                 const std::vector<double>& s) {
  const double x = q[0];
  const double y = q[1];
  const double z = q[2];
  const double w = q[3];
  return {(1 - 2 * (y * y + z * z)) * s[0],
          2 * (x * y + z * w) * s[0],
          2 * (x * z - y * w) * s[0],
          0,
          2 * (x * y - z * w) * s[1],
          (1 - 2 * (x * x + z * z)) * s[1],
          2 * (y * z + x * w) * s[1],
          0,
          2 * (x * z + y * w) * s[2],
          2 * (y * z - x * w) * s[2],
          (1 - 2 * (x * x + y * y)) * s[2],
          0,
          t[0],
          t[1],
          t[2],
          1};
}

std::vector<double> Or(const std::vector<double>& numbers, const std::vector<double>& otherwise) {
  return numbers.empty() ? otherwise : numbers;
}

double Component(const unsigned char* bytes, int type) {
  if (type == TINYGLTF_COMPONENT_TYPE_FLOAT) {
    float number = 0;
    std::memcpy(&number, bytes, sizeof number);
    return number;
  }
  if (type == TINYGLTF_COMPONENT_TYPE_UNSIGNED_SHORT) {
    std::uint16_t number = 0;
    std::memcpy(&number, bytes, sizeof number);
    return number;
  }
  EXPECT_EQ(type, TINYGLTF_COMPONENT_TYPE_UNSIGNED_INT);
  std::uint32_t number = 0;
  std::memcpy(&number, bytes, sizeof number);
  return number;
}

// Of `values` with that many components a key, the ones at `second`, joined linearly unless
// `in_steps`.
std::vector<double> Interpolated(const std::vector<double>& seconds,
                                 const std::vector<double>& values, double second, bool in_steps) {
  const std::size_t width = values.size() / seconds.size();
  const auto later = std::lower_bound(seconds.begin(), seconds.end(), second);
  const auto at = [&](std::size_t key) {
    const auto first = values.begin() + static_cast<std::ptrdiff_t>(key * width);
    return std::vector<double>(first, first + static_cast<std::ptrdiff_t>(width));
  };
  if (later == seconds.end()) return at(seconds.size() - 1);
  const auto to = static_cast<std::size_t>(later - seconds.begin());
  if (to == 0 || *later == second) return at(to);
  if (in_steps) return at(to - 1);
  const double fraction = (second - seconds[to - 1]) / (seconds[to] - seconds[to - 1]);
  std::vector<double> mixed = at(to - 1);
  const std::vector<double> next = at(to);
  double length = 0;
  for (std::size_t i = 0; i < width; ++i) {
    mixed[i] += (next[i] - mixed[i]) * fraction;
    length += mixed[i] * mixed[i];
  }
  if (width != 4) return mixed;
  for (double& number : mixed) number /= std::sqrt(length);
  return mixed;
}

}  // namespace

Matrix4 Product(const Matrix4& left, const Matrix4& right) {
  Matrix4 product{};
  for (std::size_t column = 0; column < 4; ++column) {
    for (std::size_t row = 0; row < 4; ++row) {
      for (std::size_t i = 0; i < 4; ++i) {
        product[column * 4 + row] += left[i * 4 + row] * right[column * 4 + i];
      }
    }
  }
  return product;
}

Vector3 Apply(const Matrix4& matrix, const Vector3& point) {
  Vector3 result{};
  for (std::size_t row = 0; row < 3; ++row) {
    result[row] = matrix[row] * point[0] + matrix[4 + row] * point[1] + matrix[8 + row] * point[2] +
                  matrix[12 + row];
  }
  return result;
}

Vector3 Origin(const Matrix4& matrix) { return {matrix[12], matrix[13], matrix[14]}; }

std::string Written(const host::Scene& scene, const host::gltf::WriteOptions& options) {
  host::gltf::WrittenScene written = host::gltf::WriteScene(scene, options);
  EXPECT_EQ(written.refusal, "");
  return std::move(written.bytes);
}

Viewer::Viewer(const std::string& bytes) {
  tinygltf::TinyGLTF library;
  std::string error;
  std::string warning;
  const auto size = static_cast<unsigned int>(bytes.size());
  const bool binary = bytes.rfind("glTF", 0) == 0;
  const bool loaded =
      binary
          ? library.LoadBinaryFromMemory(&model_, &error, &warning,
                                         reinterpret_cast<const unsigned char*>(bytes.data()), size)
          : library.LoadASCIIFromString(&model_, &error, &warning, bytes.data(), size, "");
  EXPECT_TRUE(loaded);
  EXPECT_EQ(error, "");
  EXPECT_EQ(warning, "");
  parents_.assign(model_.nodes.size(), -1);
  for (std::size_t node = 0; node < model_.nodes.size(); ++node) {
    for (const int child : model_.nodes[node].children) {
      parents_.at(static_cast<std::size_t>(child)) = static_cast<int>(node);
    }
  }
}

std::size_t Viewer::NodeNamed(const std::string& name) const {
  const auto has_name = [&](const tinygltf::Node& node) { return node.name == name; };
  EXPECT_EQ(std::count_if(model_.nodes.begin(), model_.nodes.end(), has_name), 1) << name;
  const auto found = std::find_if(model_.nodes.begin(), model_.nodes.end(), has_name);
  return found == model_.nodes.end() ? 0 : static_cast<std::size_t>(found - model_.nodes.begin());
}

Matrix4 Viewer::LocalAtRest(std::size_t node) const {
  const tinygltf::Node& rest = model_.nodes.at(node);
  EXPECT_TRUE(rest.matrix.empty());
  return Composed(Or(rest.translation, {0, 0, 0}), Or(rest.rotation, {0, 0, 0, 1}),
                  Or(rest.scale, {1, 1, 1}));
}

Matrix4 Viewer::LocalAt(std::size_t node, double second) const {
  const tinygltf::Node& rest = model_.nodes.at(node);
  const auto value = [&](const char* path, const std::vector<double>& otherwise) {
    if (ChannelOf(node, path) == nullptr) return otherwise;
    return Interpolated(Seconds(node, path), Values(node, path), second, GoesInSteps(node, path));
  };
  return Composed(value("translation", Or(rest.translation, {0, 0, 0})),
                  value("rotation", Or(rest.rotation, {0, 0, 0, 1})),
                  value("scale", Or(rest.scale, {1, 1, 1})));
}

Matrix4 Viewer::WorldAtRest(std::size_t node) const {
  Matrix4 world = LocalAtRest(node);
  for (int parent = parents_[node]; parent != -1;
       parent = parents_[static_cast<std::size_t>(parent)]) {
    world = Product(LocalAtRest(static_cast<std::size_t>(parent)), world);
  }
  return world;
}

Matrix4 Viewer::WorldAt(std::size_t node, double second) const {
  Matrix4 world = LocalAt(node, second);
  for (int parent = parents_[node]; parent != -1;
       parent = parents_[static_cast<std::size_t>(parent)]) {
    world = Product(LocalAt(static_cast<std::size_t>(parent), second), world);
  }
  return world;
}

std::vector<double> Viewer::Numbers(int accessor_index) const {
  const tinygltf::Accessor& accessor =
      model_.accessors.at(static_cast<std::size_t>(accessor_index));
  const auto& view = model_.bufferViews.at(static_cast<std::size_t>(accessor.bufferView));
  const auto& bytes = model_.buffers.at(static_cast<std::size_t>(view.buffer)).data;
  const auto width = static_cast<std::size_t>(
      tinygltf::GetNumComponentsInType(static_cast<std::uint32_t>(accessor.type)));
  const auto size = static_cast<std::size_t>(
      tinygltf::GetComponentSizeInBytes(static_cast<std::uint32_t>(accessor.componentType)));
  std::vector<double> numbers;
  for (std::size_t i = 0; i < accessor.count * width; ++i) {
    const std::size_t offset = view.byteOffset + accessor.byteOffset + i * size;
    numbers.push_back(Component(&bytes.at(offset), accessor.componentType));
  }
  return numbers;
}

const tinygltf::AnimationChannel* Viewer::ChannelOf(std::size_t node,
                                                    const std::string& path) const {
  if (model_.animations.empty()) return nullptr;
  const auto& channels = model_.animations.front().channels;
  const auto found = std::find_if(channels.begin(), channels.end(), [&](const auto& channel) {
    return channel.target_node == static_cast<int>(node) && channel.target_path == path;
  });
  return found == channels.end() ? nullptr : &*found;
}

std::vector<double> Viewer::Seconds(std::size_t node, const std::string& path) const {
  const auto sampler = static_cast<std::size_t>(ChannelOf(node, path)->sampler);
  return Numbers(model_.animations.front().samplers.at(sampler).input);
}

std::vector<double> Viewer::Values(std::size_t node, const std::string& path) const {
  const auto sampler = static_cast<std::size_t>(ChannelOf(node, path)->sampler);
  return Numbers(model_.animations.front().samplers.at(sampler).output);
}

bool Viewer::GoesInSteps(std::size_t node, const std::string& path) const {
  const auto sampler = static_cast<std::size_t>(ChannelOf(node, path)->sampler);
  return model_.animations.front().samplers.at(sampler).interpolation == "STEP";
}

std::vector<Vector3> Viewer::Corners(std::size_t node) const { return Vectors(node, "POSITION"); }

std::vector<Vector3> Viewer::Normals(std::size_t node) const { return Vectors(node, "NORMAL"); }

std::vector<Vector3> Viewer::Vectors(std::size_t node, const std::string& attribute) const {
  std::vector<Vector3> corners;
  const auto mesh = static_cast<std::size_t>(model_.nodes.at(node).mesh);
  for (const tinygltf::Primitive& part : model_.meshes.at(mesh).primitives) {
    const std::vector<double> numbers = Numbers(part.attributes.at(attribute));
    for (std::size_t i = 0; i < numbers.size(); i += 3) {
      corners.push_back({numbers[i], numbers[i + 1], numbers[i + 2]});
    }
  }
  return corners;
}

Matrix4 Viewer::JointMatrix(const tinygltf::Skin& skin, std::size_t joint, double second) const {
  const std::vector<double> inverses = Numbers(skin.inverseBindMatrices);
  Matrix4 inverse = Identity();
  std::copy_n(inverses.begin() + static_cast<std::ptrdiff_t>(joint * 16), 16, inverse.begin());
  return Product(WorldAt(static_cast<std::size_t>(skin.joints.at(joint)), second), inverse);
}

std::vector<Vector3> Viewer::DrawnCorners(std::size_t node, double second) const {
  std::vector<Vector3> corners = Corners(node);
  const int skin = model_.nodes.at(node).skin;
  const std::vector<std::size_t> joints = skin < 0 ? std::vector<std::size_t>() : JointNodes(node);
  for (std::size_t i = 0; i < corners.size(); ++i) {
    if (skin < 0) {
      corners[i] = Apply(WorldAt(node, second), corners[i]);
      continue;
    }
    const tinygltf::Skin& joint_list = model_.skins.at(static_cast<std::size_t>(skin));
    const auto found =
        std::find(joint_list.joints.begin(), joint_list.joints.end(), static_cast<int>(joints[i]));
    const auto joint = static_cast<std::size_t>(found - joint_list.joints.begin());
    corners[i] = Apply(JointMatrix(joint_list, joint, second), corners[i]);
  }
  return corners;
}

std::vector<std::size_t> Viewer::JointNodes(std::size_t node) const {
  std::vector<std::size_t> joints;
  const tinygltf::Node& skinned = model_.nodes.at(node);
  const tinygltf::Skin& skin = model_.skins.at(static_cast<std::size_t>(skinned.skin));
  const auto& mesh = model_.meshes.at(static_cast<std::size_t>(skinned.mesh));
  for (const tinygltf::Primitive& part : mesh.primitives) {
    const std::vector<double> numbers = Numbers(part.attributes.at("JOINTS_0"));
    const std::vector<double> weights = Numbers(part.attributes.at("WEIGHTS_0"));
    EXPECT_EQ(numbers.size(), weights.size());
    for (std::size_t i = 0; i < numbers.size(); i += 4) {
      EXPECT_EQ(std::vector<double>(&weights[i], &weights[i] + 4),
                (std::vector<double>{1, 0, 0, 0}));
      joints.push_back(
          static_cast<std::size_t>(skin.joints.at(static_cast<std::size_t>(numbers[i]))));
    }
  }
  return joints;
}

std::vector<std::size_t> Viewer::Triangles(std::size_t node) const {
  std::vector<std::size_t> corners;
  std::size_t first = 0;
  const auto mesh = static_cast<std::size_t>(model_.nodes.at(node).mesh);
  for (const tinygltf::Primitive& part : model_.meshes.at(mesh).primitives) {
    for (const double corner : Numbers(part.indices)) {
      corners.push_back(first + static_cast<std::size_t>(corner));
    }
    first += Numbers(part.attributes.at("POSITION")).size() / 3;
  }
  return corners;
}

}  // namespace test
