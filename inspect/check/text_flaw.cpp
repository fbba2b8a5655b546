#include "inspect/check/text_flaw.h"

#include <algorithm>
#include <array>

namespace orvane {
namespace {

using namespace std::string_view_literals;

constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";
constexpr std::string_view kUtf16Marks[] = {"\xFF\xFE", "\xFE\xFF"};
constexpr std::string_view kUtf32Mark = "\xFF\xFE\0\0"sv;

// As much of a file as tells its encoding.
constexpr std::size_t kBytesLookedAt = 128;

// By TextFlaw.
constexpr std::array<TextFlawWords, kTextFlaws> kWords = {{
    {"The file is empty", "Was it saved, or copied, to its end?", "an empty file", "text"},
    {"The file is UTF-16 text", "Save it as UTF-8 or ASCII.", "UTF-16 text", "ASCII or UTF-8"},
    {"Lines end with carriage returns alone, which end no line",
     "Save it with LF or CR LF where lines end.", "lines that end with carriage returns alone",
     "LF or CR LF where lines end"},
    {"A byte-order mark keeps the first line from being a section line",
     "Save it without a byte-order mark.", "a byte-order mark before a section line",
     "[ as the first character"},
    {"A byte-order mark belongs to the first name, which is then not what it looks like",
     "Save it without a byte-order mark.", "a byte-order mark before a name",
     "a name at the start"},
}};

bool StartsWithUtf16Mark(std::string_view bytes) {
  return std::any_of(std::begin(kUtf16Marks), std::end(kUtf16Marks),
                     [bytes](std::string_view mark) { return bytes.starts_with(mark); });
}

// Without a mark: most characters are ASCII, so that one byte of them is NUL, always the same one.
bool LooksLikeUtf16(std::string_view bytes) {
  std::array<std::size_t, 2> nuls = {0, 0};  // at even and at odd places
  for (std::size_t at = 0; at < bytes.size(); ++at) nuls[at % 2] += bytes[at] == '\0' ? 1U : 0U;
  const auto [fewer, more] = std::minmax(nuls[0], nuls[1]);
  return fewer == 0 && more > 1 && 4 * more >= bytes.size();
}

bool IsUtf16(std::string_view bytes) {
  if (bytes.starts_with(kUtf32Mark)) return false;
  const std::string_view start = bytes.substr(0, kBytesLookedAt);
  if (!StartsWithUtf16Mark(bytes)) return LooksLikeUtf16(start);
  return bytes.size() == kUtf16Marks[0].size() || start.find('\0') != std::string_view::npos;
}

// A line feed among so many carriage returns may have got there when the file was put together.
constexpr std::ptrdiff_t kReturnsForAFeed = 10;

// Whether nearly all lines end with carriage returns alone. What holds NULs is no text.
bool EndsLinesWithReturns(std::string_view file) {
  const std::string_view bytes = file.substr(0, kBytesThatShowFlaws);
  if (bytes.substr(0, kBytesLookedAt).find('\0') != std::string_view::npos) return false;
  const auto feeds = std::count(bytes.begin(), bytes.end(), '\n');
  std::ptrdiff_t returns = 0;
  for (std::size_t at = bytes.find('\r'); at < bytes.size(); at = bytes.find('\r', at)) {
    at = bytes.find_first_not_of('\r', at);
    if (at < bytes.size() && bytes[at] != '\n') ++returns;
  }
  return returns > kReturnsForAFeed * feeds;
}

// The byte-order mark that `bytes` start with; empty when there is none.
std::string_view MarkAtStart(std::string_view bytes) {
  for (const std::string_view mark : {kUtf8Mark, kUtf16Marks[0], kUtf16Marks[1]}) {
    if (bytes.starts_with(mark)) return mark;
  }
  return {};
}

}  // namespace

std::optional<TextFlaw> FindTextFlaw(std::string_view bytes) {
  if (bytes.empty() || bytes == kUtf8Mark) return TextFlaw::kEmpty;
  if (IsUtf16(bytes)) return TextFlaw::kUtf16;
  if (EndsLinesWithReturns(bytes)) return TextFlaw::kCarriageReturns;
  return std::nullopt;
}

std::optional<TextFlaw> FindHtrTextFlaw(std::string_view bytes) {
  if (const auto flaw = FindTextFlaw(bytes)) return flaw;
  const std::string_view mark = MarkAtStart(bytes);
  const bool is_marked = !mark.empty() && bytes.substr(mark.size()).starts_with('[');
  return is_marked ? std::optional(TextFlaw::kMarkedSection) : std::nullopt;
}

std::optional<TextFlaw> FindMappingTextFlaw(std::string_view bytes) {
  if (const auto flaw = FindTextFlaw(bytes)) return flaw;
  return MarkAtStart(bytes).empty() ? std::nullopt : std::optional(TextFlaw::kMarkedName);
}

const TextFlawWords& WordsFor(TextFlaw flaw) { return kWords[static_cast<std::size_t>(flaw)]; }

void NameFlawAlone(TextFlaw flaw, const FindingRule& rule, const std::string& effect,
                   FindingList& findings) {
  const TextFlawWords& words = WordsFor(flaw);
  findings.ReplaceAll(rule, {1, 1}, {words.found, words.expected, effect});
}

}  // namespace orvane
