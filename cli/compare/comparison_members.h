#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "cli/common/json_writer.h"
#include "inspect/compare/sides.h"
#include "inspect/compare/spread.h"
#include "inspect/report/report.h"

// Members of the JSON of a comparison, whatever is compared.

namespace cli {

inline constexpr int kComparisonVersion = 2;

// "a" or "b".
[[nodiscard]] const char* Letter(orvane::WhichFile file);

// What every comparison begins with, and what it ends with.
void WriteHead(JsonWriter& json, const std::string& file_a, const std::string& file_b, bool same);
void WriteBothFindings(JsonWriter& json, const orvane::FileReport& findings_a,
                       const orvane::FileReport& findings_b);

// The value of a member: the first and the last number.
void WriteRange(JsonWriter& json, const orvane::FrameSpan& range);
// The member "frames", null when there are none.
void WriteCommonFrames(JsonWriter& json, const std::optional<orvane::FrameSpan>& frames);

// Null when nothing was compared. `name` is of the thing that the largest difference is of, in the
// member `name_key`; it may be null.
void WriteSpread(JsonWriter& json, const char* key, const orvane::Spread& spread,
                 const char* name_key = nullptr, const std::string* name = nullptr);
void WriteFirstBeyond(JsonWriter& json, const std::optional<std::int64_t>& frame);

// The member "frame_rate", null when both are the same.
void WriteFrameRates(JsonWriter& json, bool differ, std::int32_t in_a, std::int32_t in_b);

}  // namespace cli
