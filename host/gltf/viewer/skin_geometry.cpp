#include "host/gltf/viewer/skin_geometry.h"

#include <array>
#include <cmath>
#include <utility>

#include "host/gltf/file/refusal.h"
#include "host/scene/bone_object.h"
#include "sdk/core/object.h"

namespace host::gltf {

namespace {

constexpr double kMarkMeters = 0.005;

// Joints that a vertex can follow in glTF; ours follow the first of them alone.
constexpr std::size_t kJointsOfVertex = 4;

constexpr std::size_t kFaces = Octahedron::kFaces.size();
constexpr std::size_t kVertices = 3 * kFaces;

template <typename Number, std::size_t kWidth>
using ForVertices = std::array<Number, kVertices * kWidth>;

bool IsFinite(const Matrix3& matrix) {
  for (int row = 0; row < 4; ++row) {
    for (int column = 0; column < 3; ++column) {
      if (!std::isfinite(matrix.GetRow(row)[column])) return false;
    }
  }
  return true;
}

// How a bone is tied to its joint: where the joint stands, and the way back from there.
struct Binding {
  Matrix3 joint;
  Matrix3 inverse;
};

// A joint whose transform has no inverse is bound as if it stood at the origin, which draws the
// same; Inverse gives the identity for it.
Binding BindingOf(const Node& node, TimeValue time) {
  const Matrix3& joint = node.WorldTransform(time);
  const Matrix3 inverse = Inverse(joint);
  if (inverse == Matrix3() || !IsFinite(inverse)) return {};
  return {joint, inverse};
}

ForVertices<float, 3> PositionsOf(const Octahedron& shape, const ViewerSpace& space) {
  std::array<std::array<float, 3>, 6> corners;
  for (std::size_t i = 0; i < corners.size(); ++i) {
    corners[i] = Rounded(space.Position(shape.corners[i]));
  }
  ForVertices<float, 3> positions;
  auto* next = positions.data();
  for (const auto& face : Octahedron::kFaces) {
    for (const std::size_t corner : face) {
      next = std::copy(corners[corner].begin(), corners[corner].end(), next);
    }
  }
  return positions;
}

ForVertices<float, 3> DirectionsOf(const FaceNormals& faces) {
  ForVertices<float, 3> normals;
  auto* next = normals.data();
  for (const Point3& normal : faces) {
    const auto direction = Rounded(ViewerSpace::Direction(normal));
    for (int corner = 0; corner < 3; ++corner) {
      next = std::copy(direction.begin(), direction.end(), next);
    }
  }
  return normals;
}

ForVertices<std::uint16_t, kJointsOfVertex> JointsOf(std::uint16_t joint) {
  ForVertices<std::uint16_t, kJointsOfVertex> joints{};
  for (std::size_t i = 0; i < joints.size(); i += kJointsOfVertex) joints[i] = joint;
  return joints;
}

// Full weight for the first joint of every vertex.
ForVertices<float, kJointsOfVertex> FirstJointWeights() {
  ForVertices<float, kJointsOfVertex> weights{};
  for (std::size_t i = 0; i < weights.size(); i += kJointsOfVertex) weights[i] = 1.0F;
  return weights;
}

// Its vertices count from `first` on.
ForVertices<std::uint32_t, 1> TrianglesOf(const Octahedron& shape, std::uint32_t first) {
  ForVertices<std::uint32_t, 1> triangles;
  for (std::uint32_t i = 0; i < triangles.size(); ++i) triangles[i] = first + i;
  if (!shape.is_mirrored) return triangles;
  for (std::size_t i = 0; i < triangles.size(); i += 3)
    std::swap(triangles[i + 1], triangles[i + 2]);
  return triangles;
}

}  // namespace

Matrix3 Bones::InverseOf(std::size_t index) const {
  return BindingOf(NodeAt(index), time_).inverse;
}

Octahedron Bones::OwnShapeOf(const Node& node) const {
  const auto& bone = dynamic_cast<const BoneObject&>(*node.ShownObject());
  return BoneOctahedron(bone.Parameter(kBoneWidthParameter), bone.Parameter(kBoneHeightParameter),
                        bone.Parameter(kBoneLengthParameter), space_.HostLength(kMarkMeters));
}

Octahedron Bones::ShapeOf(std::size_t index) const {
  const Node& node = NodeAt(index);
  Octahedron shape = OwnShapeOf(node);
  if (node.ObjectOffset()) shape = Transformed(shape, *node.ObjectOffset());
  return Transformed(shape, BindingOf(node, time_).joint);
}

FaceNormals Bones::NormalsOf(std::size_t index) const {
  const Node& node = NodeAt(index);
  FaceNormals normals = gltf::NormalsOf(OwnShapeOf(node));
  if (node.ObjectOffset()) normals = Transformed(normals, *node.ObjectOffset());
  return Transformed(normals, BindingOf(node, time_).joint);
}

void BonePrimitive::Add(std::size_t index, std::uint16_t joint) {
  const auto positions = PositionsOf(bones_->ShapeOf(index), bones_->Space());
  RequireFinite(positions, bones_->NodeAt(index), "shape", bones_->Time());
  bounds_.Add(positions);
  jointed_->push_back({static_cast<std::uint32_t>(index), joint});
}

template <typename Append>
MadeNumbers BonePrimitive::ForEachBone(std::size_t bytes, const Append& append) const {
  return {bytes * jointed_->size(), [jointed = jointed_, append](Output& output) {
            for (const JointedBone& bone : *jointed) append(bone, output);
          }};
}

nlohmann::json BonePrimitive::StoreIn(BinaryData& data, int material) const {
  const auto shape_of = [bones = bones_](const JointedBone& bone) {
    return bones->ShapeOf(bone.index);
  };
  const auto positions = [bones = bones_, shape_of](const JointedBone& bone, Output& output) {
    output.AppendNumbers(PositionsOf(shape_of(bone), bones->Space()));
  };
  const auto normals = [bones = bones_](const JointedBone& bone, Output& output) {
    output.AppendNumbers(DirectionsOf(bones->NormalsOf(bone.index)));
  };
  const auto joints = [](const JointedBone& bone, Output& output) {
    output.AppendNumbers(JointsOf(bone.joint));
  };
  const auto weights = [](const JointedBone& /*bone*/, Output& output) {
    output.AppendNumbers(FirstJointWeights());
  };
  const auto triangles = [jointed = jointed_, shape_of](const JointedBone& bone, Output& output) {
    const auto number = static_cast<std::uint32_t>(&bone - jointed->data());
    output.AppendNumbers(TrianglesOf(shape_of(bone), number * kVertices));
  };
  nlohmann::json attributes = {
      {"POSITION",
       data.AddPositions(ForEachBone(sizeof(ForVertices<float, 3>), positions), bounds_)},
      {"NORMAL", data.AddNormals(ForEachBone(sizeof(ForVertices<float, 3>), normals))},
      {"JOINTS_0",
       data.AddJoints(ForEachBone(sizeof(ForVertices<std::uint16_t, kJointsOfVertex>), joints))},
      {"WEIGHTS_0",
       data.AddWeights(ForEachBone(sizeof(ForVertices<float, kJointsOfVertex>), weights))}};
  const int indices =
      data.AddTriangles(ForEachBone(sizeof(ForVertices<std::uint32_t, 1>), triangles));
  return {{"attributes", std::move(attributes)}, {"indices", indices}, {"material", material}};
}

}  // namespace host::gltf
