#include "web/desk/told_mapping.h"

#include <utility>

#include "formats/mnm/standard_markers.h"
#include "formats/text/files.h"
#include "inspect/check/mnm_check.h"
#include "inspect/report/report.h"
#include "platform/scratch_folder.h"
#include "plugin/resources/resource.h"
#include "web/desk/shown_dialog.h"
#include "web/desk/told.h"
#include "web/desk/told_report.h"

namespace web {
namespace {

using host::LiveDesktop;
using host::LiveDialog;
using Layout = cli::JsonWriter::Layout;

// The bytes of the file that the creator would write.
std::string BytesOf(const orvane::MarkerNameMap& mapping) {
  const platform::ScratchFolder scratch("/tmp");
  const std::string path = scratch.Path() + "/mapping.mnm";
  return mapping.Save(path) ? orvane::ReadFileBytes(path).value_or("") : "";
}

}  // namespace

void ToldMapping::Update(const LiveDesktop& desktop) {
  std::vector<Entry> entries = Entries();
  const std::string asked = Asked(desktop);
  if (entries == told_ && asked == told_asked_) return;
  told_ = std::move(entries);
  told_asked_ = asked;
  Telling telling("mapping");
  cli::JsonWriter& json = telling.Json();
  cli::WriteText(json, "asked", asked);
  json.Key("entries");
  json.BeginArray(Layout::kLines);
  for (const Entry& entry : told_) {
    json.BeginObject();
    cli::WriteText(json, "standard", entry.standard);
    cli::WriteText(json, "marker", entry.marker);
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

void ToldMapping::TellLint() const {
  const std::string bytes = mapping_ == nullptr ? "" : BytesOf(*mapping_);
  const auto checked = orvane::CheckMapping("mapping.mnm", bytes);
  TellReport("lint", ReportOn(checked, orvane::Action::kInspect));
}

std::vector<ToldMapping::Entry> ToldMapping::Entries() const {
  std::vector<Entry> entries;
  for (std::size_t i = 0; mapping_ != nullptr && i < mapping_->Count(); ++i) {
    const orvane::MarkerNameMap::Pair pair = mapping_->At(i);
    entries.push_back({std::string(pair.standard_name), std::string(pair.trc_name), pair.node});
  }
  return entries;
}

}  // namespace web
