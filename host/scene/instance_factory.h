#pragma once

#include "host/animation/controller.h"
#include "platform/export.h"
#include "sdk/core/class_instance.h"

// The classes that the host knows, objects and controllers alike. The pool owns what is created
// until a node takes it.

namespace host {

// Creates the object or controller of that class in `environment.pool`; the caller deletes it or
// gives it to the scene. Returns null for a class that the host does not know.
SKELDER_API ClassInstance* CreateInstance(const ControllerEnvironment& environment,
                                          SuperClassId super_class, ClassId class_id);

}  // namespace host
