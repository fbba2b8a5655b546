#pragma once

#include <cstddef>

#include "platform/export.h"

// What tests let go wrong with controllers. The scene owns it, and all of its controllers ask it.

namespace host {

// What the controllers of a scene have been told to refuse. Only tests ask for refusals.
class SKELDER_API ControllerFaults {
 public:
  // Makes the `n`-th CanAcceptValue of any controller from now (1: the next one) report 0; 0 takes
  // that back.
  void RefuseQuery(std::size_t n);

  // Makes transform controllers refuse to install a rotation controller, or not.
  void RefuseRotationInstallation(bool refuse) { refuse_installation_ = refuse; }

  // Counts one query and returns whether it is the one to refuse.
  bool QueryIsRefused();
  bool RotationInstallationIsRefused() const { return refuse_installation_; }

  // How often controllers were queried.
  std::size_t QueryCount() const { return queries_; }

 private:
  std::size_t queries_ = 0;
  std::size_t refused_query_ = 0;
  bool refuse_installation_ = false;
};

}  // namespace host
