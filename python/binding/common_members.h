#pragma once

#include <nanobind/nanobind.h>
#include <nanobind/stl/optional.h>
#include <nanobind/stl/pair.h>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "formats/units/units.h"
#include "python/binding/findings.h"
#include "python/binding/input.h"
#include "python/binding/reading.h"

// What both kinds of takes have, and how both are read.

namespace binding {

// Numerator and denominator of the rate that a file's text says.
using Rate = std::pair<std::int64_t, std::int64_t>;

[[nodiscard]] inline std::optional<Rate> RateOf(const Reading& reading) {
  if (!reading.rate) return std::nullopt;
  return Rate{reading.rate->numerator, reading.rate->denominator};
}

[[nodiscard]] inline std::string UnitOf(std::uint32_t code) {
  return std::string(orvane::CalibrationUnitsName(code));
}

// Of who makes the take, before anybody else has it: what its file does not say of times.
template <typename Take>
void SetTimes(Take& take, const std::optional<Rate>& rate, double first_time) {
  take.reading().rate.reset();
  if (rate) take.reading().rate = orvane::FrameRate{rate->first, rate->second};
  take.reading().first_time = first_time;
}

// Nothing when nobody has looked for findings.
[[nodiscard]] inline std::optional<FindingList> FindingsOf(const Reading& reading) {
  if (!reading.report) return std::nullopt;
  return FindingsOf(*reading.report);
}

[[nodiscard]] inline Input InputOf(const nanobind::bytes& name,
                                   const std::optional<nanobind::bytes>& data) {
  std::optional<std::string_view> bytes;
  if (data) bytes = std::string_view(data->c_str(), data->size());
  return {std::string(name.c_str(), name.size()), bytes};
}

}  // namespace binding
