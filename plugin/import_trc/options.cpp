#include "plugin/import_trc/options.h"

namespace orvane {

void ImportTRCOptions::ListStored(StoredFields& fields) {
  fields.Flag("Apply", apply);
  fields.Flag("Geometry", geometry);
  fields.Flag("SelectedOnly", selectedOnly);
  fields.Flag("RootNode", rootNode);
  fields.Flag("Range", range);
  fields.Flag("FPS", setFrameRate);
  fields.Float("Size", size);
  fields.Double("ScaleFactor", scaleFactor);
}

}  // namespace orvane
