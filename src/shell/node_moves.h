// Moving nodes: by key among their siblings, and by drag and drop.
#pragma once

#include "platform/main_window.h"

namespace varlo {

struct Shell;

// A key in the tree; true when it is consumed.
bool onTreeKey(Shell& shell, Key key);

void onTreeDragBegun(Shell& shell, TreeItem item);
void onListDragBegun(Shell& shell, int row);
// The mouse moved, or 50 milliseconds went by.
void onDragMoved(Shell& shell, Point point);
// The button was released, or the mouse was taken away; guarded against running twice.
void onDragReleased(Shell& shell, Point point);

}  // namespace varlo
