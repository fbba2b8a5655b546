#pragma once

#include <memory>

#include "platform/export.h"
#include "sdk/core/plugin.h"

// A utility that the user has opened in the command panel.

namespace host {

class Application;

class SKELDER_API UtilityPanel {
 public:
  // Opens `utility` in `application`, which outlives this object.
  // REQUIRES: `utility` is not null.
  UtilityPanel(std::unique_ptr<UtilityObj> utility, Application& application);
  UtilityPanel(const UtilityPanel&) = delete;
  UtilityPanel& operator=(const UtilityPanel&) = delete;

  // Closes the utility, if it is open, and deletes it.
  ~UtilityPanel();

  // The user closes the utility. May happen while the utility waits for him.
  void Close();

  // The application deletes the utility without closing it before, as at its own end.
  void Delete();

  // The user opens the utility again.
  // REQUIRES: it has not been deleted.
  void Open();

 private:
  std::unique_ptr<UtilityObj> utility_;
  Application& application_;
  bool open_ = false;
};

}  // namespace host
