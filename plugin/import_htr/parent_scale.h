#pragma once

#include <optional>

#include "sdk/core/interface.h"
#include "sdk/geom/matrix3.h"

// The scale that a node inherits, which translations of a file have to undo.
namespace orvane {

class ParentScale {
 public:
  // Both outlive this object.
  ParentScale(Interface& interface, INode& node) : interface_(interface), node_(node) {}

  // Asks the host for the transform of the node's parent at the current time. Returns its scale
  // along its X; 1 when that is 0 or there is no parent.
  double Ask();

 private:
  Interface& interface_;
  INode& node_;
  // The last answer, and what it is the scale of: few transforms change between two frames.
  std::optional<Matrix3> transform_;
  double x_ = 1.0;
};

}  // namespace orvane
