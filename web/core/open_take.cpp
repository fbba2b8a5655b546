#include "cli/common/file_kind.h"
#include "web/core/marker_take.h"
#include "web/core/motion_take.h"
#include "web/core/take.h"

namespace web {

std::unique_ptr<Take> OpenTake(const std::string& path) {
  if (cli::KindOf(path) == cli::FileKind::kTrc) return std::make_unique<MarkerTake>(path);
  return std::make_unique<MotionTake>(path);
}

}  // namespace web
