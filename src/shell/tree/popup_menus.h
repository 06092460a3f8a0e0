// The popup menus of the tree and of the item list, and their rules.
#pragma once

#include "platform/popup_menu.h"

namespace varlo {

struct Shell;

// As they stand for the current node; `hitItem` tells whether the right click hit something.
[[nodiscard]] PopupMenu treePopup(const Shell& shell);
[[nodiscard]] PopupMenu listPopup(const Shell& shell);

}  // namespace varlo
