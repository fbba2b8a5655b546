#include "host/gltf/writer.h"

#include <utility>

#include "host/gltf/file/container.h"
#include "host/gltf/file/document.h"
#include "host/gltf/file/names.h"
#include "host/gltf/file/node_tree.h"
#include "host/gltf/file/refusal.h"
#include "host/gltf/kept/kept_scene.h"
#include "host/gltf/viewer/shown_scene.h"

namespace host::gltf {

namespace {

constexpr const char* kNamelessScene = "Scene";

Document DocumentOf(const Scene& scene, const WriteOptions& options) {
  const std::string& name = options.name;
  Document document;
  document.scene_name = name.empty() ? kNamelessScene : ViewerName(name);
  document.animation_name = ViewerName(name);

  const NodeTree tree = NodeTreeOf(scene);
  ShowScene(scene, tree, document);
  if (options.plain) {
    LeaveSceneOut(document);
  } else {
    KeepScene(scene, tree, document);
  }
  return document;
}

}  // namespace

WrittenScene WriteScene(const Scene& scene, const WriteOptions& options) {
  try {
    Document document = DocumentOf(scene, options);
    return {options.container == Container::kBinary ? BinaryFile(std::move(document))
                                                    : TextFile(std::move(document)),
            ""};
  } catch (const Refusal& refusal) {
    return {"", refusal.what()};
  }
}

}  // namespace host::gltf
