#include "cli/import/import_choices.h"

#include "cli/common/stored_options.h"
#include "cli/import/import_controls.h"

namespace cli {
FrameSpan ImportChoices::Keyed(const FrameSpan& announced) const {
  if (!animation) return {};
  return range ? Overlap(*range, announced) : announced;
}

ImportChoices ChoicesOf(const Wishes& wishes, FileKind kind, const host::Settings& settings) {
  const bool is_htr = kind == FileKind::kHtr;
  const StoredOptions stored(settings, is_htr ? "ImportHTR" : "ImportTRC");
  const auto choice = [&](int control, const char* name, bool otherwise) {
    return WishedState(wishes, control).value_or(stored.Flag(name).value_or(otherwise));
  };
  ImportChoices choices;
  const bool applied_last = stored.Flag("Apply").value_or(false);
  choices.apply = WishedState(wishes, kApply) || (applied_last && !WishedState(wishes, kCreate));
  if (is_htr) {
    choices.animation = choice(kAnimation, "Animate", true);
  } else {
    choices.selected_only = choice(kSelectedOnly, "SelectedOnly", false);
  }
  choices.frame_rate_from_file = choice(kSetFrameRate, "FPS", false);
  choices.offset = TypedInt(wishes, kOffset).value_or(0);
  choices.range = TypedRange(wishes, kFrom, kTo);
  return choices;
}

}  // namespace cli
