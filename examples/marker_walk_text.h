#pragma once

#include <string>

namespace examples {

// The whole of walk.trc: the markers of the body that walks in walk.htr, for the same two seconds.
std::string MarkerWalkText();

// The whole of walk.mnm: which of them plays which standard role.
std::string MarkerMappingText();

}  // namespace examples
