#pragma once

#include <functional>
#include <istream>
#include <string_view>

// Text of any size in little memory.
namespace orvane {

// Hands what `stream` holds to `take` in order, in pieces of some 256 KiB that end where a line
// does, but for the last; a longer line comes whole. Each lives until `take` returns. Whoever wants
// to know whether all of it was read asks the stream. Throws std::bad_alloc.
void TakeByLines(std::istream& stream, const std::function<void(std::string_view lines)>& take);

}  // namespace orvane
