#include "cli/import/import_choices.h"

#include "cli/common/stored_options.h"
#include "plugin/resources/resource.h"

namespace cli {
FrameSpan ImportChoices::Keyed(const FrameSpan& announced) const {
  if (!animation) return {};
  return range ? Overlap(*range, announced) : announced;
}

ImportChoices ChoicesOf(const Wishes& wishes, FileKind kind, const host::Settings& settings) {
  const bool is_htr = kind == FileKind::kHtr;
  const StoredOptions stored(settings, is_htr ? IDS_IMPORT_HTR : IDS_IMPORT_TRC);
  const auto choice = [&](int control, const char* name, bool otherwise) {
    return WishedState(wishes, control).value_or(stored.Flag(name).value_or(otherwise));
  };
  ImportChoices choices;
  const bool applied_last = stored.Flag("Apply").value_or(false);
  choices.apply =
      WishedState(wishes, IDC_APPLY) || (applied_last && !WishedState(wishes, IDC_CREATE));
  if (is_htr) {
    choices.animation = choice(IDC_ANIMATION, "Animate", true);
  } else {
    choices.selected_only = choice(IDC_SELECTED_ONLY, "SelectedOnly", false);
  }
  choices.frame_rate_from_file = choice(IDC_SET_FRAME_RATE, "FPS", false);
  choices.offset = TypedInt(wishes, IDC_OFFSET).value_or(0);
  choices.range = TypedRange(wishes, IDC_FROM, IDC_TO);
  return choices;
}

}  // namespace cli
