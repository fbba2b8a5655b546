#include "python/binding/program_run.h"

#include <CLI/CLI.hpp>
#include <iostream>
#include <memory>
#include <mutex>
#include <sstream>

#include "cli/command_line.h"
#include "cli/parser.h"
#include "platform/interrupt.h"

namespace binding {
namespace {

// As long as it exists, what goes to `stream` is kept here.
class CapturedStream {
 public:
  explicit CapturedStream(std::ostream& stream)
      : stream_(stream), former_(stream.rdbuf(text_.rdbuf())) {}
  ~CapturedStream() { stream_.rdbuf(former_); }
  CapturedStream(const CapturedStream&) = delete;
  CapturedStream& operator=(const CapturedStream&) = delete;

  [[nodiscard]] std::string Text() const { return text_.str(); }

 private:
  std::ostringstream text_;
  std::ostream& stream_;
  std::streambuf* former_;
};

// Gives the wish to stop back to whom it belongs.
class LentInterrupts {
 public:
  LentInterrupts() = default;
  ~LentInterrupts() { platform::ReleaseInterrupts(); }
  LentInterrupts(const LentInterrupts&) = delete;
  LentInterrupts& operator=(const LentInterrupts&) = delete;
};

cli::Work WorkOf(const std::vector<std::string>& arguments) {
  std::vector<const char*> words = {"orvane"};
  words.reserve(arguments.size() + 1);
  for (const std::string& argument : arguments) words.push_back(argument.c_str());
  return cli::ReadCommandLine(static_cast<int>(words.size()), words.data());
}

}  // namespace

ProgramRun RunProgram(const std::vector<std::string>& arguments) {
  static std::mutex one_at_a_time;
  const std::lock_guard<std::mutex> locked(one_at_a_time);
  const LentInterrupts interrupts;
  const CapturedStream output(std::cout);
  const CapturedStream error(std::cerr);
  ProgramRun run;
  try {
    run.status = WorkOf(arguments)();
  } catch (cli::Failure& failure) {
    run.status = failure.status;
    run.complaints = std::move(failure.complaints);
  }
  run.output = output.Text();
  run.error = error.Text();
  return run;
}

void RequireGoodArguments(const std::vector<std::string>& arguments) { (void)WorkOf(arguments); }

std::map<std::string, bool> FlagsOf(const std::string& verb) {
  cli::Work work;
  const std::unique_ptr<CLI::App> parser = cli::MakeParser(work);
  std::map<std::string, bool> flags;
  const auto is_meant = [&verb](const CLI::App* each) { return each->get_name() == verb; };
  for (const CLI::App* found : parser->get_subcommands(is_meant)) {
    for (const CLI::Option* option : found->get_options()) {
      const bool takes_value = option->get_expected_min() > 0;
      for (const std::string& name : option->get_lnames()) flags.emplace("--" + name, takes_value);
    }
  }
  return flags;
}

}  // namespace binding
