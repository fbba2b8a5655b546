#include "web/core/answer.h"

#include <algorithm>
#include <sstream>

#include "cli/common/json_members.h"
#include "cli/common/json_writer.h"
#include "formats/units/units.h"

namespace web {
namespace {

using cli::JsonWriter;
using Layout = JsonWriter::Layout;

std::vector<float> CoverageOf(const Contents& contents) {
  std::vector<float> coverage(contents.held.size());
  const auto part = [&contents](std::size_t held) {
    return static_cast<float>(held) / static_cast<float>(contents.frames);
  };
  if (contents.frames > 0) {
    std::transform(contents.held.begin(), contents.held.end(), coverage.begin(), part);
  }
  return coverage;
}

std::vector<std::int32_t> GapNumbers(const std::vector<Gap>& gaps) {
  std::vector<std::int32_t> numbers;
  numbers.reserve(3 * gaps.size());
  for (const Gap& gap : gaps) {
    for (const std::size_t number : {gap.object, gap.begin, gap.end - 1}) {
      numbers.push_back(static_cast<std::int32_t>(number));
    }
  }
  return numbers;
}

void WritePoint(JsonWriter& json, std::string_view key, const orvane::Point& point) {
  json.Key(key);
  json.BeginArray(Layout::kOneLine);
  for (const double coordinate : point) json.Number(coordinate);
  json.EndArray();
}

void WriteHeader(JsonWriter& json, const Header& header) {
  cli::WriteInteger(json, "firstFrame", header.first_frame);
  const double rate = header.rate ? static_cast<double>(header.rate->numerator) /
                                        static_cast<double>(header.rate->denominator)
                                  : 0.0;
  cli::WriteNumber(json, "rate", rate);
  cli::WriteText(json, "rateText", header.rate_text);
  cli::WriteInteger(json, "rateTaken", header.rate_taken);
  cli::WriteText(json, "unit", orvane::CalibrationUnitsName(header.length_unit));
  cli::WriteNumber(json, "millimetresPerUnit",
                   orvane::LengthFactor(header.length_unit, orvane::kMillimeters));
}

void WriteContents(JsonWriter& json, const Contents& contents) {
  cli::WriteCount(json, "frames", contents.frames);
  cli::WriteTexts(json, "objects", contents.objects);
  json.Key("parents");
  json.BeginArray(Layout::kOneLine);
  for (const std::int32_t parent : contents.parents) json.Integer(parent);
  json.EndArray();
}

}  // namespace

Answer FailureAnswer(const Refusal& refusal) {
  std::ostringstream text;
  JsonWriter json(text);
  json.BeginObject();
  cli::WriteText(json, "message", refusal.text);
  if (!refusal.code.empty()) cli::WriteText(json, "code", refusal.code);
  if (refusal.line > 0) {
    cli::WriteCount(json, "line", refusal.line);
    cli::WriteCount(json, "column", refusal.column);
  }
  json.EndObject();
  return {true, text.str(), {}};
}

Answer DescribeTake(const Take& take) {
  const Contents contents = take.GetContents();
  Tracks tracks = take.MakeTracks();
  const orvane::Bounds bounds = tracks.bounds.value_or(orvane::Bounds());
  std::ostringstream text;
  JsonWriter json(text);
  json.BeginObject();
  cli::WriteText(json, "kind", take.IsMotion() ? "motion" : "markers");
  WriteHeader(json, take.GetHeader());
  WriteContents(json, contents);
  cli::WriteText(json, "upAxis", tracks.stands_along_z ? "z" : "y");
  if (take.IsMotion()) cli::WriteText(json, "eulerOrder", "ZYX");
  WritePoint(json, "boxMin", bounds.least);
  WritePoint(json, "boxMax", bounds.most);
  json.EndObject();
  Answer answer{false, text.str(), {}};
  answer.blocks.emplace_back(CoverageOf(contents));
  answer.blocks.emplace_back(GapNumbers(contents.gaps));
  answer.blocks.emplace_back(std::move(tracks.positions));
  answer.blocks.emplace_back(std::move(tracks.ends));
  return answer;
}

}  // namespace web
