// What selecting in the tree and in the item list does, by mouse and by key.
#pragma once

#include "platform/main_window.h"

namespace varlo {

struct Shell;

void onTreeSelection(Shell& shell, TreeItem item);
void onTreeExpanding(Shell& shell, TreeItem item);
void onRowClicked(Shell& shell, int row);
void onRowDoubleClicked(Shell& shell, int row);
void onRowChanged(Shell& shell, int row);
void onListKey(Shell& shell, Key key, bool control);

// Right clicks: the item or row under the mouse becomes current, and the popup menu of tree or list opens.
void onTreeRightClicked(Shell& shell, Point point);
void onListRightClicked(Shell& shell, Point point);

}  // namespace varlo
