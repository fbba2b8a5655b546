#pragma once

#include <memory>
#include <string>

#include "cli/rewrite/rewrite_order.h"
#include "formats/htr/document.h"
#include "formats/trc/document.h"
#include "inspect/report/rewrite_check.h"
#include "inspect/summary/frame_rate.h"

// What is done to a file on its way into another one.

namespace cli {

template <typename Document>
struct EditedFile {
  std::string name;  // as the user knows it
  std::unique_ptr<Document> document = std::make_unique<Document>();
  orvane::RateTexts rates{};
  double first_time = 0.0;                       // of the first frame, in seconds
  orvane::RewriteCircumstances circumstances{};  // what is to be told of the edits
};

// Whether `order` leaves frames, segments or markers out.
[[nodiscard]] inline bool TakesPart(const RewriteOrder& order) {
  return order.cut || !order.selection.empty();
}

// Does with `file` what `order` says: frames, segments or markers, names, unit, axis, rate and
// numbers, in this order, so that selected names are those of the file. Names that nothing has are
// told by the circumstances, and nothing behind them is done then. Throws a Failure when the file
// lets something else not be done.
void Edit(EditedFile<orvane::HtrDocument>& file, const RewriteOrder& order);
void Edit(EditedFile<orvane::TRCDocument>& file, const RewriteOrder& order);

}  // namespace cli
