#include "fuzz/scene_round_trip.h"

#include "fuzz/expect.h"
#include "host/gltf/reader.h"
#include "host/gltf/writer.h"
#include "tests/host/gltf/scene_description.h"

namespace fuzz {

void ExpectRoundTrip(std::string_view bytes) {
  host::Scene scene;
  if (!host::gltf::ReadScene(bytes, scene).empty()) return;
  const host::gltf::WrittenScene saved = host::gltf::WriteScene(scene, {});
  if (!saved.refusal.empty()) return;  // numbers that are too large in metres
  host::Scene again;
  Expect(host::gltf::ReadScene(saved.bytes, again).empty(), "what was saved can be read");
  Expect(test::Description(again) == test::Description(scene), "it is the same scene");
  Expect(host::gltf::WriteScene(again, {}).bytes == saved.bytes,
         "saved again, it has the same bytes");
  Expect(again.Misuse().Count() == 0 && again.LooseInstances() == 0,
         "the reader uses the host well");
}

}  // namespace fuzz
