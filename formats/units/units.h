#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

// Units and axes as the capture files name them, and the factors between them. Each is a small code
// that documents store; unknown codes print as an empty word and convert with the factor 1.
//
//   lengths    0 millimetres, 1 centimetres, 2 metres, 3 inches, 4 feet, 5 yards
//   rotations  0 degrees, 1 radians
//   axes       0 X, 1 Y, 2 Z
//
// Keywords are compared exactly, case included. Each Find function returns nothing for a word that
// is not in its list; each Parse function returns the default code for it. Nothing fails; texts
// that are returned live as long as the program. May be called from any thread.
namespace orvane {

inline constexpr std::uint32_t kMillimeters = 0;
inline constexpr std::uint32_t kDegrees = 0;
inline constexpr std::uint32_t kAxisX = 0;
inline constexpr std::uint32_t kAxisY = 1;
inline constexpr std::uint32_t kAxisZ = 2;

inline constexpr double kRadiansPerDegree = 0.017453292519943295;
inline constexpr double kDegreesPerRadian = 57.29577951308232;

[[nodiscard]] std::optional<std::uint32_t> FindCalibrationUnits(std::string_view keyword);
[[nodiscard]] std::optional<std::uint32_t> FindRotationUnits(std::string_view keyword);
[[nodiscard]] std::optional<std::uint32_t> FindAxis(std::string_view keyword);

// Default: millimetres.
std::uint32_t ParseCalibrationUnits(std::string_view keyword);
// Default: degrees.
std::uint32_t ParseRotationUnits(std::string_view keyword);
// Default: Y.
std::uint32_t ParseAxis(std::string_view keyword);

// The keyword as it is written to files.
[[nodiscard]] std::string_view CalibrationUnitsName(std::uint32_t code);
[[nodiscard]] std::string_view RotationUnitsName(std::uint32_t code);
[[nodiscard]] std::string_view AxisName(std::uint32_t code);

// Multiplies a length in `from_code` units into one in `to_code` units: the factor to millimetres
// of the one times the factor from millimetres of the other.
double LengthFactor(std::uint32_t from_code, std::uint32_t to_code);

}  // namespace orvane
