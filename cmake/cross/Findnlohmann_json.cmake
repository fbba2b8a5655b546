include(HeadersOnly)
orvane_headers_only(nlohmann_json::nlohmann_json nlohmann/json.hpp)
set(nlohmann_json_FOUND TRUE)
