#pragma once

// Whether a person is looking.

namespace platform {

// True when the process's standard error goes to a terminal.
bool ErrorIsTerminal();

}  // namespace platform
