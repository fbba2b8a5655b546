#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "inspect/check/findings.h"

// What a file really is, whatever its name says: files are exchanged, renamed and packed, and a
// reader that gets another kind than its own finds something odd in every line of it. Kinds are
// told by the first bytes of a file, or by words that its first lines begin with. Nothing is kept
// of the bytes, and nothing fails but for want of memory. May be called from any thread.

namespace orvane {

enum class ContentKind {
  kOrvaneScene,  // glTF, binary or text, with a scene that `orvane` has written
  kGltf,         // any other
  kBvk,
  kBvh,
  kC3d,
  kGzip,
  kZip,
  kHtr,
  kTrc,
  kMnm,
};

// As many bytes from the start of a file as show it: what is behind them is not looked at.
inline constexpr std::size_t kBytesThatShowKind = std::size_t{64} << 10U;

// The kind of a file that has, or starts with, these `bytes`; nothing when they show none. An HTR,
// a TRC or a mapping file with damage may show none: it is its reader that says whether it is one.
[[nodiscard]] std::optional<ContentKind> FindContentKind(std::string_view bytes);

// The same where a file of kind `wanted` is to be read: nothing, too, when it may be one.
[[nodiscard]] std::optional<ContentKind> FindOtherKind(std::string_view bytes, ContentKind wanted);

// What is said of a kind. The texts live as long as the program.
struct ContentKindWords {
  const char* name;    // with its article: "an orvane scene"
  const char* advice;  // what to do with such a file, one sentence
};
[[nodiscard]] const ContentKindWords& WordsFor(ContentKind kind);

// "The file is an orvane scene, not an HTR file".
[[nodiscard]] std::string DescribeOtherKind(ContentKind kind, std::string_view wanted);

// Puts `kind`, by `rule`, in the place of all `findings`, which follow from it. `wanted` is what is
// expected, with its article; `effect` ends the finding.
void NameKindAlone(ContentKind kind, const FindingRule& rule, const std::string& wanted,
                   const std::string& effect, FindingList& findings);

}  // namespace orvane
