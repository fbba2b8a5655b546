#include "cli/import/inspection.h"

#include <algorithm>
#include <optional>

#include "cli/import/imported_frames.h"
#include "cli/import/keyed_segments.h"
#include "cli/import/trc_inspection.h"
#include "formats/htr/reader.h"
#include "formats/text/numbers.h"
#include "host/animation/animation_state.h"
#include "inspect/check/rates.h"
#include "inspect/summary/hierarchy.h"

namespace cli {
namespace {

using orvane::CountFrames;
using orvane::FormatInt;
using orvane::HierarchyEntry;
using orvane::kHighestRate;
using orvane::kLowestRate;
using orvane::ListHierarchy;

// What is told of a file's rate holds for the scene that the program makes of it.
static_assert(kLowestRate == host::kMinimumFrameRate && kHighestRate == host::kMaximumFrameRate);

// Segments of the first root's tree, which stands first in `hierarchy`.
std::size_t FirstTreeSize(const std::vector<HierarchyEntry>& hierarchy) {
  const auto next_root = std::find_if(hierarchy.begin() + 1, hierarchy.end(),
                                      [](const HierarchyEntry& entry) { return entry.depth == 0; });
  return static_cast<std::size_t>(next_root - hierarchy.begin());
}

// The plug-in makes a skeleton of the first root and what hangs from it.
std::optional<Complaint> FindLeftOut(const std::string& file, const orvane::HtrDocument& document) {
  const std::vector<HierarchyEntry> hierarchy = ListHierarchy(document);
  if (hierarchy.empty()) return std::nullopt;
  const std::size_t count = document.segments().size();
  const std::size_t left_out = count - FirstTreeSize(hierarchy);
  if (left_out == 0) return std::nullopt;
  const std::string text = FormatInt(static_cast<std::int64_t>(left_out)) + " of " +
                           FormatInt(static_cast<std::int64_t>(count)) +
                           " segments do not hang from the first root, " +
                           hierarchy.front().segment->GetName();
  return Complaint{file, text, "A new skeleton goes without them; \"orvane info\" lists them all."};
}

// A second section of base positions lists every segment once more among its parent's children.
std::optional<Complaint> FindRepetition(const std::string& file,
                                        const orvane::HtrDocument& document,
                                        const ImportChoices& choices) {
  std::int64_t children = 0;
  std::int64_t listed = 0;
  for (const orvane::HtrSegment& segment : document.segments()) {
    if (segment.GetParent() != nullptr) ++children;
    listed += segment.GetNumChildren();
  }
  if (listed == children) return std::nullopt;
  return Complaint{file, "[BasePosition] comes again, so that segments are listed more than once",
                   choices.apply
                       ? "The last one counts."
                       : "The last one counts, and a new skeleton has bones more than once."};
}

// Of a file of which `held` frames are held.
ImportedFrames FramesOf(orvane::HtrDocument& document, const orvane::HtrFrameCounts& held,
                        const ImportChoices& choices, const host::Scene& scene) {
  ImportedFrames frames;
  frames.counts = CountFrames(document, held);
  const std::int64_t first = document.GetStartFrame();
  frames.announced = {first, first + frames.counts.announced - 1};
  frames.keyed = choices.Keyed(frames.announced);
  // Whatever frame a range starts at, the file's are taken from the first one on.
  frames.end = frames.keyed.Count();
  frames.rate = document.GetDataFrameRate();
  std::int64_t all = 0;
  for (const auto& [segment, count] : held) all += static_cast<std::int64_t>(count);
  constexpr std::int64_t kPositionAndRotation = 2;
  frames.receivers = {"segment", CountKeyedSegments(document, choices.apply, scene), all,
                      kPositionAndRotation};
  return frames;
}

std::vector<Complaint> InspectHtr(const std::string& file, const ImportChoices& choices,
                                  const host::Scene& scene, const std::string& advice) {
  orvane::HtrDocument document;
  orvane::HtrFrameCounts held;
  if (!orvane::CountHtrFrames(document, file, held).empty()) return {};
  if (document.segments().empty()) return {};
  const auto repetition = FindRepetition(file, document, choices);
  std::vector<Complaint> complaints =
      JudgeFrames(file, FramesOf(document, held, choices, scene), choices, scene.Animation(),
                  repetition ? repetition->text + "." : advice);
  const auto left_out = choices.apply ? std::nullopt : FindLeftOut(file, document);
  if (left_out) complaints.push_back(*left_out);
  if (repetition) complaints.push_back(*repetition);
  return complaints;
}

}  // namespace

std::vector<Complaint> Inspect(const std::string& file, FileKind kind, const ImportChoices& choices,
                               const host::Scene& scene, const std::string& advice) {
  return kind == FileKind::kTrc ? InspectTrc(file, choices, scene, advice)
                                : InspectHtr(file, choices, scene, advice);
}

}  // namespace cli
