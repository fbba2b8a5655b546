#pragma once

#include <string>

#include "formats/htr/document.h"
#include "sdk/core/interface.h"

// Which skeleton of the scene a file's motion goes to, and from which segment on. The selection
// decides.
namespace orvane {

struct ApplyTarget {
  INode* node = nullptr;         // the scene's
  HtrSegment* branch = nullptr;  // the document's; null when it has no root
  std::string refusal;           // the message to show when the selection does not do
};

// The first selected node decides. A bone is the target itself, with the segment of its name as the
// branch. For any other node the target is its first child that is a bone, or itself when it has
// none, and the branch is the root of `document`.
// With a `refusal` the other fields mean nothing.
[[nodiscard]] ApplyTarget FindApplyTarget(Interface& interface, HtrDocument& document);

}  // namespace orvane
