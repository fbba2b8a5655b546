#pragma once

#include <cstdint>

#include "plugin/shell/settings_store.h"

// What the user chose for importing marker files. The one record of a module lives from load to
// unload; it is created with the documented defaults and owns the registry key that keeps most of
// its fields.
namespace orvane {

class ImportTRCOptions {
 public:
  // Opens the key Software\Orvane\OrvaneFileIO\Skelder\ImportTRC; reads nothing. When the key
  // cannot be opened the record works in memory only.
  ImportTRCOptions() { store_.Open("OrvaneFileIO", "Skelder", "ImportTRC"); }

  bool apply = false;         // apply to objects of the scene, or create them
  bool geometry = true;       // markers are spheres, or point helpers
  bool selectedOnly = false;  // apply to selected objects only
  bool rootNode = false;      // group the markers under one node
  bool range = false;         // import startFrame to endFrame, or all frames
  bool setFrameRate = false;  // take the scene's frame rate from the file
  float size = 1.0F;          // of the created objects
  double scaleFactor = 1.0;   // multiplies all positions

  // Frame numbers, not stored.
  std::int32_t startFrame = 1;
  std::int32_t endFrame = 1;
  std::int32_t frameOffset = 0;  // added to the frame number of every key

 private:
  SettingsStore store_;
};

}  // namespace orvane
