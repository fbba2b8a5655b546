#pragma once

#include <ostream>
#include <vector>

#include "cli/common/file_kind.h"
#include "cli/common/json_writer.h"
#include "cli/import/import_flags.h"
#include "formats/htr/document.h"
#include "formats/trc/document.h"
#include "host/scene/scene.h"
#include "inspect/report/apply_check.h"
#include "inspect/report/apply_plan.h"

// A file and the scene that it is applied to, side by side, before anything is keyed.

namespace cli {

// The names in a file, and what its bones are like in millimeters.
[[nodiscard]] orvane::AppliedFile DescribeFile(const orvane::HtrDocument& document);
[[nodiscard]] orvane::AppliedFile DescribeFile(const orvane::TRCDocument& document);

struct Application {
  orvane::AppliedFile file;
  orvane::ApplyScene scene;
  std::vector<const host::Node*> nodes;  // those of `scene`; they are the host's
  orvane::ApplyPlan plan;
  std::vector<orvane::BoneDifference> differences;

  // The nodes that get keys, some of them more than once.
  [[nodiscard]] std::vector<const host::Node*> KeyedNodes(const ImportChoices& choices) const;
};

// How `file`, of that `kind`, is applied to what is selected in `scene`.
[[nodiscard]] Application Apply(orvane::AppliedFile file, FileKind kind, const host::Scene& scene);

// The names that match, those of one side alone, and the bones that differ: a line each.
void PrintTable(const Application& application, std::ostream& out);

// The same as an object.
void WriteTable(JsonWriter& json, const Application& application);

}  // namespace cli
