#pragma once

#include <vector>

#include "host/base/instance_pool.h"
#include "platform/export.h"
#include "sdk/core/object.h"

// What all objects of the host have in common. The kinds are told apart by ClassID, or by a
// dynamic_cast of the SceneObject to BoneObject, BoxObject, SphereObject or PointHelper.

namespace host {

// The host's own side of an object, whichever SDK class it is.
class SKELDER_API SceneObject : public Instance {
 public:
  virtual ::Object& AsObject() = 0;

  // What nodes showing this kind of object are called at first, as in "Bone001".
  virtual const char* KindName() const = 0;

  // All that makes this object differ from others of its kind: parameters by their numbers, or a
  // box's least and largest corner. None unless the kind says so.
  virtual std::vector<double> Parameters() const { return {}; }

  // Takes on what Parameters returned. Returns false, and changes nothing, when there are more or
  // fewer of them or when one cannot be held.
  virtual bool SetParameters(const std::vector<double>& values) { return values.empty(); }
};

// An object of class `class_id`; `Base` is Object or the SDK's class for this kind of object. It
// has no parameters unless the kind says so.
template <typename Base>
class SceneObjectOf : public Base, public SceneObject {
 public:
  SceneObjectOf(InstancePool& pool, SuperClassId super_class, ClassId class_id,
                const char* kind_name)
      : pool_(pool), super_class_(super_class), class_id_(class_id), kind_name_(kind_name) {}

  SceneObjectOf(const SceneObjectOf&) = delete;
  SceneObjectOf& operator=(const SceneObjectOf&) = delete;

  ::Object& AsObject() final { return *this; }
  const char* KindName() const final { return kind_name_; }

  ClassId ClassID() final { return class_id_; }
  SuperClassId SuperClassID() final { return super_class_; }
  void Delete() final { pool_.Discard(this); }
  IParamBlock* GetParamBlock() override { return nullptr; }
  int GetParamBlockIndex(int /*i*/) override { return -1; }
  ParameterBlock* GetFirstParameterBlock() override { return nullptr; }

 private:
  InstancePool& pool_;
  SuperClassId super_class_;
  ClassId class_id_;
  const char* kind_name_;
};

}  // namespace host
