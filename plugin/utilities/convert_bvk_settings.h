#pragma once

#include <string>

#include "plugin/services/stored_record.h"

// What the user chose for the conversion of marker files. Paths are UTF-8, and what no file or
// folder has been chosen for is "<none>".
namespace orvane {

class ConvertBVKSettings : public StoredRecord {
 public:
  std::string mnmPath = "<none>";     // the mapping file
  std::string inputPath = "C:\\";     // the folder in which marker files are looked for
  std::string outputPath = "<none>";  // the folder of the files and the log of a batch
  bool filter = true;                 // rename markers by the mapping and keep only those it knows
  bool batch = false;                 // convert several files
  bool trcName = true;                // name each output after its input instead of asking
  bool trcSpace = true;               // the offset is in the axes of the input, or in the output's
  bool offset = false;                // add the offset
  float offsetX = 0.0F;               // in the unit of the marker file
  float offsetY = 0.0F;
  float offsetZ = 0.0F;

 protected:
  ConvertBVKSettings() : StoredRecord("ConvertBVK") {}
  ~ConvertBVKSettings() = default;

 private:
  void ListStored(StoredFields& fields) final;
};

}  // namespace orvane
