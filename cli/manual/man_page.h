#pragma once

#include <string>

// Pages of the manual, made of what the parser knows and of the guides to the verbs.

namespace CLI {
class App;
}  // namespace CLI

namespace cli {

// The page's name: "orvane-map-create".
[[nodiscard]] std::string PageName(const CLI::App& app);

// The page of the program or of a verb, in the language of manual pages.
[[nodiscard]] std::string ManPage(const CLI::App& app);

}  // namespace cli
