include(HeadersOnly)
orvane_headers_only(CLI11::CLI11 CLI/CLI.hpp)
set(CLI11_FOUND TRUE)
