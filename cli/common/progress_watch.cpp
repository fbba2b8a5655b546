#include "cli/common/progress_watch.h"

#include <utility>

namespace cli {
namespace {

ProgressWatch& Watch() {
  static ProgressWatch watch;
  return watch;
}

}  // namespace

void WatchProgress(ProgressWatch watch) { Watch() = std::move(watch); }

void TellProgress(const WatchedProgress& progress) {
  if (Watch()) Watch()(progress);
}

}  // namespace cli
