#pragma once

#include <string_view>

namespace fuzz {

// Reads `bytes` as a scene file. When they are one, the scene is saved, read again and saved again,
// which must give the same scene and the same bytes.
void ExpectRoundTrip(std::string_view bytes);

}  // namespace fuzz
