#pragma once

#include <nanobind/nanobind.h>

#include <string>
#include <string_view>
#include <vector>

#include "python/binding/typed.h"

// Texts of files in Python: UTF-8, whose bytes that are none become lone surrogates, as Python does
// with the names of files, and go back to what they were.

namespace binding {

[[nodiscard]] nanobind::str TextOf(std::string_view bytes);
[[nodiscard]] TextList TextsOf(const std::vector<std::string>& all);

// The other way round. Throws Python's exception for a text that comes from no bytes.
[[nodiscard]] std::string BytesOf(const nanobind::str& text);

}  // namespace binding
