#pragma once

#include <functional>
#include <string_view>

namespace orvane {

// Takes a piece of a text, which lives until it returns; the pieces come in order. What it throws,
// whoever hands the pieces over lets pass.
using TextTaker = std::function<void(std::string_view text)>;

}  // namespace orvane
