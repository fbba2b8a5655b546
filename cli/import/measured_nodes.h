#pragma once

#include <optional>
#include <vector>

#include "cli/import/application.h"
#include "cli/import/import_flags.h"
#include "cli/import/marker_gaps.h"
#include "host/scene/measured.h"
#include "host/scene/scene.h"
#include "inspect/report/report.h"

// The nodes that an import of markers keys, told where they were measured: a key does not tell.

namespace cli {

// What viewers are shown of the gaps that `samples` have in the frames `keyed`, when they are
// imported by `choices` and shown in that `manner`: hidden ones are held where others than an
// import made the node. `application` tells the nodes that are there; nothing without "Apply".
[[nodiscard]] orvane::ShownGaps ShowGaps(host::GapManner manner, const MarkerSamples& samples,
                                         const orvane::FrameSpan& keyed,
                                         const ImportChoices& choices,
                                         const std::optional<Application>& application);

class MeasuredNodes {
 public:
  // REQUIRES: `scene`, which outlives this, is as the import finds it.
  explicit MeasuredNodes(host::Scene& scene);

  // Tells all nodes that the import has keyed their gaps. What they know of other frames stays.
  void Tell(host::GapManner manner, const MarkerSamples& samples, const orvane::FrameSpan& keyed,
            const ImportChoices& choices, const std::optional<Application>& application) const;

 private:
  struct Receiver {
    host::Node* node = nullptr;  // null when nobody takes the marker
    bool is_new = false;
  };

  // The node of each marker.
  [[nodiscard]] std::vector<Receiver> ReceiversOf(
      std::size_t markers, const ImportChoices& choices,
      const std::optional<Application>& application) const;

  // The nodes that were made since, without those that group them, in the order of the file.
  [[nodiscard]] std::vector<host::Node*> NewNodes() const;

  host::Scene& scene_;
  NodeHandle newest_ = 0;
};

}  // namespace cli
