#include "host/scene/instance_factory.h"

#include <memory>

#include "host/animation/class_ids.h"
#include "host/animation/euler_controller.h"
#include "host/animation/tcb_controller.h"
#include "host/scene/bone_object.h"
#include "host/scene/box_object.h"
#include "host/scene/point_helper.h"
#include "host/scene/sphere_object.h"

namespace host {
namespace {

template <typename Kind>
ClassInstance* CreateObject(const ControllerEnvironment& environment) {
  return environment.pool.Add(std::make_unique<Kind>(environment.pool));
}

template <typename Kind>
ClassInstance* CreateController(const ControllerEnvironment& environment) {
  return environment.pool.Add(std::make_unique<Kind>(environment));
}

struct KnownClass {
  SuperClassId super_class;
  ClassId class_id;
  ClassInstance* (*create)(const ControllerEnvironment& environment);
};

constexpr KnownClass kKnownClasses[] = {
    {kGeometricObjectSuperClass, kBoneClass, CreateObject<BoneObject>},
    {kGeometricObjectSuperClass, kSphereClass, CreateObject<SphereObject>},
    {kHelperSuperClass, kDummyClass, CreateObject<BoxObject>},
    {kHelperSuperClass, kPointHelperClass, CreateObject<PointHelper>},
    {kRotationControllerSuperClass, kEulerRotationClass, CreateController<EulerController>},
    {kRotationControllerSuperClass, kTcbRotationClass, CreateController<TcbController>},
};

}  // namespace

ClassInstance* CreateInstance(const ControllerEnvironment& environment, SuperClassId super_class,
                              ClassId class_id) {
  for (const KnownClass& known : kKnownClasses) {
    if (known.super_class == super_class && known.class_id == class_id) {
      return known.create(environment);
    }
  }
  return nullptr;
}

}  // namespace host
