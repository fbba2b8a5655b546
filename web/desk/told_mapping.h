#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "host/desktop/portable/live_desktop.h"
#include "host/scene/scene.h"

// The mapping that the person makes with the plug-in's mapping creator, which tells nobody but the
// person: its entries, of what was asked when something was picked.

namespace web {

struct MappingEntry {
  std::string standard;  // the standard marker's name
  std::uint32_t node = 0;

  friend bool operator==(const MappingEntry&, const MappingEntry&) = default;
};

class ToldMapping {
 public:
  // Tells what has changed since the last time.
  void Update(const host::LiveDesktop& desktop, const host::Scene& scene);

  // The standard marker that is asked for now; empty when none is.
  [[nodiscard]] static std::string Asked(const host::LiveDesktop& desktop);

  // The person has picked a node when `standard` was asked for.
  void Add(const std::string& standard, std::uint32_t node);
  // The person has gone back.
  void RemoveLast();

  // Tells what is odd in the mapping so far.
  void TellLint(const host::Scene& scene) const;

 private:
  std::vector<MappingEntry> entries_;
  std::vector<MappingEntry> told_;
  std::string told_asked_;
};

}  // namespace web
