#pragma once

#include <string>

namespace examples {

// The whole of walk.htr: two seconds of a body walking, 120 frames at 60 a second.
std::string WalkText();

}  // namespace examples
