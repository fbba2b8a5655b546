#include "inspect/check/htr_findings_observer.h"

#include <algorithm>
#include <array>
#include <cassert>
#include <string>

#include "formats/htr/sections.h"
#include "formats/text/number_faults.h"
#include "formats/text/numbers.h"
#include "formats/units/units.h"
#include "inspect/check/htr_cells.h"
#include "inspect/check/htr_oddities.h"
#include "inspect/check/htr_rules.h"
#include "inspect/check/rates.h"
#include "inspect/check/similar_words.h"
#include "inspect/check/text_encoding.h"

namespace orvane::htr {
namespace {

std::string LineHasIt(const KeptCell& cell) {
  return "line " + FormatInt(static_cast<std::int64_t>(cell.line)) + " has it";
}

// Why no motion section, or no child, can name a segment that is called `name`; empty when they
// can.
std::string WhyUnusable(std::string_view name) {
  if (name == orvane::kGlobalParent) return "Segments that name it as their parent become roots.";
  if (SectionOf(name) != HtrSection::kMotion) {
    return "Its motion section would be another section of the file.";
  }
  if (name.find(']') != std::string_view::npos) {
    return "The name of its motion section ends at the ].";
  }
  if (name.front() == '[') return "A line that starts with it is a section line.";
  return {};
}

// The special section that `name` looks like; empty when there is none.
std::string_view SectionLikelyMeant(std::string_view name) {
  constexpr std::array<std::string_view, 4> kSections = {
      orvane::kHeaderSection, orvane::kHierarchySection, orvane::kBasePositionSection,
      orvane::kEndOfFileSection};
  const auto meant =
      std::find_if(kSections.begin(), kSections.end(),
                   [name](std::string_view section) { return LooksLike(name, section); });
  return meant == kSections.end() ? std::string_view() : *meant;
}

}  // namespace

void HtrFindingsObserver::OnOddity(HtrOddity oddity, const HtrCell& cell, std::string_view field) {
  findings_.SetFirstLineBehind(IsBehindFrames(oddity) ? cell.line : 0);
  if (IsToldOfItsLine(oddity, cell, field)) return;
  Remember(oddity, cell);
  switch (oddity) {
    case HtrOddity::kLineBeforeFirstSection:
      // A mark alone, or before a comment, has been told.
      if (cell.line == 1 && cell.column == 1 && cell.text == byte_order_mark_) return;
      break;
    case HtrOddity::kUnknownSegmentSection:
      skipped_section_ = KeptCell(cell);
      return;
    case HtrOddity::kMotionOfUnknownSegment:
      ++skipped_lines_;
      return;
    case HtrOddity::kUnknownHeaderKeyword:
      return AddKeyword(cell);
    case HtrOddity::kCutNumber:
      if (field == "DataFrameRate") return AddRateCut(cell);
      break;
    case HtrOddity::kUnreadableNumber:
      if (commas_.Take(cell.text, cell)) return;  // told once for all
      break;
    case HtrOddity::kParentNotFound:
      if (linked_again_) return;  // a second base-position section looks for the same parents
      break;
    default:
      break;
  }
  AddOddity({oddity, cell, field, parts_}, findings_);
}

void HtrFindingsObserver::Remember(HtrOddity oddity, const HtrCell& cell) {
  switch (oddity) {
    case HtrOddity::kByteOrderMark:
      byte_order_mark_ = cell.text;
      break;
    case HtrOddity::kHierarchyLinkedAgain:
      linked_again_ = true;
      break;
    case HtrOddity::kRefusedHeaderValue:
    case HtrOddity::kRefusedSegmentName:
    case HtrOddity::kRefusedBasePosition:
      has_refused_ = was_stopped_ = true;
      break;
    case HtrOddity::kRefusedBasePositionCount:
      has_refused_ = true;
      break;
    default:
      break;
  }
}

bool HtrFindingsObserver::IsBehindFrames(HtrOddity oddity) const {
  switch (oddity) {
    case HtrOddity::kMissingNumber:
    case HtrOddity::kUnreadableNumber:
    case HtrOddity::kNumberOutOfBounds:
    case HtrOddity::kCutNumber:
    case HtrOddity::kExtraCells:
      return IsBehindFrames();
    default:
      return false;
  }
}

bool HtrFindingsObserver::IsBehindFrames() const {
  return segment_ != nullptr && announced_frames_ > 0 && segment_->frames > announced_frames_;
}

bool HtrFindingsObserver::IsToldOfItsLine(HtrOddity oddity, const HtrCell& cell,
                                          std::string_view field) {
  if (oddity == HtrOddity::kMissingNumber && KeywordIndex(field) == kKeywords.size()) {
    return AddEmptyCell(cell);
  }
  if (oddity != HtrOddity::kExtraCells || !StartsWithNumber(cell.text)) return false;
  findings_.Add(Rule("htr-numbers-extra"), cell, [&cell] {
    return FindingWords{
        Quote(cell.text), "the end of the line",
        "It is not read, and if a number before it is too many, those behind that are in other "
        "columns than they belong to."};
  });
  return true;
}

// Once for a line, whose last numbers are missing then.
bool HtrFindingsObserver::AddEmptyCell(const HtrCell& missing) {
  if (missing.line == line_of_empty_cell_) return true;
  const auto place = FindEmptyCell(missing);
  if (!place) return false;
  line_of_empty_cell_ = missing.line;
  findings_.Add(Rule("htr-cell-empty"), *place, [] {
    return FindingWords{"an empty cell", "a number in every cell",
                        "The values behind it are taken a column too early, and 0 where the line "
                        "ends."};
  });
  return true;
}

void HtrFindingsObserver::AddKeyword(const HtrCell& keyword) {
  const auto meant =
      std::find_if(kKeywords.begin(), kKeywords.end(),
                   [&keyword](const Keyword& each) { return LooksLike(keyword.text, each.name); });
  const bool is_misspelled = meant != kKeywords.end();
  findings_.Add(
      is_misspelled ? Rule("htr-keyword-misspelt") : Rule("htr-keyword-unknown"), keyword, [&] {
        return FindingWords{Quote(keyword.text),
                            is_misspelled ? std::string(meant->name) : "a keyword of HTR files",
                            "The line is ignored."};
      });
}

void HtrFindingsObserver::AddRateCut(const HtrCell& rate) {
  findings_.Add(Rule("htr-rate-cut"), rate, [&rate] {
    return FindingWords{.found = Quote(rate.text),
                        .expected = "a whole number for DataFrameRate",
                        .effect = EffectOfCutRate(rate.text),
                        .in_scene = EffectOfRateInHost(rate.text)};
  });
}

void HtrFindingsObserver::OnSection(HtrSection section, const HtrCell& name) {
  LeaveSection();
  switch (section) {
    case HtrSection::kHeader:
      if (!parts_.header) parts_.header = PlaceOf(name);
      return CheckHeaderPlace(name);
    case HtrSection::kHierarchy:
      if (!parts_.hierarchy) parts_.hierarchy = PlaceOf(name);
      return;
    case HtrSection::kBasePosition:
      if (!parts_.base_position) parts_.base_position = PlaceOf(name);
      ++parts_.base_sections;
      parts_.linked_segments = parts_.segments.size();
      return;
    case HtrSection::kMotion:
      return EnterMotion(name);
    case HtrSection::kEndOfFile:
      parts_.has_end = true;
      return;
  }
}

void HtrFindingsObserver::CheckHeaderPlace(const HtrCell& name) {
  if (parts_.base_sections == 0) return;
  findings_.Add(Rule("htr-header-late"), name, [] {
    return FindingWords{"[Header] behind [BasePosition]", "[Header] first",
                        "Angles stay in the unit that was in force before."};
  });
}

void HtrFindingsObserver::EnterMotion(const HtrCell& name) {
  next_frame_number_.reset();
  if (start_frame_) next_frame_number_.emplace(*start_frame_);
  const auto& announced = parts_.Value("NumFrames");
  announced_frames_ =
      announced ? static_cast<std::size_t>(std::max(ParseInt(announced->text), 0)) : 0;
  segment_ = parts_.Find(name.text);
  if (segment_ == nullptr) return;
  if (!parts_.motion) parts_.motion = PlaceOf(name);
  if (segment_->motion) {
    next_frame_number_.reset();
    findings_.Add(Rule("htr-motion-repeated"), name, [&name] {
      return FindingWords{"a second section of " + Quote(name.text), "one for every segment",
                          "Its frames are put behind those of the first."};
    });
  }
  segment_->motion = PlaceOf(name);
}

void HtrFindingsObserver::Finish() {
  LeaveSection();
  commas_.AddTo(findings_, Rule("htr-decimal-commas"));
}

void HtrFindingsObserver::LeaveSection() {
  if (skipped_section_) AddSkippedSection(*skipped_section_);
  skipped_section_.reset();
  skipped_lines_ = 0;
  segment_ = nullptr;
  findings_.SetFirstLineBehind(0);
}

void HtrFindingsObserver::AddSkippedSection(const KeptCell& name) {
  const std::string_view meant = SectionLikelyMeant(name.text);
  const bool is_misspelled = !meant.empty();
  findings_.Add(
      is_misspelled ? Rule("htr-section-misspelt") : Rule("htr-section-unknown"), name, [&] {
        return FindingWords{
            Quote(name.text),
            is_misspelled ? "[" + std::string(meant) + "]" : ExpectedSegment(name.text, parts_),
            "It is taken for the motion of an unknown segment: " + CountOf(skipped_lines_, "line") +
                " skipped."};
      });
}

void HtrFindingsObserver::OnHeaderField(const HtrCell& keyword, const HtrCell& value) {
  const std::size_t index = KeywordIndex(keyword.text);
  if (index == kKeywords.size()) return;
  std::optional<KeptCell>& last = parts_.values[index];
  if (last) {
    findings_.Add(Rule("htr-keyword-repeated"), keyword, [&] {
      return FindingWords{std::string(keyword.text) + " again", "it once; " + LineHasIt(*last),
                          "The later value counts: " + Quote(value.text) + "."};
    });
  }
  last = KeptCell(value);
  if (keyword.text == "DataFrameRate") CheckRate(value);
  if (keyword.text == "GlobalAxisofGravity") CheckGravity(value);
}

// The reader takes Z and stores it, and no importer asks for it.
void HtrFindingsObserver::CheckGravity(const HtrCell& value) {
  if (FindAxis(value.text) != orvane::kAxisZ) return;
  findings_.Add(Rule("htr-axis-ignored"), value, [&value] {
    return FindingWords{Quote(value.text), "Y",
                        "The import takes Y for up all the same: the skeleton will lie down."};
  });
}

void HtrFindingsObserver::CheckRate(const HtrCell& value) {
  const std::int32_t rate = ParseInt(value.text);
  if (!IsRate(rate)) {
    return findings_.Add(Rule("htr-rate-out-of-range"), value,
                         [&value] { return WordsOfRateOutOfRange(value.text); });
  }
  if (LastsWholeTicks(rate) || FaultOfWholeNumber(value.text) != NumberFault::kNone) return;
  findings_.Add(Rule("htr-rate-inexact"), value,
                [&value] { return WordsOfInexactRate(value.text); });
}

void HtrFindingsObserver::OnSegment(const HtrCell& name, const HtrCell& parent) {
  parts_.AddSegment(KeptCell(name), KeptCell(parent));
  CheckName(name);
}

void HtrFindingsObserver::CheckName(const HtrCell& name) {
  if (!IsUtf8(name.text)) {
    findings_.Add(Rule("htr-name-encoding"), name, [&name] {
      return FindingWords{Quote(name.text), "a name in ASCII or UTF-8",
                          "Its bytes are kept, and most programs will not show them as letters."};
    });
  }
  const std::string reason = WhyUnusable(name.text);
  if (reason.empty()) return;
  findings_.Add(Rule("htr-name-unusable"), name, [&] {
    return FindingWords{Quote(name.text),
                        "a name that can be read back: no ], no [ in front, no word of the format",
                        reason};
  });
}

void HtrFindingsObserver::OnBasePosition(const HtrCell& name) {
  ++parts_.base_lines;
  SegmentLines* segment = parts_.Find(name.text);
  if (segment == nullptr) return;
  if (segment->base_section == parts_.base_sections) {
    findings_.Add(Rule("htr-base-line-repeated"), name, [&name] {
      return FindingWords{Quote(name.text) + " again", "one line for every segment",
                          "The later line counts."};
    });
  }
  segment->base_section = parts_.base_sections;
}

void HtrFindingsObserver::OnFrame(const HtrCell& number) {
  assert(segment_ != nullptr);
  ++segment_->frames;
  if (segment_->frames > announced_frames_) {
    findings_.SetFirstLineBehind(IsBehindFrames() ? number.line : 0);
  }
  if (next_frame_number_ && next_frame_number_->IsWrittenAs(number.text)) {
    return next_frame_number_->Advance();
  }
  CheckFrameNumber(number);
}

void HtrFindingsObserver::CheckFrameNumber(const HtrCell& number) {
  const char* const end = number.text.data() + number.text.size();
  const bool is_number =
      IsPlainDecimal(number.text) || ReadDouble(number.text.data(), end).end == end;
  const std::int64_t value =
      is_number || !next_frame_number_ ? ParseInt(number.text) : next_frame_number_->Value();
  if (!start_frame_) start_frame_ = value;
  if (next_frame_number_ && value != next_frame_number_->Value()) {
    findings_.Add(Rule("htr-frame-number"), number, [&] {
      return FindingWords{Quote(number.text), FormatInt(next_frame_number_->Value()),
                          "The number is ignored: frames follow each other as their lines do."};
    });
  }
  next_frame_number_.emplace(value + 1);
}

}  // namespace orvane::htr
