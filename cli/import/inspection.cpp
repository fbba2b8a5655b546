#include "cli/import/inspection.h"

#include "cli/common/cut_frames.h"
#include "cli/common/input.h"
#include "cli/common/input_source.h"
#include "cli/common/known_messages.h"
#include "cli/common/scratch_copy.h"
#include "cli/import/application.h"
#include "cli/import/keyed_segments.h"
#include "formats/htr/reader.h"
#include "formats/trc/document.h"
#include "formats/units/units.h"
#include "host/animation/animation_state.h"
#include "inspect/check/checked_file.h"
#include "inspect/check/htr_check.h"
#include "inspect/check/rates.h"
#include "inspect/check/trc_check.h"
#include "inspect/counts/proportion.h"
#include "inspect/report/cut_check.h"
#include "inspect/summary/frame_rate.h"
#include "inspect/summary/marker_size.h"
#include "platform/path_text.h"

namespace cli {
namespace {

using orvane::CountFrames;
using orvane::kHighestRate;
using orvane::kLowestRate;

// What is told of a file's rate holds for the scene that the program makes of it.
static_assert(kLowestRate == host::kMinimumFrameRate && kHighestRate == host::kMaximumFrameRate);

ImportedFrames FramesOf(orvane::HtrDocument& document, const ImportChoices& choices,
                        const host::Scene& scene) {
  ImportedFrames frames;
  frames.counts = CountFrames(document);
  const std::int64_t first = document.GetStartFrame();
  frames.announced = {first, first + frames.counts.announced - 1};
  frames.keyed = choices.Keyed(frames.announced);
  // Whatever frame a range starts at, the file's are taken from the first one on.
  frames.end = frames.keyed.Count();
  frames.rate = document.GetDataFrameRate();
  std::int64_t held = 0;
  for (const orvane::HtrSegment& segment : document.segments()) {
    held += static_cast<std::int64_t>(segment.GetNumFrames());
  }
  constexpr std::int64_t kPositionAndRotation = 2;
  frames.receivers = {"segment", CountKeyedSegments(document, choices.apply, scene), held,
                      kPositionAndRotation};
  return frames;
}

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

// A second section of base positions lists every segment once more among its parent's children.
bool ListsSegmentsAgain(const orvane::HtrDocument& document) {
  std::int64_t children = 0;
  std::int64_t listed = 0;
  for (const orvane::HtrSegment& segment : document.segments()) {
    if (segment.GetParent() != nullptr) ++children;
    listed += segment.GetNumChildren();
  }
  return listed != children;
}

// Whether there is nothing in the file, which is told, to import or to cut.
bool IsBare(const orvane::HtrDocument& document) { return document.segments().empty(); }
bool IsBare(const orvane::TRCDocument& document) { return document.MarkerCount() == 0; }

// What reading a file with or without its check comes to.
struct Read {
  orvane::CheckedFile checked;
  bool is_refused = false;
};

Read ReadInto(orvane::HtrDocument& document, const std::string& file, orvane::ByteSource& source,
              bool is_checked) {
  if (!is_checked) return {{}, !orvane::ReadHtrFrom(document, source, true).empty()};
  orvane::CheckedFile checked = orvane::CheckHtr(file, source, document);
  const bool is_refused = !checked.refusal.empty();
  return {std::move(checked), is_refused};
}

Read ReadInto(orvane::TRCDocument& document, const std::string& file, orvane::ByteSource& source,
              bool is_checked) {
  if (!is_checked) return {{}, !document.ReadFrom(source, false).empty()};
  orvane::CheckedFile checked = orvane::CheckTrc(file, source, document);
  const bool is_refused = !checked.refusal.empty();
  return {std::move(checked), is_refused};
}

std::optional<host::Rate> HostRate(const std::optional<orvane::FrameRate>& rate) {
  if (!rate) return std::nullopt;
  return host::Rate{rate->numerator, rate->denominator};
}

std::string NameOfFile(const std::string& file) {
  return platform::TextOf(platform::PathOf(file).filename());
}

host::Recording RecordingOf(const orvane::HtrDocument& document, const InputFile& file) {
  InputSource source(file);
  return {HostRate(orvane::FrameRateOfHtr(source)), document.GetStartFrame(),
          std::string(orvane::CalibrationUnitsName(document.GetCalibrationUnits())),
          NameOfFile(file.name)};
}

host::Recording RecordingOf(const orvane::TRCDocument& document, const InputFile& file) {
  InputSource source(file);
  const auto unit = static_cast<std::uint32_t>(document.Units());
  return {HostRate(orvane::FrameRateOfTrc(source)), document.FirstFrame(),
          std::string(orvane::CalibrationUnitsName(unit)), NameOfFile(file.name)};
}

using Codes = std::vector<std::string_view>;

class Inspecting {
 public:
  Inspecting(const InputFile& file, const ImportChoices& choices, const host::Scene& scene)
      : file_(file), choices_(choices), scene_(scene) {}

