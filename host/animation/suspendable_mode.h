#pragma once

#include <cstddef>
#include <utility>
#include <vector>

#include "platform/export.h"

// A mode and the memory of its suspensions. What follows from it is left to whoever asks.
// AnimationState owns those of a scene.

namespace host {

// A mode of the application that is on or off and that can be suspended: animate mode, set-key
// mode. Suspensions nest; each resume restores the state that its suspension found.
class SKELDER_API SuspendableMode {
 public:
  explicit SuspendableMode(bool on) : on_(on) {}

  // A mode as the functions below tell it.
  SuspendableMode(bool on, std::vector<bool> remembered, std::size_t unmatched_resumes)
      : on_(on), remembered_(std::move(remembered)), unmatched_resumes_(unmatched_resumes) {}

  bool IsOn() const { return on_; }

  // Sets the present state, suspended or not.
  void Set(bool on) { on_ = on; }

  // Remembers the state and switches the mode off.
  void Suspend();

  // Restores the state of before the last suspension. Without one nothing happens but that it is
  // counted.
  void Resume();

  // Suspensions that were not resumed yet, and resumes that had no suspension.
  std::size_t SuspendDepth() const { return remembered_.size(); }
  std::size_t UnmatchedResumes() const { return unmatched_resumes_; }

  // The states that the suspensions found, the first suspension's first.
  const std::vector<bool>& Remembered() const { return remembered_; }

 private:
  bool on_;
  std::vector<bool> remembered_;
  std::size_t unmatched_resumes_ = 0;
};

}  // namespace host
