#include "inspect/check/htr_watcher.h"

#include <algorithm>
#include <array>

#include "formats/text/numbers.h"
#include "formats/units/units.h"
#include "inspect/check/htr_rules.h"
#include "inspect/check/htr_values.h"
#include "inspect/check/rates.h"
#include "inspect/check/similar_words.h"

namespace orvane::htr {
namespace {

constexpr const char* kRefused = "The import refuses the file; the rest of it is not checked.";

// Oddities of which there is the same to say wherever they stand.
struct PlainOddity {
  HtrOddity oddity;
  FindingRule rule;
  const char* found;  // null: the text itself
  const char* expected;
  const char* effect;
};

constexpr std::array<PlainOddity, 18> kPlainOddities = {{
    {HtrOddity::kByteOrderMark, Rule("htr-byte-order-mark"), "a byte-order mark",
     "text without one, in ASCII or UTF-8", "It belongs to the first line, which does not count."},
    {HtrOddity::kHiddenByNul, Rule("htr-nul"), "a NUL byte", "text",
     "The rest of its line is not read."},
    {HtrOddity::kLongLine, Rule("htr-line-cut"), "a line of more than 10239 bytes", "shorter lines",
     "It is read as several lines, of which the second starts here."},
    {HtrOddity::kCarriageReturn, Rule("htr-carriage-return"), "a carriage return inside a line",
     "LF or CR LF where lines end", "It is read as a part of the line."},
    {HtrOddity::kCommentInWord, Rule("htr-comment-in-word"), nullptr, "a blank before a comment",
     "The line ends here, and with it the word before the #."},
    {HtrOddity::kLineBeforeFirstSection, Rule("htr-line-before-section"), nullptr, "[Header] first",
     "The line is ignored."},
    {HtrOddity::kLineAfterEnd, Rule("htr-after-end"), nullptr, "nothing after [EndOfFile]",
     "It is ignored, with all that follows."},
    {HtrOddity::kExtraCells, Rule("htr-cells-extra"), nullptr, "the end of the line",
     "It is ignored."},
    {HtrOddity::kIndentedSection, Rule("htr-section-indented"), nullptr,
     "[ as the first character of a section line",
     "It is taken for a line of the section that it stands in."},
    {HtrOddity::kUnclosedSection, Rule("htr-section-unclosed"), nullptr, "] behind the name",
     "The name ends with the line."},
    {HtrOddity::kTextAfterSection, Rule("htr-section-text"), nullptr, "the end of the line",
     "It is ignored."},
    {HtrOddity::kExtraHeaderWords, Rule("htr-value-extra"), nullptr, "a keyword and one value",
     "It is ignored: the last word of the line is the value."},
    {HtrOddity::kUnknownCalibrationUnits, Rule("htr-length-unit-unknown"), nullptr,
     "mm, cm, m, in, ft or yd, or the same in capitals", "Millimetres are taken."},
    {HtrOddity::kUnknownRotationUnits, Rule("htr-angle-unit-unknown"), nullptr,
     "Degrees or Radians", "Degrees are taken."},
    {HtrOddity::kUnknownAxis, Rule("htr-axis-unknown"), nullptr, "Y or Z", "Y is taken."},
    {HtrOddity::kExtraHierarchyWords, Rule("htr-name-in-words"), nullptr,
     "a name and its parent, without blanks",
     "It is ignored: the first word of the line is the name, the last one its parent."},
    {HtrOddity::kHierarchyLinkedAgain, Rule("htr-base-repeated"), "a second [BasePosition]", "one",
     "Every segment is listed once more among its parent's children; a file that does so over and "
     "over is refused."},
    {HtrOddity::kHierarchyLeftUnlinked, Rule("htr-base-links-stopped"),
     "[BasePosition] over and over", "one", "The hierarchy is linked no more."},
}};

}  // namespace

void HtrWatcher::OnOddity(HtrOddity oddity, const HtrCell& cell, std::string_view field) {
  if (oddity == HtrOddity::kHierarchyLinkedAgain) linked_again_ = true;
  if (oddity == HtrOddity::kByteOrderMark) byte_order_mark_ = cell.text;
  // A mark alone, or before a comment, has been told.
  if (oddity == HtrOddity::kLineBeforeFirstSection && cell.text.data() == byte_order_mark_.data() &&
      cell.text == byte_order_mark_)
    return;
  if (AddPlain(oddity, cell)) return;
  switch (oddity) {
    case HtrOddity::kMissingNumber:
    case HtrOddity::kUnreadableNumber:
    case HtrOddity::kCutNumber:
    case HtrOddity::kNumberOutOfBounds:
      return AddNumber(oddity, cell, field);
    case HtrOddity::kUnknownSegmentSection:
      skipped_section_ = cell;
      return;
    case HtrOddity::kMotionOfUnknownSegment:
      ++skipped_lines_;
      return;
    case HtrOddity::kUnknownHeaderKeyword:
      return AddKeyword(cell);
    case HtrOddity::kParentNotFound:
      return AddParentUnknown(cell);
    case HtrOddity::kSegmentCountMismatch:
      return AddHierarchyCount(cell);
    case HtrOddity::kRefusedHeaderValue:
      return AddRefusedValue(cell, field);
    case HtrOddity::kRefusedSegmentName:
      return AddNameTaken(cell);
    case HtrOddity::kRefusedBasePosition:
      return AddBaseNameUnknown(cell);
    case HtrOddity::kRefusedBasePositionCount:
      return AddSegmentCount(cell);
    default:
      return;
  }
}

bool HtrWatcher::AddPlain(HtrOddity oddity, const HtrCell& cell) {
  const auto plain =
      std::find_if(kPlainOddities.begin(), kPlainOddities.end(),
                   [oddity](const PlainOddity& each) { return each.oddity == oddity; });
  if (plain == kPlainOddities.end()) return false;
  if (Finding* finding = Add(plain->rule, cell)) {
    finding->found = plain->found == nullptr ? Quote(cell.text) : plain->found;
    finding->expected = plain->expected;
    finding->effect = plain->effect;
  }
  return true;
}

void HtrWatcher::AddNumber(HtrOddity oddity, const HtrCell& cell, std::string_view field) {
  if (oddity == HtrOddity::kNumberOutOfBounds && MayBeSoLarge(cell.text, field)) return;
  const bool is_rate = field == "DataFrameRate" && oddity == HtrOddity::kCutNumber;
  if (Finding* finding = Add(is_rate ? Rule("htr-rate-cut") : NumberRule(oddity), cell)) {
    finding->found = Quote(cell.text);
    finding->expected = ExpectedNumber(oddity, field);
    finding->effect = is_rate ? EffectOfCutRate(cell.text) : EffectOfNumber(cell.text, field);
  }
}

void HtrWatcher::AddKeyword(const HtrCell& keyword) {
  const auto meant =
      std::find_if(kKeywords.begin(), kKeywords.end(),
                   [&keyword](const Keyword& each) { return LooksLike(keyword.text, each.name); });
  const bool is_misspelt = meant != kKeywords.end();
  if (Finding* finding =
          Add(is_misspelt ? Rule("htr-keyword-misspelt") : Rule("htr-keyword-unknown"), keyword)) {
    finding->found = Quote(keyword.text);
    finding->expected = is_misspelt ? std::string(meant->name) : "a keyword of HTR files";
    finding->effect = "The line is ignored.";
  }
}

// A second base-position section looks for the same parents again.
void HtrWatcher::AddParentUnknown(const HtrCell& parent) {
  if (linked_again_) return;
  if (Finding* finding = Add(Rule("htr-parent-unknown"), parent)) {
    finding->found = Quote(parent.text);
    finding->expected = "GLOBAL or " + KnownSegments(parent.text);
    finding->effect = "The segment has no parent: a new skeleton goes without it and its children.";
  }
}

void HtrWatcher::AddHierarchyCount(const HtrCell& section) {
  const auto& announced = parts_.Value("NumSegments");
  if (Finding* finding = Add(Rule("htr-hierarchy-count"), announced.value_or(section))) {
    finding->found = CountOf(parts_.segments.size(), "line") + " in [SegmentNames&Hierarchy]";
    finding->expected = AnnouncedSegments();
    finding->effect =
        "The import takes the lines that are there; only those of [BasePosition] must be "
        "as many as announced.";
  }
}

void HtrWatcher::AddSegmentCount(const HtrCell& end) {
  has_refused_ = true;
  const auto& announced = parts_.Value("NumSegments");
  if (Finding* finding = Add(Rule("htr-segment-count"), announced.value_or(end))) {
    finding->found = CountOf(parts_.base_lines, "line") + " in [BasePosition]";
    finding->expected = AnnouncedSegments();
    finding->effect = "The import refuses the file.";
  }
}

std::string HtrWatcher::AnnouncedSegments() const {
  const auto& announced = parts_.Value("NumSegments");
  const std::int32_t count = announced ? ParseInt(announced->text) : 0;
  return FormatInt(count) + (announced ? ", as NumSegments says" : ", as NumSegments is missing");
}

void HtrWatcher::AddRefusedValue(const HtrCell& value, std::string_view keyword) {
  has_refused_ = was_stopped_ = true;
  if (Finding* finding = Add(Rule("htr-value-refused"), value)) {
    finding->found = Quote(value.text);
    finding->expected =
        std::string(kKeywords[KeywordIndex(keyword)].values) + " for " + std::string(keyword);
    finding->effect = kRefused;
  }
}

void HtrWatcher::AddNameTaken(const HtrCell& name) {
  has_refused_ = was_stopped_ = true;
  if (Finding* finding = Add(Rule("htr-name-taken"), name)) {
    const SegmentLines* first = parts_.Find(name.text);
    finding->found = Quote(name.text) + " again";
    finding->expected = "a name of its own for every segment";
    if (first != nullptr) {
      finding->expected +=
          "; line " + FormatInt(static_cast<std::int64_t>(first->name.line)) + " has it";
    }
    finding->effect = kRefused;
  }
}

void HtrWatcher::AddBaseNameUnknown(const HtrCell& name) {
  has_refused_ = was_stopped_ = true;
  if (Finding* finding = Add(Rule("htr-base-name-unknown"), name)) {
    finding->found = Quote(name.text);
    finding->expected = KnownSegments(name.text);
    finding->effect = kRefused;
  }
}

std::string HtrWatcher::KnownSegments(std::string_view name) const {
  for (const SegmentLines& segment : parts_.segments) {
    if (LooksLike(name, segment.name.text)) return Quote(segment.name.text);
  }
  return "a segment of the hierarchy";
}

void HtrWatcher::OnSection(HtrSection section, const HtrCell& name) {
  LeaveSection();
  switch (section) {
    case HtrSection::kHeader:
      if (!parts_.header) parts_.header = name;
      return CheckHeaderPlace(name);
    case HtrSection::kHierarchy:
      if (!parts_.hierarchy) parts_.hierarchy = name;
      return;
    case HtrSection::kBasePosition:
      if (!parts_.base_position) parts_.base_position = name;
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

void HtrWatcher::CheckHeaderPlace(const HtrCell& name) {
  if (parts_.base_sections == 0) return;
  if (Finding* finding = Add(Rule("htr-header-late"), name)) {
    finding->found = "[Header] behind [BasePosition]";
    finding->expected = "[Header] first";
    finding->effect = "Angles stay in the unit that was in force before.";
  }
}

void HtrWatcher::EnterMotion(const HtrCell& name) {
  next_frame_number_ = start_frame_;
  segment_ = parts_.Find(name.text);
  if (segment_ == nullptr) return;
  if (!parts_.motion) parts_.motion = name;
  if (segment_->motion) {
    next_frame_number_.reset();
    if (Finding* finding = Add(Rule("htr-motion-repeated"), name)) {
      finding->found = "a second section of " + Quote(name.text);
      finding->expected = "one for every segment";
      finding->effect = "Its frames are put behind those of the first.";
    }
  }
  segment_->motion = name;
}

void HtrWatcher::LeaveSection() {
  if (skipped_section_) AddSkippedSection(*skipped_section_);
  skipped_section_.reset();
  skipped_lines_ = 0;
  segment_ = nullptr;
}

void HtrWatcher::AddSkippedSection(const HtrCell& name) {
  const std::string_view meant = SectionLikelyMeant(name.text);
  if (Finding* finding =
          Add(meant.empty() ? Rule("htr-section-unknown") : Rule("htr-section-misspelt"), name)) {
    finding->found = Quote(name.text);
    finding->expected = meant.empty() ? KnownSegments(name.text) : "[" + std::string(meant) + "]";
    finding->effect =
        "It is taken for the motion of an unknown segment: " + CountOf(skipped_lines_, "line") +
        " skipped.";
  }
}

void HtrWatcher::OnHeaderField(const HtrCell& keyword, const HtrCell& value) {
  const std::size_t index = KeywordIndex(keyword.text);
  if (index == kKeywords.size()) return;
  std::optional<HtrCell>& last = parts_.values[index];
  if (last) {
    if (Finding* finding = Add(Rule("htr-keyword-repeated"), keyword)) {
      finding->found = std::string(keyword.text) + " again";
      finding->expected =
          "it once; line " + FormatInt(static_cast<std::int64_t>(last->line)) + " has it";
      finding->effect = "The later value counts: " + Quote(value.text) + ".";
    }
  }
  last = value;
  if (keyword.text == "DataFrameRate") CheckRate(value);
  if (keyword.text == "GlobalAxisofGravity") CheckGravity(value);
}

// The reader takes Z and stores it, and no importer asks for it.
void HtrWatcher::CheckGravity(const HtrCell& value) {
  if (FindAxis(value.text) != orvane::kAxisZ) return;
  if (Finding* finding = Add(Rule("htr-axis-ignored"), value)) {
    finding->found = Quote(value.text);
    finding->expected = "Y";
    finding->effect = "The import takes Y for up all the same: the skeleton will lie down.";
  }
}

void HtrWatcher::CheckRate(const HtrCell& value) {
  if (IsRate(ParseInt(value.text))) return;
  if (Finding* finding = Add(Rule("htr-rate-out-of-range"), value)) {
    finding->found = Quote(value.text);
    finding->expected = ExpectedRate();
    finding->effect = "The nearest rate that there is is set, unless --frame-rate keep is given.";
  }
}

void HtrWatcher::OnSegment(const HtrCell& name, const HtrCell& parent) {
  parts_.segment_by_name.emplace(name.text, parts_.segments.size());
  parts_.segments.push_back({name, parent});
  CheckName(name);
}

void HtrWatcher::CheckName(const HtrCell& name) {
  const std::string reason = WhyUnusable(name.text);
  if (reason.empty()) return;
  if (Finding* finding = Add(Rule("htr-name-unusable"), name)) {
    finding->found = Quote(name.text);
    finding->expected = "a name that can be read back: no ], no [ in front, no word of the format";
    finding->effect = reason;
  }
}

void HtrWatcher::OnBasePosition(const HtrCell& name) {
  ++parts_.base_lines;
  SegmentLines* segment = parts_.Find(name.text);
  if (segment == nullptr) return;
  if (segment->base_section == parts_.base_sections) {
    if (Finding* finding = Add(Rule("htr-base-line-repeated"), name)) {
      finding->found = Quote(name.text) + " again";
      finding->expected = "one line for every segment";
      finding->effect = "The later line counts.";
    }
  }
  segment->base_section = parts_.base_sections;
}

void HtrWatcher::OnFrame(const HtrCell& number) {
  ++segment_->frames;
  const char* const end = number.text.data() + number.text.size();
  const bool is_number = ReadDouble(number.text.data(), end).end == end;
  const std::int64_t value =
      is_number || !next_frame_number_ ? ParseInt(number.text) : *next_frame_number_;
  if (!start_frame_) start_frame_ = value;
  if (next_frame_number_ && value != *next_frame_number_) {
    if (Finding* finding = Add(Rule("htr-frame-number"), number)) {
      finding->found = Quote(number.text);
      finding->expected = FormatInt(*next_frame_number_);
      finding->effect = "The number is ignored: frames follow each other as their lines do.";
    }
  }
  next_frame_number_ = value + 1;
}

}  // namespace orvane::htr
