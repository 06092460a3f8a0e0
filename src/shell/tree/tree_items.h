// The store tree in the tree control: the items of the nodes.
#pragma once

#include <optional>
#include <span>

#include "platform/main_window.h"

namespace varlo {

struct Shell;
struct StoreNode;

// The node of an item, null for none.
[[nodiscard]] StoreNode* nodeOfItem(const Shell& shell, TreeItem item);

// Index of a node's icon in the shared image list, by kind and status.
[[nodiscard]] int iconOf(const StoreNode& node);

// The item below which that of `node` belongs, kNoTreeItem at the top level; nothing when that is not shown.
[[nodiscard]] std::optional<TreeItem> parentItemOf(const Shell& shell, const StoreNode& node);

// The item behind which that of `node` belongs below `parent`: of the nearest sibling before it that is shown, else
// kFirstItem.
[[nodiscard]] TreeItem itemBefore(const Shell& shell, const StoreNode& node, TreeItem parent);

// Inserts one item and keeps it in the node. A control that refuses it is told to the user.
void insertTreeItem(Shell& shell, StoreNode& node, TreeItem parent, TreeItem behind);

// Inserts the chain from `first`, each node with all below it. The chain's items follow `behind`, or come last
// when there is none. Nothing is inserted below an item that was refused.
void insertTreeBranch(Shell& shell, StoreNode* first, TreeItem parent, TreeItem behind);

// Inserts a node's item anew, with its branch, where the node is linked now; a node in no shown branch gets none.
// The selection that this moves is not told.
void moveTreeItem(Shell& shell, StoreNode& node);

// Inserts the items of new nodes where they are linked, each behind the one before it where it hangs there. Thousands
// take little more than a few.
void insertTreeItems(Shell& shell, std::span<StoreNode* const> nodes);

// Removes the item of a node and those of all below it. The selection that this moves is not told.
void removeTreeItem(Shell& shell, StoreNode& node);

// Refresh one thing of a node's item, if it has one.
void refreshIcon(Shell& shell, StoreNode& node);
void refreshLabel(Shell& shell, StoreNode& node);
void refreshChildrenFlag(Shell& shell, StoreNode& node);

// Selects the item of the tree's node in the control, none when it is not shown, and tells nobody.
void followTreeNode(Shell& shell);

// Empties the tree and the item list.
void clearTree(Shell& shell);

// Inserts the whole tree from the root, with its notifications muted.
void fillTree(Shell& shell);

// Fills tree and item list anew.
void refillTree(Shell& shell);

}  // namespace varlo
