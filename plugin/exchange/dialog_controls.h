#pragma once

#include <initializer_list>
#include <string>

#include "platform/dialog.h"

// What dialogs do with their controls.
namespace orvane {

void EnableControls(platform::Dialog& dialog, std::initializer_list<int> controls, bool enabled);

// Selects `radio` of a pair of radio buttons that do not do so by themselves.
void SelectRadio(platform::Dialog& dialog, int radio, int other_radio);

// Selects `radio` when `chosen`, else `other_radio`. The one that is not selected is told so too:
// it must not keep the tab key's stop, or the key would select it in passing.
void ShowChoice(platform::Dialog& dialog, bool chosen, int radio, int other_radio);

// The first 255 characters of the text of `control`.
std::string ControlText(platform::Dialog& dialog, int control);

}  // namespace orvane
