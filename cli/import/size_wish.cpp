#include "cli/import/size_wish.h"

#include <algorithm>
#include <string>
#include <string_view>

#include "cli/common/failure.h"
#include "cli/import/length_unit.h"
#include "formats/text/numbers.h"
#include "plugin/resources/resource.h"

namespace cli {
namespace {

bool IsOfSize(const ControlWish& wish) { return wish.control == IDC_OBJECT_SIZE; }

Failure WrongSize(const std::string& flag, const std::string& text, const std::string& advice) {
  return {ExitStatus::kWrongUsage, {{flag, text, advice}}};
}

// What stands behind the number that `text` starts with; nothing when it starts with none.
std::string_view UnitIn(std::string_view text) {
  const char* const end = text.data() + text.size();
  const char* const behind = orvane::ReadDouble(text.data(), end).end;
  if (behind == text.data()) return {};
  std::string_view unit(behind, static_cast<std::size_t>(end - behind));
  unit.remove_prefix(std::min(unit.find_first_not_of(' '), unit.size()));
  return unit;
}

// What the dialog is told for `millimeters`.
std::string NumberFor(double millimeters, const SizeUnits& units) {
  // A scale of 0 the dialog refuses itself.
  const double scale = units.scale == 0.0 ? 1.0 : units.scale;
  return orvane::FormatShortest(millimeters / units.millimeters_per_unit / scale);
}

}  // namespace

ControlWish SizeOf(double millimeters, const SizeUnits& units) {
  return {ControlWish::Kind::kText,      IDC_OBJECT_SIZE, "--size",
          NumberFor(millimeters, units), false,           {}};
}

bool MentionSize(const Wishes& wishes) {
  return std::any_of(wishes.begin(), wishes.end(), IsOfSize);
}

void ConvertSize(Wishes& wishes, FileKind kind, const SizeUnits& units) {
  const auto wish = std::find_if(wishes.begin(), wishes.end(), IsOfSize);
  if (wish == wishes.end()) return;
  const std::string unit(UnitIn(wish->text));
  if (unit.empty()) return;
  const LengthUnit* const known = FindLengthUnit(unit);
  if (known == nullptr) {
    throw WrongSize(wish->flag, unit + " is no unit", "mm, cm, m, in and ft are.");
  }
  if (kind == FileKind::kHtr) {
    throw WrongSize(wish->flag, "the size of a segment is no length, but a part of its own length",
                    "1 is a fifth of it.");
  }
  wish->text = NumberFor(orvane::ParseDouble(wish->text) * known->millimeters, units);
}

}  // namespace cli
