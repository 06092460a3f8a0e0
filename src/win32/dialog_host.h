// One window procedure for all dialogs: it turns the messages of a dialog made from a template into the calls of
// its logic.
#pragma once

#include <windows.h>

#include "platform/dialog.h"
#include "win32/win32_dialog.h"

namespace varlo {

// Makes the classes of the controls known that templates use, once.
void LoadControlClasses();

// Runs a modal dialog; the result that it ended with, 0 when it can't be shown.
int RunModalDialog(HWND owner, int dialogId, DialogLogic& logic);

// Opens a modeless dialog, whose keys work in any dialog loop of the thread; null when it can't be shown.
Win32Dialog* OpenModelessDialog(HWND owner, int dialogId, DialogLogic& logic);

// Opens a dialog as a page inside `parent`, not shown yet. It leaves the focus where it is. Escape in it goes to the
// parent. DestroyWindow closes it.
Win32Dialog* OpenPageDialog(HWND parent, int dialogId, DialogLogic& logic);

}  // namespace varlo
