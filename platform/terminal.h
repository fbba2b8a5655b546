#pragma once

// Whether a person is looking, and at how wide a line.

namespace platform {

// True when the process's standard error goes to a terminal.
bool ErrorIsTerminal();

// Columns of that terminal; 0 when it does not tell, or when it is none.
int ErrorColumns();

}  // namespace platform
