#include "web/desk/told_suggestions.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string>
#include <vector>

#include "formats/trc/document.h"
#include "inspect/mapping/geometry_suggestion.h"
#include "inspect/mapping/mappable_marker.h"
#include "inspect/mapping/name_suggestion.h"
#include "web/desk/node_look.h"
#include "web/desk/told.h"

namespace web {
namespace {

using Layout = cli::JsonWriter::Layout;

struct Suggestion {
  std::string standard;
  std::size_t node = 0;  // its index
  const char* reason = "";
  std::string place;  // where it sits, when the reason is that
};

const char* WordFor(orvane::NameReason reason) {
  constexpr std::array<const char*, 4> kWords = {"same", "subject", "case", "synonym"};
  return kWords[static_cast<std::size_t>(reason)];
}

std::vector<std::string> NamesOf(const ScenePlaces& places) {
  std::vector<std::string> names;
  names.reserve(places.nodes.size());
  for (const host::Node* const node : places.nodes) names.push_back(node->Name());
  return names;
}

std::vector<Suggestion> SuggestByNames(const std::vector<std::string>& names) {
  std::vector<Suggestion> suggested;
  for (const orvane::SuggestedMarker& sure : orvane::SuggestByNames(names).sure) {
    suggested.push_back({sure.standard, sure.marker, WordFor(sure.reason), ""});
  }
  return suggested;
}

// The capture that the markers of a scene are.
class SceneCapture {
 public:
  SceneCapture(const host::Scene& scene, const ScenePlaces& places) {
    document_.SetDataRate(kTicksPerSecond / scene.Animation().TicksPerFrame() / places.step);
    for (std::size_t node = 0; node < places.nodes.size(); ++node) {
      if (LookOf(*places.nodes[node]).kind == NodeKind::kMarker) Add(places, node);
    }
  }

  // The markers are those nodes, by their indices.
  [[nodiscard]] const orvane::TRCDocument& Document() const { return document_; }
  [[nodiscard]] std::size_t NodeOf(std::size_t marker) const { return nodes_[marker]; }

 private:
  // Names are of no account, but no two are the same.
  void Add(const ScenePlaces& places, std::size_t node) {
    orvane::TRCMarker& marker = *document_.AddMarker(orvane::TRCMarker(std::to_string(node)));
    for (std::size_t frame = 0; frame < places.frames; ++frame) {
      const float* const at = places.At(frame, node);
      if (std::isnan(at[0])) {
        marker.AppendDropout();
      } else {
        marker.AppendPosition(at[0], at[1], at[2]);
      }
    }
    nodes_.push_back(node);
  }

  orvane::TRCDocument document_;
  std::vector<std::size_t> nodes_;
};

// Adds what names leave open.
void AddByGeometry(const SceneCapture& capture, const std::vector<std::string>& names,
                   std::vector<Suggestion>& suggested) {
  const std::vector<Suggestion> named = suggested;
  for (const orvane::PlacedMarker& sure : orvane::SuggestByGeometry(capture.Document()).sure) {
    const std::size_t node = capture.NodeOf(sure.marker);
    const bool is_named = std::any_of(named.begin(), named.end(), [&](const Suggestion& each) {
      return each.standard == sure.standard || each.node == node;
    });
    if (is_named || !orvane::CanBeMapped(names, node)) continue;
    suggested.push_back({sure.standard, node, "geometry", sure.place});
  }
}

}  // namespace

void TellSuggestions(const host::Scene& scene, const ScenePlaces& places) {
  const std::vector<std::string> names = NamesOf(places);
  std::vector<Suggestion> suggested = SuggestByNames(names);
  AddByGeometry(SceneCapture(scene, places), names, suggested);
  Telling telling("suggestions");
  cli::JsonWriter& json = telling.Json();
  json.Key("suggested");
  json.BeginArray(Layout::kLines);
  for (const Suggestion& each : suggested) {
    json.BeginObject();
    cli::WriteText(json, "standard", each.standard);
    cli::WriteInteger(json, "node", places.nodes[each.node]->Handle());
    cli::WriteText(json, "reason", each.reason);
    cli::WriteText(json, "place", each.place);
    json.EndObject();
  }
  json.EndArray();
  telling.Send();
}

}  // namespace web
