#pragma once

#include <string>
#include <vector>

#include "host/desktop/scripted_dialog.h"

// A user of the plug-in's dialogs whose wishes come from the command line. He does what a person in
// front of the dialog can: a control is used only while it is enabled, and what the dialog shows in
// the others stays.

namespace cli {

// The radio button that disables a control while it is chosen, and the flag of the other one.
struct Disabler {
  int radio = 0;  // 0: none
  const char* way_out = "";
};

// One wish: how a flag wants one control to be.
struct ControlWish {
  // The order of the kinds is the order in which wishes are carried out: radio buttons decide which
  // fields are enabled, check boxes which radio buttons are.
  enum class Kind { kRadio, kText, kCheckBox };

  Kind kind = Kind::kRadio;
  int control = 0;
  std::string flag;      // as the user knows it: "--segment-size"
  std::string text;      // kText: what to type
  bool checked = false;  // kCheckBox: the state to leave it in
  Disabler disabled_by;  // for the message
};

// Carries out `wishes`, each kind in the given order, and presses OK; presses Cancel when the
// dialog refuses and stays open. Throws a Failure for a wish whose control is disabled
// or missing.
void UseDialog(host::ScriptedDialog& dialog, std::vector<ControlWish> wishes);

}  // namespace cli
