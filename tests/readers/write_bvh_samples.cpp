#include <cstdio>
#include <exception>
#include <filesystem>
#include <fstream>
#include <nlohmann/json.hpp>
#include <string>

#include "tests/readers/skeleton_samples.h"

// Writes the sample motions as BVH files into a folder, each with a file of where its joints are:
//
//   write_bvh_samples FOLDER
//
// NAME.json has `tolerance`, `names`, and by frame and joint `positions` and `ends`, which are null
// where others hang from a bone.
namespace {

nlohmann::json EndsOf(const test::SkeletonSample& sample) {
  nlohmann::json ends;
  for (const auto& frame : sample.ends) {
    nlohmann::json row;
    for (const auto& end : frame) row.push_back(end ? nlohmann::json(*end) : nlohmann::json());
    ends.push_back(row);
  }
  return ends;
}

void WriteSamples(const std::filesystem::path& folder) {
  std::filesystem::remove_all(folder);
  std::filesystem::create_directories(folder);
  test::ForEachSkeletonSample([&folder](const test::SkeletonSample& sample) {
    std::ofstream(folder / (sample.name + ".bvh"), std::ios::binary) << sample.bvh;
    const nlohmann::json places = {{"tolerance", sample.tolerance},
                                   {"names", sample.names},
                                   {"positions", sample.positions},
                                   {"ends", EndsOf(sample)}};
    std::ofstream(folder / (sample.name + ".json"), std::ios::binary) << places;
  });
}

}  // namespace

int main(int argc, char** argv) try {
  if (argc != 2) {
    std::fprintf(stderr, "usage: write_bvh_samples FOLDER\n");
    return 2;
  }
  WriteSamples(argv[1]);
  return 0;
} catch (const std::exception& error) {
  std::fprintf(stderr, "write_bvh_samples: %s\n", error.what());
  return 1;
}
