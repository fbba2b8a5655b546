#include <gmock/gmock.h>

#include <filesystem>
#include <nlohmann/json.hpp>
#include <set>

#include "tests/cli/orvane_test.h"
#include "tests/support/replaced_text.h"

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

  std::set<std::string> WarningsOf(const std::string& file) const {
    std::set<std::string> codes;
    const json listing = json::parse(Orvane({"check", "--json", file}).output);
    for (const json& finding : listing["files"][0]["findings"]) {
      if (finding["severity"] != "note") codes.insert(finding["code"]);
    }
    return codes;
  }

  std::vector<std::string> files_;
};

TEST_P(RewrittenDamagesTest, AreCleanButForWhatTheFileSaysItself) {
  const std::string once = "once" + GetParam().extension;
  const std::string twice = "twice" + GetParam().extension;
  const bool is_named = GetParam().extension == ".trc";  // in its first line
  std::size_t rewritten = 0;
  for (const std::string& file : files_) {
    const auto result = Orvane({"rewrite", file, "-o", once, "--force", "--quiet"});
    if (result.status != 0) {
      EXPECT_EQ(result.status, 1) << file << ": " << result.error;
      EXPECT_NE(result.error, "") << file;
      continue;
    }
    ++rewritten;
    for (const std::string& code : WarningsOf(once)) {
      EXPECT_EQ(GetParam().may_stay.count(code), 1U) << file << ": " << code;
    }
    ASSERT_EQ(Orvane({"rewrite", once, "-o", twice, "--force", "--quiet"}).status, 0) << file;
    EXPECT_EQ(is_named ? test::Replaced(Read(twice), twice, once) : Read(twice), Read(once))
        << file;
  }
  EXPECT_GT(rewritten, 40U);
}

INSTANTIATE_TEST_SUITE_P(
    All, RewrittenDamagesTest,
    testing::Values(Damages{"Motion",
                            "damage_walk.py",
                            ".htr",
                            {"htr-axis-ignored", "htr-number-infinite", "htr-number-out-of-range",
                             "htr-parent-circle", "htr-position-far", "htr-rate-cut",
                             "htr-rate-out-of-range", "htr-root-second", "htr-scale-factor"}},
                    Damages{"Markers",
                            "damage_markers.py",
                            ".trc",
                            {"trc-camera-rate-cut", "trc-marker-never-seen", "trc-name-empty",
                             "trc-number-infinite", "trc-position-far", "trc-position-stand-in",
                             "trc-position-zero", "trc-rate-cut", "trc-rate-out-of-range"}}),
    [](const auto& damages) { return damages.param.name; });

}  // namespace
