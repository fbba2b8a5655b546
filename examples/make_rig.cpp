// Writes the scene of rig.h, for `orvane export`.
//
//   make_rig SCENE.glb

#include <cstdio>
#include <fstream>

#include "examples/rig.h"
#include "host/gltf/writer.h"

int main(int argument_count, char** arguments) {
  if (argument_count != 2) {
    std::fputs("Usage: make_rig SCENE.glb\n", stderr);
    return 2;
  }
  host::Scene scene;
  examples::BuildRig(scene);
  const host::gltf::WrittenScene written = host::gltf::WriteScene(scene, {});
  std::ofstream file(arguments[1], std::ios::binary);
  file << written.bytes;
  file.close();
  if (written.refusal.empty() && file) return 0;
  std::fprintf(stderr, "make_rig: cannot write %s\n", arguments[1]);
  return 3;
}
