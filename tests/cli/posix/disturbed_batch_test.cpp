#include <chrono>
#include <csignal>
#include <thread>

#include "tests/cli/orvane_test.h"
#include "tests/support/posix/program.h"
#include "tests/support/trc_text.h"

// What becomes of a batch that something happens to while the plug-in is at work.

namespace {

using test::PosixRun;
using test::ProgramResult;
using test::TrcText;
using testing::EndsWith;
using testing::Not;
using testing::StartsWith;

constexpr char kScratch[] = ".orvane-folder-";

// Enough for something to happen before the last of them.
constexpr int kTakes = 120;

std::string NameOf(int number) { return "take" + std::to_string(1000 + number); }

class DisturbedBatchTest : public test::OrvaneTest {
 protected:
  // Makes the folders "one", with many marker files, and "two", with a single one.
  void MakeTakes() const {
    const std::string take = TrcText{.markers = {"Head1"}, .frames = {{"1\t2\t3"}}}.Text();
    for (const char* folder : {"one", "two"}) {
      std::filesystem::remove_all(folder_.Path() / folder);
      std::filesystem::create_directory(folder_.Path() / folder);
    }
    for (int number = 0; number < kTakes; ++number) Write("one/" + NameOf(number) + ".trc", take);
    Write("two/walk.trc", take);
  }

  static std::vector<std::string> TakesOf(int count) {
    std::vector<std::string> takes;
    for (int number = 0; number < count; ++number)
      takes.push_back("one/" + NameOf(number) + ".trc");
    return takes;
  }

  // The folder in "one" that the plug-in writes to, as soon as it is at its second output.
  std::string WaitForWork() const {
    const auto longest = std::chrono::steady_clock::now() + std::chrono::seconds(20);
    while (std::chrono::steady_clock::now() < longest) {
      for (const std::string& name : NamesIn("one")) {
        const bool is_scratch = name.rfind(kScratch, 0) == 0;
        if (is_scratch && Exists("one/" + name + "/" + NameOf(1) + ".bvk")) return name;
      }
      std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    ADD_FAILURE() << "the plug-in does not write";
    return "";
  }

  // Converts with `arguments`, and lets `happen` come about meanwhile, with the number of the
  // program's process and the folder that is written to. Comes too late on some days, and is then
  // tried again.
  template <typename Happen>
  ProgramResult Convert(const std::vector<std::string>& arguments, Happen happen) const {
    for (int attempt = 0; attempt < 10; ++attempt) {
      MakeTakes();
      PosixRun run{Command(arguments)};
      run.command.insert(run.command.begin() + 1, "convert");
      run.meanwhile = [&](int process) { happen(process, WaitForWork()); };
      const ProgramResult result = RunProgram(run);
      if (result.status != 0) return result;
    }
    ADD_FAILURE() << "nothing came of it";
    return {};
  }

  std::vector<std::string> NamesIn(const std::string& folder) const {
    return test::NamesIn(folder_.Path() / folder);
  }

  // Whether the table, which is too long to be shown, holds `text`.
  static bool Tells(const ProgramResult& result, const std::string& text) {
    return result.output.find(text) != std::string::npos;
  }

  // Those of the outputs in "one"; all are whole, and nothing unfinished is there.
  int CountOutputs() const {
    int count = 0;
    for (const std::string& name : NamesIn("one")) {
      EXPECT_THAT(name, Not(StartsWith(kScratch)));
      if (!name.ends_with(".bvk")) continue;
      ++count;
      EXPECT_THAT(Read("one/" + name), EndsWith("\n1\t1.000000\t-3.000000\t2.000000\t\n\n"))
          << name;
    }
    return count;
  }
};

TEST_F(DisturbedBatchTest, KeepsWhatWasConvertedWhenTheUserInterrupts) {
  for (const char* jobs : {"1", "2"}) {
    std::vector<std::string> arguments = TakesOf(kTakes);
    arguments.insert(arguments.end(), {"two/walk.trc", "--jobs", jobs});
    const ProgramResult result =
        Convert(arguments, [](int process, const std::string&) { kill(process, SIGINT); });
    EXPECT_EQ(result.status, 130);
    EXPECT_EQ(result.error, "orvane: interrupted; what was converted stays\n");
    EXPECT_TRUE(Tells(result, NameOf(kTakes - 1) + ".bvk  interrupted\n"));
    const int outputs = CountOutputs();
    EXPECT_GT(outputs, 0);
    EXPECT_LT(outputs, kTakes);
    EXPECT_TRUE(Tells(result, NameOf(outputs - 1) + ".bvk  converted\n"));
    EXPECT_TRUE(Tells(result, NameOf(outputs) + ".bvk  interrupted\n"));
  }
}

TEST_F(DisturbedBatchTest, GoesOnWhenAProcessDies) {
  std::vector<std::string> arguments = TakesOf(kTakes);
  arguments.insert(arguments.end(), {"two/walk.trc", "--jobs", "1"});
  const ProgramResult result = Convert(arguments, [](int, const std::string& scratch) {
    kill(std::stoi(scratch.substr(std::string(kScratch).size())), SIGKILL);
  });
  EXPECT_EQ(result.status, 3);
  EXPECT_THAT(result.error, StartsWith("orvane: one/take1000.trc: The process that was to convert "
                                       "it has ended before\n"));
  EXPECT_TRUE(Tells(result, "one/take1000.bvk  failed\n"));
  EXPECT_TRUE(Tells(result, "two/walk.bvk      converted\n1 of 121 converted\n"));
  EXPECT_EQ(CountOutputs(), 0);
}

TEST_F(DisturbedBatchTest, TellsOfAFileThatVanishesBeforeItsTurn) {
  const std::string last = "one/" + NameOf(kTakes - 1) + ".trc";
  ProgramResult result = Convert(TakesOf(kTakes), [&](int, const std::string&) {
    std::filesystem::remove(folder_.Path() / last);
  });
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(result.error, "orvane: " + last + ": The file could not be opened\n");
  EXPECT_EQ(CountOutputs(), kTakes - 1);

  std::vector<std::string> arguments = TakesOf(20);
  arguments.insert(arguments.end(), {"two/walk.trc", "--jobs", "1"});
  result = Convert(arguments, [&](int, const std::string&) {
    std::filesystem::remove(folder_.Path() / "two/walk.trc");
  });
  EXPECT_EQ(result.status, 3);
  EXPECT_EQ(result.error, "orvane: two/walk.trc: No such file or directory\n");
  EXPECT_EQ(CountOutputs(), 20);
}

}  // namespace
