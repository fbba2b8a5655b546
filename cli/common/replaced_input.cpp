#include "cli/common/replaced_input.h"

#include <algorithm>

#include "platform/file_place.h"

namespace cli {

Complaint ReplacesInput(const std::string& output) {
  return {output, "is an input, and would be an output too", ""};
}

void RequireNoInput(const std::string& output, const std::vector<std::string>& inputs) {
  const std::string place = platform::PlaceOf(output);
  const bool is_input = std::any_of(inputs.begin(), inputs.end(), [&place](const auto& input) {
    return platform::PlaceOf(input) == place;
  });
  if (is_input) throw Failure{ExitStatus::kWrongUsage, {ReplacesInput(output)}};
}

}  // namespace cli
