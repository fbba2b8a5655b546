#include "web/desk/node_look.h"

#include "host/scene/bone_object.h"
#include "host/scene/point_helper.h"
#include "host/scene/sphere_object.h"

namespace web {

NodeLook LookOf(const host::Node& node) {
  const host::SceneObject* const object = node.ShownObject();
  if (const auto* bone = dynamic_cast<const host::BoneObject*>(object)) {
    return {NodeKind::kBone, static_cast<double>(bone->Parameter(kBoneLengthParameter))};
  }
  if (const auto* sphere = dynamic_cast<const host::SphereObject*>(object)) {
    return {NodeKind::kMarker, static_cast<double>(sphere->Radius())};
  }
  if (dynamic_cast<const host::PointHelper*>(object) != nullptr) return {NodeKind::kMarker, 0.0};
  return {};
}

}  // namespace web
