#include "cli/import/hidden_numbers.h"

#include <optional>

#include "cli/common/stored_options.h"
#include "formats/text/numbers.h"
#include "plugin/resources/resource.h"

namespace cli {
namespace {

// Empty when the dialog reads `stored` back from what it shows, whatever is lost of it.
template <typename Value>
std::string Advice(const std::optional<Value>& stored, const std::string& flag) {
  if (!stored) return "";
  const std::string shown = orvane::FormatDouble(static_cast<double>(*stored));
  if (*stored == Value{} || orvane::ParseDouble(shown) != 0.0) return "";
  return "What was chosen last is " + orvane::FormatShortest(*stored) +
         ", which the dialog shows as " + shown + "; " + flag + " chooses another.";
}

}  // namespace

HiddenNumbers::HiddenNumbers(const Wishes& wishes, FileKind kind, const host::Settings& settings) {
  const bool is_htr = kind == FileKind::kHtr;
  const StoredOptions stored(settings, is_htr ? IDS_IMPORT_HTR : IDS_IMPORT_TRC);
  if (!TypedInt(wishes, IDC_OBJECT_SIZE)) {
    numbers_.push_back({KnownMessage::kSizeIsZero,
                        Advice(stored.Float("Size"), is_htr ? "--segment-size" : "--size")});
  }
  if (!TypedInt(wishes, IDC_GLOBAL_SCALE)) {
    numbers_.push_back(
        {KnownMessage::kScaleIsZero, Advice(stored.Double("ScaleFactor"), "--scale")});
  }
}

std::string HiddenNumbers::AdviceFor(std::string_view message) const {
  const std::optional<KnownMessage> known = Recognize(message);
  for (const Number& number : numbers_) {
    if (number.message == known) return number.advice;
  }
  return "";
}

}  // namespace cli
