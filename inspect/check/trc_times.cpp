#include "inspect/check/trc_times.h"

#include <cmath>
#include <string>

#include "formats/text/numbers.h"
#include "formats/text/tokens.h"
#include "inspect/check/trc_rules.h"

namespace orvane::trc {
namespace {

// Times are written in few digits, and some programs add up steps that are.
constexpr double kFramesOff = 1.0;
constexpr double kShareOff = 0.03;

std::string InSeconds(double seconds) { return FormatDouble(seconds, 3) + " s"; }

}  // namespace

void TimeColumn::TakeFirst(std::string_view rest, const FindingPlace& place) {
  const std::string_view cell =
      TrimTrailingSeparators(SkipSeparators(rest.substr(0, rest.find('\t'))));
  const LeadingDouble time = ReadDouble(cell.data(), cell.data() + cell.size());
  const bool is_number = time.end == cell.data() + cell.size() && std::isfinite(time.value);
  if (!cell.empty() && !is_number) no_number_ = {place, std::string(cell)};
}

void TimeColumn::Take(std::string_view rest, std::size_t frame, const FindingPlace& place) {
  if (frame == 0) TakeFirst(rest, place);
  if (rate_ <= 0.0 || (contradiction_ && changes_)) return;
  const LeadingDouble time = ReadDouble(rest.data(), rest.data() + rest.size());
  if (time.end == rest.data()) return;
  if (!first_) first_ = {time.value, frame};
  changes_ = changes_ || time.value != first_->seconds;
  if (contradiction_) return;
  const auto frames = static_cast<double>(frame - first_->frame);
  const double by_rate = first_->seconds + frames / rate_;
  if (std::abs(time.value - by_rate) * rate_ <= kFramesOff + kShareOff * frames) return;
  contradiction_ = {place, time.value, by_rate};
}

void TimeColumn::AddTo(FindingList& findings) const {
  if (no_number_) {
    return findings.Add(
        Rule("trc-time-unreadable"), no_number_->place,
        {Quote(no_number_->text), "a number of seconds", "The time column is not read."});
  }
  if (!contradiction_ || !changes_) return;
  findings.Add(Rule("trc-time-differs"), contradiction_->place,
               {InSeconds(contradiction_->seconds),
                InSeconds(contradiction_->by_rate) + ", as the frame rate gives",
                "The time column is not read: frames follow each other at the frame rate."});
}

}  // namespace orvane::trc
