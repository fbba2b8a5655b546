#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "inspect/check/checked_file.h"
#include "inspect/check/findings.h"
#include "inspect/report/apply_plan.h"

// What is to be said of a file and a scene together before the one is applied to the other. The
// findings have no place in the file. Nothing fails but for want of memory.

namespace orvane {

// Two bones are the same when they differ by no more than this.
inline constexpr double kSameMillimeters = 0.01;
inline constexpr double kSameDegrees = 0.01;

// A segment and its bone that are not alike.
struct BoneDifference {
  ApplyPair pair;
  double millimeters = 0.0;  // of the length or of the base, whichever is more
  double degrees = 0.0;      // of the base
};

// The bones of `plan` that differ from their segments, the largest differences first.
[[nodiscard]] std::vector<BoneDifference> CompareBones(const AppliedFile& file,
                                                       const ApplyScene& scene,
                                                       const ApplyPlan& plan);

// "12.5 mm", "3.2 degrees" or "12.5 mm and 3.2 degrees".
[[nodiscard]] std::string Describe(const BoneDifference& difference);

// The motion that is in a scene no longer plays at its own rate, in frames per second, but by the
// host's time.
struct TimeChange {
  double scene_rate = 0.0;  // its own
  double host_rate = 0.0;   // what that is in the host
  std::optional<double>
      file_rate{};  // which does not go with it; nothing when the host's is wished
};

// How a file is applied, or imported.
struct ApplyCircumstances {
  bool selected_only = false;  // markers make no objects
  double file_rate = 0.0;      // frames per second
  // Those that the motion is played at in the scene; nothing where they are the file's, or none
  // would be with --frame-rate file either.
  std::optional<double> scene_rate{};
  std::int64_t first_frame = 1;              // the number of the file's first frame
  std::optional<std::int64_t> range_from{};  // of a motion file, where the range begins
  std::optional<TimeChange> time_change{};
};

// The findings of the codes "apply-...", of the file known as `name` of that `kind`.
[[nodiscard]] CheckedFile CheckApply(const std::string& name, std::string_view kind,
                                     const AppliedFile& file, const ApplyScene& scene,
                                     const ApplyPlan& plan, const ApplyCircumstances& how);

// Those of them that are met where new nodes are made, too.
[[nodiscard]] CheckedFile CheckImport(const std::string& name, std::string_view kind,
                                      const ApplyCircumstances& how);

}  // namespace orvane
