#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "host/application/application.h"
#include "host/scene/scene.h"
#include "web/desk/scene_places.h"

// What the page has been told of the scene and of what is done in it.

namespace web {

// Tells all of the scene: its nodes, and where they are in every frame of its range, which is
// `places`.
void TellScene(const host::Scene& scene, const ScenePlaces& places);

// What changes while the scene stays.
class ToldScene {
 public:
  // Tells what has changed since the last time.
  void Update(host::Application& application);

  // The person has done the selecting of that number, and is to be told what is selected.
  void TakeSelect(int number) { select_ = number; }

  // The page has been told of the scene as it is.
  void TakeOver(const host::Scene& scene);

 private:
  void TellColors(const host::Scene& scene);
  void TellSelection(const host::Scene& scene);
  void TellPickMode(host::Application& application);

  std::map<std::uint32_t, std::uint32_t> colors_;  // by handle
  std::vector<std::uint32_t> selection_;
  int select_ = 0;
  int told_select_ = 0;
  bool is_picking_ = false;
};

}  // namespace web
