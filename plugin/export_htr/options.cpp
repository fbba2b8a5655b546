#include "plugin/export_htr/options.h"

namespace orvane {

void ExportHTROptions::ListStored(StoredFields& fields) {
  fields.Flag("Pose", savedPose);
  fields.Flag("Animate", animate);
  fields.Flag("ParentTransforms", parentTransforms);
  fields.Flag("Range", range);
  fields.Int("Offset", frameOffset);
  // Intended: a scale that was typed once does not come back to surprise the next export.
  fields.DoubleSavedAsFloat("ScaleFactor", scaleFactor);
}

}  // namespace orvane
