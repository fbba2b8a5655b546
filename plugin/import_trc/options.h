#pragma once

#include <cstdint>

#include "plugin/services/settings_store.h"

// What the user chose for importing marker files. The one record of a module lives from load to
// unload and is shared by all imports; it is created with the documented defaults and owns the
// registry key that keeps most of its fields. The options dialog edits it; everybody else only
// reads it.
namespace orvane {

class ImportTRCOptions {
 public:
  // Opens the key Software\Orvane\OrvaneFileIO\Skelder\ImportTRC; reads nothing. When the key
  // cannot be opened the record works in memory only.
  ImportTRCOptions();

  // Reads the stored fields; one that is not stored keeps its value.
  void Load();

  // Writes the stored fields. Failures are silent.
  void Save();

  bool apply = false;         // apply to objects of the scene, or create them
  bool geometry = true;       // markers are spheres, or point helpers
  bool selectedOnly = false;  // apply to selected objects only
  bool rootNode = false;      // group the markers under one node
  bool range = false;         // import startFrame to endFrame, or all frames
  bool setFrameRate = false;  // take the scene's frame rate from the file
  float size = 1.0F;          // of the created objects
  double scaleFactor = 1.0;   // multiplies all positions, and the sizes of objects

  // Frame numbers, not stored. The importer sets the first two from the file; they are also the
  // bounds that the dialog accepts.
  std::int32_t startFrame = 1;
  std::int32_t endFrame = 1;
  std::int32_t frameOffset = 0;  // added to the frame number of every key

 private:
  SettingsStore store_;
};

}  // namespace orvane
