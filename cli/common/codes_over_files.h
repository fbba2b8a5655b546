#pragma once

#include <cstddef>
#include <map>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "inspect/check/checked_file.h"
#include "inspect/report/report.h"

// What was found in many files: a line for each code, with the names of files, and a total.

namespace cli {

class CodesOverFiles {
 public:
  struct Code {
    orvane::FindingSeverity severity;
    std::string first;               // what is said of it in the first file
    std::vector<std::string> files;  // in which it was found
    std::size_t count = 0;           // over all of them
    bool tells_count = false;        // `first` says how often the first file has it
  };

  // What was found in a file, whatever is done with it.
  void Add(const orvane::CheckedFile& file);
  // What an action is told of a file; all are of one action.
  void Add(const orvane::FileReport& report);
  // A file that could not be checked.
  void AddUnchecked() { ++files_, ++unchecked_; }

  // The worst codes first, and else those of the first files. They live as long as this does and
  // nothing is added.
  [[nodiscard]] std::vector<const Code*> WorstFirst() const;

  // Those, and the total.
  void Print(std::ostream& out) const;

 private:
  // Notes that `code` was found in `file`. Returns it for what is said of it when that is new.
  Code* Meet(std::string_view code, orvane::FindingSeverity severity, const std::string& file,
             std::size_t count);
  template <typename Findings>
  void CountFile(const Findings& findings);
  void PrintTotal(std::ostream& out) const;

  std::vector<Code> codes_;
  std::map<std::string_view, std::size_t> places_;  // of the codes in codes_
  std::string purpose_;                             // " for import"; empty when there is no action
  std::size_t files_ = 0;
  std::size_t unchecked_ = 0;
  std::size_t clean_ = 0;
  std::size_t with_severity_[orvane::kFindingSeverities] = {};
};

}  // namespace cli
