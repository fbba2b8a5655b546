#pragma once

#include <string>

#include "cli/common/plugin_session.h"
#include "cli/map/picks_table.h"
#include "formats/mnm/standard_markers.h"

// The user of the plug-in's mapping creator.

namespace cli {

class MappingUser {
 public:
  // All of it outlives this object.
  MappingUser(PluginSession& session, const PicksTable& picks, const orvane::WristSticks& sticks)
      : session_(session), picks_(picks), sticks_(sticks) {}

  // Opens the panel, presses "Create", answers and picks, and saves to `path`. When the user
  // interrupts the program, the creation is aborted. Throws a Failure when the plug-in lets
  // something not be done.
  // REQUIRES: there is no file `path`.
  void Create(const std::string& path);

 private:
  [[nodiscard]] int Answer(const host::UserMessage& message) const;
  void Act();

  PluginSession& session_;
  const PicksTable& picks_;
  orvane::WristSticks sticks_;
};

}  // namespace cli
