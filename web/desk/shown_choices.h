#pragma once

#include <vector>

#include "cli/common/dialog_flags.h"
#include "host/desktop/portable/live_desktop.h"

// The choices that a dialog shows, as wishes for its controls.

namespace web {

// What the person would have to wish for to find `controls` as he sees them; nothing of those that
// the dialog does not have.
[[nodiscard]] cli::Wishes WishesFor(host::LiveDialog& dialog, const std::vector<int>& controls);

// Adds those for the range, if it is chosen.
void AddShownRange(host::LiveDialog& dialog, cli::Wishes& wishes);

// Adds that for the one of the radio buttons `buttons` that is chosen.
void AddChosen(host::LiveDialog& dialog, const std::vector<int>& buttons, cli::Wishes& wishes);

}  // namespace web
