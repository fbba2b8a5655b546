#pragma once

#include "plugin/exchange/options.h"

// What the user chose for exporting motion files. The one record of a module lives from load to
// unload and is shared by all exports; it is created with the documented defaults and owns the
// registry key that keeps most of its fields. The options dialog edits it, the exporter sets the
// bounds of its frames, and everybody else only reads it.
namespace orvane {

class ExportHTROptions final : public ExchangeOptions {
 public:
  ExportHTROptions() : ExchangeOptions("ExportHTR") {}

  bool savedPose = true;         // base position from the pose saved on each bone
  bool animate = true;           // export every frame
  bool parentTransforms = true;  // keep what the parents of the root do in the root's motion

 private:
  void ListStored(StoredFields& fields) override;
};

}  // namespace orvane
