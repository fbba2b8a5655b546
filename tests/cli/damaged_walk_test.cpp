#include <regex>
#include <set>
#include <sstream>

#include "tests/cli/orvane_test.h"

// The damaged files that examples/damage_walk.py makes, and the codes of the check.

namespace {

using test::ProgramResult;
using test::ReadFile;

struct Damage {
  std::string file;
  std::string line;
  std::string code;
};

class DamagedWalkTest : public test::OrvaneTest {
 protected:
  DamagedWalkTest() {
    test::ProgramRun run;
    run.command = {"/usr/bin/env", "python3", ORVANE_SOURCE_DIR "/examples/damage_walk.py",
                   folder_.File("damaged")};
    EXPECT_EQ(RunProgram(run).status, 0);
    std::istringstream listed(ReadFile(folder_.File("damaged/damages.tsv")));
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

TEST_F(DamagedWalkTest, EveryDamageIsNamedByLineAndCode) {
  ASSERT_GT(damages_.size(), 50U);
  for (const Damage& damage : damages_) {
    const ProgramResult result = Orvane({"check", "damaged/" + damage.file});
    EXPECT_TRUE(IsNamed(result.output, damage)) << damage.file << "\n" << result.output;
    EXPECT_LE(result.status, 1) << result.error;
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

TEST_F(DamagedWalkTest, EveryCodeIsDocumentedAndHasADamage) {
  const auto known = CodesIn("cli/htr_rules.h", "\"(htr-[a-z-]+)\"");
  std::set<std::string> provoked;
  for (const Damage& damage : damages_) provoked.insert(damage.code);
  ASSERT_FALSE(known.empty());
  EXPECT_EQ(CodesIn("docs/formats/htr.md", "\n\\| `(htr-[a-z-]+)` \\|"), known);
  EXPECT_EQ(provoked, known);
}

}  // namespace
