#pragma once

#include <string>
#include <string_view>
#include <vector>

// Whether a word is another one, mistyped. Words are ASCII, or bytes that are compared as they are;
// no letter is wrong in one of more than 40 bytes.

namespace orvane {

// Whether `word` is likely to be `meant`, mistyped: the same but for the case of letters, or with
// two neighbors among at least three letters swapped, or, unless it is short, with up to two
// letters wrong, missing, too many, or swapped with the next. False for the very same word.
[[nodiscard]] bool LooksLike(std::string_view word, std::string_view meant);

// The one of `words` that `word` is most likely to be: the first that differs in its subject and in
// the case of letters alone, the subject standing in front of a colon as in "walker:LFHD"; or else
// the first of those that it is with the fewest wrong letters, as above; or else the first that it
// is the beginning of, half of it at least. A view into `words`; empty for none.
[[nodiscard]] std::string_view MostSimilar(std::string_view word,
                                           const std::vector<std::string>& words);

}  // namespace orvane
