// Moving nodes by drag and drop, from the tree and from the item list.
#pragma once

#include "platform/main_window.h"

namespace varlo {

struct Shell;

void onTreeDragBegun(Shell& shell, TreeItem item);
void onListDragBegun(Shell& shell, int row);
// The mouse moved, or 50 milliseconds went by.
void onDragMoved(Shell& shell, Point point);
// The button was released, or the mouse was taken away; guarded against running twice. Nothing is moved when what is
// dragged may not be dropped.
void onDragReleased(Shell& shell, Point point, bool mayDrop = true);

}  // namespace varlo
