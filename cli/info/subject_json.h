#pragma once

#include <cstdint>
#include <optional>

#include "cli/common/json_writer.h"
#include "inspect/summary/subject.h"

namespace cli {

// The member "subject" of an object: its height and its way in meters; null when there is none.
void WriteSubject(JsonWriter& json, const std::optional<orvane::Subject>& subject,
                  std::uint32_t length_unit);

}  // namespace cli
