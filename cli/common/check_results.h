#pragma once

#include <optional>
#include <string>
#include <vector>

#include "cli/common/check_report.h"
#include "cli/common/codes_over_files.h"
#include "cli/common/failure.h"
#include "inspect/report/report.h"

// What verbs do with the findings that they make: flags, output and exit status.

namespace CLI {
class App;
}  // namespace CLI

namespace cli {

struct CheckManner {
  orvane::FindingSeverity tolerated = orvane::FindingSeverity::kNote;
  bool json = false;
  bool quiet = false;                    // nothing is told but the status
  bool by_code = false;                  // a line a code over all files, in place of each place
  std::optional<orvane::Action> action;  // nothing: what is found in the file, whatever is done
};

// Adds the flags to `verb` that set `manner`, which must outlive the parsing.
void AddCheckManner(CLI::App& verb, CheckManner& manner);

// Tells of files as they come, or of all at the end when that is JSON or goes by codes.
class CheckResults {
 public:
  explicit CheckResults(const CheckManner& manner) : manner_(manner) {}

  void Add(orvane::CheckedFile file);
  // What an action is told before it.
  // REQUIRES: `manner` names the action.
  void Add(const orvane::FileReport& report);
  // A file that could not be checked.
  void Add(const Failure& failure);
  // Something that is no file to check.
  void Complain(const Failure& failure);

  // Returns the status to end with.
  // REQUIRES: all files are told of, and it has not been called before.
  [[nodiscard]] ExitStatus Finish();

 private:
  void Raise(ExitStatus status) { status_ = std::max(status_, status); }

  void PrintJson() const;

  const CheckManner manner_;
  std::vector<orvane::CheckedFile> files_;
  std::vector<orvane::FileReport> reports_;  // in place of files_, where an action is meant
  CodesOverFiles codes_;                     // where the manner says so
  ExitStatus status_ = ExitStatus::kDone;
};

}  // namespace cli
