#include "inspect/check/trc_layout.h"

#include <string_view>

#include "formats/text/tokens.h"
#include "formats/trc/fields.h"
#include "formats/trc/line_rules.h"

namespace orvane::trc {
namespace {

constexpr std::size_t kFirstName = 3;
constexpr std::size_t kFieldsOfAMarker = 3;

bool IsLookedAt(std::size_t field) {
  return field >= kFirstName && (field - kFirstName) % kFieldsOfAMarker == 0;
}

// Walks the line of names once: names that are missing where they are looked for, and the first
// that stands elsewhere.
std::optional<MisplacedName> FindMisplacedName(const Line& line) {
  std::optional<MisplacedName> first;
  bool is_one_missing = false;
  std::string_view previous;
  std::size_t previous_field = 0;
  for (TRCFields fields(line); !fields.AtEnd(); fields.Drop()) {
    const std::string_view name = fields.Get();
    const std::size_t field = fields.Number();
    if (SkipSeparators(name).empty()) {
      is_one_missing = is_one_missing || (IsLookedAt(field) && fields.HasTab());
      continue;
    }
    if (!first && field > kFirstName && !IsLookedAt(field)) {
      const auto column = static_cast<std::size_t>(name.data() - line.text.data()) + 1;
      first = {{line.number, column, field},
               std::string(name),
               std::string(previous),
               field - previous_field};
    }
    previous = name;
    previous_field = field;
  }
  return is_one_missing ? first : std::nullopt;
}

// "X1" as the first name, and "Y1" behind it.
std::optional<TRCPlace> FindHeadings(const Line& line) {
  constexpr std::string_view kX = "X1";
  constexpr std::string_view kY = "Y1";
  TRCFields fields(line);
  while (!fields.AtEnd() && fields.Number() < kFirstName) fields.Drop();
  if (fields.AtEnd() || fields.Get() != kX) return std::nullopt;
  const auto column = static_cast<std::size_t>(fields.Get().data() - line.text.data()) + 1;
  fields.Drop();
  if (fields.AtEnd() || fields.Get() != kY) return std::nullopt;
  return TRCPlace{line.number, column, kFirstName};
}

bool HoldsTabsAlone(const Line& line) {
  return !line.text.empty() && line.text.find_first_not_of('\t') == std::string_view::npos;
}

}  // namespace

void TrcLayout::TakeHeaderLine(std::size_t number, const Line& line) {
  if (number == kMarkerNamesLine) {
    misplaced_name = FindMisplacedName(line);
    headings_for_names = FindHeadings(line);
  }
  if (number == kPerhapsBlankLine && HoldsTabsAlone(line)) {
    frame_of_tabs = TRCPlace{line.number, 1, 0};
  }
}

}  // namespace orvane::trc
