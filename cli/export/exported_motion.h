#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "host/scene/scene.h"

// A look at what the plug-in has written, before it is given its place: the plug-in does not notice
// a disk that is full, nor what a reader will make of its file.

namespace cli {

struct ExportedMotion {
  std::size_t bytes = 0;
  std::int64_t segments = 0;
  std::int64_t first_frame = 0;
  std::int64_t frames = 0;
  int frame_rate = 0;
};

// Reads the file `path`, which the user knows as `name` and which was exported from `scene`. Throws
// a Failure when it cannot be read back, is not complete, holds a number that is not finite, or
// does not read back as what was exported.
ExportedMotion CheckExport(const std::string& path, const std::string& name,
                           const host::Scene& scene);

}  // namespace cli
