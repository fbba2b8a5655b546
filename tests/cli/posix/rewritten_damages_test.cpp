#include <gmock/gmock.h>

#include <filesystem>
#include <map>
#include <nlohmann/json.hpp>
#include <set>

#include "tests/cli/orvane_test.h"

// What is left to warn of in files that were rewritten, of all the damaged files that the scripts
// in examples/ make.

namespace {

using nlohmann::json;

struct Damages {
  std::string name;
  std::string script;
  std::string extension;
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

INSTANTIATE_TEST_SUITE_P(
    All, RewrittenDamagesTest,
    testing::Values(Damages{"Motion",
                            "damage_walk.py",
                            ".htr",
                            {"htr-axis-ignored", "htr-name-encoding", "htr-number-infinite",
                             "htr-number-out-of-range", "htr-parent-circle", "htr-position-far",
                             "htr-rate-cut", "htr-rate-out-of-range", "htr-root-second",
                             "htr-scale-factor"}},
                    Damages{"Markers",
                            "damage_markers.py",
                            ".trc",
                            {"trc-camera-rate-cut", "trc-marker-never-seen", "trc-name-empty",
                             "trc-name-encoding", "trc-number-infinite", "trc-position-far",
                             "trc-position-stand-in", "trc-position-zero", "trc-rate-cut",
                             "trc-rate-out-of-range"}}),
    [](const auto& damages) { return damages.param.name; });

}  // namespace
