#pragma once

#include <cstddef>
#include <cstdint>
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
  double first_time = 0.0;    // of the first frame, in seconds
  const RewriteOrder& order;  // for its numbers, and what it asks of one format alone
};

struct PreparedFile {
  std::vector<orvane::RewriteLoss> losses{};  // none where there will be no file
  // Hands over the bytes of the file, in order and in pieces of limited size. Throws a Failure when
  // there can be no such file, perhaps behind some of them, and what the taker throws.
  std::function<void(const orvane::TextTaker&)> print;
  // Of the segments or markers of the document, where those are not all.
  std::optional<std::size_t> parts{};
  // The number of its first frame, where that is not the document's.
  std::optional<std::int64_t> first_frame{};
};

// Of the file of `wording` no other one is made.
inline Failure NoFile(const Wording& wording, const std::string& why, const std::string& advice) {
  return {ExitStatus::kRefused, {{wording.input, why, advice}}};
}
inline PreparedFile Refusing(const Failure& failure) {
  return {{}, [failure](const orvane::TextTaker& /*take*/) { throw failure; }};
}

}  // namespace cli
