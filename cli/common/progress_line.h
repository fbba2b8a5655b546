#pragma once

#include <chrono>
#include <string>

// The line that tells a person on a terminal how far a long piece of work is. In a pipe it is not
// printed at all.

namespace cli {

class ProgressLine {
 public:
  // `title` says what is being done. Nothing is printed unless `shown` is set.
  ProgressLine(const std::string& title, bool shown);

  // Wipes the line.
  ~ProgressLine();

  ProgressLine(const ProgressLine&) = delete;
  ProgressLine& operator=(const ProgressLine&) = delete;

  // `percent` (0 to 100) is done. Prints it, with the time left as the time so far foretells it,
  // not more than ten times a second.
  void Show(int percent);

 private:
  using Clock = std::chrono::steady_clock;

  std::string title_;
  bool shown_;
  bool printed_ = false;
  Clock::time_point start_ = Clock::now();
  Clock::time_point last_print_;
};

// `title` as it fits before percent and time on a line of `columns`, without its start if need be:
// a line that wraps could not be wiped. All of it when `columns` is 0, which means unknown.
[[nodiscard]] std::string FittingTitle(const std::string& title, int columns);

// "0:07" for seven seconds, "1:02:03" for more than an hour.
[[nodiscard]] std::string ClockTime(std::chrono::seconds time);

}  // namespace cli
