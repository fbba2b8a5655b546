#pragma once

#include <cstdint>

#include "plugin/services/settings_store.h"

// What the user chose for exporting motion files. The one record of a module lives from load to
// unload and is shared by all exports; it is created with the documented defaults and owns the
// registry key that keeps most of its fields. The options dialog edits it, the exporter sets the
// bounds of its frames, and everybody else only reads it.
namespace orvane {

class ExportHTROptions {
 public:
  // Opens the key Software\Orvane\OrvaneFileIO\Skelder\ExportHTR; reads nothing. When the key
  // cannot be opened the record works in memory only.
  ExportHTROptions();

  // Reads the stored fields; one that is not stored keeps its value.
  // Intended: the scale factor is stored in four bytes and read as eight. Those four replace the
  // low bytes of the number in memory, which keeps its high ones, and with them nearly its value:
  // a scale that was typed once does not come back to surprise the next export.
  void Load();

  // Writes the stored fields. Failures are silent.
  void Save();

  bool savedPose = true;         // base position from the pose saved on each bone
  bool animate = true;           // export every frame
  bool parentTransforms = true;  // keep what the parents of the root do in the root's motion
  bool range = false;            // export startFrame to endFrame, or the animation range

  // Frame numbers; the first two are not stored. The exporter sets them from the animation range;
  // they are also the bounds that the dialog accepts.
  std::int32_t startFrame = 1;
  std::int32_t endFrame = 1;
  std::int32_t frameOffset = 0;  // added to the first frame number in the file

  double scaleFactor = 1.0;  // multiplies all lengths

 private:
  SettingsStore store_;
};

}  // namespace orvane
