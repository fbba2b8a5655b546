#include "inspect/summary/first_time.h"

#include <cmath>
#include <cstddef>
#include <string>
#include <string_view>

#include "formats/text/numbers.h"
#include "formats/text/tokens.h"
#include "formats/trc/fields.h"
#include "formats/trc/outline.h"

namespace orvane {
namespace {

double TimeIn(const std::string& row) {
  Line line;
  line.text = row;
  TRCFields fields(line);
  fields.Drop(1);
  const std::string_view text = SkipSeparators(fields.Get());
  const LeadingDouble time = ReadDouble(text.data(), text.data() + text.size());
  const auto used = static_cast<std::size_t>(time.end - text.data());
  const bool is_number = used > 0 && SkipSeparators(text.substr(used)).empty();
  return is_number && std::isfinite(time.value) ? time.value : 0.0;
}

}  // namespace

double FirstTimeOfTrc(ByteSource& source) { return TimeIn(TrcFirstFrameOf(source)); }

}  // namespace orvane
