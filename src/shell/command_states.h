// Which menu entries, buttons and controls can be used: one function from plain facts to plain states, and its
// use on the main window.
#pragma once

namespace varlo {

struct Shell;

// Applies all rules to the window. Nothing without one.
void refreshCommandStates(Shell& shell);

}  // namespace varlo
