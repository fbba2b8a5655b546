#include "host/desktop/scripted_dialog.h"

namespace host {

ScriptedDialog::ScriptedDialog() = default;
ScriptedDialog::~ScriptedDialog() = default;

}  // namespace host
