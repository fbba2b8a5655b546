#include "host/desktop/custom_edit.h"

#include <charconv>
#include <cmath>
#include <optional>
#include <string_view>

namespace host {
namespace {

std::string_view Trimmed(std::string_view text) {
  const std::size_t begin = text.find_first_not_of(' ');
  if (begin == std::string_view::npos) return {};
  return text.substr(begin, text.find_last_not_of(' ') - begin + 1);
}

std::optional<float> NumberIn(std::string_view text) {
  text = Trimmed(text);
  if (text.starts_with('+') && !text.starts_with("+-")) text.remove_prefix(1);
  float number = 0.0F;
  const char* const end = text.data() + text.size();
  const auto [rest, error] = std::from_chars(text.data(), end, number);
  if (error != std::errc() || rest != end || !std::isfinite(number)) return {};
  return number;
}

}  // namespace

float CustomEdit::GetFloat(bool* valid) {
  const std::optional<float> number = NumberIn(text_);
  if (valid != nullptr) *valid = number.has_value();
  return number.value_or(0.0F);
}

}  // namespace host
