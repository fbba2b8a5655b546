#include "plugin/utilities/convert_bvk.h"

namespace orvane {

ConvertBVK::ConvertBVK() {
  store_.Open("OrvaneFileIO", "Skelder", "ConvertBVK");
  LoadSettings();
}

ConvertBVK::~ConvertBVK() { SaveSettings(); }

void ConvertBVK::LoadSettings() {
  store_.ReadString("MNMPath", mnmPath);
  store_.ReadString("InputPath", inputPath);
  store_.ReadString("OutputPath", outputPath);
  store_.ReadFlag("Filter", filter);
  store_.ReadFlag("Batch", batch);
  store_.ReadFlag("TRCName", trcName);
  store_.ReadFlag("TRCSpace", trcSpace);
  store_.ReadFlag("Offset", offset);
  store_.ReadFloat("OffsetX", offsetX);
  store_.ReadFloat("OffsetY", offsetY);
  store_.ReadFloat("OffsetZ", offsetZ);
}

void ConvertBVK::SaveSettings() {
  store_.WriteString("MNMPath", mnmPath);
  store_.WriteString("InputPath", inputPath);
  store_.WriteString("OutputPath", outputPath);
  store_.WriteFlag("Filter", filter);
  store_.WriteFlag("Batch", batch);
  store_.WriteFlag("TRCName", trcName);
  store_.WriteFlag("TRCSpace", trcSpace);
  store_.WriteFlag("Offset", offset);
  store_.WriteFloat("OffsetX", offsetX);
  store_.WriteFloat("OffsetY", offsetY);
  store_.WriteFloat("OffsetZ", offsetZ);
}

}  // namespace orvane
