#include <fcntl.h>
#include <pty.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <csignal>
#include <thread>

#include "tests/cli/orvane_test.h"
#include "tests/support/posix/program.h"

// What a shell puts in the place of files: pipes, numbered streams, and terminals.

namespace {

using test::PosixRun;
using test::ProgramResult;
using test::ProgramRun;
using test::SmallMotion;
using testing::HasSubstr;
using testing::IsEmpty;

using Arguments = std::vector<std::string>;

class StreamsTest : public test::OrvaneTest {
 protected:
  StreamsTest() {
    Write("walk.htr", SmallMotion());
    std::filesystem::create_directory(Temporary());
  }

  std::filesystem::path Temporary() const { return folder_.Path() / "temporary"; }

  // The program as "$orvane", in what `script` tells a shell.
  ProgramResult Shell(const std::string& script) const {
    ProgramRun run = Command({});
    run.environment.push_back("orvane=" + run.command.front());
    run.environment.push_back("TMPDIR=" + Temporary().string());
    run.command = {"/bin/bash", "-c", script};
    ProgramResult result = RunProgram(run);
    EXPECT_THAT(test::NamesIn(Temporary()), IsEmpty());
    return result;
  }

  PosixRun Reading(const std::string& input_file, const Arguments& arguments) const {
    PosixRun run{Command(arguments)};
    run.input_file = input_file;
    run.environment.push_back("TMPDIR=" + Temporary().string());
    return run;
  }
};

struct Given {
  std::string name;
  std::string script;
  std::string file;  // as the output begins
};

class GivenTest : public StreamsTest, public testing::WithParamInterface<Given> {};

TEST_P(GivenTest, IsRead) {
  const ProgramResult result = Shell(GetParam().script);
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.error, "");
  EXPECT_EQ(result.output.substr(0, result.output.find('\n')), GetParam().file);
}

INSTANTIATE_TEST_SUITE_P(
    All, GivenTest,
    testing::Values(
        Given{"Pipe", "cat walk.htr | \"$orvane\" info -", "stdin"},
        Given{"PipeInPieces",
              "(head -c 9 walk.htr; sleep 0.2; tail -c +10 walk.htr) | "
              "\"$orvane\" info -",
              "stdin"},
        Given{"File", "\"$orvane\" info - < walk.htr", "stdin"},
        Given{"ItsName", "cat walk.htr | \"$orvane\" info /dev/stdin", "stdin"},
        Given{"ItsNameForAFile", "\"$orvane\" info /dev/stdin < walk.htr", "stdin"},
        Given{"ItsNumber", "cat walk.htr | \"$orvane\" info /dev/fd/0", "stdin"},
        Given{"AnotherNumber", "\"$orvane\" info /dev/fd/7 7< walk.htr", "/dev/fd/7"},
        Given{"AnotherName", "\"$orvane\" info /dev/fd/7 --name a.htr 7< walk.htr", "a.htr"},
        Given{"RestOfAFile", "(read -r line; \"$orvane\" info -) < <(echo; cat walk.htr)", "stdin"},
        Given{"Substitutions",
              "\"$orvane\" compare <(cat walk.htr) walk.htr | grep -o 'A  /dev/fd'", "A  /dev/fd"},
        Given{"TwoSubstitutions",
              "\"$orvane\" compare <(cat walk.htr) <(cat walk.htr) --json | grep -o same...true",
              "same\": true"}),
    [](const auto& given) { return given.param.name; });

TEST_F(StreamsTest, WhatCannotBeReadIsTold) {
  for (const auto& [script, error] :
       {std::pair<const char*, const char*>{"\"$orvane\" info - <&-", "stdin: Bad file descriptor"},
        {"\"$orvane\" info - < .", "stdin: Is a directory"},
        {"\"$orvane\" info /dev/fd/77", "/dev/fd/77: Bad file descriptor"}}) {
    const ProgramResult result = Shell(script);
    EXPECT_EQ(result.status, 3) << script;
    EXPECT_EQ(result.error, std::string("orvane: ") + error + "\n");
  }
}

TEST_F(StreamsTest, AStreamUnderTwoNamesIsReadOnce) {
  const ProgramResult result = Shell("\"$orvane\" info - /dev/stdin < walk.htr");
  EXPECT_EQ(result.status, 2);
  EXPECT_EQ(result.error, "orvane: /dev/stdin: is given twice, and can be read but once\n");
}

