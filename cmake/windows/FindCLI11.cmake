include(HeadersOnly)
orvane_headers_only(CLI11::CLI11 CLI)
set(CLI11_FOUND TRUE)
