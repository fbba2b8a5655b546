#include "cli/view/workbench.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <nlohmann/json.hpp>
#include <string_view>
#include <system_error>

#include "cli/common/failure.h"
#include "cli/view/base64.h"
#include "cli/view/gzip.h"
#include "platform/path_text.h"

namespace cli {
namespace {

constexpr char kPage[] = "orvane-workbench.html";

// From the folder of the program: beside it, as packages install both, as both are built.
constexpr const char* kFolders[] = {".", ORVANE_WORKBENCH_FOLDER, "../../build-web"};

constexpr std::string_view kPlace =
    R"(<script type="application/json" id="embedded-takes">[]</script>)";
constexpr std::string_view kPlaceEnd = "]</script>";

std::string AskedWorkbench() {
  const char* asked = std::getenv("ORVANE_WORKBENCH");
  return asked == nullptr ? "" : asked;
}

// JSON in which nothing can be taken for an element of the page, or the end of one.
std::string QuotedInPage(const std::string& text) {
  constexpr int kCompact = -1;
  const std::string quoted =
      nlohmann::json(text).dump(kCompact, ' ', false, nlohmann::json::error_handler_t::replace);
  std::string safe;
  safe.reserve(quoted.size());
  for (const char letter : quoted) {
    if (letter == '<') {
      safe += "\\u003c";
    } else {
      safe += letter;
    }
  }
  return safe;
}

}  // namespace

std::string FindWorkbench(const std::string& program) {
  const std::string asked = AskedWorkbench();
  if (!asked.empty()) return asked;
  for (const char* folder : kFolders) {
    const std::filesystem::path page =
        (platform::PathOf(program) / folder / kPage).lexically_normal();
    std::error_code error;
    if (std::filesystem::is_regular_file(page, error)) return platform::TextOf(page);
  }
  throw Failure{ExitStatus::kInputOutput,
                {{kPage, "The page that shows takes is not there",
                  "In the sources \"./dev web\" makes it; a package brings it along."}}};
}

WorkbenchWriter::WorkbenchWriter(const std::string& name, const std::string& page) {
  const std::size_t place = page.find(kPlace);
  if (place == std::string::npos) {
    throw Failure{ExitStatus::kInputOutput, {{name, "is not the page that shows takes", ""}}};
  }
  const std::size_t end = place + kPlace.size() - kPlaceEnd.size();
  page_ = page.substr(0, end);
  rest_ = page.substr(end);
}

void WorkbenchWriter::Add(const EmbeddedTake& take) {
  if (!is_empty_) page_ += ",\n";
  is_empty_ = false;
  page_ += "{\"name\": " + QuotedInPage(take.name) + ", \"gzip\": \"";
  AppendBase64(page_, Gzipped(take.bytes));
  page_ += "\"}";
}

std::string WorkbenchWriter::Finish() {
  page_ += rest_;
  return std::move(page_);
}

}  // namespace cli
