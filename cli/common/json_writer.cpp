#include "cli/common/json_writer.h"

#include <cassert>
#include <cmath>
#include <nlohmann/json.hpp>
#include <string>

#include "formats/text/numbers.h"

namespace cli {
namespace {

std::string Quoted(std::string_view text) {
  constexpr int kCompact = -1;
  return nlohmann::json(text).dump(kCompact, ' ', false, nlohmann::json::error_handler_t::replace);
}

}  // namespace

void JsonWriter::Key(std::string_view name) {
  assert(!levels_.empty() && !after_key_);
  StartMember();
  out_ << Quoted(name) << ": ";
  after_key_ = true;
}

void JsonWriter::String(std::string_view text) {
  StartValue();
  out_ << Quoted(text);
}

void JsonWriter::Number(double value) {
  if (!std::isfinite(value)) return Null();
  StartValue();
  // Most readers take "-0" for the whole number 0.
  const bool negative_zero = value == 0.0 && std::signbit(value);
  out_ << (negative_zero ? "-0.0" : orvane::FormatShortest(value));
}

void JsonWriter::Integer(std::int64_t value) {
  StartValue();
  out_ << orvane::FormatInt(value);
}

void JsonWriter::Bool(bool value) {
  StartValue();
  out_ << (value ? "true" : "false");
}

void JsonWriter::Null() {
  StartValue();
  out_ << "null";
}

void JsonWriter::Begin(char bracket, Layout layout) {
  StartValue();
  out_ << bracket;
  levels_.push_back({layout});
}

void JsonWriter::End(char bracket) {
  assert(!levels_.empty() && !after_key_);
  const Level level = levels_.back();
  levels_.pop_back();
  if (level.layout == Layout::kLines && !level.empty) BreakLine();
  out_ << bracket;
  if (levels_.empty()) out_ << '\n';
}

// A value that follows its key has been separated already.
void JsonWriter::StartValue() {
  if (!after_key_) StartMember();
  after_key_ = false;
}

void JsonWriter::StartMember() {
  if (levels_.empty()) return;
  Level& level = levels_.back();
  if (!level.empty) out_ << (level.layout == Layout::kLines ? "," : ", ");
  if (level.layout == Layout::kLines) BreakLine();
  level.empty = false;
}

void JsonWriter::BreakLine() { out_ << '\n' << std::string(2 * levels_.size(), ' '); }

}  // namespace cli
