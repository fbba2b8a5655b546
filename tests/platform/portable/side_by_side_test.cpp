#include "platform/side_by_side.h"

#include <gmock/gmock.h>
#include <unistd.h>

#include <set>
#include <stdexcept>

namespace {

using platform::RunSideBySide;
using platform::SideBySide;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Optional;
using Results = std::vector<std::optional<std::string>>;

TEST(RunSideBySideTest, ReturnsResultsInTheOrderOfThePieces) {
  const SideBySide pieces{[](std::size_t index) {
    usleep(static_cast<useconds_t>(1000 * (20 - index)));
    return std::to_string(index);
  }};
  Results expected;
  for (int index = 0; index < 20; ++index) expected.emplace_back(std::to_string(index));
  for (const std::size_t processes : {0U, 1U, 3U, 50U}) {
    EXPECT_EQ(RunSideBySide(20, processes, pieces), expected) << processes;
  }
}

TEST(RunSideBySideTest, RunsEveryPieceInAProcessOfItsOwn) {
  const SideBySide pieces{[](std::size_t) { return std::to_string(getpid()); }};
  std::set<std::string> processes = {std::to_string(getpid())};
  for (const auto& result : RunSideBySide(5, 2, pieces)) processes.insert(result.value());
  EXPECT_EQ(processes.size(), 6u);
}

TEST(RunSideBySideTest, HandsOverResultsOfAnyBytesAndSize) {
  std::string large(1'000'000, 'x');
  large[500] = '\0';
  const SideBySide pieces{[&large](std::size_t index) { return index == 0 ? large : ""; }};
  const Results results = RunSideBySide(2, 2, pieces);
  EXPECT_TRUE(results[0] == large);
  EXPECT_THAT(results[1], Optional(std::string()));
}

TEST(RunSideBySideTest, HasNoResultOfAPieceThatFails) {
  const SideBySide pieces{[](std::size_t index) -> std::string {
    if (index == 0) throw std::runtime_error("not here");
    if (index == 1) _exit(3);
    return "done";
  }};
  EXPECT_THAT(RunSideBySide(3, 2, pieces),
              ElementsAre(std::nullopt, std::nullopt, Optional(std::string("done"))));
}

TEST(RunSideBySideTest, TellsWhenAPieceHasEnded) {
  std::set<std::size_t> ended;
  const SideBySide pieces{[](std::size_t) { return ""; },
                          [&ended](std::size_t index) { ended.insert(index); }};
  static_cast<void>(RunSideBySide(4, 2, pieces));
  EXPECT_THAT(ended, ElementsAre(0, 1, 2, 3));
}

TEST(RunSideBySideTest, DoesNothingWithoutPieces) {
  EXPECT_THAT(RunSideBySide(0, 2, SideBySide{[](std::size_t) { return ""; }}), IsEmpty());
}

}  // namespace
