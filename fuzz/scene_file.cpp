// Bytes as a scene file.
#include <string_view>

#include "fuzz/scene_round_trip.h"
#include "fuzz/target.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz::ExpectRoundTrip({reinterpret_cast<const char*>(data), size});
  return 0;
}
