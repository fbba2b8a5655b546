#pragma once

#include <cstdint>

#include "plugin/services/settings_store.h"

// What the user chose for importing motion files. The one record of a module lives from load to
// unload and is shared by all imports; it is created with the documented defaults and owns the
// registry key that keeps most of its fields. The options dialog edits it; everybody else only
// reads it.
namespace orvane {

class ImportHTROptions {
 public:
  // Opens the key Software\Orvane\OrvaneFileIO\Skelder\ImportHTR; reads nothing. When the key
  // cannot be opened the record works in memory only.
  ImportHTROptions();

  // Reads the stored fields; one that is not stored keeps its value.
  void Load();

  // Writes the stored fields. Failures are silent.
  void Save();

  bool apply = false;            // apply to a skeleton of the scene, or create one
  bool animate = true;           // key the frames of the file
  bool endEffectors = false;     // give every leaf of a created skeleton an end effector
  bool spare = false;            // not stored: the dialog has no control for it
  bool keyBasePosition = false;  // key the base position one frame before the motion
  bool range = false;            // import startFrame to endFrame, or all frames
  bool setFrameRate = false;     // take the scene's frame rate from the file

  // Frame numbers, not stored. The importer sets the first two from the file; they are also the
  // bounds that the dialog accepts.
  std::int32_t startFrame = 1;
  std::int32_t endFrame = 1;
  std::int32_t frameOffset = 0;  // added to the frame number of every key

  std::int32_t rotationController = 0;  // 0: keep Euler controllers; otherwise TCB controllers
  float size = 1.0F;                    // thickness of created bones, 1 being a fifth of the length
  double scaleFactor = 1.0;             // multiplies translations and the sizes of bones

 private:
  SettingsStore store_;
};

}  // namespace orvane
