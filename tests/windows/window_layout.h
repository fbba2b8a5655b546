#pragma once

#include <string>
#include <vector>

#include "platform/handles.h"

// Where the controls of an open dialog lie, how the keyboard goes through them and what it stands
// over, asked of the windows themselves.
namespace test {

// The button that Enter presses; 0 when there is none.
int DefaultButton(HWND dialog);

// The controls at which the tab key stops now, beginning with the first.
std::vector<int> TabOrder(HWND dialog);

// The controls that the arrow keys reach from `control`, beginning with that.
std::vector<int> ArrowOrder(HWND dialog, int control);

// The control that has the keyboard; 0 when it is not in the dialog.
int Focus(HWND dialog);

// Whether a frame goes around a control, outside of what it shows.
bool HasFrame(HWND dialog, int control);

// What is wrong with the look of the dialog, one sentence each: controls that stick out of it or
// lie one over the other, and texts that are cut off.
std::vector<std::string> LayoutFaults(HWND dialog);

// The window that the active one of this thread stands over, or null.
HWND OwnerOfActiveWindow();

// Tells the dialog that `control` was used, whether it has it or not.
void SendCommand(HWND dialog, int control);

}  // namespace test
