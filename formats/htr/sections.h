#pragma once

#include <string_view>

// The sections of a motion file and the words that are none of its segments' names. Constants, of
// which nothing fails, for any thread.
namespace orvane {

enum class HtrSection { kHeader, kHierarchy, kBasePosition, kMotion, kEndOfFile };

inline constexpr std::string_view kHeaderSection = "Header";
inline constexpr std::string_view kHierarchySection = "SegmentNames&Hierarchy";
inline constexpr std::string_view kBasePositionSection = "BasePosition";
inline constexpr std::string_view kEndOfFileSection = "EndOfFile";

// As a segment's parent it makes the segment a root.
inline constexpr std::string_view kGlobalParent = "GLOBAL";

// What the section of that name is: a motion section, unless the name is a special one.
// Intended: the end has these four spellings only; any other is the name of a segment.
constexpr HtrSection SectionOf(std::string_view name) {
  if (name == kHeaderSection) return HtrSection::kHeader;
  if (name == kHierarchySection) return HtrSection::kHierarchy;
  if (name == kBasePositionSection) return HtrSection::kBasePosition;
  const bool ends = name == kEndOfFileSection || name == "EndofFile" || name == "ENDOFFILE" ||
                    name == "endoffile";
  return ends ? HtrSection::kEndOfFile : HtrSection::kMotion;
}

}  // namespace orvane
