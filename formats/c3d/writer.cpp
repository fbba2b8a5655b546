#include "formats/c3d/writer.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string>
#include <string_view>

#include "formats/c3d/little_endian.h"
#include "formats/c3d/parameter_section.h"
#include "formats/c3d/parameters.h"
#include "formats/text/text_buffer.h"

namespace orvane {
namespace {

constexpr std::uint32_t kKey = 0x50;
constexpr std::uint32_t kFourCharacterEvents = 12345;
constexpr std::size_t kEventKeyAt = 298;

constexpr std::size_t kSampleBytes = 4 * sizeof(float);
constexpr float kMeasured = 0.0F;
constexpr float kNotMeasured = -1.0F;

// So many frames are gathered at a time, marker by marker, as a document holds them.
constexpr std::size_t kTileFrames = 32;

// The header has 16 bits for the numbers of the first and the last frame. Where those do not fit,
// it has the right number of frames at least, as far as that fits.
std::string MakeHeader(const C3dPlan& plan) {
  const bool fits = !plan.losses.is_beyond_header;
  const std::uint32_t first = fits ? plan.first_frame : 1;
  const std::uint32_t last = std::min(first + plan.frame_count - 1, kMostC3dWord);
  const auto parameter_blocks = static_cast<std::uint32_t>(plan.parameters.size() / kC3dBlock);
  std::string header(kC3dBlock, '\0');
  char* end = header.data();
  end = WriteByte(kC3dParameterBlock, end);
  end = WriteByte(kKey, end);
  end = WriteWord(static_cast<std::uint32_t>(plan.markers.size()), end);
  end = WriteWord(0, end);  // analog samples a frame
  end = WriteWord(first, end);
  end = WriteWord(last, end);
  end = WriteWord(0, end);  // the longest gap that was filled
  end = WriteFloat(kC3dScale, end);
  end = WriteWord(kC3dParameterBlock + parameter_blocks, end);
  end = WriteWord(0, end);  // analog samples of a channel in a frame
  WriteFloat(static_cast<float>(plan.frames_per_second), end);
  WriteWord(kFourCharacterEvents, header.data() + kEventKeyAt);
  return header;
}

void WriteSample(const TRCMarker& marker, std::size_t frame, char* first) {
  double x = 0, y = 0, z = 0;
  const bool is_measured = marker.GetSample(frame, x, y, z);
  first = WriteFloat(static_cast<float>(x), first);
  first = WriteFloat(static_cast<float>(y), first);
  first = WriteFloat(static_cast<float>(z), first);
  WriteFloat(is_measured ? kMeasured : kNotMeasured, first);
}

void PutFrames(const C3dPlan& plan, TextBuffer& bytes) {
  const std::size_t frame_bytes = plan.markers.size() * kSampleBytes;
  const std::size_t end = plan.frame_count;
  std::string tile(std::min(kTileFrames, end) * frame_bytes, '\0');
  for (std::size_t begin = 0; begin < end; begin += kTileFrames) {
    const std::size_t count = std::min(kTileFrames, end - begin);
    for (std::size_t marker = 0; marker < plan.markers.size(); ++marker) {
      char* first = tile.data() + marker * kSampleBytes;
      for (std::size_t frame = 0; frame < count; ++frame) {
        WriteSample(*plan.markers[marker], begin + frame, first + frame * frame_bytes);
      }
    }
    bytes.Put(std::string_view(tile).substr(0, count * frame_bytes));
  }
}

// Up to a full block, as old readers read them; but nothing that would be read as a frame.
void PutPadding(const C3dPlan& plan, TextBuffer& bytes) {
  if (IsBeyondC3dWord(plan.frame_count)) return;
  const std::size_t size = plan.markers.size() * kSampleBytes * plan.frame_count;
  const std::size_t over = size % kC3dBlock;
  if (over != 0) bytes.Put(std::string(kC3dBlock - over, '\0'));
}

}  // namespace

void PrintC3d(const C3dPlan& plan, const TextTaker& take) {
  TextBuffer bytes(take);
  bytes.Put(MakeHeader(plan));
  bytes.Put(plan.parameters);
  PutFrames(plan, bytes);
  PutPadding(plan, bytes);
  bytes.HandOver();
}

}  // namespace orvane
