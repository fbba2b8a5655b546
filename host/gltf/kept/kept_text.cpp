#include "host/gltf/kept/kept_text.h"

#include <cstddef>

#include "host/gltf/file/names.h"
#include "host/gltf/kept/kept_fields.h"

namespace host::gltf {

namespace {

std::string Hexadecimal(const std::string& bytes) {
  constexpr char kDigits[] = "0123456789abcdef";
  std::string digits;
  for (const char byte : bytes) {
    const auto code = static_cast<unsigned char>(byte);
    digits += {kDigits[code >> 4U], kDigits[code & 15U]};
  }
  return digits;
}

int DigitValue(char digit) {
  if ('0' <= digit && digit <= '9') return digit - '0';
  if ('a' <= digit && digit <= 'f') return digit - 'a' + 10;
  return -1;
}

std::string BytesIn(const JsonField& field) {
  const std::string& digits = field.Text();
  if (digits.size() % 2 != 0) field.Refuse("no bytes in hexadecimal");
  std::string bytes;
  for (std::size_t i = 0; i < digits.size(); i += 2) {
    const int high = DigitValue(digits[i]);
    const int low = DigitValue(digits[i + 1]);
    if (high < 0 || low < 0) field.Refuse("no bytes in hexadecimal");
    bytes += static_cast<char>(high * 16 + low);
  }
  return bytes;
}

}  // namespace

void SetText(nlohmann::json& record, const std::string& name, const std::string& bytes) {
  if (ViewerName(bytes) == bytes) {
    record[name] = bytes;
  } else {
    record[name + field::kBytes] = Hexadecimal(bytes);
  }
}

void AddText(JsonObject& record, const std::string& name, const std::string& bytes) {
  if (ViewerName(bytes) == bytes) {
    record.Add(name, bytes);
  } else {
    record.Add(name + field::kBytes, Hexadecimal(bytes));
  }
}

std::string TextOf(const JsonField& record, const std::string& name) {
  const auto bytes = record.FindMember(name + field::kBytes);
  std::string text = bytes ? BytesIn(*bytes) : record.Member(name).Text();
  if (text.find('\0') != std::string::npos) {
    (bytes ? *bytes : record.Member(name)).Refuse("a text with a zero byte in it");
  }
  return text;
}

}  // namespace host::gltf
