#pragma once

#include <functional>
#include <string>

// Somebody beside the terminal who watches how far the plug-in is: the program has it told to
// nobody, unless whoever runs it asks to be told. For one thread.

namespace cli {

struct WatchedProgress {
  std::string what;  // "Importing walk.htr"
  int percent = 0;
  bool is_over = false;  // the plug-in shows it no more
};

// Is called for every step that the plug-in tells of, from within it, and must not throw. Before it
// returns it may call for platform::Interrupted() to become true, by which the plug-in is
// cancelled.
using ProgressWatch = std::function<void(const WatchedProgress&)>;

// From now on `watch` is called; nobody when it is empty.
void WatchProgress(ProgressWatch watch);

// Tells whoever watches.
void TellProgress(const WatchedProgress& progress);

}  // namespace cli
