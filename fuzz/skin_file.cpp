// Bytes as a file of another program, of which skeletons are taken.
#include <string>
#include <string_view>

#include "fuzz/expect.h"
#include "fuzz/target.h"
#include "host/gltf/reader.h"
#include "host/gltf/writer.h"

namespace {

using host::gltf::ReadSceneOrSkins;
using host::gltf::SkinReading;

// What viewers are shown of the skeletons can be taken again, with as many bones.
void ExpectSkins(std::string_view bytes) {
  host::Scene scene;
  SkinReading reading;
  const std::string refusal = ReadSceneOrSkins(bytes, {}, scene, reading);
  fuzz::Expect(scene.Misuse().Count() == 0 && scene.LooseInstances() == 0,
               "the reader uses the host well");
  if (!refusal.empty() || !reading.is_skin) return;
  const auto shown = host::gltf::WriteScene(scene, {host::gltf::Container::kBinary, "", true});
  if (!shown.refusal.empty()) return;  // numbers that are too large in metres
  host::Scene again;
  const bool is_taken = ReadSceneOrSkins(shown.bytes, {}, again, reading).empty();
  fuzz::Expect(!is_taken || again.NodeCount() == scene.NodeCount(), "no bone is lost");
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  ExpectSkins({reinterpret_cast<const char*>(data), size});
  return 0;
}
