#include "inspect/report/export_check.h"

#include <string_view>
#include <unordered_set>
#include <utility>

#include "formats/htr/sections.h"
#include "formats/text/numbers.h"
#include "inspect/counts/frame_span.h"
#include "inspect/report/action.h"
#include "inspect/report/export_rules.h"

namespace orvane {
namespace {

constexpr FindingPlace kNoPlace{0, 0};

consteval const FindingRule& Rule(std::string_view code) {
  return FindRule(exporting::kRules, code);
}

// Whether a reader would find another name in its place.
bool IsChanged(std::string_view name) {
  return name.empty() || name.front() == '[' || name.find_first_of("\t#]") != std::string::npos ||
         name == kGlobalParent || SectionOf(name) != HtrSection::kMotion;
}

bool IsEffector(std::string_view name) { return name.find("Effector") != std::string_view::npos; }

// Why a node is not in the file.
enum class Fate { kExported, kHelper, kEffector, kBelowHelper, kBelowEffector, kRefused };

class ExportCheck {
 public:
  ExportCheck(const std::string& name, const std::vector<ExportNode>& nodes)
      : nodes_(nodes), has_bones_below_(nodes.size()), checked_{name, kSceneKind, "", {}} {
    for (std::size_t index = nodes.size(); index-- > 1;) {
      const bool leads_to_bones = nodes[index].is_bone || has_bones_below_[index];
      if (leads_to_bones) has_bones_below_[nodes[index].parent] = true;
    }
  }

  CheckedFile Run() {
    if (nodes_.empty()) checked_.findings.Add(Rule("export-root-missing"), kNoPlace, {"", "", ""});
    for (std::size_t index = 0; index < nodes_.size(); ++index) {
      fates_.push_back(FateOf(index));
      Tell(index);
    }
    return std::move(checked_);
  }

 private:
  Fate FateOf(std::size_t index) {
    const ExportNode& node = nodes_[index];
    const Fate above = index == 0 ? Fate::kExported : fates_[node.parent];
    if (above == Fate::kHelper) return Fate::kBelowHelper;
    if (above == Fate::kEffector) return Fate::kBelowEffector;
    if (above != Fate::kExported) return above;
    if (!node.is_bone) return Fate::kHelper;
    if (IsEffector(node.name)) return Fate::kEffector;
    const bool has_blank = node.name.find(' ') != std::string::npos;
    return has_blank || !names_.insert(node.name).second ? Fate::kRefused : Fate::kExported;
  }

  void Tell(std::size_t index) {
    const ExportNode& node = nodes_[index];
    switch (fates_[index]) {
      case Fate::kExported:
        return TellOfSegment(node);
      case Fate::kHelper:
        // What hangs from it is told instead.
        if (!has_bones_below_[index]) Add(Rule("export-helper-skipped"), node);
        return;
      case Fate::kEffector:
        if (index == 0) return Add(Rule("export-root-effector"), node);
        if (!has_bones_below_[index]) Add(Rule("export-effector"), node);
        return;
      case Fate::kBelowHelper:
        if (node.is_bone) Add(Rule("export-below-helper"), node);
        return;
      case Fate::kBelowEffector:
        if (node.is_bone) Add(Rule("export-below-effector"), node);
        return;
      case Fate::kRefused:
        // Once for all below it.
        if (index == 0 || fates_[node.parent] == Fate::kExported)
          Add(Rule("export-name-refused"), node);
        return;
    }
  }

  void TellOfSegment(const ExportNode& node) {
    if (IsChanged(node.name)) Add(Rule("export-name-changed"), node);
    if (node.scale_changes) {
      Add(Rule("export-scale-keyed"), node);
    } else if (node.is_uneven) {
      Add(Rule("export-scale-uneven"), node);
    }
    if (node.is_sheared) Add(Rule("export-shear"), node);
  }

  void Add(const FindingRule& rule, const ExportNode& node) {
    checked_.findings.Add(rule, kNoPlace, {Quote(node.name), "", ""});
  }

  const std::vector<ExportNode>& nodes_;
  std::vector<bool> has_bones_below_;
  std::vector<Fate> fates_;
  std::unordered_set<std::string_view> names_;  // of segments
  CheckedFile checked_;
};

// "Frame 5 is", "The frames 1 to 120 are".
std::string Exported(const FrameSpan& frames) {
  std::string text = TheFrames(frames) + (frames.Count() == 1 ? " is" : " are");
  text.front() = static_cast<char>(text.front() - 'a' + 'A');
  return text;
}

}  // namespace

CheckedFile CheckExport(const std::string& name, const std::vector<ExportNode>& nodes,
                        const std::optional<ExportFrames>& frames) {
  CheckedFile checked = ExportCheck(name, nodes).Run();
  if (!frames || !frames->keyed) return checked;
  const auto& [first, last] = *frames->keyed;
  if (first <= frames->first && frames->last <= last) return checked;
  checked.findings.Add(Rule("export-frames-unkeyed"), kNoPlace,
                       {Exported({frames->first, frames->last}), RangeText({first, last}), ""});
  return checked;
}

}  // namespace orvane
