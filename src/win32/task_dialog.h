// The small modal dialog around a long task. It posts itself the command that starts the task, so it is
// on the screen first, and the window's messages wait until the task ends.
#pragma once

#include <windows.h>

#include <functional>
#include <string_view>

namespace varlo {

// Control numbers of the dialog.
inline constexpr int kTaskText = 101;
inline constexpr int kTaskCount = 102;

// Shows the dialog, runs `task` with its window, and closes it; gives the task's result. Where no dialog
// can be made the task runs without one, with a null window.
int RunTaskDialog(HWND owner, std::string_view title, std::string_view text, const std::function<int(HWND)>& task);

// Shows a running count, at once.
void ShowTaskDialogCount(HWND dialog, int count);

}  // namespace varlo