TEST_F(StreamsTest, OneNameIsForOneStream) {
  const ProgramResult result = Shell("\"$orvane\" compare <(:) <(:) --name a.htr");
  EXPECT_EQ(result.status, 2);
  EXPECT_EQ(result.error, "orvane: --name: is for one input\n");
}

TEST_F(StreamsTest, WhatDoesNotFitOnTheDiskIsTold) {
  Write("large.htr", SmallMotion() + std::string(300'000, '#'));
  PosixRun run = Reading(folder_.File("large.htr"), {"info", "-"});
  run.largest_file = 100'000;
  const ProgramResult result = RunProgram(run);
  EXPECT_EQ(result.status, 3);
  EXPECT_EQ(result.error, "orvane: stdin: could not be kept in a file in " + Temporary().string() +
                              "\n  Is the disk full, or is the name too long?\n");
  EXPECT_THAT(test::NamesIn(Temporary()), IsEmpty());
}

TEST_F(StreamsTest, AMissingFolderForTemporaryFilesIsTold) {
  std::filesystem::remove(Temporary());
  const ProgramResult result = RunProgram(Reading(folder_.File("walk.htr"), {"info", "-"}));
  EXPECT_EQ(result.status, 3);
  EXPECT_THAT(result.error, HasSubstr("Standard input is kept in the system's folder"));
}

// Interrupts the program when so many bytes have come, and no more come.
class InterruptedStreamTest : public StreamsTest, public testing::WithParamInterface<std::size_t> {
 protected:
  // Returns when there is a file for what has come, or at once when that is not to be.
  void WaitForCopy() const {
    constexpr std::size_t kKeptFrom = 65536;
    while (GetParam() > kKeptFrom && test::NamesIn(Temporary()).empty()) {
      std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
  }
};

TEST_P(InterruptedStreamTest, LeavesNothingBehind) {
  const std::string pipe = folder_.File("pipe");
  ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
  const int end = open(pipe.c_str(), O_RDWR | O_CLOEXEC);
  PosixRun run = Reading(pipe, {"import", "-", "-o", "scene.glb", "--as", "htr"});
  run.meanwhile = [this, end](int process) {
    const std::string bytes = SmallMotion() + std::string(GetParam(), '#');
    for (std::size_t sent = 0; sent < bytes.size();) {
      sent += static_cast<std::size_t>(write(end, bytes.data() + sent, bytes.size() - sent));
    }
    int waiting = 1;  // until the program has read all, when it has long heard of interrupts
    while (waiting > 0) ioctl(end, FIONREAD, &waiting);
    WaitForCopy();
    kill(process, SIGINT);
  };
  const ProgramResult result = RunProgram(run);
  close(end);
  EXPECT_EQ(result.status, 130);
  EXPECT_EQ(result.output, "");
  EXPECT_EQ(result.error, "orvane: interrupted; nothing was written\n");
  EXPECT_THAT(test::NamesIn(Temporary()), IsEmpty());
  EXPECT_FALSE(Exists("scene.glb"));
}

INSTANTIATE_TEST_SUITE_P(Behind, InterruptedStreamTest, testing::Values(0, 1000, 200'000));

TEST_F(StreamsTest, ATerminalIsWaitedFor) {
  int ours = -1;
  int theirs = -1;
  std::array<char, 64> name{};
  ASSERT_EQ(openpty(&ours, &theirs, name.data(), nullptr, nullptr), 0);
  fcntl(ours, F_SETFD, FD_CLOEXEC);
  fcntl(theirs, F_SETFD, FD_CLOEXEC);
  const std::string typed = SmallMotion() + "\x04";
  ASSERT_EQ(write(ours, typed.data(), typed.size()), static_cast<ssize_t>(typed.size()));
  const ProgramResult result = RunProgram(Reading(name.data(), {"info", "-"}));
  close(ours);
  close(theirs);
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.error,
            "orvane: stdin: is read from the terminal: Ctrl-D at the start of a line ends it\n");
  EXPECT_THAT(result.output, HasSubstr("Segments        2\n"));
}

}  // namespace
