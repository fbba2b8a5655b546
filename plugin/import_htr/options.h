#pragma once

#include <cstdint>

#include "plugin/exchange/options.h"

// What the user chose for importing motion files. The one record of a module lives from load to
// unload and is shared by all imports; it is created with the documented defaults and owns the
// registry key that keeps most of its fields. The options dialog edits it; everybody else only
// reads it.
namespace orvane {

class ImportHTROptions final : public ExchangeOptions {
 public:
  ImportHTROptions() : ExchangeOptions("ImportHTR") {}

  bool apply = false;            // apply to a skeleton of the scene, or create one
  bool animate = true;           // key the frames of the file
  bool endEffectors = false;     // give every leaf of a created skeleton an end effector
  bool spare = false;            // not stored: the dialog has no control for it
  bool keyBasePosition = false;  // key the base position one frame before the motion
  bool setFrameRate = false;     // take the scene's frame rate from the file

  std::int32_t rotationController = 0;  // 0: keep Euler controllers; otherwise TCB controllers
  float size = 1.0F;                    // thickness of created bones, 1 being a fifth of the length

 private:
  void ListStored(StoredFields& fields) override;
};

}  // namespace orvane
