#include "cli/convert/packed_conversions.h"

#include <cstdint>
#include <cstring>
#include <map>
#include <type_traits>
#include <utility>

#include "inspect/report/finding_words.h"

namespace cli {
namespace {

// What a conversion consists of is said once, for both directions: a Packer copies each value that
// it is given behind the ones before, an Unpacker puts each back. Texts are bytes with their count:
// the names of files need not be UTF-8.

class Packer {
 public:
  void Number(const std::uint64_t& value) {
    bytes_.append(reinterpret_cast<const char*>(&value), sizeof value);
  }

  void Text(const std::string& text) {
    Number(text.size());
    bytes_ += text;
  }

  std::string TakeBytes() { return std::move(bytes_); }

 private:
  std::string bytes_;
};

class Unpacker {
 public:
  explicit Unpacker(std::string_view bytes) : bytes_(bytes) {}

  void Number(std::uint64_t& value) {
    std::memcpy(&value, bytes_.data(), sizeof value);
    bytes_.remove_prefix(sizeof value);
  }

  void Text(std::string& text) {
    std::uint64_t size = 0;
    Number(size);
    text = bytes_.substr(0, static_cast<std::size_t>(size));
    bytes_.remove_prefix(text.size());
  }

 private:
  std::string_view bytes_;
};

template <typename Carrier, typename Value>
std::enable_if_t<std::is_integral_v<Value> || std::is_enum_v<Value>> Carry(Carrier& carrier,
                                                                           Value& value) {
  auto number = static_cast<std::uint64_t>(value);
  carrier.Number(number);
  value = static_cast<Value>(number);
}

template <typename Carrier>
void Carry(Carrier& carrier, std::string& text) {
  carrier.Text(text);
}

// A code, which lives as long as the program.
template <typename Carrier>
void Carry(Carrier& carrier, std::string_view& code) {
  std::string text(code);
  carrier.Text(text);
  code = orvane::FindMeaning(text)->code;
}

template <typename Carrier, typename... Values>
void CarryAll(Carrier& carrier, Values&... values) {
  (Carry(carrier, values), ...);
}

template <typename Carrier, typename Value>
void Carry(Carrier& carrier, std::vector<Value>& values) {
  std::uint64_t size = values.size();
  carrier.Number(size);
  values.resize(static_cast<std::size_t>(size));
  for (Value& value : values) Carry(carrier, value);
}

template <typename Carrier>
void Carry(Carrier& carrier, std::pair<std::string, std::string>& names) {
  CarryAll(carrier, names.first, names.second);
}

// What is ambiguous is among the errors.
template <typename Carrier>
void Carry(Carrier& carrier, orvane::NameMatch& match) {
  std::vector<std::pair<std::string, std::string>> taken(match.taken.begin(), match.taken.end());
  Carry(carrier, taken);
  match.taken = {taken.begin(), taken.end()};
}

template <typename Carrier>
void Carry(Carrier& carrier, Complaint& complaint) {
  CarryAll(carrier, complaint.subject, complaint.text, complaint.advice);
}

template <typename Carrier>
void Carry(Carrier& carrier, orvane::ReportedFinding& finding) {
  CarryAll(carrier, finding.code, finding.severity, finding.count, finding.line, finding.column,
           finding.names, finding.cause, finding.consequence);
}

template <typename Carrier>
void Carry(Carrier& carrier, Conversion& conversion) {
  CarryAll(carrier, conversion.input, conversion.source, conversion.output, conversion.status,
           conversion.delivered, conversion.frames, conversion.markers_kept,
           conversion.markers_dropped, conversion.dropouts, conversion.errors,
           conversion.report.findings, conversion.told, conversion.is_empty, conversion.z_up,
           conversion.match, conversion.is_streamed);
}

}  // namespace

std::string PackConversions(std::vector<Conversion> conversions) {
  Packer packer;
  Carry(packer, conversions);
  return packer.TakeBytes();
}

std::vector<Conversion> UnpackConversions(std::string_view bytes) {
  Unpacker unpacker(bytes);
  std::vector<Conversion> conversions;
  Carry(unpacker, conversions);
  // Its kind and action are those of every report of a conversion.
  for (Conversion& each : conversions) {
    each.report.file = each.input;
    each.report.kind = "TRC";
    each.report.action = orvane::Action::kConvert;
  }
  return conversions;
}

}  // namespace cli
