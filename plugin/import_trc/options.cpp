#include "plugin/import_trc/options.h"

namespace orvane {

ImportTRCOptions::ImportTRCOptions() { store_.Open("OrvaneFileIO", "Skelder", "ImportTRC"); }

void ImportTRCOptions::Load() {
  store_.ReadFlag("Apply", apply);
  store_.ReadFlag("Geometry", geometry);
  store_.ReadFlag("SelectedOnly", selectedOnly);
  store_.ReadFlag("RootNode", rootNode);
  store_.ReadFlag("Range", range);
  store_.ReadFlag("FPS", setFrameRate);
  store_.ReadFloat("Size", size);
  store_.ReadDouble("ScaleFactor", scaleFactor);
}

void ImportTRCOptions::Save() {
  store_.WriteFlag("Apply", apply);
  store_.WriteFlag("Geometry", geometry);
  store_.WriteFlag("SelectedOnly", selectedOnly);
  store_.WriteFlag("RootNode", rootNode);
  store_.WriteFlag("Range", range);
  store_.WriteFlag("FPS", setFrameRate);
  store_.WriteFloat("Size", size);
  store_.WriteDouble("ScaleFactor", scaleFactor);
}

}  // namespace orvane
