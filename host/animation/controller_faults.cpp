#include "host/animation/controller_faults.h"

namespace host {

void ControllerFaults::RefuseQuery(std::size_t n) { refused_query_ = n == 0 ? 0 : queries_ + n; }

bool ControllerFaults::QueryIsRefused() { return ++queries_ == refused_query_; }

}  // namespace host
