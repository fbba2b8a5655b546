#include <algorithm>
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
using testing::StartsWith;

constexpr char kScratch[] = "~orvane-folder-";

// Enough for something to happen before the last of them, and all of them are one batch.
constexpr int kTakes = 120;
constexpr std::size_t kFrames = 1000;

// When no more outputs are begun, the plug-in has not yet come to the last ones.
constexpr std::ptrdiff_t kBeforeTheLast = 100;

std::string NameOf(int number) { return "take" + std::to_string(1000 + number); }

bool IsOutput(const std::string& name) { return name.ends_with(".bvk"); }

bool IsScratch(const std::string& name) { return name.starts_with(kScratch); }

void Pause() { std::this_thread::sleep_for(std::chrono::milliseconds(1)); }

// What follows `field` in what the system tells of a process; nothing when there is none.
std::string StatusOf(int process, const std::string& field) {
  std::ifstream file("/proc/" + std::to_string(process) + "/status");
  for (std::string line; std::getline(file, line);) {
    if (line.starts_with(field + ":\t")) return line.substr(field.size() + 2);
  }
  return "";
}

bool HasEnded(int process) {
  const std::string state = StatusOf(process, "State");
  return state.empty() || state.starts_with("Z");
}

// Returns when the process does nothing any more.
void Stop(int process) {
  kill(process, SIGSTOP);
  while (!HasEnded(process) && !StatusOf(process, "State").starts_with("T")) Pause();
}

// Returns when a signal waits for the process, which is stopped.
void WaitForSignal(int process) {
  const auto waits = [process](const char* field) {
    return StatusOf(process, field).find_first_not_of('0') != std::string::npos;
  };
  while (!waits("SigPnd") && !waits("ShdPnd")) Pause();
}

class DisturbedBatchTest : public test::OrvaneTest {
 protected:
  // Makes the folders "one", with many marker files, and "two", with a single one.
  void MakeTakes() const {
    const TrcText take{.markers = {"Head1"}, .frames = {kFrames, {"1\t2\t3"}}};
    const std::string text = take.Text();
    for (const char* folder : {"one", "two"}) {
      std::filesystem::remove_all(folder_.Path() / folder);
      std::filesystem::create_directory(folder_.Path() / folder);
    }
    for (int number = 0; number < kTakes; ++number) Write("one/" + NameOf(number) + ".trc", text);
    Write("two/walk.trc", text);
  }

  static std::vector<std::string> TakesOf(int count) {
    std::vector<std::string> takes;
    for (int number = 0; number < count; ++number)
      takes.push_back("one/" + NameOf(number) + ".trc");
    return takes;
  }

  // The folder in "one" that the plug-in writes to, as soon as it is at its second output. Nothing
  // when the program, the process `process`, has ended meanwhile.
  std::string WaitForWork(int process) const {
    while (!HasEnded(process)) {
      for (const std::string& name : NamesIn("one")) {
        if (IsScratch(name) && Exists("one/" + name + "/" + NameOf(1) + ".bvk")) return name;
      }
      Pause();
    }
    return "";
  }

  // Whether the plug-in is still before its last outputs, and none is where the user wants it.
  bool IsAtWork(const std::string& scratch) const {
    if (!Exists("one/" + scratch)) return false;
    return CountIf(NamesIn("one/" + scratch), IsOutput) <= kBeforeTheLast &&
           CountIf(NamesIn("one"), IsOutput) == 0;
  }

  template <typename Condition>
  static std::ptrdiff_t CountIf(const std::vector<std::string>& names, Condition condition) {
    return std::count_if(names.begin(), names.end(), condition);
  }

  // Converts with `arguments`, and lets `happen` come about while the plug-in is still before
  // its last outputs: with the process of the program, and that in which the plug-in is, which may
  // be the same, and stands still until then. What the machine does meanwhile may let that moment
  // pass; it is then tried again.
  template <typename Happen>
  ProgramResult Convert(const std::vector<std::string>& arguments, Happen happen) const {
    while (true) {
      MakeTakes();
      PosixRun run{Command(arguments)};
      run.command.insert(run.command.begin() + 1, "convert");
      bool has_happened = false;
      run.meanwhile = [&](int process) {
        const std::string scratch = WaitForWork(process);
        if (scratch.empty()) return;
        const int worker = std::stoi(scratch.substr(std::string(kScratch).size()));
        Stop(worker);
        has_happened = IsAtWork(scratch);
        if (has_happened) happen(process, worker);
        kill(worker, SIGCONT);
      };
      const ProgramResult result = RunProgram(run);
      if (has_happened) return result;
    }
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
      EXPECT_FALSE(IsScratch(name)) << name;
      if (!IsOutput(name)) continue;
      ++count;
      EXPECT_THAT(Read("one/" + name), EndsWith("\n1000\t1.000000\t-3.000000\t2.000000\t\n\n"))
          << name;
    }
    return count;
  }
};

TEST_F(DisturbedBatchTest, KeepsWhatWasConvertedWhenTheUserInterrupts) {
  for (const char* jobs : {"1", "2"}) {
    std::vector<std::string> arguments = TakesOf(kTakes);
    arguments.insert(arguments.end(), {"two/walk.trc", "--jobs", jobs});
    const ProgramResult result = Convert(arguments, [](int process, int worker) {
      kill(process, SIGINT);
      WaitForSignal(worker);
    });
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
  const ProgramResult result =
      Convert(arguments, [](int /*process*/, int worker) { kill(worker, SIGKILL); });
  EXPECT_EQ(result.status, 3);
  EXPECT_THAT(result.error, StartsWith("orvane: one/take1000.trc: The process that was to convert "
                                       "it has ended before\n"));
  EXPECT_TRUE(Tells(result, "one/take1000.bvk  failed\n"));
  EXPECT_TRUE(Tells(result, "two/walk.bvk      converted\n1 of 121 converted\n"));
  EXPECT_EQ(CountOutputs(), 0);
}

TEST_F(DisturbedBatchTest, TellsOfAFileThatVanishesBeforeItsTurn) {
  const std::string last = "one/" + NameOf(kTakes - 1) + ".trc";
  ProgramResult result = Convert(TakesOf(kTakes), [&](int /*process*/, int /*worker*/) {
    std::filesystem::remove(folder_.Path() / last);
  });
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(result.error, "orvane: " + last + ": The file could not be opened\n");
  EXPECT_EQ(CountOutputs(), kTakes - 1);

  std::vector<std::string> arguments = TakesOf(20);
  arguments.insert(arguments.end(), {"two/walk.trc", "--jobs", "1"});
  result = Convert(arguments, [&](int /*process*/, int /*worker*/) {
    std::filesystem::remove(folder_.Path() / "two/walk.trc");
  });
  EXPECT_EQ(result.status, 3);
  EXPECT_EQ(result.error, "orvane: two/walk.trc: No such file or directory\n");
  EXPECT_EQ(CountOutputs(), 20);
}

}  // namespace
