#include "plugin/import_htr/options.h"

namespace orvane {

void ImportHTROptions::ListStored(StoredFields& fields) {
  fields.Flag("Apply", apply);
  fields.Flag("Animate", animate);
  fields.Flag("KeyBasePosition", keyBasePosition);
  fields.Flag("EndEffectors", endEffectors);
  fields.Flag("Range", range);
  fields.Flag("FPS", setFrameRate);
  fields.Int("RotationController", rotationController);
  fields.Float("Size", size);
  fields.Double("ScaleFactor", scaleFactor);
}

}  // namespace orvane
