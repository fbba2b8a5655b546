#include "cli/help/examples.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <iterator>
#include <set>
#include <sstream>

#include "cli/help/definitions.h"
#include "cli/parser.h"
#include "tests/cli/orvane_test.h"

// The examples of the help are true: each does what it is said to do.

namespace {

using testing::IsEmpty;
using testing::StartsWith;
using testing::UnorderedElementsAreArray;

class ExamplesTest : public test::OrvaneTest {
 protected:
  ExamplesTest() {
    for (const char* name : {"walk.htr", "walk.trc", "walk.mnm"}) {
      Write(name, test::ReadFile(std::string(ORVANE_SOURCE_DIR "/examples/") + name));
    }
    Write("picks.txt", Picks());
  }

  // What the mapping of the example has, but for its sticks, which are only asked for on asking.
  std::string Picks() const {
    std::string picks;
    std::istringstream lines(Read("walk.mnm"));
    std::string code, name;
    while (lines >> code >> name) picks += code + "\t" + name + "\n";
    return picks;
  }
};

std::vector<std::string> WordsOf(std::string_view command) {
  std::istringstream stream{std::string(command)};
  std::vector<std::string> words;
  for (std::string word; stream >> word;) words.push_back(word);
  return words;
}

// Takes "< FILE" off the end of `words`; returns the name of the file.
std::string TakeInput(std::vector<std::string>& words) {
  const auto sign = std::find(words.begin(), words.end(), "<");
  if (sign == words.end()) return "";
  const std::string file = *std::next(sign);
  words.erase(sign, words.end());
  return file;
}

TEST_F(ExamplesTest, AreDoneInTheirOrder) {
  std::set<std::string_view> done;
  for (const cli::VerbGuide& guide : cli::AllGuides()) {
    for (const cli::Example& example : guide.examples) {
      std::vector<std::string> words = WordsOf(example.command);
      ASSERT_EQ(words.front(), "orvane");
      if (!done.insert(example.command).second) continue;
      words.erase(words.begin());
      const std::string input = TakeInput(words);
      // On the desktop of whoever runs the tests nothing is to open.
      if (words.front() == "view") words.emplace_back("--no-open");
      test::ProgramRun run = Command(words);
      if (!input.empty()) run.input_file = folder_.File(input);
      const test::ProgramResult result = RunProgram(run);
      EXPECT_EQ(result.status, 0) << example.command << '\n' << result.error;
    }
  }
}

TEST_F(ExamplesTest, AreOfTheVerbThatTheyStandWith) {
  for (const cli::VerbGuide& guide : cli::AllGuides()) {
    if (guide.verb.empty()) continue;
    for (const cli::Example& example : guide.examples) {
      EXPECT_THAT(example.command, StartsWith("orvane " + std::string(guide.verb) + " "));
    }
  }
}

void ListVerbs(const CLI::App& app, std::vector<std::string>& verbs) {
  verbs.push_back(cli::VerbOf(app));
  for (const CLI::App* verb : cli::VerbsOf(app)) ListVerbs(*verb, verbs);
}

TEST_F(ExamplesTest, EveryVerbHasSome) {
  cli::Work work;
  std::vector<std::string> verbs;
  ListVerbs(*cli::MakeParser(work), verbs);
  std::vector<std::string> guides;
  for (const cli::VerbGuide& guide : cli::AllGuides()) guides.emplace_back(guide.verb);
  EXPECT_THAT(guides, UnorderedElementsAreArray(verbs));
}

}  // namespace
