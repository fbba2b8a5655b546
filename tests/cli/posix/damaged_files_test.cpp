#include <regex>
#include <set>
#include <sstream>

#include "tests/cli/orvane_test.h"

// The damaged files that the scripts in examples/ make, and the codes of the check.

namespace {

using test::ProgramResult;
using test::ReadFile;

struct Damage {
  std::string file;
  std::string line;
  std::string code;
};

// A kind of file: the script that damages it and its list of damages, and where its codes stand.
struct Recipe {
  std::string prefix;
  std::string script;
  std::string list;
  std::string rules;
  std::string document;
  std::set<std::string> found_otherwise;  // codes that one file alone cannot have
};

std::ostream& operator<<(std::ostream& out, const Recipe& recipe) { return out << recipe.prefix; }

class DamagedFilesTest : public test::OrvaneTest, public testing::WithParamInterface<Recipe> {
 protected:
  DamagedFilesTest() {
    test::ProgramRun run;
    run.command = {"/usr/bin/env", "python3", "-B",
                   ORVANE_SOURCE_DIR "/examples/" + GetParam().script, folder_.File("damaged")};
    EXPECT_EQ(RunProgram(run).status, 0);
    std::istringstream listed(ReadFile(folder_.File("damaged/" + GetParam().list)));
    Damage damage;
    while (listed >> damage.file >> damage.line >> damage.code) damages_.push_back(damage);
  }

  std::vector<Damage> damages_;
};

bool IsNamed(const std::string& output, const Damage& damage) {
  std::istringstream lines(output);
  const std::string place = "damaged/" + damage.file + ":" + damage.line + ":";
  const std::string code = "[" + damage.code + "]";
  for (std::string line; std::getline(lines, line);) {
    if (line.rfind(place, 0) == 0 && line.size() > code.size() &&
        line.compare(line.size() - code.size(), code.size(), code) == 0) {
      return true;
    }
  }
  return false;
}

TEST_P(DamagedFilesTest, EveryDamageIsNamedByLineAndCode) {
  ASSERT_GT(damages_.size(), 10U);
  for (const Damage& damage : damages_) {
    const ProgramResult result = Orvane({"check", "damaged/" + damage.file});
    EXPECT_TRUE(IsNamed(result.output, damage)) << damage.file << "\n" << result.output;
    EXPECT_LE(result.status, 1) << result.error;
    EXPECT_LT(result.output.size(), 50'000U) << damage.file;
  }
}

std::set<std::string> CodesIn(const std::string& file, const std::string& pattern) {
  const std::string text = ReadFile(ORVANE_SOURCE_DIR "/" + file);
  const std::regex code(pattern);
  std::set<std::string> codes;
  for (std::sregex_iterator match(text.begin(), text.end(), code), end; match != end; ++match) {
    codes.insert((*match)[1]);
  }
  return codes;
}

TEST_P(DamagedFilesTest, EveryCodeIsDocumentedAndHasADamage) {
  const std::string code = "(" + GetParam().prefix + "-[a-z-]+)";
  const auto known = CodesIn(GetParam().rules, "\"" + code + "\"");
  std::set<std::string> provoked = GetParam().found_otherwise;
  for (const Damage& damage : damages_) provoked.insert(damage.code);
  ASSERT_FALSE(known.empty());
  EXPECT_EQ(CodesIn(GetParam().document, "\n\\| `" + code + "` \\|"), known);
  EXPECT_EQ(provoked, known);
}

INSTANTIATE_TEST_SUITE_P(All, DamagedFilesTest,
                         testing::Values(Recipe{"htr",
                                                "damage_walk.py",
                                                "damages.tsv",
                                                "inspect/check/htr_rules.h",
                                                "docs/formats/htr.md",
                                                {}},
                                         Recipe{"trc",
                                                "damage_markers.py",
                                                "damages.tsv",
                                                "inspect/check/trc_rules.h",
                                                "docs/formats/trc.md",
                                                {}},
                                         Recipe{"mnm",
                                                "damage_markers.py",
                                                "mappings.tsv",
                                                "inspect/check/mnm_rules.h",
                                                "docs/formats/mnm.md",
                                                {"mnm-entry-unused", "mnm-fits-nothing",
                                                 "mnm-name-shared", "mnm-marker-unmapped",
                                                 "mnm-marker-unmappable"}}),
                         [](const auto& each) { return each.param.prefix; });

}  // namespace
