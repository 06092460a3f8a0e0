// The commands of menus, toolbar, buttons and keys.
#pragma once

#include "platform/command.h"

namespace varlo {

struct Shell;

// Runs a command; nothing for one that is not known, nor, while something is at work, for one that would change the
// store.
void dispatchCommand(Shell& shell, Command command);

}  // namespace varlo
