// The commands that make and copy nodes, at the level of the model. What the window adds (selecting
// the new item, reloading its lists) belongs to the shell.
#pragma once

#include "core/store/store_node.h"

namespace varlo {

struct Program;

// Draws the next number of the installation's counter into the node's id.
void DrawNodeId(Program& program, StoreNode& node);

// "%i.htm" of the node's id.
[[nodiscard]] Text PageNameOf(const StoreNode& node);

// Makes a product with this title at the current node, with the option labels of that node, and makes
// it current. 1 done; 0 and nothing happens without a current node and a tree node.
int NewProduct(Program& program, const char* title);

// Makes a category, shelf or list and inserts it at the current node; 1 done, 0 when it may not stand
// there. The number is drawn in any case.
int NewNode(Program& program, NodeKind kind);

// The command New Category, with its two paths: below the current node, or, without a tree, at the top
// level through a posted command.
void NewCategoryCommand(Program& program);

// The posted path of New Category: appends a category to the top-level list, or starts the tree.
void NewTopCategory(Program& program);

// Keeps a private copy of the current node, without what is below it.
void CopyNode(Program& program);

// Inserts a copy of the kept node at the current node and makes the copy current, also when it may not
// stand there; it is then linked nowhere. 1 when it was inserted. The copy keeps id and fileName of its
// source.
int PasteNode(Program& program);

}  // namespace varlo
