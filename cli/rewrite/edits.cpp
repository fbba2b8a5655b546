#include "cli/rewrite/edits.h"

#include <algorithm>
#include <limits>
#include <map>
#include <numeric>
#include <set>

#include "cli/common/cut_frames.h"
#include "cli/common/failure.h"
#include "cli/common/input.h"
#include "formats/edit/frame_cut.h"
#include "formats/edit/lengths.h"
#include "formats/edit/renaming.h"
#include "formats/edit/resampling.h"
#include "formats/edit/selection.h"
#include "formats/edit/tidying.h"
#include "formats/edit/up_axis.h"
#include "formats/mnm/mapping_lines.h"
#include "formats/text/numbers.h"
#include "formats/units/units.h"
#include "inspect/check/similar_words.h"
#include "inspect/summary/subject_measure.h"

namespace cli {
namespace {

using orvane::FrameRate;
using orvane::FrameSpan;
using orvane::FrameStep;
using orvane::HtrDocument;
using orvane::TRCDocument;

using Names = std::vector<std::string>;

Failure Refused(const std::string& file, const std::string& text, const std::string& advice) {
  return {ExitStatus::kRefused, {{file, text, advice}}};
}

Names NamesIn(const HtrDocument& document) { return document.GetSegmentNames(); }
Names NamesIn(const TRCDocument& document) {
  Names names;
  names.reserve(document.MarkerCount());
  for (const orvane::TRCMarker& marker : document.markers()) names.push_back(marker.Name());
  return names;
}

void Select(const HtrDocument& source, const std::set<std::string>& names, HtrDocument& target) {
  SelectSegments(source, names, target);
}
void Select(const TRCDocument& source, const std::set<std::string>& names, TRCDocument& target) {
  SelectMarkers(source, names, target);
}

void ResampleTo(const HtrDocument& source, const FrameStep& step, const RewriteOrder& order,
                HtrDocument& target) {
  Resample(source, step, order.resampling.value_or(orvane::RotationPath::kLinear), target);
}
void ResampleTo(const TRCDocument& source, const FrameStep& step, const RewriteOrder& /*order*/,
                TRCDocument& target) {
  Resample(source, step, target);
}

void TidyUp(EditedFile<HtrDocument>& file) { Tidy(*file.document); }

// Frames at the end that do not count are none.
void TidyUp(EditedFile<TRCDocument>& file) {
  const std::size_t count = orvane::FramesThatCount(*file.document);
  if (count > 0 && static_cast<std::int64_t>(count) < FramesHeld(*file.document).Count()) {
    auto shorter = std::make_unique<TRCDocument>();
    CutFrames(*file.document, 0, count, *shorter);
    file.document = std::move(shorter);
  }
  file.document->SetNumFrames(static_cast<std::int32_t>(count));
}

std::uint32_t UnitOf(const HtrDocument& document) { return document.GetCalibrationUnits(); }
std::uint32_t UnitOf(const TRCDocument& document) {
  return static_cast<std::uint32_t>(document.Units());
}

void SetFirstFrame(HtrDocument& document, std::int32_t number) { document.SetStartFrame(number); }
void SetFirstFrame(TRCDocument& document, std::int32_t number) { document.SetFirstFrame(number); }

std::int32_t RateOf(const HtrDocument& document) { return document.GetDataFrameRate(); }
std::int32_t RateOf(const TRCDocument& document) { return document.DataRate(); }

void SetRate(HtrDocument& document, std::int32_t rate) { document.SetDataFrameRate(rate); }
void SetRate(TRCDocument& document, std::int32_t rate) { document.SetDataRate(rate); }

void TurnUp(HtrDocument& document, UpAxis up) {
  if (up == UpAxis::kZ) TurnZUp(document);
  document.SetGlobalAxisofGravity(orvane::kAxisY);
}
void TurnUp(TRCDocument& document, UpAxis up) {
  if (up == UpAxis::kZ) TurnZUp(document);
}

bool SaysZUp(const HtrDocument& document) {
  return document.GetGlobalAxisofGravity() == orvane::kAxisZ;
}
bool SaysZUp(const TRCDocument& /*document*/) { return false; }

bool IsIn(const Names& names, const std::string& name) {
  return std::find(names.begin(), names.end(), name) != names.end();
}

// A name may hold commas itself.
Names SplitUnlessKnown(const Names& texts, const Names& known) {
  Names names;
  for (const std::string& text : texts) {
    if (IsIn(known, text)) {
      names.push_back(text);
      continue;
    }
    for (std::size_t begin = 0; begin <= text.size();) {
      const std::size_t end = std::min(text.find(',', begin), text.size());
      names.push_back(text.substr(begin, end - begin));
      begin = end + 1;
    }
  }
  return names;
}

// The names that a mapping file gives others: its first entry of each.
std::map<std::string, std::string> NamesInMapping(const std::string& path) {
  std::map<std::string, std::string> names;
  const std::string bytes = FileBytes(path);
  orvane::MappingLineReader lines(bytes);
  orvane::MappingLine line;
  while (lines.Next(line)) {
    if (!line.trc_name.empty()) names.emplace(line.trc_name, line.standard_name);
  }
  return names;
}

// The step from frame to frame between the two rates. Throws a Failure about `file` when one of
// them has too many digits.
FrameStep StepBetween(const FrameRate& old_rate, const FrameRate& new_rate,
                      const std::string& file) {
  constexpr auto kMost = static_cast<double>(std::int64_t{1} << 62U);
  constexpr std::int64_t kLargest = std::numeric_limits<std::int32_t>::max();
  const auto product = [](std::int64_t left, std::int64_t right) {
    return static_cast<double>(left) * static_cast<double>(right);
  };
  if (product(old_rate.numerator, new_rate.denominator) < kMost &&
      product(old_rate.denominator, new_rate.numerator) < kMost) {
    FrameStep step{old_rate.numerator * new_rate.denominator,
                   old_rate.denominator * new_rate.numerator};
    const std::int64_t common = std::gcd(step.numerator, step.denominator);
    step = {step.numerator / common, step.denominator / common};
    if (step.numerator <= kLargest && step.denominator <= kLargest) return step;
  }
  throw Refused(file, "its frame rate and --rate have too many digits to be compared", "");
}

// The gaps that are left are of no account to motion.
void TellOfGaps(const HtrDocument& /*document*/, orvane::RewriteCircumstances& /*told*/) {}
void TellOfGaps(const TRCDocument& document, orvane::RewriteCircumstances& told) {
  const auto frames = static_cast<std::size_t>(FramesHeld(document).Count());
  const auto all = document.Gaps();
  for (std::size_t index = 0; index < all.size(); ++index) {
    if (all[index].empty()) continue;
    const orvane::TRCMarker::Gap& first = all[index].front();
    const bool is_seen = first.begin > 0 || first.end < frames;
    (is_seen ? told.with_gaps : told.never_seen).push_back(document.MarkerAt(index)->Name());
  }
}

template <typename Document>
class Editing {
 public:
  Editing(EditedFile<Document>& file, const RewriteOrder& order) : file_(file), order_(order) {}

