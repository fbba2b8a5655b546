#pragma once

#include <map>
#include <span>
#include <string>
#include <vector>

// Which marker of a capture is the one that a mapping names otherwise: by another case of letters,
// with a blank or an underscore for a colon, or behind the name of another subject. Letters are
// those of ASCII. What is returned holds copies; nothing fails but for want of memory. May be
// called from any thread.

namespace orvane {

// When two names are the same.
enum class NameMatching {
  kExact,    // they are written in the same bytes
  kCase,     // or differ in the case of letters alone
  kSubject,  // or, so compared and with a blank, an underscore and a colon for the same, in what
             // stands before the marker: another subject, or none
};

// Names that could be the same in several ways, in the order of the mapping and of the capture.
// Either there is one of the mapping or of the capture; or the markers are of several subjects, and
// the names of the mapping of one. Of many, the first are there.
struct AmbiguousNames {
  std::vector<std::string> mapped;
  std::vector<std::string> markers;
};

struct NameMatch {
  std::map<std::string, std::string> taken;  // names of the mapping, by those of the markers
  std::vector<AmbiguousNames> ambiguous;     // which are not taken

  // The name by which the mapping is to be asked for `marker`: its own unless it is taken for
  // another.
  [[nodiscard]] const std::string& NameInMapping(const std::string& marker) const;

  // Those of `taken` whose markers no mapping can name, as they are.
  [[nodiscard]] std::map<std::string, std::string> Unmappable() const;
};

// Which of `markers` are to be taken for which of `mapped`, the names of markers in a mapping. Both
// may hold a name several times. Markers that no mapping can name, with underscores for their
// blanks, are passed over. A surer way goes first: the same bytes, then the case of letters, then
// blanks, underscores and colons for each other, then a subject before a colon, then one before an
// underscore or a blank. A subject of the mapping that the capture has itself is no other one.
[[nodiscard]] NameMatch MatchNames(std::span<const std::string> mapped,
                                   std::span<const std::string> markers, NameMatching how);

// The subject that `name` begins with, with the colon or the underscore behind it, when the rest of
// it is the marker of `other`; empty when there is none.
// REQUIRES: MatchNames has taken one for the other.
[[nodiscard]] std::string SubjectBeside(const std::string& name, const std::string& other);

}  // namespace orvane
