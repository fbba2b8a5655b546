#pragma once

#include <string_view>

#include "platform/export.h"

// Where the bytes of a file go that is made piece by piece.

namespace host::gltf {

class SKELDER_API FileSink {
 public:
  FileSink() = default;
  FileSink(const FileSink&) = delete;
  FileSink& operator=(const FileSink&) = delete;
  virtual ~FileSink();

  // Takes the next bytes, which stay valid until it returns. Returns whether it can take more;
  // otherwise it is not called again.
  [[nodiscard]] virtual bool Take(std::string_view bytes) = 0;
};

}  // namespace host::gltf
