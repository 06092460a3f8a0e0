// One window procedure for all dialogs: makes the window of a dialog from its shape, and turns its messages into the
// calls of its logic.
#pragma once

#include <windows.h>

#include <memory>

#include "platform/dialog.h"
#include "win32/win32_dialog.h"

namespace varlo {

// Makes the classes of the controls known that dialogs use, once.
void LoadControlClasses();

// Runs a modal dialog; the result that it ended with, 0 when it can't be shown.
int RunModalDialog(HWND owner, DialogLogic& logic);

// Opens a modeless dialog, whose keys work in any dialog loop of the thread; null when it can't be shown. The window
// keeps its logic until it is gone and what the logic does has returned.
Win32Dialog* OpenModelessDialog(HWND owner, std::shared_ptr<DialogLogic> logic);

// Opens a dialog as a page inside `parent`, not shown yet. It leaves the focus where it is. Escape in it goes to the
// parent. DestroyWindow closes it.
Win32Dialog* OpenPageDialog(HWND parent, std::shared_ptr<DialogLogic> logic);

// Scrolls a page so that its control with the focus can be seen.
void RevealFocus(HWND page);

}  // namespace varlo
