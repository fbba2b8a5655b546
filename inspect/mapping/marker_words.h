#pragma once

#include <string>
#include <string_view>

// What the name of a marker is made of. Letters are those of ASCII; other bytes are kept as they
// are. Nothing fails but for want of memory.

namespace orvane {

// A capture system puts the name of the subject, or of its marker set, before that of the marker.
// Views into the name.
struct SubjectAndMarker {
  std::string_view subject;  // with the colon behind it; empty when there is none
  std::string_view marker;
};

// `name` divided behind its last colon.
[[nodiscard]] SubjectAndMarker DivideName(std::string_view name);

// `text` in small letters.
[[nodiscard]] std::string InSmallLetters(std::string_view text);

enum class BodySide { kNone, kLeft, kRight };

// The words of a name, put together in small letters and without what stands between them, and the
// side of the body that a word at either end names: "R.Knee.Medial" and "KneeMedialRight" are
// "kneemedial" on the right. A word ends before a capital letter that follows a small one or begins
// a capitalized word, and at whatever is neither letter nor digit. The word "marker" says nothing.
struct MarkerWords {
  BodySide side = BodySide::kNone;
  std::string place;
  std::string place_backwards;  // the same with the words in the opposite order
};

// `marker` has no subject before it.
[[nodiscard]] MarkerWords WordsOf(std::string_view marker);

}  // namespace orvane
