#include "web/desk/told_mapping.h"

#include <algorithm>

#include "formats/mnm/marker_name_map.h"
#include "formats/mnm/standard_markers.h"
#include "formats/text/files.h"
#include "inspect/check/mnm_check.h"
#include "inspect/report/report.h"
#include "platform/scratch_folder.h"
#include "plugin/exchange/marker_colors.h"
#include "plugin/resources/resource.h"
#include "web/desk/shown_dialog.h"
#include "web/desk/told.h"
#include "web/desk/told_report.h"

namespace web {
namespace {

using host::LiveDesktop;
using host::LiveDialog;
using Layout = cli::JsonWriter::Layout;

// Whether a node of the entries has the color of what was picked.
bool IsAnyPicked(const std::vector<MappingEntry>& entries, const host::Scene& scene) {
  return std::any_of(entries.begin(), entries.end(), [&scene](const MappingEntry& entry) {
    const host::Node* const node = scene.FindByHandle(entry.node);
    return node != nullptr && node->WireColor() == orvane::kPickedMarkerColor;
  });
}

// The bytes of the file that the creator would write.
std::string BytesOf(const std::vector<MappingEntry>& entries, const host::Scene& scene) {
  orvane::MarkerNameMap mapping;
  for (const MappingEntry& entry : entries) {
    const host::Node* const node = scene.FindByHandle(entry.node);
    if (node != nullptr) mapping.Add(entry.standard, node->Name(), entry.node);
  }
  const platform::ScratchFolder scratch("/tmp");
  const std::string path = scratch.Path() + "/mapping.mnm";
  return mapping.Save(path) ? orvane::ReadFileBytes(path).value_or("") : "";
}

}  // namespace

void ToldMapping::Update(const LiveDesktop& desktop, const host::Scene& scene) {
  const bool is_made = FindShown(desktop, IDD_MAPPING_CREATOR) != nullptr;
  if (!is_made && !IsAnyPicked(entries_, scene)) entries_.clear();
  const std::string asked = Asked(desktop);
  if (entries_ == told_ && asked == told_asked_) return;
  told_ = entries_;
  told_asked_ = asked;
  Telling telling("mapping");
  cli::JsonWriter& json = telling.Json();
  cli::WriteText(json, "asked", asked);
  json.Key("entries");
  json.BeginArray(Layout::kLines);
  for (const MappingEntry& entry : entries_) {
    json.BeginObject();
    cli::WriteText(json, "standard", entry.standard);
    cli::WriteInteger(json, "node", entry.node);
    json.EndObject();
  }
  json.EndArray();
  telling.Send();
}

std::string ToldMapping::Asked(const LiveDesktop& desktop) {
  LiveDialog* const creator = FindShown(desktop, IDD_MAPPING_CREATOR);
  if (creator == nullptr) return "";
  const host::OpenControl* const shown = creator->dialog.Find(IDC_MARKER_DESCRIPTION);
  return shown == nullptr ? "" : std::string(orvane::StandardNameOf(shown->state.text));
}

void ToldMapping::Add(const std::string& standard, std::uint32_t node) {
  entries_.push_back({standard, node});
}

void ToldMapping::RemoveLast() {
  if (!entries_.empty()) entries_.pop_back();
}

void ToldMapping::TellLint(const host::Scene& scene) const {
  const auto checked = orvane::CheckMapping("mapping.mnm", BytesOf(entries_, scene));
  TellReport("lint", ReportOn(checked, orvane::Action::kInspect));
}

}  // namespace web
