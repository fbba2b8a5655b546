#pragma once

#include <string>
#include <string_view>

namespace cli {

// `bytes` as a gzip file, without a name and a moment: the same bytes give the same file.
[[nodiscard]] std::string Gzipped(std::string_view bytes);

}  // namespace cli
