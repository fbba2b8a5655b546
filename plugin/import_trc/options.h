#pragma once

#include "plugin/exchange/options.h"

// What the user chose for importing marker files. The one record of a module lives from load to
// unload and is shared by all imports; it is created with the documented defaults and owns the
// registry key that keeps most of its fields. The options dialog edits it; everybody else only
// reads it.
namespace orvane {

class ImportTRCOptions final : public ExchangeOptions {
 public:
  ImportTRCOptions() : ExchangeOptions("ImportTRC") {}

  bool apply = false;         // apply to objects of the scene, or create them
  bool geometry = true;       // markers are spheres, or point helpers
  bool selectedOnly = false;  // apply to selected objects only
  bool rootNode = false;      // group the markers under one node
  bool setFrameRate = false;  // take the scene's frame rate from the file
  float size = 1.0F;          // of the created objects, which scaleFactor multiplies too

 private:
  void ListStored(StoredFields& fields) override;
};

}  // namespace orvane
