#include "plugin/utilities/convert_bvk_settings.h"

namespace orvane {

void ConvertBVKSettings::ListStored(StoredFields& fields) {
  fields.String("MNMPath", mnmPath);
  fields.String("InputPath", inputPath);
  fields.String("OutputPath", outputPath);
  fields.Flag("Filter", filter);
  fields.Flag("Batch", batch);
  fields.Flag("TRCName", trcName);
  fields.Flag("TRCSpace", trcSpace);
  fields.Flag("Offset", offset);
  fields.Float("OffsetX", offsetX);
  fields.Float("OffsetY", offsetY);
  fields.Float("OffsetZ", offsetZ);
}

}  // namespace orvane
