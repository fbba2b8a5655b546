#include <gmock/gmock.h>

#include <sstream>

#include "tests/cli/orvane_test.h"

namespace {

using test::ProgramResult;
using test::ProgramRun;

// A command of a document, and what the document says that it prints.
struct Example {
  std::string command;
  std::string output;
};

// The commands in the ```console blocks of a document: lines that start with "$ ", each followed by
// what it prints.
std::vector<Example> ExamplesIn(const std::string& document) {
  std::vector<Example> examples;
  std::istringstream lines(document);
  std::string line;
  bool in_console = false;
  while (std::getline(lines, line)) {
    if (line.rfind("```", 0) == 0) {
      in_console = line == "```console";
    } else if (in_console && line.rfind("$ ", 0) == 0) {
      examples.push_back({line.substr(2), ""});
    } else if (in_console) {
      examples.back().output += line + "\n";
    }
  }
  return examples;
}

// Whether `text` is `pattern`, in which "..." stands for any text. A "..." on a line of its own
// stands for whole lines.
bool Matches(const std::string& text, const std::string& pattern) {
  const std::size_t gap = pattern.find("...");
  if (gap == std::string::npos) return text == pattern;
  if (text.compare(0, gap, pattern, 0, gap) != 0) return false;
  std::string rest = pattern.substr(gap + 3);
  if (rest == "\n") rest.clear();
  for (std::size_t at = gap; at <= text.size(); ++at) {
    if (Matches(text.substr(at), rest)) return true;
  }
  return false;
}

class DocumentationTest : public test::OrvaneTest,
                          public testing::WithParamInterface<std::string> {};

TEST_P(DocumentationTest, EveryExamplePrintsWhatTheDocumentSays) {
  std::filesystem::create_directory_symlink(ORVANE_BINARY_DIR, folder_.Path() / "build");
  std::filesystem::create_directory_symlink(ORVANE_SOURCE_DIR "/examples",
                                            folder_.Path() / "examples");
  const auto examples = ExamplesIn(test::ReadFile(ORVANE_SOURCE_DIR "/" + GetParam()));
  ASSERT_FALSE(examples.empty());
  for (const Example& example : examples) {
    ProgramRun run = Command({});
    run.command = {"/bin/sh", "-c", example.command + " 2>&1"};
    run.environment.insert(run.environment.end(), {"DISPLAY=", "WAYLAND_DISPLAY="});
    const ProgramResult result = RunProgram(run);
    EXPECT_TRUE(Matches(result.output, example.output)) << "$ " << example.command << "\n"
                                                        << result.output << "is not\n"
                                                        << example.output;
  }
}

INSTANTIATE_TEST_SUITE_P(All, DocumentationTest,
                         testing::Values("README.md", "docs/command-line.md",
                                         "docs/round-trip.md"));

}  // namespace
