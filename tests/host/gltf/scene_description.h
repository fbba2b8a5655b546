#pragma once

#include <string>

#include "host/scene/scene.h"

namespace test {

// Everything that makes up `scene`, exactly, as text: what two equal scenes have alike.
std::string Description(const host::Scene& scene);

}  // namespace test
