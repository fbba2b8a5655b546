#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "host/base/misuse_log.h"
#include "platform/export.h"
#include "sdk/core/types.h"

// The application's one progress bar and the record of everything that was done to it. It draws
// nothing: a program that wants to show progress observes it.

namespace host {

// One call that took effect.
struct ProgressEvent {
  enum class Kind { kStart, kUpdate, kEnd };

  Kind kind = Kind::kStart;
  std::string title;    // the bar's title after the call
  int percent = 0;      // the percentage after the call, as given; 0 for kStart
  bool visible = true;  // kStart: whether a bar is shown; kUpdate: whether the number is shown
};

class SKELDER_API ProgressBar {
 public:
  using Observer = std::function<void(const ProgressEvent&)>;

  // Calls that find the bar in the wrong state are noted in `misuse`, which must outlive the bar.
  explicit ProgressBar(MisuseLog& misuse) : misuse_(misuse) {}

  ProgressBar(const ProgressBar&) = delete;
  ProgressBar& operator=(const ProgressBar&) = delete;

  // Opens the bar at 0 percent. `callback` (null: none) is polled with `argument` at every update
  // until the bar is closed.
  // Returns false, changing nothing, when the bar is open already: a misuse.
  bool Start(const char* title, bool show_bar, ProgressCallback callback, void* argument);

  // Shows `percent`, and `title` unless it is null, then polls the callback.
  // Returns false when the callback asks to stop. Does nothing when no bar is open: a misuse.
  bool Update(int percent, bool show_percent, const char* title);

  // Closes the bar. Does nothing when none is open: a misuse.
  void End();

  bool IsOpen() const { return open_; }

  // What the bar shows, or showed last.
  int Percent() const { return percent_; }
  const std::string& Title() const { return title_; }

  // What happened since the application was made, in order.
  const std::vector<ProgressEvent>& Events() const { return events_; }

  // Calls `observer` after every event from now on; an empty one stops that. It must not throw.
  void SetObserver(Observer observer) { observer_ = std::move(observer); }

  // Whether a plug-in's callback is held.
  bool HoldsCallback() const { return callback_ != nullptr; }

 private:
  void Record(ProgressEvent::Kind kind, bool visible);

  MisuseLog& misuse_;
  bool open_ = false;
  int percent_ = 0;
  std::string title_;
  ProgressCallback callback_ = nullptr;
  void* argument_ = nullptr;
  std::vector<ProgressEvent> events_;
  Observer observer_;
};

}  // namespace host
