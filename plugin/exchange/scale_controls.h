#pragma once

#include <string>

#include "platform/dialog.h"

// The controls "Size" and "Global" of the option dialogs.
namespace orvane {

// The factors of an option record that the controls show and change.
struct ImportScales {
  float& size;    // of created objects
  double& scale;  // of everything
};

void FillScales(platform::Dialog& dialog, const ImportScales& scales);

// Takes over what the controls hold, one after the other, up to one that is 0. Returns what to tell
// the user then, an empty text otherwise.
std::string ReadScales(platform::Dialog& dialog, const ImportScales& scales);

}  // namespace orvane
