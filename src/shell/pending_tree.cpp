#include "core/store_node.h"
#include "shell/item_list.h"
#include "shell/node_changes.h"
#include "shell/node_moves.h"
#include "shell/node_selection.h"
#include "shell/shell.h"
#include "shell/tree_items.h"
namespace varlo {
StoreNode* nodeOfItem(const Shell&, TreeItem) { return nullptr; }
int iconOf(const StoreNode&) { return 0; }
void insertTreeItem(Shell&, StoreNode&, TreeItem, TreeItem) {}
void insertTreeBranch(Shell&, StoreNode*, TreeItem, TreeItem) {}
void moveTreeItem(Shell&, StoreNode&) {}
void removeTreeItem(Shell&, StoreNode&) {}
void refreshIcon(Shell&, StoreNode&) {}
void refreshLabel(Shell& shell, StoreNode& node) {
  if (shell.mainWindow != nullptr && node.treeItem != 0) {
    shell.mainWindow->tree().setLabel(node.treeItem, node.title.view());
  }
}
void refreshChildrenFlag(Shell&, StoreNode&) {}
void selectInTree(Shell&, StoreNode&) {}
void clearTree(Shell&) {}
void fillTree(Shell&) {}
void refillTree(Shell&) {}
std::span<const ListColumn> itemListColumns() { return {}; }
void loadItemList(Shell&, StoreNode*) {}
StoreNode* nodeOfRow(const Shell&, int) { return nullptr; }
std::string_view cellText(StoreNode&, int) { return {}; }
void sortItemList(Shell&, int) {}
void selectAllRows(Shell&) {}
void onTreeSelection(Shell&, TreeItem) {}
void onTreeExpanding(Shell&, TreeItem) {}
void onRowClicked(Shell&, int) {}
void onRowDoubleClicked(Shell&, int) {}
void onRowChanged(Shell&, int) {}
void onListKey(Shell&, Key, bool) {}
void onTreeRightClicked(Shell&, Point) {}
void onListRightClicked(Shell&, Point) {}
void newNode(Shell&, NodeKind) {}
void newProduct(Shell&) {}
void newTopCategory(Shell&) {}
void copyNode(Shell&) {}
void pasteNode(Shell&) {}
void deleteTreeNode(Shell&) {}
void deleteRows(Shell&) {}
void disableNode(Shell&) {}
void enableNode(Shell&) {}
void disableRows(Shell&) {}
void enableRows(Shell&) {}
bool onTreeKey(Shell&, Key) { return false; }
void onTreeDragBegun(Shell&, TreeItem) {}
void onListDragBegun(Shell&, int) {}
void onDragMoved(Shell&, Point) {}
void onDragReleased(Shell&, Point) {}
}  // namespace varlo
