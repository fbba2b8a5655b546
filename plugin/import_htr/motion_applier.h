#pragma once

#include <cassert>
#include <cstdint>

#include "formats/htr/segment.h"
#include "plugin/exchange/key_times.h"
#include "plugin/import_htr/options.h"
#include "sdk/core/interface.h"

// Applies the motion of a branch of segments to a skeleton in the scene: pairs bones with segments
// by name, has each pair keyed, and reports the progress.
namespace orvane {

class MotionApplier {
 public:
  // All of them must outlive this object. `segment_count` is the number of segments of the whole
  // document, the measure of progress. No more than `segment_budget` pairs are keyed.
  // REQUIRES: `segment_count` is 1 or more.
  MotionApplier(Interface& interface, const ImportHTROptions& options, const KeyTimes& times,
                std::int64_t segment_count, std::int64_t segment_budget)
      : interface_(interface),
        options_(options),
        times_(times),
        segment_count_(segment_count),
        segment_budget_(segment_budget) {
    assert(segment_count >= 1);
  }

  // Keys `segment` on `node`, whatever the node's name, and every segment below it on the bone of
  // its name below the bone of its parent; one that has none is left out with all below it, and
  // other children of the scene stay as they are. Returns false when a pair could not be keyed or
  // the budget is spent: nothing after it is done.
  [[nodiscard]] bool Apply(INode& node, const HtrSegment& segment);

  // Whether Apply failed because the file asks for too much.
  bool OverBudget() const { return visits_ > segment_budget_; }

 private:
  [[nodiscard]] bool KeySegment(INode& node, const HtrSegment& segment);
  void CountProcessed();

  Interface& interface_;
  const ImportHTROptions& options_;
  const KeyTimes& times_;
  std::int64_t segment_count_;
  std::int64_t segment_budget_;
  std::int64_t visits_ = 0;
  std::int64_t processed_ = 0;
};

}  // namespace orvane
