// Which node is current: selecting it, and what selecting in the tree and in the item list does, by mouse and by key.
#pragma once

#include "platform/main_window.h"

namespace varlo {

struct Shell;
struct StoreNode;

// Makes `node` the node of the form and of the tree, and shows its children and its form. Null only turns
// the Preview button off.
void selectCurrent(Shell& shell, StoreNode* node);

// Selects the node's item and makes it visible. The node becomes current, also when it has no item or when its item
// is selected already.
void selectInTree(Shell& shell, StoreNode& node);

void onTreeSelection(Shell& shell, TreeItem item);
void onTreeExpanding(Shell& shell, TreeItem item);
void onRowClicked(Shell& shell, int row);
void onRowDoubleClicked(Shell& shell, int row);
void onRowChanged(Shell& shell, int row);
void onListKey(Shell& shell, Key key, bool control);

// Right clicks: the item or row under the mouse becomes current. Whether the popup menu of tree or list is to open.
[[nodiscard]] bool onTreeRightClicked(Shell& shell, Point point);
[[nodiscard]] bool onListRightClicked(Shell& shell, Point point);

}  // namespace varlo