  template <typename Document>
  Inspection Run(bool is_checked, const std::string& advice) {
    InputSource source(file_);
    Document document;
    Read read = ReadInto(document, file_.name, source, is_checked);
    result_.checked = std::move(read.checked);
    if (!read.is_refused) Change(document);
    if (!read.is_refused && !result_.refusal) {
      result_.recording = RecordingOf(document, file_);
      result_.recording->turned_up = choices_.turned_up;
      Judge(document, source.Size(), advice);
      if (choices_.apply) result_.applied = DescribeFile(document);
      result_.samples = SamplesIn(document);
      if (!choices_.apply) result_.marker_size = SizeFor(document);
    }
    return std::move(result_);
  }

 private:
  // What is odd has been looked for in the file as it is. As the reader takes that, it takes what
  // is made of it.
  template <typename Document>
  void Change(Document& document) {
    if (choices_.cut && !IsBare(document)) Cut(document);
    if (result_.refusal || !choices_.turned_up) return;
    if (result_.changed.empty()) result_.changed = FileBytes(file_);
    result_.changed = TurnedUp(file_.name, result_.changed);
    ReadChanged(document);
  }

  template <typename Document>
  void ReadChanged(Document& document) {
    orvane::MemorySource source(result_.changed);
    (void)ReadInto(document, file_.name, source, false);
  }

  template <typename Document>
  void Cut(Document& document) {
    const orvane::FrameSpan held = FramesHeld(document);
    CheckCut(*choices_.cut, held, result_.checked);
    const orvane::FrameSpan frames = Overlap(*choices_.cut, held);
    if (frames.IsEmpty()) {
      return Refuse(ComplainAboutCut(file_.name, *choices_.cut, held), {"cut-range-outside"});
    }
    result_.changed = CutOut(file_.name, FileBytes(file_), document, frames);
    ReadChanged(document);
  }

  static std::optional<MarkerSamples> SamplesIn(const orvane::HtrDocument& /*document*/) {
    return {};
  }
  static std::optional<MarkerSamples> SamplesIn(const orvane::TRCDocument& document) {
    return SamplesOf(document);
  }

  static std::optional<double> SizeFor(const orvane::HtrDocument& /*document*/) { return {}; }

  [[nodiscard]] std::optional<double> SizeFor(const orvane::TRCDocument& document) const {
    return orvane::ChooseMarkerSize(document, choices_.scale);
  }

  void Judge(orvane::HtrDocument& document, std::size_t /*bytes*/, const std::string& advice) {
    if (IsBare(document)) return;  // which the plug-in tells
    constexpr const char* kListedAgain =
        "[BasePosition] comes again, so that segments are listed more than once.";
    const ImportedFrames frames = FramesOf(document, choices_, scene_);
    JudgeAll(frames, {"htr-frames-too-many", "htr-frame-count"},
             ListsSegmentsAgain(document) ? kListedAgain : advice);
    if (choices_.apply || result_.refusal) return;
    const std::string why =
        orvane::WhyListedTooOften(document.GetNumSegments(), frames.receivers.count);
    if (!why.empty()) Refuse({file_.name, why, kListedAgain}, {});
  }

  void Judge(const orvane::TRCDocument& document, std::size_t bytes, const std::string& advice) {
    if (IsBare(document)) {
      return Refuse(ComplainAbout(file_.name, kNoMarkers), {"trc-markers-missing"});
    }
    const ImportedFrames frames = FramesOf(document, choices_, scene_);
    JudgeAll(frames, {"trc-frames-too-many", "trc-frame-count"}, advice);
    const std::string why = orvane::WhyTooShort(static_cast<std::int64_t>(bytes),
                                                frames.keyed.Count(), frames.receivers.count);
    if (result_.refusal || why.empty()) return;
    Refuse(
        {file_.name, why, "Do its lines hold all columns? --range FROM:TO imports a part of them."},
        {});
  }

  void JudgeAll(const ImportedFrames& frames, const Codes& codes, const std::string& advice) {
    result_.frames = frames;
    const FramesVerdict verdict = JudgeFrames(file_.name, frames, choices_, scene_.Animation());
    result_.asked = verdict.asked;
    if (verdict.lost) result_.complaints.push_back(*verdict.lost);
    if (!verdict.excess.empty()) Refuse({file_.name, verdict.excess, advice}, codes);
  }

  void Refuse(Complaint refusal, const Codes& codes) {
    result_.refusal = std::move(refusal);
    result_.refused_codes = codes;
  }

  const InputFile& file_;
  const ImportChoices& choices_;
  const host::Scene& scene_;
  Inspection result_;
};

}  // namespace

Inspection Inspect(const InputFile& file, FileKind kind, const ImportChoices& choices,
                   const host::Scene& scene, const std::string& advice, bool is_checked) {
  Inspecting inspecting(file, choices, scene);
  try {
    return kind == FileKind::kTrc ? inspecting.Run<orvane::TRCDocument>(is_checked, advice)
                                  : inspecting.Run<orvane::HtrDocument>(is_checked, advice);
  } catch (const orvane::CheckFailure& failure) {
    throw Failure{ExitStatus::kInputOutput, {{file.name, failure.what(), failure.Advice()}}};
  }
}

}  // namespace cli
