#include "host/gltf/writer.h"

#include <tiny_gltf.h>

#include "host/gltf/animation.h"
#include "host/gltf/binary_data.h"
#include "host/gltf/container.h"
#include "host/gltf/kept_scene.h"
#include "host/gltf/materials.h"
#include "host/gltf/names.h"
#include "host/gltf/node_tree.h"
#include "host/gltf/object_meshes.h"
#include "host/gltf/refusal.h"
#include "host/gltf/skins.h"
#include "host/gltf/viewer_space.h"

namespace host::gltf {

namespace {

constexpr const char* kGenerator = "OrvaneFileIO";
constexpr const char* kNamelessScene = "Scene";

// A scene without nodes must have a name, or the library writes a null in its place.
void NameScene(const std::string& name, tinygltf::Scene& scene) {
  scene.name = name.empty() ? kNamelessScene : ViewerName(name);
}

tinygltf::Model ModelOf(const Scene& scene, const std::string& name) {
  tinygltf::Model model;
  model.asset.generator = kGenerator;
  model.defaultScene = 0;
  NameScene(name, model.scenes.emplace_back());

  const ViewerSpace space(scene.MillimetersPerUnit());
  const TimeValue time = scene.Animation().Time();
  const NodeTree tree = NodeTreeOf(scene);
  BinaryData data(model);
  Materials materials(model);
  AddAnimation(tree, space, ViewerName(name), data, model);
  AddNodes(tree, space, time, model);
  AddObjectMeshes(tree, space, time, materials, data, model);
  AddSkins(tree, space, time, materials, data, model);
  KeepScene(scene, tree, data, model);
  return model;
}

}  // namespace

WrittenScene WriteScene(const Scene& scene, const WriteOptions& options) {
  try {
    return {PackedModel(ModelOf(scene, options.name), options.container), ""};
  } catch (const Refusal& refusal) {
    return {"", refusal.what()};
  }
}

}  // namespace host::gltf
