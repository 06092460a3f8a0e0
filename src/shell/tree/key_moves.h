// Moving nodes by key among their siblings.
#pragma once

#include "platform/main_window.h"

namespace varlo {

struct Shell;

// A key in the tree; true when it is consumed.
bool onTreeKey(Shell& shell, Key key);

}  // namespace varlo
