#include "cli/info/subject_json.h"

namespace cli {

void WriteSubject(JsonWriter& json, const std::optional<orvane::Subject>& subject,
                  std::uint32_t length_unit) {
  json.Key("subject");
  if (!subject) return json.Null();
  json.BeginObject();
  json.Key("height_meters");
  json.Number(orvane::InMeters(HeightOf(*subject), length_unit));
  json.Key("way_meters");
  json.Number(orvane::InMeters(subject->way, length_unit));
  json.EndObject();
}

}  // namespace cli
