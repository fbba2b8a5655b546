#include "cli/import/trc_inspection.h"

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <map>

#include "cli/common/input.h"
#include "cli/common/known_messages.h"
#include "cli/import/imported_frames.h"
#include "formats/text/numbers.h"
#include "formats/trc/document.h"
#include "platform/path_text.h"

namespace cli {
namespace {

using orvane::FormatInt;
using orvane::TRCOddity;
using orvane::WhyTooShort;

// What an import makes of an oddity, and what to do about it.
struct Note {
  TRCOddity oddity;
  const char* text;
  const char* advice;
};

constexpr char kUseCheckedColumns[] = "Rename the column, or move it behind those with good names.";

constexpr Note kNotes[] = {
    {TRCOddity::kCommentReplacesLine,
     "A line that starts with \"#\" is taken as data, and the next line is thrown away",
     "A marker file has no comments."},
    {TRCOddity::kLongLine, "A line of more than 10,239 characters is read as several",
     "Shorter marker names, or fewer markers in one file, keep it whole."},
    {TRCOddity::kUnknownPathType, "The path type is neither 3 nor 4, so the first frame is 1", ""},
    {TRCOddity::kRateNotPositive, "A rate is not positive", "--frame-rate keep goes without it."},
    {TRCOddity::kRateTruncated, "A rate loses its fraction",
     "The plug-in plays whole frames per second; --frame-rate keep goes without the rate."},
    {TRCOddity::kMissingNumber, "A value is missing and taken as 0",
     "A dropout has nothing at all, not even a blank, in its first column."},
    {TRCOddity::kUnreadableNumber, "A value is not one number; what it starts with is taken, or 0",
     ""},
    {TRCOddity::kNumberOutOfBounds, "A value is out of range; the nearest, or infinity, is taken",
     ""},
    {TRCOddity::kNumberCut, "A whole number loses its fraction", ""},
    {TRCOddity::kSampleWithoutX, "A sample that does not begin with X is a dropout", ""},
    {TRCOddity::kUnknownUnits, "The unit is unknown and taken as millimetres",
     "It may be mm, cm, m, in, ft or yd, with nothing but a tab behind it."},
    {TRCOddity::kUnitsEndTheLine, "The unit ends its line and is taken as millimetres",
     "A tab behind the unit makes it count."},
    {TRCOddity::kMarkerNameLost, "The last name has no tab behind it and makes no marker",
     "A tab behind the name makes it count."},
    {TRCOddity::kUnnamedColumnDropped,
     "An unnamed column makes no marker, and its values go to the next one", kUseCheckedColumns},
    {TRCOddity::kMarkerNameRepeated,
     "A repeated name makes no marker, and the values of its column go to the next one",
     kUseCheckedColumns},
    {TRCOddity::kMarkerNameEmpty, "A marker has no name", ""},
    {TRCOddity::kMarkerCountMismatch,
     "The header announces another number of markers, which does not count", ""},
    {TRCOddity::kSubHeaderIsData,
     "The line of coordinate headings is missing; the frame in its place is lost",
     "The sixth line of the file, at the latest, is the first frame."},
};

// Counts the oddities, and keeps the first of each kind.
class Listener final : public orvane::TRCReadObserver {
 public:
  void OnOddity(TRCOddity oddity, orvane::TRCPlace place, std::string_view text) override {
    const auto [found, is_new] = heard_.try_emplace(oddity, Heard{place, "", 0});
    if (is_new) found->second.text = text.substr(0, kLongestText);
    ++found->second.count;
  }

  std::vector<Complaint> Complaints(const std::string& file) const {
    std::vector<Complaint> complaints;
    for (const Note& note : kNotes) {
      const auto found = heard_.find(note.oddity);
      if (found == heard_.end()) continue;
      complaints.push_back({file, note.text + Details(found->second), note.advice});
    }
    return complaints;
  }

 private:
  struct Heard {
    orvane::TRCPlace place;
    std::string text;
    std::int64_t count = 0;
  };

  static constexpr std::size_t kLongestText = 40;

  static std::string Details(const Heard& heard) {
    std::string details = heard.text.empty() ? "" : ": \"" + heard.text + "\"";
    details += " (line " + FormatInt(static_cast<std::int64_t>(heard.place.line));
    if (heard.place.field > 0) {
      details += ", column " + FormatInt(static_cast<std::int64_t>(heard.place.column));
    }
    if (heard.count > 1) details += ", the first of " + FormatInt(heard.count);
    return details + ")";
  }

  std::map<TRCOddity, Heard> heard_;
};

ImportedFrames FramesOf(const orvane::TRCDocument& document, const ImportChoices& choices,
                        const host::Scene& scene) {
  const auto held = static_cast<std::int64_t>(document.MarkerAt(0)->SampleCount());
  const std::int64_t markers = document.MarkerCount();
  const std::int64_t first = document.FirstFrame();
  ImportedFrames frames;
  frames.counts = {document.NumFrames(), held, held};
  frames.announced = {first, first + document.NumFrames() - 1};
  frames.keyed = choices.Keyed(frames.announced);
  if (frames.keyed.Count() > 0) frames.end = frames.keyed.last - first + 1;
  frames.rate = document.DataRate();
  const bool for_nobody = choices.apply && choices.selected_only && scene.Selection().empty();
  frames.receivers = {"marker", for_nobody ? 0 : markers, held * markers, 1};
  return frames;
}

void RequireWholeLines(const std::string& file, const ImportedFrames& frames) {
  const auto bytes = static_cast<std::int64_t>(std::filesystem::file_size(platform::PathOf(file)));
  const std::string why = WhyTooShort(bytes, frames.keyed.Count(), frames.receivers.count);
  if (why.empty()) return;
  throw Failure{
      ExitStatus::kRefused,
      {{file, why, "Do its lines hold all columns? --range FROM:TO imports a part of them."}}};
}

}  // namespace

std::vector<Complaint> InspectTrc(const std::string& file, const ImportChoices& choices,
                                  const host::Scene& scene, const std::string& advice) {
  orvane::TRCDocument document;
  Listener listener;
  if (!document.Read(file, false, &listener).empty()) return {};
  if (document.MarkerCount() == 0) {
    throw Failure{ExitStatus::kRefused, {ComplainAbout(file, kNoMarkers)}};
  }
  const ImportedFrames frames = FramesOf(document, choices, scene);
  const std::vector<Complaint> of_frames =
      JudgeFrames(file, frames, choices, scene.Animation(), advice);
  RequireWholeLines(file, frames);
  std::vector<Complaint> complaints = listener.Complaints(file);
  complaints.insert(complaints.end(), of_frames.begin(), of_frames.end());
  return complaints;
}

}  // namespace cli
