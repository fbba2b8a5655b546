#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "cli/common/dialog_flags.h"
#include "cli/common/file_kind.h"
#include "cli/common/known_messages.h"
#include "host/desktop/settings.h"

// Numbers that a dialog has stored and does not show: what it shows of the smallest is 0, and that
// is what it reads again.

namespace cli {

class HiddenNumbers {
 public:
  // Those in `settings` that the import dialog for files of that `kind` meets when `wishes` type
  // nothing in their place.
  HiddenNumbers(const Wishes& wishes, FileKind kind, const host::Settings& settings);

  // What to do about `message`, which refuses a 0; empty when none of the numbers is the reason.
  [[nodiscard]] std::string AdviceFor(std::string_view message) const;

 private:
  struct Number {
    KnownMessage message;  // that is about it
    std::string advice;
  };

  std::vector<Number> numbers_;
};

}  // namespace cli
