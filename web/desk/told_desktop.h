#pragma once

#include <map>
#include <string>
#include <vector>

#include "host/application/rollup_pages.h"
#include "host/desktop/portable/live_desktop.h"

// What the page has been told of dialogs, messages and choices.

namespace web {

class ToldDesktop {
 public:
  // Tells what has changed since the last time. Pages of the host's own have their titles from
  // `pages`.
  void Update(const host::LiveDesktop& desktop, const host::RollupPages& pages);

  // The page knows what the person has typed.
  void TakeTyped(int dialog, int control, const std::string& text);

 private:
  using Controls = std::vector<host::DialogControl>;

  void TellGone(const host::LiveDesktop& desktop);
  void TellDialog(host::LiveDialog& dialog, const host::RollupPages& pages);
  static void TellChanges(const host::LiveDialog& dialog, Controls& told);

  std::map<int, Controls> dialogs_;  // by their numbers
  int message_ = 0;                  // 0: none
  int choice_ = 0;
};

}  // namespace web
