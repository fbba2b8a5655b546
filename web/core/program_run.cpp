#include "web/core/program_run.h"

#include <exception>
#include <iostream>

#include "cli/common/progress_watch.h"
#include "cli/program.h"
#include "platform/web/interrupt_request.h"

// Tells the page how far something is, and sleeps until it has seen what its user does. Returns
// whether he has cancelled.
extern "C" int orvane_show_progress(const char* what, int percent);  // NOLINT: a name in JavaScript

// Tells the page that nothing is shown any more.
extern "C" void orvane_end_progress();  // NOLINT: a name in JavaScript

namespace web {
namespace {

using Clock = std::chrono::steady_clock;

class PageProgress {
 public:
  explicit PageProgress(std::chrono::milliseconds pause) : pause_(pause) {}

  void Show(const cli::WatchedProgress& progress) {
    if (progress.is_over) return orvane_end_progress();
    const Clock::time_point now = Clock::now();
    if (now - last_ < pause_) return;
    if (std::current_exception()) return;  // nothing can sleep where one is being handled
    if (orvane_show_progress(progress.what.c_str(), progress.percent) != 0) {
      platform::RequestInterrupt();
    }
    last_ = Clock::now();
  }

 private:
  const std::chrono::milliseconds pause_;
  Clock::time_point last_ = Clock::now();
};

}  // namespace

int RunVerb(const std::vector<std::string>& arguments, std::chrono::milliseconds pause) {
  std::vector<const char*> words = {"orvane"};
  words.reserve(arguments.size() + 1);
  for (const std::string& argument : arguments) words.push_back(argument.c_str());
  PageProgress page(pause);
  cli::WatchProgress([&page](const cli::WatchedProgress& progress) { page.Show(progress); });
  const auto status = cli::RunProgram(static_cast<int>(words.size()), words.data());
  cli::WatchProgress({});
  std::cout.flush();
  std::cerr.flush();
  return static_cast<int>(status);
}

}  // namespace web
