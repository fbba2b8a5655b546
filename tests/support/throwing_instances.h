#pragma once

#include <new>

#include "sdk/core/control.h"
#include "sdk/core/object.h"
#include "tests/support/forwarding_interface.h"

namespace test {

// An object that can be deleted and nothing else: everything that is done with it throws.
class ThrowingObject final : public DummyObject {
 public:
  ClassId ClassID() override { throw std::bad_alloc(); }
  SuperClassId SuperClassID() override { throw std::bad_alloc(); }
  void Delete() override { ++deletions; }
  IParamBlock* GetParamBlock() override { throw std::bad_alloc(); }
  int GetParamBlockIndex(int /*i*/) override { throw std::bad_alloc(); }
  ParameterBlock* GetFirstParameterBlock() override { throw std::bad_alloc(); }
  void SetBox(const Box3& /*box*/) override { throw std::bad_alloc(); }

  int deletions = 0;
};

// A controller likewise.
class ThrowingControl final : public Control {
 public:
  ClassId ClassID() override { throw std::bad_alloc(); }
  SuperClassId SuperClassID() override { throw std::bad_alloc(); }
  void Delete() override { ++deletions; }
  Control* GetPositionController() override { throw std::bad_alloc(); }
  Control* GetRotationController() override { throw std::bad_alloc(); }
  bool SetRotationController(Control* /*rotation*/) override { throw std::bad_alloc(); }
  int CanAcceptValue() override { throw std::bad_alloc(); }
  void SetValue(TimeValue /*time*/, const void* /*value*/, int /*commit*/,
                SetMethod /*method*/) override {
    throw std::bad_alloc();
  }
  void DeleteKeyAt(TimeValue /*time*/) override { throw std::bad_alloc(); }
  void CopyFrom(Control* /*source*/) override { throw std::bad_alloc(); }

  int deletions = 0;
};

// A host that makes these.
class ThrowingInstances final : public ForwardingInterface {
 public:
  using ForwardingInterface::ForwardingInterface;

  ClassInstance* CreateInstance(SuperClassId super_class, ClassId /*class_id*/) override {
    if (super_class == kRotationControllerSuperClass) return &control;
    return &object;
  }

  ThrowingObject object;
  ThrowingControl control;
};

}  // namespace test
