#include "host/application/cancellation.h"

namespace host {

static_assert(std::atomic<bool>::is_always_lock_free, "a signal handler may request a cancel");

void Cancellation::Clear() {
  requested_ = false;
  at_query_.reset();
  at_percent_.reset();
}

void Cancellation::BarOpened() {
  requested_ = false;
  queries_ = 0;
}

bool Cancellation::Query(int percent) {
  ++queries_;
  if (at_query_ && queries_ >= *at_query_) Request();
  if (at_percent_ && percent >= *at_percent_) Request();
  return requested_;
}

}  // namespace host
