// Writes every sample scene to the folder given, in both containers.
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>

#include "host/gltf/writer.h"
#include "tests/host/gltf/sample_scenes.h"

namespace {

bool WriteSample(const test::SampleScene& sample, const std::string& path,
                 host::gltf::Container container) {
  host::Scene scene;
  sample.build(scene);
  const host::gltf::WrittenScene written = host::gltf::WriteScene(scene, {container, sample.name});
  std::ofstream file(path, std::ios::binary);
  file << written.bytes;
  return written.refusal.empty() && file.flush().good();
}

}  // namespace

int main(int count, char** arguments) {
  if (count != 2) return 2;
  const std::string folder = arguments[1];
  std::filesystem::create_directories(folder);
  for (const test::SampleScene& sample : test::SampleScenes()) {
    const std::string path = folder + "/" + sample.name;
    if (!WriteSample(sample, path + ".glb", host::gltf::Container::kBinary) ||
        !WriteSample(sample, path + ".gltf", host::gltf::Container::kText)) {
      std::fprintf(stderr, "%s could not be written\n", path.c_str());
      return 1;
    }
  }
  return 0;
}
