#pragma once

#include <string>

#include "cli/common/failure.h"
#include "host/scene/scene.h"
#include "platform/output_file.h"

// The scene file that a verb makes: it appears when all is well, and not at all otherwise.

namespace cli {

class SceneOutput {
 public:
  // Throws a Failure when `path` cannot be made: above all when it exists and `replace` is not set.
  // A `plain` one is for viewers alone: no scene can be read back from it.
  SceneOutput(std::string path, bool replace, bool plain = false);

  // The folder that the file is to lie in.
  [[nodiscard]] std::string Folder() const { return file_.Folder(); }

  // Writes `scene` as glTF: as text to a name that ends in ".gltf", in binary otherwise. Throws a
  // Failure when the scene cannot be written (`source` is the file that it came from), when the
  // disk does not take it, or when the user has interrupted the program. Returns the size of the
  // file in bytes.
  [[nodiscard]] std::size_t Deliver(const host::Scene& scene, const std::string& source);

 private:
  [[nodiscard]] Failure CannotWrite(const std::string& reason) const;

  std::string path_;
  bool plain_;
  platform::OutputFile file_;
};

// Whether `path` is named as a scene file: ".glb" or ".gltf" in either case.
[[nodiscard]] bool IsSceneFileName(const std::string& path);

}  // namespace cli
