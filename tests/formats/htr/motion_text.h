#pragma once

#include <string>
#include <vector>

// Motion files as text, put together from their sections, for tests.
namespace orvane::test_text {

using Lines = std::vector<std::string>;

// Lines are joined with CR LF, the line end of real files.
std::string Join(const Lines& lines);

// A whole file of two bones, Hips and Spine, with two frames each.
std::string TwoBones();

// As TwoBones, with `replacement` for the one line that starts with `keyword`.
std::string TwoBonesWith(const std::string& keyword, const std::string& replacement);

}  // namespace orvane::test_text
