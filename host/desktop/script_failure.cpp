#include "host/desktop/script_failure.h"

#include <utility>

namespace host {

ScriptError::~ScriptError() = default;

void ScriptFailure::Keep(std::exception_ptr failure) {
  if (!HasHappened()) failure_ = std::move(failure);
}

void ScriptFailure::Rethrow() const {
  if (HasHappened()) std::rethrow_exception(failure_);
}

}  // namespace host