  void Run() {
    if (order_.cut) Cut(*order_.cut);
    TidyUp(file_);
    if (!order_.selection.empty()) SelectNames();
    if (!file_.circumstances.unselected.empty()) return;
    RenameAll();
    if (order_.unit) ConvertTo(*order_.unit);
    if (order_.up) Turn(*order_.up);
    if (!order_.rate.empty()) ChangeRate();
    if (order_.start_frame) SetFirstFrame(*file_.document, *order_.start_frame);
    if (order_.start_time) file_.first_time = *order_.start_time;
    RequireNumbers();
    if (TakesPart(order_)) TellOfGaps(*file_.document, file_.circumstances);
  }

 private:
  // Has `make` fill a new document from the one that is there, and takes that in its place.
  template <typename Make>
  void Remake(const Make& make) {
    auto made = std::make_unique<Document>();
    make(*file_.document, *made);
    file_.document = std::move(made);
  }

  void Cut(const FrameSpan& asked) {
    const FrameSpan held = FramesHeld(*file_.document);
    const FrameSpan frames = Overlap(asked, held);
    if (frames.IsEmpty()) {
      throw Failure{ExitStatus::kRefused, {ComplainAboutCut(file_.name, asked, held)}};
    }
    Remake([&](const Document& source, Document& target) {
      CutFrames(source, static_cast<std::size_t>(frames.first - held.first),
                static_cast<std::size_t>(frames.last - held.first + 1), target);
    });
    const double rate = orvane::ParseDouble(RateText());
    const auto skipped = static_cast<double>(frames.first - held.first);
    if (rate > 0) file_.first_time += skipped / rate;
  }

  [[nodiscard]] std::string RateText() const {
    return file_.rates.data.empty() ? orvane::FormatInt(RateOf(*file_.document)) : file_.rates.data;
  }

  void SelectNames() {
    const Names known = NamesIn(*file_.document);
    const Names wanted = SplitUnlessKnown(order_.selection, known);
    for (const std::string& name : wanted) {
      if (IsIn(known, name)) continue;
      file_.circumstances.unselected.push_back(
          {name, std::string(orvane::MostSimilar(name, known))});
    }
    if (!file_.circumstances.unselected.empty()) return;
    const std::set<std::string> selected(wanted.begin(), wanted.end());
    Remake([&selected](const Document& source, Document& target) {
      Select(source, selected, target);
    });
    for (const std::string& name : NamesIn(*file_.document)) {
      if (!selected.contains(name)) file_.circumstances.ancestors.push_back(name);
    }
  }

