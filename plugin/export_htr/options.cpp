#include "plugin/export_htr/options.h"

namespace orvane {

ExportHTROptions::ExportHTROptions() { store_.Open("OrvaneFileIO", "Skelder", "ExportHTR"); }

void ExportHTROptions::Load() {
  store_.ReadFlag("Pose", savedPose);
  store_.ReadFlag("Animate", animate);
  store_.ReadFlag("ParentTransforms", parentTransforms);
  store_.ReadFlag("Range", range);
  store_.ReadInt("Offset", frameOffset);
  store_.ReadDouble("ScaleFactor", scaleFactor);
}

void ExportHTROptions::Save() {
  store_.WriteFlag("Pose", savedPose);
  store_.WriteFlag("Animate", animate);
  store_.WriteFlag("ParentTransforms", parentTransforms);
  store_.WriteFlag("Range", range);
  store_.WriteInt("Offset", frameOffset);
  store_.WriteFloat("ScaleFactor", static_cast<float>(scaleFactor));
}

}  // namespace orvane
