#include "cli/import_choices.h"

#include <algorithm>

#include "cli/import_controls.h"
#include "cli/stored_options.h"
#include "plugin/text/numbers.h"

namespace cli {
namespace {

bool Mention(const Wishes& wishes, int control) {
  return std::any_of(wishes.begin(), wishes.end(),
                     [control](const ControlWish& wish) { return wish.control == control; });
}

// The state of the check box `control`; nothing when `wishes` leave it alone.
std::optional<bool> Checked(const Wishes& wishes, int control) {
  std::optional<bool> checked;
  for (const ControlWish& wish : wishes) {
    if (wish.control == control) checked = wish.checked;
  }
  return checked;
}

std::optional<FrameSpan> TypedRange(const Wishes& wishes) {
  const std::string* from = TypedText(wishes, kFrom);
  const std::string* to = TypedText(wishes, kTo);
  if (from == nullptr || to == nullptr) return std::nullopt;
  return FrameSpan{orvane::ParseInt(*from), orvane::ParseInt(*to)};
}

}  // namespace

FrameSpan ImportChoices::Keyed(const FrameSpan& announced) const {
  if (!animation) return {};
  return range ? Overlap(*range, announced) : announced;
}

ImportChoices ChoicesOf(const Wishes& wishes, FileKind kind, const host::Settings& settings) {
  const bool is_htr = kind == FileKind::kHtr;
  const StoredOptions stored(settings, is_htr ? "ImportHTR" : "ImportTRC");
  const auto choice = [&](int control, const char* name, bool otherwise) {
    return Checked(wishes, control).value_or(stored.Flag(name).value_or(otherwise));
  };
  ImportChoices choices;
  choices.apply = Mention(wishes, kApply) ||
                  (!Mention(wishes, kCreate) && stored.Flag("Apply").value_or(false));
  if (is_htr) {
    choices.animation = choice(kAnimation, "Animate", true);
  } else {
    choices.selected_only = choice(kSelectedOnly, "SelectedOnly", false);
  }
  choices.frame_rate_from_file = choice(kSetFrameRate, "FPS", false);
  const std::string* offset = TypedText(wishes, kOffset);
  if (offset != nullptr) choices.offset = orvane::ParseInt(*offset);
  choices.range = TypedRange(wishes);
  return choices;
}

}  // namespace cli
