#include <gmock/gmock.h>

#include <cstdio>
#include <filesystem>
#include <map>
#include <nlohmann/json.hpp>
#include <set>
#include <sstream>
#include <string>

#include "tests/cli/orvane_test.h"

// What becomes of all the damaged files that the scripts in examples/ make when they are rewritten.

namespace {

using nlohmann::json;

struct Damages {
  std::string name;
  std::string script;
  std::string extension;
  std::string other_extension;     // of the files for other programs
  std::set<std::string> may_stay;  // codes of what no rewriting can end
};

std::ostream& operator<<(std::ostream& out, const Damages& damages) { return out << damages.name; }

class RewrittenDamagesTest : public test::OrvaneTest, public testing::WithParamInterface<Damages> {
 protected:
  RewrittenDamagesTest() {
    test::ProgramRun run;
    run.command = {"/usr/bin/env", "python3", "-B",
                   ORVANE_SOURCE_DIR "/examples/" + GetParam().script, folder_.File("damaged")};
    EXPECT_EQ(RunProgram(run).status, 0);
    for (const auto& file : std::filesystem::directory_iterator(folder_.File("damaged"))) {
      if (file.path().extension() == GetParam().extension) files_.push_back(file.path().string());
    }
  }

  std::vector<std::string> files_;
};

// A file is called by its number, so that the first line of a marker file says the same twice.
TEST_P(RewrittenDamagesTest, AreCleanButForWhatTheFileSaysItself) {
  std::map<std::string, std::string> sources;  // by what is made of them
  for (const std::string& file : files_) {
    const std::string name = std::to_string(sources.size()) + GetParam().extension;
    std::filesystem::create_directory(folder_.File("again"));
    const auto result = Orvane({"rewrite", file, "-o", name, "--quiet"});
    if (result.status != 0) {
      EXPECT_EQ(result.status, 1) << file << ": " << result.error;
      EXPECT_NE(result.error, "") << file;
      continue;
    }
    sources[name] = file;
    ASSERT_EQ(Orvane({"rewrite", name, "-o", "again/" + name, "--quiet"}).status, 0) << file;
    EXPECT_EQ(Read("again/" + name), Read(name)) << file;
  }
  EXPECT_GT(sources.size(), 40U);
  std::vector<std::string> check = {"check", "--json"};
  for (const auto& [name, source] : sources) check.push_back(name);
  const json listing = json::parse(Orvane(check).output);
  for (const json& file : listing["files"]) {
    for (const json& finding : file["findings"]) {
      if (finding["severity"] == "note") continue;
      EXPECT_EQ(GetParam().may_stay.count(finding["code"]), 1U)
          << sources[file["file"]] << ": " << finding["code"];
    }
  }
}

std::size_t Occurrences(const std::string& text, const std::string& word) {
  std::size_t count = 0;
  for (std::size_t at = text.find(word); at != std::string::npos; at = text.find(word, at + 1)) {
    ++count;
  }
  return count;
}

// Of a joint the three angles, of the root and its position the number of the line.
void ExpectWholeBvh(const std::string& text, const std::string& source) {
  const std::size_t motion = text.find("MOTION");
  ASSERT_NE(motion, std::string::npos) << source;
  unsigned long frames = 0;
  ASSERT_EQ(std::sscanf(text.c_str() + motion, "MOTION Frames: %lu", &frames), 1) << source;
  const std::size_t lines = Occurrences(text.substr(motion), "\n");
  EXPECT_EQ(lines, frames + 3) << source;
  const std::size_t joints = Occurrences(text, "CHANNELS");
  const std::string last = text.substr(text.rfind('\n', text.size() - 2) + 1);
  EXPECT_EQ(Occurrences(last, " "), 3 * joints + 3 - 1) << source;
}

// The header counts the markers and the frames; each point is four numbers in single precision.
void ExpectWholeC3d(const std::string& bytes, const std::string& source) {
  constexpr std::size_t kBlock = 512;
  ASSERT_GT(bytes.size(), kBlock) << source;
  const auto word = [&bytes](std::size_t index) {
    return static_cast<std::size_t>(static_cast<unsigned char>(bytes[2 * index])) +
           256U * static_cast<std::size_t>(static_cast<unsigned char>(bytes[2 * index + 1]));
  };
  const std::size_t points = word(1) * (word(4) - word(3) + 1);
  const std::size_t data = (word(8) - 1) * kBlock + points * 16;
  EXPECT_EQ(bytes.size(), (data + kBlock - 1) / kBlock * kBlock) << source;
}

void ExpectWholeTable(const std::string& text, const std::string& source) {
  std::istringstream lines(text);
  std::string line;
  std::getline(lines, line);
  const std::size_t commas = Occurrences(line, ",");
  while (std::getline(lines, line)) {
    if (line.find('"') != std::string::npos) continue;  // of a name, which may hold commas
    ASSERT_EQ(Occurrences(line, ","), commas) << source;
  }
  EXPECT_EQ(text.back(), '\n') << source;
}

void ExpectWhole(const std::string& extension, const std::string& bytes,
                 const std::string& source) {
  if (extension == ".bvh") ExpectWholeBvh(bytes, source);
  if (extension == ".c3d") ExpectWholeC3d(bytes, source);
  if (extension == ".csv") ExpectWholeTable(bytes, source);
}

TEST_P(RewrittenDamagesTest, BecomeWholeFilesForOtherProgramsOrNone) {
  for (const std::string& extension : {GetParam().other_extension, std::string(".csv")}) {
    std::size_t made = 0;
    for (const std::string& file : files_) {
      const std::string name = "made" + std::to_string(made) + extension;
      const auto result = Orvane({"rewrite", file, "-o", name, "--quiet"});
      ASSERT_EQ(Exists(name), result.status == 0) << file << ": " << result.error;
      if (result.status == 0) {
        ++made;
        ExpectWhole(extension, Read(name), file);
      } else {
        EXPECT_EQ(result.status, 1) << file << ": " << result.error;
        EXPECT_NE(result.error, "") << file;
      }
    }
    EXPECT_GT(made, 40U) << extension;
  }
}

INSTANTIATE_TEST_SUITE_P(
    All, RewrittenDamagesTest,
    testing::Values(Damages{"Motion",
                            "damage_walk.py",
                            ".htr",
                            ".bvh",
                            {"htr-axis-ignored", "htr-name-encoding", "htr-number-infinite",
                             "htr-number-out-of-range", "htr-parent-circle", "htr-position-far",
                             "htr-rate-cut", "htr-rate-out-of-range", "htr-root-second",
                             "htr-scale-factor"}},
                    Damages{"Markers",
                            "damage_markers.py",
                            ".trc",
                            ".c3d",
                            {"trc-camera-rate-cut", "trc-marker-never-seen", "trc-name-empty",
                             "trc-name-encoding", "trc-number-infinite", "trc-position-far",
                             "trc-position-stand-in", "trc-position-zero", "trc-rate-cut",
                             "trc-rate-out-of-range"}}),
    [](const auto& damages) { return damages.param.name; });

}  // namespace
