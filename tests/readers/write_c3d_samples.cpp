#include <cstdint>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <fstream>
#include <nlohmann/json.hpp>
#include <random>
#include <stdexcept>
#include <string>
#include <string_view>

#include "formats/c3d/writer.h"

// Writes marker files of all kinds as C3D files into a folder, each with what a reader has to find:
//
//   write_c3d_samples FOLDER
//
// NAME.json has `unit`, `rate`, `names`, `first_frame`, and by frame and marker `positions`, which
// are null in gaps.
namespace {

using orvane::TRCDocument;
using orvane::TRCMarker;

constexpr double kRate = 59.94;
constexpr std::string_view kRateText = "59.94";

nlohmann::json PositionsOf(const TRCDocument& document, std::size_t frame) {
  nlohmann::json row = nlohmann::json::array();
  for (const TRCMarker& marker : document.markers()) {
    double x = 0, y = 0, z = 0;
    const bool is_measured = marker.GetSample(frame, x, y, z);
    row.push_back(is_measured ? nlohmann::json{x, y, z} : nlohmann::json());
  }
  return row;
}

class Samples {
 public:
  explicit Samples(std::filesystem::path folder) : folder_(std::move(folder)) {
    std::filesystem::remove_all(folder_);
    std::filesystem::create_directories(folder_);
  }

  void Write(const std::string& name, const TRCDocument& document) const {
    orvane::C3dOptions options;
    options.rate = orvane::C3dOptions::Rate{kRate, std::string(kRateText)};
    const orvane::C3dPlan plan = orvane::PlanC3d(document, options);
    if (plan.refusal) throw std::runtime_error(name + " is refused");
    std::ofstream file(folder_ / (name + ".c3d"), std::ios::binary);
    orvane::PrintC3d(plan, [&file](std::string_view bytes) { file << bytes; });
    nlohmann::json said = {
        {"unit", orvane::CalibrationUnitsName(static_cast<std::uint32_t>(document.Units()))},
        {"rate", kRateText},
        {"names", plan.labels},
        {"first_frame", document.FirstFrame()},
        {"positions", nlohmann::json::array()}};
    for (std::size_t frame = 0; frame < plan.frame_count; ++frame) {
      said["positions"].push_back(PositionsOf(document, frame));
    }
    std::ofstream(folder_ / (name + ".json"), std::ios::binary) << said;
  }

 private:
  std::filesystem::path folder_;
};

// Positions and gaps by chance; some markers have fewer samples than others.
void Fill(TRCDocument& document, std::uint64_t seed, std::size_t markers, std::size_t frames,
          std::size_t name_size = 4) {
  std::mt19937_64 random(seed);
  const auto number = [&random] { return (static_cast<double>(random() >> 11U) - 0x1p52) * 1e-12; };
  document.SetUnits(static_cast<std::int32_t>(random() % 6));
  document.SetFirstFrame(static_cast<std::int32_t>(1 + random() % 500));
  for (std::size_t index = 0; index < markers; ++index) {
    std::string name = "Marker " + std::to_string(index);
    name.append(name_size, 'x');
    TRCMarker* marker = document.AddMarker(TRCMarker(name));
    const std::size_t count = random() % 4 == 0 ? frames - frames / 5 : frames;
    for (std::size_t frame = 0; frame < count; ++frame) {
      const bool is_gap = random() % 8 == 0;
      if (is_gap) marker->AppendDropout();
      if (!is_gap) marker->AppendPosition(number(), number(), number());
    }
  }
}

void WriteMade(const Samples& samples, const std::string& name, std::size_t markers,
               std::size_t frames, std::size_t name_size = 4) {
  TRCDocument document;
  Fill(document, 1, markers, frames, name_size);
  samples.Write(name, document);
}

void WriteSamples(const std::filesystem::path& folder) {
  const Samples samples(folder);
  TRCDocument walk;
  const std::string message =
      walk.Read(std::string(ORVANE_SOURCE_DIR) + "/examples/walk.trc", true);
  if (!message.empty()) throw std::runtime_error(message);
  samples.Write("walk", walk);
  WriteMade(samples, "one_frame", 3, 1);
  WriteMade(samples, "no_frames", 3, 0);
  WriteMade(samples, "no_markers", 0, 0);
  WriteMade(samples, "many_markers", 600, 5);
  WriteMade(samples, "long_names", 300, 3, 100);
  WriteMade(samples, "longest_names", 300, 3, 240);
  WriteMade(samples, "frames_65534", 1, 65'534);
  WriteMade(samples, "frames_65535", 1, 65'535);
  WriteMade(samples, "frames_65536", 1, 65'536);
  WriteMade(samples, "frames_70000", 2, 70'000);
  WriteMade(samples, "frames_131071", 1, 131'071);
  for (const std::int32_t first : {65'525, 65'526, 65'527, 65'535, 65'536, 70'000}) {
    TRCDocument late;
    Fill(late, 2, 3, 10);
    late.SetFirstFrame(first);
    samples.Write("frames_from_" + std::to_string(first), late);
  }
  TRCDocument odd_names;
  for (const char* name : {"", "_", "a b", "\"quoted\"", "a:b*c", "\t", "-1", "LABELS"}) {
    odd_names.AddMarker(TRCMarker(name))->AppendPosition(1, 2, 3);
  }
  samples.Write("odd_names", odd_names);
  for (std::uint64_t seed = 0; seed < 50; ++seed) {
    TRCDocument random;
    Fill(random, seed, 1 + seed % 20, 1 + seed * 7 % 90);
    samples.Write("random" + std::to_string(seed), random);
  }
}

}  // namespace

int main(int argc, char** argv) try {
  if (argc != 2) {
    std::fprintf(stderr, "usage: write_c3d_samples FOLDER\n");
    return 2;
  }
  WriteSamples(argv[1]);
  return 0;
} catch (const std::exception& error) {
  std::fprintf(stderr, "write_c3d_samples: %s\n", error.what());
  return 1;
}
