#include "host/gltf/viewer/object_meshes.h"

#include <cstddef>
#include <map>
#include <optional>
#include <tuple>

#include "host/gltf/viewer/geometry.h"
#include "host/gltf/viewer/shape.h"
#include "host/scene/point_helper.h"
#include "host/scene/sphere_object.h"

namespace host::gltf {

namespace {

constexpr float kPointRadius = 1.0F;

// What a node shows.
struct Look {
  enum class Form { kBall, kMark };

  Form form;
  float radius;  // system units
  int material;
};

bool operator<(const Look& left, const Look& right) {
  return std::tie(left.form, left.radius, left.material) <
         std::tie(right.form, right.radius, right.material);
}

std::optional<Look> LookOf(const Node& node, Materials& materials) {
  const SceneObject* object = node.ShownObject();
  if (const auto* sphere = dynamic_cast<const SphereObject*>(object)) {
    return Look{Look::Form::kBall, sphere->Radius(), materials.Of(node.WireColor())};
  }
  if (dynamic_cast<const PointHelper*>(object) != nullptr) {
    return Look{Look::Form::kMark, kPointRadius, materials.Of(node.WireColor())};
  }
  return std::nullopt;
}

Shape ShapeOf(const Look& look) {
  return look.form == Look::Form::kBall ? BallShape(look.radius) : MarkShape(look.radius);
}

class MeshMaker {
 public:
  MeshMaker(const ViewerSpace& space, TimeValue time, Document& document)
      : space_(space), time_(time), document_(document) {}

  // The index of the mesh that shows `node`. Nodes of one look share it, unless their objects stand
  // off from them.
  int MeshFor(const Node& node, const Look& look) {
    const std::optional<Matrix3>& offset = node.ObjectOffset();
    if (offset) return Add(Transformed(ShapeOf(look), *offset), node, look.material);
    const auto known = shared_.find(look);
    if (known != shared_.end()) return known->second;
    return shared_[look] = Add(ShapeOf(look), node, look.material);
  }

 private:
  int Add(const Shape& shape, const Node& node, int material) {
    const auto primitives = nlohmann::json::array(
        {StorePrimitive(shape, space_, node, time_, material, document_.data)});
    return document_.meshes.Add({{"primitives", primitives}});
  }

  const ViewerSpace& space_;
  TimeValue time_;
  Document& document_;
  std::map<Look, int> shared_;
};

}  // namespace

std::vector<int> AddObjectMeshes(const NodeTree& tree, const ViewerSpace& space, TimeValue time,
                                 Materials& materials, Document& document) {
  MeshMaker maker(space, time, document);
  std::vector<int> meshes;
  meshes.reserve(tree.size());
  for (const PlacedNode& placed : tree) {
    const std::optional<Look> look = LookOf(*placed.node, materials);
    meshes.push_back(look ? maker.MeshFor(*placed.node, *look) : -1);
  }
  return meshes;
}

}  // namespace host::gltf
