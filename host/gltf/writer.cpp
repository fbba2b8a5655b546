#include "host/gltf/writer.h"

#include <utility>

#include "host/gltf/file/container.h"
#include "host/gltf/file/document.h"
#include "host/gltf/file/key_counts.h"
#include "host/gltf/file/names.h"
#include "host/gltf/file/node_tree.h"
#include "host/gltf/file/refusal.h"
#include "host/gltf/kept/kept_scene.h"
#include "host/gltf/viewer/animation.h"
#include "host/gltf/viewer/shown_scene.h"
#include "host/gltf/viewer/viewer_time.h"

namespace host::gltf {

namespace {

constexpr const char* kNamelessScene = "Scene";

// Throws a Refusal when the keys alone are more than the file may have.
void RequireRoomForKeys(const Scene& scene, const NodeTree& tree, const WriteOptions& options) {
  const KeyCounts shown = ShownKeys(tree, ViewerTime(scene, tree));
  const KeyCounts kept = options.plain ? KeyCounts() : KeptKeys(tree);
  RequireRoom(LeastSize(shown, kept), options.most_bytes);
}

Document DocumentOf(const Scene& scene, const NodeTree& tree, const WriteOptions& options) {
  RequireRoomForKeys(scene, tree, options);

  Document document;
  document.scene_name = options.name.empty() ? kNamelessScene : ViewerName(options.name);
  document.animation_name = ViewerName(options.name);
  ShowScene(scene, tree, document);
  if (options.plain) {
    LeaveSceneOut(document);
  } else {
    KeepScene(scene, tree, document);
  }
  return document;
}

class TextSink final : public FileSink {
 public:
  bool Take(std::string_view bytes) override {
    text_ += bytes;
    return true;
  }
  std::string Text() && { return std::move(text_); }

 private:
  std::string text_;
};

}  // namespace

WrittenScene WriteScene(const Scene& scene, const WriteOptions& options) {
  TextSink file;
  std::string refusal = WriteScene(scene, options, file);
  return {std::move(file).Text(), std::move(refusal)};
}

std::string WriteScene(const Scene& scene, const WriteOptions& options, FileSink& file) {
  try {
    const NodeTree tree = NodeTreeOf(scene);
    const auto write = options.container == Container::kBinary ? WriteBinary : WriteText;
    write(DocumentOf(scene, tree, options), options.most_bytes, file);
    return "";
  } catch (const Refusal& refusal) {
    return refusal.what();
  }
}

}  // namespace host::gltf
