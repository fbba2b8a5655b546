#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <vector>

// Which marker of a capture plays the role of which standard marker, as far as their names say so.
// Markers are told by their indices in the list of names, from 0. Nothing fails but for want of
// memory. May be called from any thread.

namespace orvane {

// How a name says so, the surest way first.
enum class NameReason {
  kSame,     // it is the standard marker's
  kSubject,  // it is behind the name of a subject: before a colon, or before an underscore
             // that all names without a colon share
  kCase,     // it is but for the case of its letters, behind a subject or not
  kSynonym,  // it is a usual name of the same place
};

struct SuggestedMarker {
  std::string standard;
  std::size_t marker = 0;  // index of the marker
  NameReason reason = NameReason::kSame;
};

// Markers whose names say the same equally well.
struct AmbiguousMarker {
  std::string standard;
  std::vector<std::size_t> markers;  // indices, rising
};

struct NameSuggestion {
  // In the order in which the mapping creator asks for them.
  std::vector<SuggestedMarker> sure;
  std::vector<AmbiguousMarker> ambiguous;
  std::vector<std::string> missing;  // standard markers that are needed, and that no name names

  // Markers that play no role by their names, or whose names cannot be mapped; indices, rising.
  std::vector<std::size_t> without_role;
  std::vector<std::size_t> unmappable;

  // The subjects that names begin with, without what ends them, in the order of the markers.
  std::vector<std::string> subjects;
};

// `names` are those of the markers; of another subject than `subject`, unless that is empty, they
// are passed over. Takes time in proportion to the names. A standard marker that several of them
// name goes to the one that does so in the surest way, and is ambiguous when two do alike.
[[nodiscard]] NameSuggestion SuggestByNames(std::span<const std::string> names,
                                            const std::string& subject = {});

}  // namespace orvane
