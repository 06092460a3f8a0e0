// The commands that make, copy, delete and disable nodes, with what they change on the screen.
#pragma once

#include "core/store/store_node.h"

namespace varlo {

struct Shell;

// New Category, New Shelf, New List at the current node, and New Product.
void newNode(Shell& shell, NodeKind kind);
void newProduct(Shell& shell);
// Appends a category to the top level, or starts the tree.
void newTopCategory(Shell& shell);

// Copy and Paste of a node, from the tree or the list alike.
void copyNode(Shell& shell);
void pasteNode(Shell& shell);

// Delete the tree's node, or all selected rows, after a question for what is no product.
void deleteTreeNode(Shell& shell);
void deleteRows(Shell& shell);

// Disable and Enable: the current node, with its icon in the tree, or every selected row.
void disableNode(Shell& shell);
void enableNode(Shell& shell);
void disableRows(Shell& shell);
void enableRows(Shell& shell);

}  // namespace varlo
