#include "cli/common/cut_frames.h"

#include <CLI/CLI.hpp>
#include <charconv>
#include <system_error>
#include <utility>

#include "formats/htr/cut_text.h"
#include "formats/text/numbers.h"
#include "formats/trc/cut_text.h"

namespace cli {
namespace {

using orvane::FrameSpan;

std::optional<std::int32_t> WholeNumber(std::string_view text) {
  std::int32_t number = 0;
  const char* const end = text.data() + text.size();
  const auto result = std::from_chars(text.data(), end, number);
  if (result.ec != std::errc() || result.ptr != end) return std::nullopt;
  return number;
}

// The number that `text` is, and `open` of none.
std::optional<std::int64_t> EndIn(std::string_view text, std::int64_t open) {
  if (text.empty()) return open;
  return WholeNumber(text);
}

FrameSpan ReadSpan(const std::string& text) {
  const std::string_view all = text;
  const std::size_t colon = all.find(':');
  if (colon != std::string_view::npos && all.size() > 1) {
    const auto first = EndIn(all.substr(0, colon), orvane::kFromFirst);
    const auto last = EndIn(all.substr(colon + 1), orvane::kToLast);
    if (first && last && *last < *first) {
      throw CLI::ValidationError("--cut", text + " ends before it begins");
    }
    if (first && last) return {*first, *last};
  }
  throw CLI::ValidationError(
      "--cut",
      "two frame numbers, FROM:TO, or one of them, FROM: or :TO, are expected, not " + text);
}

std::string Require(const std::string& file, std::optional<std::string> cut) {
  if (cut) return *std::move(cut);
  throw Failure{ExitStatus::kRefused,
                {{file, "--cut cannot cut it: it has lines that are read in pieces",
                  "A line has 10238 bytes at the most."}}};
}

struct Places {
  std::size_t begin;
  std::size_t end;
};

Places PlacesOf(const FrameSpan& frames, std::int64_t first_in_file) {
  return {static_cast<std::size_t>(frames.first - first_in_file),
          static_cast<std::size_t>(frames.last - first_in_file + 1)};
}

}  // namespace

CLI::Option* AddCutFlag(CLI::App& verb, std::optional<FrameSpan>& asked) {
  return verb
      .add_option_function<std::string>(
          "--cut", [&asked](const std::string& text) { asked = ReadSpan(text); },
          "Take the frames FROM to TO alone, by the numbers that info shows; without one of them "
          "from the first or to the last frame (all)")
      ->type_name("FROM:TO");
}

std::string CutOut(const std::string& file, std::string_view bytes,
                   const orvane::HtrDocument& document, const FrameSpan& frames) {
  const Places places = PlacesOf(frames, document.GetStartFrame());
  return Require(file, orvane::CutHtrFrames(bytes, places.begin, places.end));
}

std::string CutOut(const std::string& file, std::string_view bytes,
                   const orvane::TRCDocument& document, const FrameSpan& frames) {
  const Places places = PlacesOf(frames, document.FirstFrame());
  return Require(file, orvane::CutTrcFrames(bytes, places.begin, places.end));
}

Complaint ComplainAboutCut(const std::string& file, const FrameSpan& asked, const FrameSpan& held) {
  const std::string text = "--cut asks for " + TheFrames(asked) + ", and the file has ";
  if (held.IsEmpty()) return {file, text + "none", ""};
  return {file, text + RangeText(held),
          "--cut " + orvane::FormatInt(held.first) + ":" + orvane::FormatInt(held.last) +
              " takes all of it."};
}

}  // namespace cli
