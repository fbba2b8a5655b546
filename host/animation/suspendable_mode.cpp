#include "host/animation/suspendable_mode.h"

namespace host {

void SuspendableMode::Suspend() {
  remembered_.push_back(on_);
  on_ = false;
}

void SuspendableMode::Resume() {
  if (remembered_.empty()) {
    ++unmatched_resumes_;
    return;
  }
  on_ = remembered_.back();
  remembered_.pop_back();
}

}  // namespace host
