#pragma once

#include <cstdint>

#include "plugin/shell/settings_store.h"

// What the user chose for exporting motion files. The one record of a module lives from load to
// unload; it is created with the documented defaults and owns the registry key that keeps most of
// its fields.
namespace orvane {

class ExportHTROptions {
 public:
  // Opens the key Software\Orvane\OrvaneFileIO\Skelder\ExportHTR; reads nothing. When the key
  // cannot be opened the record works in memory only.
  ExportHTROptions() { store_.Open("OrvaneFileIO", "Skelder", "ExportHTR"); }

  bool savedPose = true;         // base position from the pose saved on each bone
  bool animate = true;           // export every frame
  bool parentTransforms = true;  // keep what the parents of the root do in the root's motion
  bool range = false;            // export startFrame to endFrame, or the animation range

  // Frame numbers; the first two are not stored.
  std::int32_t startFrame = 1;
  std::int32_t endFrame = 1;
  std::int32_t frameOffset = 0;  // added to the first frame number in the file

  double scaleFactor = 1.0;  // multiplies all lengths

 private:
  SettingsStore store_;
};

}  // namespace orvane
