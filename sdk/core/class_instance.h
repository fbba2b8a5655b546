#pragma once

#include "sdk/core/class_id.h"

// What every instance made by Interface::CreateInstance has in common: objects and controllers.
class ClassInstance {
 public:
  virtual ClassId ClassID() = 0;
  virtual SuperClassId SuperClassID() = 0;

  // Destroys an instance that was created but never given to the scene. Nothing may use it after.
  virtual void Delete() = 0;

 protected:
  ~ClassInstance() = default;
};
