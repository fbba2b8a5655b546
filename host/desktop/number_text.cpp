#include "host/desktop/number_text.h"

#include "decimal/decimal.h"

namespace host {
namespace {

std::string_view Trimmed(std::string_view text) {
  const std::size_t begin = text.find_first_not_of(' ');
  if (begin == std::string_view::npos) return {};
  return text.substr(begin, text.find_last_not_of(' ') - begin + 1);
}

}  // namespace

std::optional<float> NumberIn(std::string_view text) {
  text = Trimmed(text);
  if (text.starts_with('+') && !text.starts_with("+-")) text.remove_prefix(1);
  const char* const end = text.data() + text.size();
  const auto number = decimal::Read<float>(text.data(), end);
  if (!number.fits || number.end != end || text.empty()) return {};
  return number.value;
}

}  // namespace host
