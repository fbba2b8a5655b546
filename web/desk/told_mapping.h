#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "formats/mnm/marker_name_map.h"
#include "host/desktop/portable/live_desktop.h"

// The mapping of the plug-in's panel: what the person picks with the mapping creator, behind what
// conversions have read from files.

namespace web {

class ToldMapping {
 public:
  // The one to tell of from now on, null for none. It is there until another one is watched.
  void Watch(const orvane::MarkerNameMap* mapping) { mapping_ = mapping; }

  // Tells what has changed since the last time.
  void Update(const host::LiveDesktop& desktop);

  // The standard marker that is asked for now; empty when none is.
  [[nodiscard]] static std::string Asked(const host::LiveDesktop& desktop);

  // Tells what is odd in the mapping so far.
  void TellLint() const;

 private:
  struct Entry {
    std::string standard;  // the standard marker's name
    std::string marker;
    std::uint32_t node = 0;  // that it was picked from; 0 for none

    friend bool operator==(const Entry&, const Entry&) = default;
  };

  [[nodiscard]] std::vector<Entry> Entries() const;

  const orvane::MarkerNameMap* mapping_ = nullptr;
  std::vector<Entry> told_;
  std::string told_asked_;
};

}  // namespace web
