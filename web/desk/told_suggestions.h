#pragma once

#include "host/scene/scene.h"
#include "web/desk/scene_places.h"

// Which nodes of a scene play the roles of standard markers.

namespace web {

// Tells it as far as the names of the nodes say so and, of the others, where the markers of a
// walking body sit. `places` are those of `scene`.
void TellSuggestions(const host::Scene& scene, const ScenePlaces& places);

}  // namespace web
