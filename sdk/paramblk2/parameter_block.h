#pragma once

#include "sdk/core/types.h"

// The parameters of an object, each known by its index.

// Parameters of primitives.
class IParamBlock {
 public:
  // Sets parameter `index` at `time` (ticks). Returns false when there is no such parameter of that
  // type.
  virtual bool SetValue(int index, TimeValue time, float value) = 0;
  virtual bool SetValue(int index, TimeValue time, int value) = 0;

 protected:
  ~IParamBlock() = default;
};

// Parameters of bones. Lengths are in system units.
class ParameterBlock {
 public:
  // Sets parameter `index` at `time` (ticks). Returns false when there is no such parameter.
  virtual bool SetValue(int index, TimeValue time, float value) = 0;

  // The value of parameter `index` at `time` (ticks); 0 when there is no such parameter.
  virtual float GetFloat(int index, TimeValue time) = 0;

 protected:
  ~ParameterBlock() = default;
};
