#pragma once

#include <functional>
#include <string_view>

namespace orvane {

// Takes a piece of a text, which lives until it returns; the pieces come in order, on the thread of
// whoever hands them over, who lets pass what it throws.
using TextTaker = std::function<void(std::string_view text)>;

}  // namespace orvane
