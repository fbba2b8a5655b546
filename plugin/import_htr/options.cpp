#include "plugin/import_htr/options.h"

namespace orvane {

ImportHTROptions::ImportHTROptions() { store_.Open("OrvaneFileIO", "Skelder", "ImportHTR"); }

void ImportHTROptions::Load() {
  store_.ReadFlag("Apply", apply);
  store_.ReadFlag("Animate", animate);
  store_.ReadFlag("KeyBasePosition", keyBasePosition);
  store_.ReadFlag("EndEffectors", endEffectors);
  store_.ReadFlag("Range", range);
  store_.ReadFlag("FPS", setFrameRate);
  store_.ReadInt("RotationController", rotationController);
  store_.ReadFloat("Size", size);
  store_.ReadDouble("ScaleFactor", scaleFactor);
}

void ImportHTROptions::Save() {
  store_.WriteFlag("Apply", apply);
  store_.WriteFlag("Animate", animate);
  store_.WriteFlag("KeyBasePosition", keyBasePosition);
  store_.WriteFlag("EndEffectors", endEffectors);
  store_.WriteFlag("Range", range);
  store_.WriteFlag("FPS", setFrameRate);
  store_.WriteInt("RotationController", rotationController);
  store_.WriteFloat("Size", size);
  store_.WriteDouble("ScaleFactor", scaleFactor);
}

}  // namespace orvane
