#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "inspect/check/checked_file.h"
#include "inspect/check/findings.h"
#include "inspect/report/action.h"

// What is to be told of a file before something is done with it: each code once. A report holds
// copies, but for codes, which live as long as the program. Nothing fails but for want of memory.
// May be called from any thread; what was found is only read.

namespace orvane {

// All findings of one code.
struct ReportedFinding {
  std::string_view code;
  FindingSeverity severity;  // for the action
  std::size_t count = 1;
  std::size_t line = 0;    // of the first one, counted from 1; 0 when it has no place in the file
  std::size_t column = 0;  // in bytes, counted from 1
  std::vector<std::string> names;  // or values, that the first ones are about, each once
  std::string cause;               // what is so in the file: a sentence without its full stop
  std::string consequence;         // what the action makes of it: a sentence
};

struct FileReport {
  static constexpr std::size_t kMostNames = 3;

  std::string file;
  std::string_view kind;  // "HTR"
  Action action = Action::kInspect;
  std::vector<ReportedFinding> findings;  // the worst first, and else by their first places

  std::size_t Count(FindingSeverity severity) const;

  // Takes in what `other` has found, of no code that this one has.
  void Take(FileReport other);

  // The same without the finding of `code`, which is told in another way.
  FileReport Without(std::string_view code) const;
};

// Which frames of a file an action asks for.
enum class AskedFrames {
  kAnnounced,  // all that its header announces, or nobody has said which
  kMissing,    // some that are not there, but not too many to make them up
  kHeld,       // none but those that are there
};

// How viewers are shown the samples that a marker file does not have.
enum class ShownGaps {
  kHidden,
  kHeld,  // at the last place that is there
  kAtOrigin,
};

// What of the file the action asks for, and what it shows of it.
struct ActionOptions {
  bool rate = true;  // its frame rate
  // Whether viewers are shown its own rate, and not the host's; nothing when nobody has said.
  std::optional<bool> own_time{};
  AskedFrames frames = AskedFrames::kAnnounced;
  bool markers = true;              // at least one marker
  bool all_markers = true;          // every marker: none is dropped
  bool all_numbers = true;          // every number: none is left out, or goes to nobody
  std::optional<ShownGaps> gaps{};  // nothing when nobody has said
};

// What the findings of `checked` mean to `action`. What is wrong with something that is not asked
// for is a note.
[[nodiscard]] FileReport ReportOn(const CheckedFile& checked, Action action,
                                  const ActionOptions& options = {});

}  // namespace orvane