  void RenameAll() {
    std::map<std::string, std::string> names;
    if (!order_.mapping.empty()) names = NamesInMapping(order_.mapping);
    for (const auto& [old_name, new_name] : order_.renames) names[old_name] = new_name;
    if (names.empty()) return;
    const Names known = NamesIn(*file_.document);
    for (const auto& [old_name, new_name] : names) {
      if (!IsIn(known, old_name)) file_.circumstances.unrenamed.push_back(old_name);
    }
    const std::string why = Rename(*file_.document, names);
    if (!why.empty()) throw Refused(file_.name, "--rename cannot be done: " + why, "");
  }

  void ConvertTo(std::uint32_t code) {
    const std::uint32_t unit = UnitOf(*file_.document);
    const auto is_of_feet = [](std::uint32_t each) {
      return orvane::CalibrationUnitsName(each) == "ft" ||
             orvane::CalibrationUnitsName(each) == "yd";
    };
    if (unit != code && (is_of_feet(unit) || is_of_feet(code))) {
      file_.circumstances.feet = "from " + std::string(orvane::CalibrationUnitsName(unit)) +
                                 " to " + std::string(orvane::CalibrationUnitsName(code));
    }
    ConvertLengths(*file_.document, code);
  }

  void Turn(UpAxis up) {
    if (up == UpAxis::kZ && !SaysZUp(*file_.document)) {
      const auto subject = MeasureSubject(*file_.document);
      file_.circumstances.stands_along_y = subject && SeemsToStandAlongY(*subject);
    }
    TurnUp(*file_.document, up);
  }

  void ChangeRate() {
    const std::string old_text = RateText();
    const auto old_rate = orvane::ParseFrameRate(old_text);
    if (!old_rate) throw Refused(file_.name, "it has no frame rate that --rate could change", "");
    const FrameStep step = StepBetween(*old_rate, *orvane::ParseFrameRate(order_.rate), file_.name);
    if (!step.IsWhole() && !order_.resampling) {
      throw Refused(
          file_.name,
          "--rate " + order_.rate + " is no whole part of its " + old_text + " frames per second",
          "--resample linear lets frames lie between those of the file; a half or a "
          "third of its rate needs none.");
    }
    RequireSensible(step);
    Remake([&](const Document& source, Document& target) {
      ResampleTo(source, step, order_, target);
    });
    TellOfFramesBetween(step);
    if (file_.rates.original.empty()) file_.rates.original = old_text;
    file_.rates.data = order_.rate;
    SetRate(*file_.document, orvane::ParseInt(order_.rate));
  }

  void RequireSensible(const FrameStep& step) const {
    constexpr double kMostFrames = 10'000'000;
    const double frames = static_cast<double>(FramesHeld(*file_.document).Count()) *
                          static_cast<double>(step.denominator) /
                          static_cast<double>(step.numerator);
    if (frames <= kMostFrames) return;
    throw Refused(file_.name, "--rate would make more than 10,000,000 frames of it", "");
  }

  void TellOfFramesBetween(const FrameStep& step) {
    if (step.IsWhole()) return;
    const auto count = static_cast<std::size_t>(FramesHeld(*file_.document).Count());
    const std::size_t of_the_file = (count + static_cast<std::size_t>(step.denominator) - 1) /
                                    static_cast<std::size_t>(step.denominator);
    const bool is_slerp = order_.resampling == orvane::RotationPath::kSlerp;
    constexpr bool kHasRotations = std::is_same_v<Document, HtrDocument>;
    file_.circumstances.resampled = orvane::ResampledFrames{
        count, count - of_the_file,
        kHasRotations && is_slerp ? "linearly, rotations by slerp" : "linearly", kHasRotations};
  }

  // Frames of a file have numbers of 32 bits.
  void RequireNumbers() const {
    const FrameSpan frames = FramesHeld(*file_.document);
    if (frames.last <= std::numeric_limits<std::int32_t>::max()) return;
    throw Refused(file_.name, "its frames would have numbers that no file can hold",
                  "--start-frame gives others.");
  }

  EditedFile<Document>& file_;
  const RewriteOrder& order_;
};

}  // namespace

void Edit(EditedFile<HtrDocument>& file, const RewriteOrder& order) {
  Editing<HtrDocument>(file, order).Run();
}

void Edit(EditedFile<TRCDocument>& file, const RewriteOrder& order) {
  Editing<TRCDocument>(file, order).Run();
}

}  // namespace cli
