#pragma once

// What the reader of marker files tells of a file that it refuses.
namespace orvane {

inline constexpr char kIncompatibleCoordinates[] =
    "The file is does not have a compatible \"(X/Y/Z)\" header state";
inline constexpr char kIncorrectMarkerCount[] = "Incorrect number of markers defined in file";

}  // namespace orvane
