#pragma once

#include <string>
#include <vector>

#include "web/core/linked_module.h"
#include "web/desk/person_event.h"

// What the page has been told of the plug-in's settings.

namespace web {

// Stores values that the page has kept.
void Store(const std::vector<StoredValue>& values, LinkedSettings& settings);

class ToldSettings {
 public:
  // Tells all values when one has changed since the last time.
  void Update(LinkedSettings& settings);

 private:
  std::string told_;
};

}  // namespace web
