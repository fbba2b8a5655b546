#include "inspect/check/content_kind.h"

#include <algorithm>
#include <array>
#include <span>

#include "formats/mnm/mapping_lines.h"
#include "formats/mnm/standard_markers.h"

namespace orvane {
namespace {

using namespace std::string_view_literals;

constexpr std::string_view kBlanks = " \t\v\f\r\n";
constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";

std::string_view TextOf(std::string_view bytes) {
  return bytes.starts_with(kUtf8Mark) ? bytes.substr(kUtf8Mark.size()) : bytes;
}

// Behind blanks and line ends.
std::string_view FirstWords(std::string_view bytes) {
  const std::string_view text = TextOf(bytes);
  return text.substr(std::min(text.find_first_not_of(kBlanks), text.size()));
}

bool Holds(std::string_view bytes, std::string_view words) {
  return bytes.find(words) != std::string_view::npos;
}

// Whether `text` begins with one of `words`, and with no longer word.
bool BeginsWithAny(std::string_view text, std::span<const std::string_view> words) {
  return std::any_of(words.begin(), words.end(), [text](std::string_view word) {
    if (!text.starts_with(word)) return false;
    const std::string_view rest = text.substr(word.size());
    return rest.empty() || Holds(" \t\r\n,;", rest.substr(0, 1));
  });
}

// Whether a line begins so, whatever ends the lines.
bool HasLineOfAny(std::string_view bytes, std::span<const std::string_view> words) {
  const std::string_view text = TextOf(bytes);
  for (std::size_t begin = 0; begin < text.size();) {
    if (BeginsWithAny(text.substr(begin), words)) return true;
    const std::size_t end = text.find_first_of("\r\n", begin);
    begin = end == std::string_view::npos ? text.size() : end + 1;
  }
  return false;
}

bool IsGltf(std::string_view bytes) {
  if (bytes.starts_with("glTF")) return true;
  return FirstWords(bytes).starts_with('{') &&
         (Holds(bytes, "\"asset\"") || Holds(bytes, "\"accessors\""));
}

bool IsOrvaneScene(std::string_view bytes) {
  return IsGltf(bytes) && Holds(bytes, "\"ORVANE_scene\"");
}

bool IsBvk(std::string_view bytes) {
  constexpr std::array kKeywords = {"$Comments"sv,   "$Filename"sv,    "$DateTime"sv,
                                    "$FirstFrame"sv, "$LastFrame"sv,   "$NumFrames"sv,
                                    "$NumMarkers"sv, "$CaptureRate"sv, "$Rate"sv,
                                    "$Order"sv,      "$Points"sv};
  return BeginsWithAny(FirstWords(bytes), kKeywords);
}

bool IsBvh(std::string_view bytes) {
  constexpr std::array kKeywords = {"HIERARCHY"sv};
  return BeginsWithAny(FirstWords(bytes), kKeywords) && Holds(bytes, "ROOT");
}

// The number of the block of parameters, a fixed byte, and a header of which most is zero.
bool IsC3d(std::string_view bytes) {
  constexpr std::size_t kHeaderSize = 512;
  constexpr std::string_view kMark = "\x50";
  return bytes.substr(std::min<std::size_t>(1, bytes.size())).starts_with(kMark) &&
         bytes[0] != '\0' && Holds(bytes.substr(0, kHeaderSize), "\0\0"sv);
}

bool IsGzip(std::string_view bytes) { return bytes.starts_with("\x1F\x8B"); }

bool IsZip(std::string_view bytes) { return bytes.starts_with("PK\x03\x04"); }

bool IsHtr(std::string_view bytes) {
  constexpr std::array kSections = {"[Header]"sv, "[SegmentNames&Hierarchy]"sv, "[BasePosition]"sv};
  return HasLineOfAny(bytes, kSections);
}

bool IsTrc(std::string_view bytes) {
  constexpr std::array kStarts = {"PathFileType"sv, "Frame#"sv};
  return HasLineOfAny(bytes, kStarts);
}

// The first lines pair standard markers with other names, one with one.
bool IsMnm(std::string_view bytes) {
  constexpr int kLinesThatShowIt = 3;
  MappingLineReader reader(TextOf(bytes));
  MappingLine line;
  int pairs = 0;
  while (pairs < kLinesThatShowIt && reader.Next(line)) {
    if (line.given_standard_name.empty()) continue;
    const bool is_pair = !line.given_trc_name.empty() && line.rest.empty();
    if (!is_pair || !IsStandardMarker(line.given_standard_name)) return false;
    ++pairs;
  }
  return pairs > 0;
}

struct KnownKind {
  bool (*is)(std::string_view bytes);
  ContentKindWords words;
};

// By ContentKind; the first that fits is taken.
constexpr std::array<KnownKind, 10> kKinds = {{
    {IsOrvaneScene, {"an orvane scene", "\"orvane scene\" shows it."}},
    {IsGltf, {"a glTF file", "\"orvane export\" makes motion files of the skeletons in it."}},
    {IsBvk, {"a BVK file", "It is what \"orvane convert\" makes of a TRC file, and is not read."}},
    {IsBvh, {"a BVH file", "Save the motion as HTR in the program that it comes from."}},
    {IsC3d, {"a C3D file", "Save the markers as TRC in the program that it comes from."}},
    {IsGzip, {"a gzip archive", "Unpack it first."}},
    {IsZip, {"a zip archive", "Unpack it first."}},
    {IsHtr,
     {"an HTR file",
      "\"orvane import\" and \"orvane info\" take it, by a name that ends in .htr or with \"--as "
      "htr\"."}},
    {IsTrc,
     {"a TRC file",
      "\"orvane import\" and \"orvane info\" take it, by a name that ends in .trc or with \"--as "
      "trc\"."}},
    {IsMnm,
     {"a mapping", "\"orvane map lint\" checks it, and \"orvane convert --mapping\" takes it."}},
}};

const KnownKind& Known(ContentKind kind) { return kKinds[static_cast<std::size_t>(kind)]; }

}  // namespace

std::optional<ContentKind> FindContentKind(std::string_view bytes) {
  const std::string_view start = bytes.substr(0, kBytesThatShowKind);
  const auto found = std::find_if(kKinds.begin(), kKinds.end(),
                                  [start](const KnownKind& kind) { return kind.is(start); });
  if (found == kKinds.end()) return std::nullopt;
  return static_cast<ContentKind>(found - kKinds.begin());
}

std::optional<ContentKind> FindOtherKind(std::string_view bytes, ContentKind wanted) {
  if (Known(wanted).is(bytes.substr(0, kBytesThatShowKind))) return std::nullopt;
  return FindContentKind(bytes);
}

const ContentKindWords& WordsFor(ContentKind kind) { return Known(kind).words; }

std::string DescribeOtherKind(ContentKind kind, std::string_view wanted) {
  return std::string("The file is ") + WordsFor(kind).name + ", not " + std::string(wanted);
}

void NameKindAlone(ContentKind kind, const FindingRule& rule, const std::string& wanted,
                   const std::string& effect, FindingList& findings) {
  findings.ReplaceAll(rule, {1, 1}, {WordsFor(kind).name, wanted, effect});
}

}  // namespace orvane
