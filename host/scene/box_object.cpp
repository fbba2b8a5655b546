#include "host/scene/box_object.h"

namespace host {

BoxObject::BoxObject(InstancePool& pool)
    : SceneObjectOf(pool, kHelperSuperClass, kDummyClass, "Dummy"),
      box_(Point3(-10.0F, -10.0F, -10.0F), Point3(10.0F, 10.0F, 10.0F)) {}

}  // namespace host
