#include "host/gltf/file/output.h"

namespace host::gltf {

FileSink::~FileSink() = default;

void Output::Flush() {
  if (is_taken_ && !piece_.empty()) is_taken_ = sink_.Take(piece_);
  piece_.clear();
}

}  // namespace host::gltf
