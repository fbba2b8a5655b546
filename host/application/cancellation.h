#pragma once

#include <atomic>
#include <optional>

#include "platform/export.h"

// The user's wish to cancel what a progress bar shows, and how programs and tests express it. What
// is cancelled asks; nothing is ever interrupted.

namespace host {

class SKELDER_API Cancellation {
 public:
  // The user cancels. May be called from a signal handler or another thread.
  void Request() noexcept { requested_ = true; }

  // From now on, and until changed, the user cancels at query number `query` after a progress bar
  // was opened, counted from 1; or as soon as the bar shows `percent` or more.
  void AtQuery(int query) { at_query_ = query; }
  void AtPercent(int percent) { at_percent_ = percent; }

  // Forgets both plans and any request.
  void Clear();

  // A progress bar was opened: requests made before do not count, and queries are counted anew.
  void BarOpened();

  // Whether the user has cancelled since the bar was opened, which shows `percent` now. Once true
  // it stays true until the next bar.
  bool Query(int percent);

  // Number of queries since the bar was opened.
  int Queries() const { return queries_; }

 private:
  std::atomic<bool> requested_{false};
  int queries_ = 0;
  std::optional<int> at_query_;
  std::optional<int> at_percent_;
};

}  // namespace host
