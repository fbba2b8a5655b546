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

FrameSpan ReadSpan(const std::string& text) {
  const std::size_t colon = text.find(':');
  const bool has_both = colon != std::string::npos;
  const auto first = WholeNumber(std::string_view(text).substr(0, colon));
  const auto last = has_both ? WholeNumber(std::string_view(text).substr(colon + 1)) : std::nullopt;
  if (!first || !last) {
    throw CLI::ValidationError("--cut", "two frame numbers, FROM:TO, are expected, not " + text);
  }
  if (*last < *first) throw CLI::ValidationError("--cut", text + " ends before it begins");
  return {*first, *last};
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
          "Take the frames FROM to TO alone, by the numbers that info shows (all)")
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
