#include <assimp/Exporter.hpp>
#include <cmath>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

#include "cli/command_line.h"
#include "formats/edit/lengths.h"
#include "formats/htr/reader.h"
#include "formats/pose/pose_walk.h"
#include "formats/units/units.h"
#include "inspect/compare/motion_comparison.h"
#include "tests/readers/assimp_skeleton.h"
#include "tests/readers/random_takes.h"
#include "tests/support/document_bits.h"

// What comes back of random takes that the program makes other files of:
//
//   round_trips TAKES FOLDER
//
// prints the table of docs/round-trip.md, and exits with 1 when one of them is not as it says. The
// folder is made anew.
namespace {

using orvane::HtrDocument;
using orvane::TRCDocument;

constexpr double kMostMm = 0.01;
constexpr double kMostDegrees = 0.01;

struct Exactness {
  int same_values = 0;  // of the file and of what was made of it, to the bit
  int same_bytes = 0;   // of that and of what was made of it in turn
};

struct Results {
  Exactness motion;
  Exactness markers;
  // The largest differences.
  double mm_in_assimp = 0.0;
  double mm_back = 0.0;
  double degrees_back = 0.0;
};

// Does what the program does; throws with what it says when that fails.
void Run(const std::vector<std::string>& arguments) {
  std::vector<const char*> words = {"orvane"};
  for (const std::string& argument : arguments) words.push_back(argument.c_str());
  std::ostringstream said;
  std::streambuf* const former = std::cerr.rdbuf(said.rdbuf());
  cli::ExitStatus status = cli::ExitStatus::kDone;
  try {
    status = cli::ReadCommandLine(static_cast<int>(words.size()), words.data())();
  } catch (const cli::Failure& failure) {
    status = failure.status;
    for (const cli::Complaint& complaint : failure.complaints) said << complaint.text << '\n';
  }
  std::cerr.rdbuf(former);
  if (status != cli::ExitStatus::kDone) throw std::runtime_error(said.str());
}

std::string TextOf(const std::string& file) {
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

void Require(const std::string& message) {
  if (!message.empty()) throw std::runtime_error(message);
}

void Read(const std::string& file, HtrDocument& document) {
  Require(orvane::ReadHtrFile(document, file, true));
}
void Read(const std::string& file, TRCDocument& document) { Require(document.Read(file, false)); }

template <typename Document>
std::string BitsIn(const std::string& file) {
  Document document;
  Read(file, document);
  return test::BitsOf(document);
}

class RoundTrips {
 public:
  explicit RoundTrips(const std::filesystem::path& folder) : folder_(folder) {
    std::filesystem::remove_all(folder);
    std::filesystem::create_directories(folder / "again");
  }

  Results Make(int takes) {
    for (int take = 0; take < takes; ++take) {
      const auto seed = static_cast<std::uint64_t>(take);
      Write("take.trc", test::MakeRandomMarkers(seed));
      RewriteTwice<TRCDocument>("take.trc", "made.trc", results_.markers);
      Write("take.htr", test::MakeRandomMotion(seed, test::Moving::kMany).text);
      RewriteTwice<HtrDocument>("take.htr", "made.htr", results_.motion);
      GoToAssimp();
      // Assimp's own skins lack joints from which others move away.
      const test::RandomMotionFile motion = test::MakeRandomMotion(seed, test::Moving::kRoot);
      Write("take.htr", motion.text);
      GoThroughAssimp(motion.rate);
    }
    return results_;
  }

 private:
  [[nodiscard]] std::string File(const std::string& name) const {
    return (folder_ / name).string();
  }
  void Write(const std::string& name, const std::string& text) const {
    std::ofstream(folder_ / name, std::ios::binary) << text;
  }
  void Rewrite(const std::string& from, const std::string& to,
               const std::vector<std::string>& flags = {}) const {
    std::vector<std::string> arguments = {"rewrite", File(from),    "-o",     File(to),
                                          "--force", "--no-report", "--quiet"};
    arguments.insert(arguments.end(), flags.begin(), flags.end());
    Run(arguments);
  }

  template <typename Document>
  void RewriteTwice(const std::string& take, const std::string& made, Exactness& exactness) const {
    Rewrite(take, made);
    Rewrite(made, "again/" + made);  // marker files tell their own name
    exactness.same_values += BitsIn<Document>(File(take)) == BitsIn<Document>(File(made)) ? 1 : 0;
    exactness.same_bytes += TextOf(File(made)) == TextOf(File("again/" + made)) ? 1 : 0;
  }

  // Reads "take.htr" with lengths in millimeters, and makes "take.bvh" of it.
  void MakeBvh(HtrDocument& document) const {
    Rewrite("take.htr", "take.bvh", {"--positions", "all", "--unit", "m"});
    Read(File("take.htr"), document);
    orvane::ConvertLengths(document, orvane::kMillimeters);
  }

  void GoToAssimp() {
    HtrDocument document;
    MakeBvh(document);
    const test::AssimpSkeleton skeleton(TextOf(File("take.bvh")));
    Require(skeleton.Fault());
    AddPlaces(document, skeleton);
  }

  void GoThroughAssimp(const std::string& rate) {
    HtrDocument document;
    MakeBvh(document);
    const test::AssimpSkeleton skeleton(TextOf(File("take.bvh")));
    Require(skeleton.Fault());
    Assimp::Exporter exporter;
    exporter.Export(skeleton.scene(), "glb2", File("take.glb"));
    Require(exporter.GetErrorString());
    Run({"export", File("take.glb"), "-o", File("back.htr"), "--rate", rate, "--force",
         "--no-report", "--quiet", "--module",
         ORVANE_BINARY_DIR "/bin/OrvaneFileIO" ORVANE_MODULE_SUFFIX});
    AddComparison(document);
  }

  void AddPlaces(const HtrDocument& document, const test::AssimpSkeleton& skeleton) {
    const std::vector<orvane::HierarchyEntry> tree = orvane::ListHierarchy(document);
    orvane::PoseWalk walk(tree, orvane::PoseParts::kPositions);
    for (std::size_t frame = 0; frame < orvane::MostFramesOf(tree); ++frame) {
      walk.MoveTo(frame);
      const auto places = skeleton.PlacesAt(static_cast<unsigned int>(frame));
      std::size_t joint = 0;
      for (std::size_t index = 0; index < places.size(); ++index) {
        if (skeleton.joints()[index].motion == nullptr) continue;
        const orvane::Point expected = walk.PositionOf(joint++);
        const aiVector3t<double> at = places[index].at * 1000.0;
        Raise(std::hypot(at.x - expected[0], at.y - expected[1], at.z - expected[2]),
              results_.mm_in_assimp);
      }
      if (joint != tree.size()) throw std::runtime_error("assimp has other joints");
    }
  }

  void AddComparison(HtrDocument& document) {
    HtrDocument back;
    Read(File("back.htr"), back);
    const orvane::StructureComparison structure = orvane::CompareStructure(document, back);
    const orvane::MotionComparison comparison =
        orvane::CompareMotion(structure, document, back, {});
    const std::size_t count = comparison.overall.position_mm.count;
    const auto segments = static_cast<std::size_t>(document.GetNumSegments());
    if (count != segments * document.GetNumFrames()) throw std::runtime_error("frames are lost");
    Raise(comparison.overall.position_mm.largest, results_.mm_back);
    Raise(comparison.overall.orientation_deg.largest, results_.degrees_back);
  }

  // A number that is none is larger than all others.
  static void Raise(double value, double& most) {
    if (!(value <= most)) most = value;
  }

  std::filesystem::path folder_;
  Results results_;
};

bool Tell(const std::string& way, const Exactness& exactness, int takes) {
  std::printf("%-26s %d the same to the bit, %d the same bytes once more\n", way.c_str(),
              exactness.same_values, exactness.same_bytes);
  return exactness.same_values == takes && exactness.same_bytes == takes;
}

bool Tell(const std::string& way, double largest, const char* unit, double most) {
  std::printf("%-26s %.2g %s at the most\n", way.c_str(), largest, unit);
  return largest <= most;
}

int Check(int takes, const std::string& folder) {
  const Results results = RoundTrips(folder).Make(takes);
  std::printf("%d random takes of each kind\n", takes);
  bool is_good = Tell("HTR to HTR", results.motion, takes);
  is_good = Tell("TRC to TRC", results.markers, takes) && is_good;
  is_good = Tell("HTR to BVH to assimp", results.mm_in_assimp, "mm", kMostMm) && is_good;
  is_good = Tell("... to glTF to HTR", results.mm_back, "mm", kMostMm) && is_good;
  is_good = Tell("", results.degrees_back, "degrees", kMostDegrees) && is_good;
  return is_good ? 0 : 1;
}

}  // namespace

int main(int argc, char** argv) try {
  if (argc != 3) {
    std::fprintf(stderr, "usage: round_trips TAKES FOLDER\n");
    return 2;
  }
  return Check(std::stoi(argv[1]), argv[2]);
} catch (const std::exception& error) {
  std::fprintf(stderr, "round_trips: %s\n", error.what());
  return 1;
}
