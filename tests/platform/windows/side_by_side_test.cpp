#include "platform/side_by_side.h"

#include <gmock/gmock.h>

#include <fstream>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "platform/program.h"
#include "tests/platform/windows/process.h"
#include "tests/support/temporary_folder.h"

namespace {

using testing::Contains;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;

// What a program that does its work side by side makes of it.
struct Outcome {
  std::map<int, std::string> process_by_piece;
  std::size_t longest = 0;
  std::size_t without_result = 0;
  std::string ended;  // how often the end of a piece was told
  std::string process;
};

Outcome ReadOutcome(const std::string& path) {
  Outcome outcome;
  std::ifstream file(path);
  for (std::string line; std::getline(file, line);) {
    std::istringstream words(line);
    std::string first;
    std::string second;
    words >> first >> second;
    outcome.longest = std::max(outcome.longest, line.size());
    if (first == "none") {
      ++outcome.without_result;
    } else if (first == "ended") {
      outcome.ended = second;
      words >> first >> outcome.process;
    } else {
      outcome.process_by_piece[std::stoi(first)] = second;
    }
  }
  return outcome;
}

Outcome DoSideBySide(int pieces, int processes) {
  const test::TemporaryFolder folder;
  const std::string program = platform::ProgramFolder() + "\\side_by_side_program.exe";
  const std::string path = folder.File("results");
  EXPECT_EQ(test::RunProcess('"' + program + "\" " + std::to_string(pieces) + " " +
                                 std::to_string(processes) + " \"" + path + '"',
                             folder.Path()),
            0);
  return ReadOutcome(path);
}

std::set<std::string> ProcessesOf(const Outcome& outcome) {
  std::set<std::string> processes;
  for (const auto& [piece, process] : outcome.process_by_piece) processes.insert(process);
  return processes;
}

TEST(RunSideBySideTest, DoesAPieceInAnotherProcess) {
  const Outcome outcome = DoSideBySide(1, 4);
  EXPECT_THAT(outcome.process_by_piece, SizeIs(1));
  EXPECT_THAT(ProcessesOf(outcome), Not(Contains(outcome.process)));
}

TEST(RunSideBySideTest, GoesOnAfterPiecesThatFail) {
  const Outcome outcome = DoSideBySide(12, 3);
  EXPECT_THAT(outcome.process_by_piece, SizeIs(10));
  EXPECT_EQ(outcome.without_result, 2u) << "the one that threw, and the one that ended";
  EXPECT_EQ(outcome.ended, "12");
  EXPECT_GT(outcome.longest, 1'000'000u) << "results may be long";
  EXPECT_LE(ProcessesOf(outcome).size(), 3u);
}

TEST(RunSideBySideTest, DoesHereWhatNoProcessIsLeftFor) {
  const Outcome outcome = DoSideBySide(6, 1);
  EXPECT_THAT(outcome.process_by_piece, SizeIs(4));
  EXPECT_THAT(ProcessesOf(outcome), Contains(outcome.process)) << "the only other one has ended";
}

TEST(RunSideBySideTest, DoesNothingWithoutPieces) {
  EXPECT_THAT(DoSideBySide(0, 2).process_by_piece, IsEmpty());
}

TEST(RunSideBySideTest, KnowsTheProcessors) { EXPECT_GE(platform::ProcessorCount(), 1u); }

}  // namespace
