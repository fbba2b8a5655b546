#include <algorithm>
#include <string>

#include "cli/common/json_members.h"
#include "cli/common/messages.h"
#include "cli/common/page_text.h"
#include "cli/import/application.h"
#include "formats/text/numbers.h"

namespace cli {
namespace {

using orvane::ApplyItem;
using orvane::ApplyPair;
using orvane::BoneDifference;
using orvane::FormatInt;

using Layout = JsonWriter::Layout;

constexpr std::size_t kTitleWidth = 19;

std::vector<std::string> NamesOf(const std::vector<ApplyItem>& items,
                                 const std::vector<std::size_t>& indices) {
  std::vector<std::string> names;
  names.reserve(indices.size());
  for (const std::size_t index : indices) names.push_back(items[index].name);
  return names;
}

struct Row {
  const char* title;
  std::vector<std::string> names;
};

std::string CountIn(const Row& row) {
  return FormatInt(static_cast<std::int64_t>(row.names.size()));
}

// "  In the file only   2  Tail, Ear"
void PrintRow(std::ostream& out, const Row& row, std::size_t width) {
  out << "  " << PadRight(row.title, kTitleWidth) << PadLeft(CountIn(row), width);
  const char* between = "  ";
  for (const std::string& name : row.names) {
    out << between << Printable(name);
    between = ", ";
  }
  out << '\n';
}

}  // namespace

void PrintTable(const Application& application, std::ostream& out) {
  const auto& [file, scene, nodes, plan, differences] = application;
  std::vector<std::string> matched;
  matched.reserve(plan.pairs.size());
  for (const ApplyPair& pair : plan.pairs) {
    const std::string& item = file.items[pair.item].name;
    const std::string& node = scene.nodes[pair.node].name;
    matched.push_back(item == node ? item : item + " to " + node);
  }
  std::vector<std::string> differing;
  differing.reserve(differences.size());
  for (const BoneDifference& each : differences) {
    differing.push_back(scene.nodes[each.pair.node].name + " by " + Describe(each));
  }
  std::vector<Row> rows = {{"Names matched", std::move(matched)},
                           {"In the file only", NamesOf(file.items, plan.file_only)}};
  if (!plan.not_below_start.empty()) {
    rows.push_back({"Not below start", NamesOf(file.items, plan.not_below_start)});
  }
  rows.push_back({"In the scene only", NamesOf(scene.nodes, plan.scene_only)});
  rows.push_back({"Bones that differ", std::move(differing)});
  std::size_t width = 0;
  for (const Row& row : rows) width = std::max(width, CountIn(row).size());
  for (const Row& row : rows) PrintRow(out, row, width);
}

void WriteTable(JsonWriter& json, const Application& application) {
  const auto& [file, scene, nodes, plan, differences] = application;
  json.BeginObject();
  json.Key("matched");
  json.BeginArray(Layout::kLines);
  for (const ApplyPair& pair : plan.pairs) {
    json.BeginArray(Layout::kOneLine);
    json.String(file.items[pair.item].name);
    json.String(scene.nodes[pair.node].name);
    json.EndArray();
  }
  json.EndArray();
  WriteTexts(json, "file_only", NamesOf(file.items, plan.file_only));
  WriteTexts(json, "not_below_start", NamesOf(file.items, plan.not_below_start));
  WriteTexts(json, "scene_only", NamesOf(scene.nodes, plan.scene_only));
  json.Key("bones_that_differ");
  json.BeginArray(Layout::kLines);
  for (const BoneDifference& each : differences) {
    json.BeginObject();
    json.Key("name");
    json.String(scene.nodes[each.pair.node].name);
    json.Key("millimeters");
    json.Number(each.millimeters);
    json.Key("degrees");
    json.Number(each.degrees);
    json.EndObject();
  }
  json.EndArray();
  json.EndObject();
}

}  // namespace cli
