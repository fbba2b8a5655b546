#pragma once

#include <string>

#include "sdk/core/interface.h"

// Which bone of the scene an export starts from. The selection decides.
namespace orvane {

struct ExportRoot {
  INode* node = nullptr;  // the scene's
  std::string refusal;    // the message to show when the selection does not do
};

// The first selected node decides: a bone is the root itself; for any other node it is the first
// bone among its children. With a `refusal` there is no node.
[[nodiscard]] ExportRoot FindExportRoot(Interface& interface);

}  // namespace orvane
