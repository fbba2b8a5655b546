#pragma once

#include <string>
#include <vector>

#include "cli/help/definitions.h"

// What a flag or an argument takes, as far as its definition tells: what a shell can complete.

namespace cli {

struct Values {
  enum class Kind { kUnknown, kWords, kVerbs, kFiles, kFolders };
  Kind kind = Kind::kUnknown;
  std::vector<std::string> words{};       // to choose from
  std::vector<std::string> extensions{};  // of the files; none: any
};

// What the flag `flag` takes; nothing is known of one that takes none.
[[nodiscard]] Values ValuesOf(const Definition& flag);

// What the arguments of a verb take, one as another.
[[nodiscard]] Values ValuesOf(const std::vector<Definition>& positionals);

}  // namespace cli
