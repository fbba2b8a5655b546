#pragma once

#include <string>

#include "plugin/import_trc/options.h"
#include "sdk/core/interface.h"

// Making the nodes that marker clouds consist of. They belong to the scene.
namespace orvane {

// Creates a node under the scene root for the marker `name`: a sphere or a point helper, of the
// size that `options` say. Returns null when the host cannot create it.
[[nodiscard]] INode* CreateMarkerNode(Interface& interface, const ImportTRCOptions& options,
                                      const std::string& name);

// Creates the node that groups the markers: a dummy under the scene root named "TRCCloud", with a
// number behind that when the name is taken. Returns null when the host cannot create it.
[[nodiscard]] INode* CreateCloudRoot(Interface& interface, const ImportTRCOptions& options);

}  // namespace orvane
