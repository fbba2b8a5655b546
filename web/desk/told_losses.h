#pragma once

#include <optional>

#include "cli/export/export_htr_flags.h"
#include "host/desktop/portable/live_desktop.h"
#include "host/desktop/settings.h"
#include "host/gltf/reader.h"
#include "host/scene/scene.h"

// What the page has been told of what an export would lose, while the person still chooses how it
// is to be.

namespace web {

class ToldLosses {
 public:
  // Tells what the motion file would not hold of the skeleton that is selected in `scene`, by the
  // choices that the dialog ExportHTR shows, whenever they have changed since the last time;
  // nothing while it is not open. `reading` is what came of the file that the scene is from.
  // REQUIRES: the scene stays as it is while the dialog is open.
  void Update(const host::LiveDesktop& desktop, const host::Settings& settings,
              const host::Scene& scene, const host::gltf::SkinReading& reading);

 private:
  std::optional<cli::ExportChoices> told_;  // nothing without the dialog
};

}  // namespace web
