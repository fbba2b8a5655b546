#include "inspect/check/started_source.h"

#include <algorithm>
#include <array>

#include "inspect/check/content_kind.h"
#include "inspect/check/text_flaw.h"

namespace orvane {
namespace {

constexpr std::size_t kKept = std::max(kBytesThatShowKind, kBytesThatShowFlaws);

}  // namespace

std::size_t StartedSource::Read(std::span<char> block) {
  const std::size_t count = source_.Read(block);
  start_.append(block.data(), std::min(count, kKept - start_.size()));
  return count;
}

std::string_view StartedSource::Start() {
  std::array<char, 4096> block;
  while (start_.size() < kKept && Read(block) > 0) continue;
  return start_;
}

}  // namespace orvane
