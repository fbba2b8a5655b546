#include "host/scene/point_helper.h"

namespace host {

PointHelper::PointHelper(InstancePool& pool)
    : SceneObjectOf(pool, kHelperSuperClass, kPointHelperClass, "Point") {}

}  // namespace host
