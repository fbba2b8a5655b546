#pragma once

#include "formats/htr/document.h"
#include "plugin/export_htr/options.h"
#include "plugin/services/message_sink.h"
#include "sdk/core/interface.h"

// Turns a skeleton of the scene into the segments of a document: walks the bones, has each one
// sampled, and reports the progress.
namespace orvane {

class SkeletonSampler {
 public:
  // All of them must outlive this object. `document` gets the segments.
  SkeletonSampler(Interface& interface, const ExportHTROptions& options, MessageSink& messages,
                  HtrDocument& document)
      : interface_(interface), options_(options), messages_(messages), document_(document) {}

  // Adds the segment of the bone `root` and of every bone below it, parents first and depth first.
  // A bone whose name holds "Effector" is left out with all that is below it. So is one whose name
  // the document refuses, which is reported. Where a bone has no bone for a parent, the walk has
  // ended above it.
  // Returns false when the root itself is refused.
  [[nodiscard]] bool Sample(INode& root);

 private:
  // What became of one bone.
  struct Sampled {
    HtrSegment* segment = nullptr;  // the document's; null when the bone is left out
    bool refused = false;
  };

  Sampled SampleBone(INode& node, HtrSegment* parent);
  void CountProcessed();

  Interface& interface_;
  const ExportHTROptions& options_;
  MessageSink& messages_;
  HtrDocument& document_;
  int processed_ = 0;
};

}  // namespace orvane
