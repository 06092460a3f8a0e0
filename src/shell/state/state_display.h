// The states of the commands on the main window: the facts of the moment, and what they make of entries, buttons and
// controls.
#pragma once

#include "shell/state/command_states.h"

namespace varlo {

struct Shell;

[[nodiscard]] CommandFacts gatherFacts(const Shell& shell);

// Applies all rules to the window. Nothing without one.
void refreshCommandStates(Shell& shell);

}  // namespace varlo
