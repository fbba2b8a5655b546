#pragma once

#include <cstddef>
#include <optional>
#include <string>

#include "formats/array/array_too_large.h"
#include "formats/htr/document.h"
#include "formats/trc/document.h"
#include "inspect/report/report.h"
#include "inspect/summary/frame_rate.h"
#include "python/binding/file_error.h"
#include "python/binding/input.h"

// Reads files into documents. Nothing here needs the lock of the interpreter.

namespace binding {

// What comes of reading beside the document.
struct Reading {
  std::optional<orvane::FileReport> report;  // nothing when nobody has looked for findings
  std::optional<orvane::FrameRate> rate;     // that the text says
  double first_time = 0.0;                   // of the first frame, in seconds
};

// Reads `input` into `document`, which is empty. Throws a FileRefusal when the file cannot be read,
// is refused, holds nothing, or holds so many frames of so many names that an array of them would
// be out of proportion.
[[nodiscard]] Reading Read(const Input& input, bool check, orvane::TRCDocument& document);
[[nodiscard]] Reading Read(const Input& input, bool check, orvane::HtrDocument& document);

// That the document of the file `path` makes no array.
[[nodiscard]] FileRefusal TooLarge(const std::string& path, const orvane::ArrayTooLarge& error);

}  // namespace binding
