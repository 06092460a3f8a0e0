// Message boxes.
#pragma once

#include <windows.h>

namespace varlo {

// Shows a box and gives the button that was pressed. A question with Yes and No is answered by these alone: Escape,
// Alt+F4 and the close box do nothing in it.
int ShowMessageBox(HWND owner, const char* text, const char* title, UINT style);

}  // namespace varlo
