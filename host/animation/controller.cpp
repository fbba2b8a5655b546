#include "host/animation/controller.h"

namespace host {

void Controller::Delete() { environment_.pool.Discard(this); }

bool Controller::SetRotationController(Control* /*rotation*/) { return false; }

int Controller::CanAcceptValue() {
  const bool refused = environment_.faults.QueryIsRefused();
  return refused || closed_ ? 0 : 1;
}

}  // namespace host
