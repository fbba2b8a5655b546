#include "cli/import/measured_nodes.h"

#include <algorithm>
#include <cstddef>
#include <limits>
#include <unordered_map>
#include <utility>

namespace cli {
namespace {

using host::GapManner;
using host::Measured;
using orvane::ShownGaps;

std::vector<host::Node*> AllNodes(host::Scene& scene) {
  std::vector<host::Node*> nodes = {&scene.Root()};
  for (std::size_t index = 0; index < nodes.size(); ++index) {
    const auto& children = nodes[index]->Children();
    nodes.insert(nodes.end(), children.begin(), children.end());
  }
  nodes.erase(nodes.begin());
  return nodes;
}

// The node of the scene that each marker goes to; null for one that gets a node of its own.
std::vector<const host::Node*> PlannedReceivers(std::size_t markers, const ImportChoices& choices,
                                                const std::optional<Application>& application) {
  std::vector<const host::Node*> receivers(markers, nullptr);
  if (!application) return receivers;
  const auto& selected = application->scene.selected;
  if (choices.selected_only && !selected.empty()) {
    std::fill(receivers.begin(), receivers.end(), application->nodes[selected.back()]);
  }
  for (const auto& [item, node] : application->plan.pairs) {
    receivers[item] = application->nodes[node];
  }
  return receivers;
}

bool MayBeHidden(const host::Node& node) {
  return node.Measurement() && node.Measurement()->made_by_import && node.Children().empty() &&
         node.Transform()->Scale().KeyCount() == 0;
}

// The ticks of `frames`, as far as the host's time of 32 bits reaches.
std::optional<host::Gap> TicksOf(const orvane::FrameSpan& frames, std::int64_t offset,
                                 std::int64_t ticks_per_frame) {
  const orvane::FrameSpan time{std::numeric_limits<TimeValue>::min() / ticks_per_frame,
                               std::numeric_limits<TimeValue>::max() / ticks_per_frame};
  const orvane::FrameSpan reached = Overlap({frames.first + offset, frames.last + offset}, time);
  if (reached.Count() == 0) return std::nullopt;
  return host::Gap{static_cast<TimeValue>(reached.first * ticks_per_frame),
                   static_cast<TimeValue>(reached.last * ticks_per_frame)};
}

}  // namespace

ShownGaps ShowGaps(GapManner manner, const MarkerSamples& samples, const orvane::FrameSpan& keyed,
                   const ImportChoices& choices, const std::optional<Application>& application) {
  if (manner == GapManner::kOrigin) return ShownGaps::kAtOrigin;
  if (manner == GapManner::kHold) return ShownGaps::kHeld;
  const auto receivers = PlannedReceivers(samples.gaps.size(), choices, application);
  for (std::size_t marker = 0; marker < receivers.size(); ++marker) {
    const bool is_held = receivers[marker] != nullptr && !MayBeHidden(*receivers[marker]);
    if (is_held && !KeyedGaps(samples, marker, keyed).empty()) return ShownGaps::kHeld;
  }
  return ShownGaps::kHidden;
}

MeasuredNodes::MeasuredNodes(host::Scene& scene) : scene_(scene) {
  for (const host::Node* node : AllNodes(scene)) newest_ = std::max(newest_, node->Handle());
}

void MeasuredNodes::Tell(GapManner manner, const MarkerSamples& samples,
                         const orvane::FrameSpan& keyed, const ImportChoices& choices,
                         const std::optional<Application>& application) const {
  const int ticks_per_frame = scene_.Animation().TicksPerFrame();
  const auto span = TicksOf(keyed, choices.offset, ticks_per_frame);
  if (!span) return;
  const auto receivers = ReceiversOf(samples.gaps.size(), choices, application);
  for (std::size_t marker = 0; marker < receivers.size(); ++marker) {
    const auto [node, is_new] = receivers[marker];
    if (node == nullptr) continue;
    std::vector<host::Gap> gaps;
    for (const orvane::FrameSpan& frames : KeyedGaps(samples, marker, keyed)) {
      if (const auto gap = TicksOf(frames, choices.offset, ticks_per_frame)) gaps.push_back(*gap);
    }
    Measured measured = node->Measurement().value_or(Measured{is_new, manner, {}});
    measured.manner = manner;
    measured.Replace(*span, gaps);
    const bool is_known = is_new || node->Measurement();
    if (is_known || !measured.gaps.empty()) node->SetMeasurement(std::move(measured));
  }
}

std::vector<MeasuredNodes::Receiver> MeasuredNodes::ReceiversOf(
    std::size_t markers, const ImportChoices& choices,
    const std::optional<Application>& application) const {
  std::unordered_map<const host::Node*, host::Node*> known;
  for (host::Node* node : AllNodes(scene_)) known.emplace(node, node);
  const std::vector<host::Node*> new_nodes = NewNodes();
  auto next_new = new_nodes.begin();
  std::vector<Receiver> receivers;
  for (const host::Node* node : PlannedReceivers(markers, choices, application)) {
    if (node != nullptr) {
      receivers.push_back({known.at(node), false});
    } else if (next_new != new_nodes.end()) {
      receivers.push_back({*next_new++, true});
    } else {
      receivers.push_back({});  // nobody took the marker
    }
  }
  return receivers;
}

std::vector<host::Node*> MeasuredNodes::NewNodes() const {
  std::vector<host::Node*> nodes = AllNodes(scene_);
  std::erase_if(nodes, [this](const host::Node* node) {
    return node->Handle() <= newest_ || !node->Children().empty();
  });
  std::sort(nodes.begin(), nodes.end(), [](const host::Node* left, const host::Node* right) {
    return left->Handle() < right->Handle();
  });
  return nodes;
}

}  // namespace cli
