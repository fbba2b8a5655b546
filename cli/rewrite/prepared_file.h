#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "cli/common/failure.h"
#include "cli/rewrite/rewrite_order.h"
#include "formats/text/text_taker.h"
#include "inspect/report/rewrite_check.h"
#include "inspect/summary/frame_rate.h"

// A file that is going to be written: what it will not hold is told before.

namespace cli {

// What is to be written, beside a document.
struct Wording {
  std::string input;  // as the user knows it, for refusals
  std::string name;   // of the file that is made, without folders
  orvane::RateTexts rates{};
  const RewriteOrder& order;  // for its numbers, and what it asks of one format alone
};

struct PreparedFile {
  std::vector<orvane::RewriteLoss> losses{};  // none where there will be no file
  // Makes the bytes of the file. Throws a Failure when there can be none.
  std::function<std::string()> print;
  // Of the segments or markers of the document, where those are not all.
  std::optional<std::size_t> parts{};
};

// What `print` hands over to the taker that it is called with.
template <typename Print>
std::string Gathered(const Print& print) {
  std::string bytes;
  print([&bytes](std::string_view piece) { bytes += piece; });
  return bytes;
}

// Of the file of `wording` no other one is made.
inline Failure NoFile(const Wording& wording, const std::string& why, const std::string& advice) {
  return {ExitStatus::kRefused, {{wording.input, why, advice}}};
}
inline PreparedFile Refusing(const Failure& failure) {
  return {{}, [failure]() -> std::string { throw failure; }};
}

}  // namespace cli
