#pragma once

#include <string>
#include <string_view>

// What the reader and the writer of motion files tell of a file or document that they refuse. Those
// that end with a colon are followed by a name.
namespace orvane {

inline constexpr char kDuplicateSegmentNames[] = "The file has duplicate segment names: ";
inline constexpr char kSegmentNameNotFound[] = "Segment name not found: ";
inline constexpr char kIncorrectSegmentCount[] = "Incorrect number of segments defined in file";

inline constexpr char kNoSegmentsToWrite[] = "No segments to write";
inline constexpr char kDuplicateNamesToWrite[] =
    "The scene hierarchy has duplicate segment names: ";

// That the header has another value for `keyword` than the reader takes.
[[nodiscard]] inline std::string IncompatibleHeader(std::string_view keyword) {
  return "The file does not have a compatible \"" + std::string(keyword) + "\" header state";
}

}  // namespace orvane
