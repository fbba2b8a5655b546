#pragma once

#include "plugin/exchange/owned_instance.h"
#include "sdk/core/interface.h"

// Nodes for new objects. Both belong to the scene afterwards.
namespace orvane {

// Creates a node under the scene root for `object`, which is not null. Returns null when the host
// cannot; `object` is deleted then.
INode* CreateNodeFor(Interface& interface, OwnedInstance<Object> object);

// Creates a grouping helper under the scene root, a box from -half_extent to half_extent (system
// units) on every axis. Returns null when the host cannot create it.
INode* CreateDummyNode(Interface& interface, float half_extent);

}  // namespace orvane
