#include "inspect/check/trc_columns.h"

#include <cstdint>

#include "formats/text/numbers.h"
#include "inspect/check/trc_oddities.h"
#include "inspect/check/trc_rules.h"

namespace orvane::trc {

void TrcColumns::AddMarker(TRCPlace place, std::string_view name) {
  columns_.emplace(name, place.column);
  if (name.empty()) return AddWithoutMarker(place.field);
  last_named_ = std::max(last_named_, place.field);
}

void TrcColumns::AddRepeated(TRCPlace place, std::string_view name) {
  std::string text(name);
  const std::size_t first_column = columns_[text];
  repeated_.push_back({place, std::move(text), first_column});
}

std::size_t TrcColumns::NamedFields(std::size_t last_value) const {
  std::size_t last = last_named_;
  for (const std::size_t field : fields_without_name_) {
    if (field <= last_value) last = std::max(last, field);
  }
  return last == 0 ? 0 : last + 2;
}

void TrcColumns::AddRepeatedTo(FindingList& findings, std::size_t last_value) const {
  for (const Repeated& column : repeated_) {
    const bool is_blank = column.place.field > last_value;
    findings.Add(
        is_blank ? Rule("trc-column-repeated-blank") : Rule("trc-column-repeated"), column.place,
        [&] {
          const std::string first = FormatInt(static_cast<std::int64_t>(column.first_column));
          return FindingWords{
              Quote(column.name) + " again", "a name of its own; column " + first + " has it",
              is_blank ? "It makes no marker; neither it nor a column behind it holds a value."
                       : kColumnsShift};
        });
  }
}

}  // namespace orvane::trc
