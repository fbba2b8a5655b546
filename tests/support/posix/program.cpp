#include "tests/support/posix/program.h"

#include <fcntl.h>
#include <linux/capability.h>
#include <poll.h>
#include <pty.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <stdexcept>

namespace test {
namespace {

// Where one of the program's streams goes: we read one end, the program writes to the other.
struct Stream {
  int read_end = -1;
  int write_end = -1;
};

Stream MakePipe() {
  std::array<int, 2> ends{};
  if (pipe2(ends.data(), O_CLOEXEC) != 0) throw std::runtime_error("no pipe");
  return {ends[0], ends[1]};
}

Stream MakeTerminal() {
  Stream terminal;
  if (openpty(&terminal.read_end, &terminal.write_end, nullptr, nullptr, nullptr) != 0) {
    throw std::runtime_error("no terminal");
  }
  fcntl(terminal.read_end, F_SETFD, FD_CLOEXEC);
  fcntl(terminal.write_end, F_SETFD, FD_CLOEXEC);
  return terminal;
}

std::vector<char*> Pointers(const std::vector<std::string>& texts) {
  std::vector<char*> pointers;
  pointers.reserve(texts.size() + 1);
  for (const std::string& text : texts) pointers.push_back(const_cast<char*>(text.c_str()));
  pointers.push_back(nullptr);
  return pointers;
}

// Permissions hold for the superuser too, in the program that this process becomes. Where that
// cannot be had, the program is somebody else's, who may have no access to it.
bool GiveUpPrivileges() {
  constexpr uid_t kNobody = 65534;
  if (geteuid() != 0) return true;
  const bool given_up = prctl(PR_CAPBSET_DROP, CAP_DAC_OVERRIDE) == 0 &&
                        prctl(PR_CAPBSET_DROP, CAP_DAC_READ_SEARCH) == 0;
  return given_up || setuid(kNobody) == 0;
}

// A shell in the background, among others, lets its jobs ignore signals, and they what they start.
void TakeAllSignals() {
  for (int number = 1; number < NSIG; ++number) std::signal(number, SIG_DFL);
  sigset_t none;
  sigemptyset(&none);
  sigprocmask(SIG_SETMASK, &none, nullptr);
}

[[noreturn]] void Become(const PosixRun& run, const Stream& output, const Stream& error) {
  TakeAllSignals();
  if (!run.folder.empty() && chdir(run.folder.c_str()) != 0) _exit(126);
  for (const std::string& variable : run.environment) putenv(const_cast<char*>(variable.c_str()));
  if (run.largest_file) {
    const rlimit limit{*run.largest_file, *run.largest_file};
    setrlimit(RLIMIT_FSIZE, &limit);
  }
  const int output_end = run.output_file.empty()
                             ? output.write_end
                             : open(run.output_file.c_str(), O_WRONLY | O_CLOEXEC);
  if (!run.input_file.empty()) {
    dup2(open(run.input_file.c_str(), O_RDONLY | O_NOCTTY | O_CLOEXEC), STDIN_FILENO);
  }
  dup2(output_end, STDOUT_FILENO);
  dup2(error.write_end, STDERR_FILENO);
  if (run.unprivileged && !GiveUpPrivileges()) _exit(126);
  std::vector<char*> arguments = Pointers(run.command);
  execv(arguments.front(), arguments.data());
  _exit(kNotStarted);
}

// Reads both streams to their ends. A terminal ends with an error when its other side is closed.
void ReadBoth(Stream output, Stream error, ProgramResult& result) {
  std::array<pollfd, 2> ends{{{output.read_end, POLLIN, 0}, {error.read_end, POLLIN, 0}}};
  std::array<std::string*, 2> texts{&result.output, &result.error};
  std::array<char, 65536> buffer;
  while (ends[0].fd >= 0 || ends[1].fd >= 0) {
    if (poll(ends.data(), ends.size(), -1) < 0) continue;
    for (std::size_t i = 0; i < ends.size(); ++i) {
      if (ends[i].fd < 0 || ends[i].revents == 0) continue;
      const ssize_t count = read(ends[i].fd, buffer.data(), buffer.size());
      if (count > 0) {
        texts[i]->append(buffer.data(), static_cast<std::size_t>(count));
      } else {
        close(ends[i].fd);
        ends[i].fd = -1;
      }
    }
  }
}

}  // namespace

ProgramResult RunProgram(const ProgramRun& run) { return RunProgram(PosixRun{run}); }

PosixResult RunProgram(const PosixRun& run) {
  const Stream output = MakePipe();
  const Stream error = run.error_is_terminal ? MakeTerminal() : MakePipe();
  const pid_t child = fork();
  if (child < 0) throw std::runtime_error("no process");
  if (child == 0) Become(run, output, error);
  close(output.write_end);
  close(error.write_end);
  if (run.meanwhile) run.meanwhile(child);
  PosixResult result;
  ReadBoth(output, error, result);
  int status = 0;
  rusage usage{};
  while (wait4(child, &status, 0, &usage) < 0 && errno == EINTR) {
  }
  result.peak_memory = static_cast<std::size_t>(usage.ru_maxrss) * 1024;
  result.status = WIFSIGNALED(status) ? 128 + WTERMSIG(status) : WEXITSTATUS(status);
  if (result.status == kNotStarted && !run.unprivileged)
    throw std::runtime_error(run.command.front() + " does not start");
  return result;
}

}  // namespace test
