// The commands of menus, toolbar, buttons and keys.
#pragma once

#include "platform/command.h"

namespace varlo {

struct Shell;
struct StoreNode;

// Runs a command; nothing for one that is not known.
void dispatchCommand(Shell& shell, Command command);

// Makes `node` the node of the form and of the tree, and shows its children and its form. Null only turns
// the Preview button off.
void selectCurrent(Shell& shell, StoreNode* node);

// Whether there is an order server; tells the user when there is none.
[[nodiscard]] bool requireServer(Shell& shell);

}  // namespace varlo
