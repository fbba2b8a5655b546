#pragma once

#include <cstddef>
#include <string_view>

#include "formats/text/lines.h"

// The fields of one line of a marker file, from left to right. A single tab ends a field, so that
// there are empty ones. Belongs to the reader.
namespace orvane {

class TRCFields {
 public:
  explicit TRCFields(const Line& line) : rest_(line.text), has_break_(line.ends_with_break) {}

  // The current field, up to the next tab or the end of the line, without the line break.
  [[nodiscard]] std::string_view Get() const { return rest_.substr(0, rest_.find('\t')); }

  // Goes on behind the next tab; when there is none, nothing of the line is left.
  void Drop() {
    const std::size_t tab = rest_.find('\t');
    const bool is_last = tab == std::string_view::npos;
    has_break_ = has_break_ && !is_last;
    rest_.remove_prefix(is_last ? rest_.size() : tab + 1);
    ++number_;
  }

  void Drop(int count) {
    for (; count > 0; --count) Drop();
  }

  // Returns the current field and drops it.
  [[nodiscard]] std::string_view Take() {
    const std::string_view field = Get();
    Drop();
    return field;
  }

  // Whether the current field is followed by another.
  [[nodiscard]] bool HasTab() const { return rest_.find('\t') != std::string_view::npos; }
  // Whether the line break belongs to the current field.
  [[nodiscard]] bool CarriesBreak() const { return has_break_ && !HasTab(); }
  // Whether nothing is left, a line break aside.
  [[nodiscard]] bool AtEnd() const { return rest_.empty(); }
  // The number of the current field, counted from 1.
  std::size_t Number() const { return number_; }

 private:
  std::string_view rest_;
  bool has_break_;
  std::size_t number_ = 1;
};

}  // namespace orvane
