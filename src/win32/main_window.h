// The main window: a modal dialog whose procedure turns messages into the calls of its logic until it ends.
#pragma once

#include <windows.h>

#include <functional>

#include "platform/main_window.h"

namespace varlo {

// Runs the main window until it is closed. `created` gets the window before the logic does. False when it can't be
// shown.
bool RunMainWindow(MainWindowLogic& logic, const std::function<void(HWND)>& created);

}  // namespace varlo
