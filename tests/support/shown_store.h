// A store in the tree and the item list of a fake main window, and a user to work with it.
#pragma once

#include "shell/tree/item_list.h"
#include "shell/tree/tree_items.h"
#include "tests/support/test_shell.h"
#include "tests/support/tree.h"

namespace varlo::test {

struct ShownStore : TestShell {
  ShownStore() { shell.mainWindow = &window; }

  FakeTree& tree() { return window.theTree; }
  FakeList& list() { return window.theList; }

  StoreNode* category(const char* title, StoreNode* parent = nullptr) {
    return AddCategory(project(), title, parent);
  }
  StoreNode* product(const char* title, StoreNode* parent = nullptr) { return AddProduct(project(), title, parent); }
  StoreNode* node(NodeKind kind, const char* title, StoreNode* parent) {
    return AddNode(project(), kind, title, parent);
  }

  // Shows what was made, with `selected` selected.
  void show(StoreNode* selected) {
    Select(project(), selected);
    refillTree(shell);
  }
  void click(const StoreNode* node) { window.clickItem(node->treeItem); }
  int rowOf(const StoreNode* node) {
    for (int row = 0; row < list().count(); ++row) {
      if (list().data(row) == node) return row;
    }
    return kNoRow;
  }
  void clickRowOf(const StoreNode* node) { window.clickRow(rowOf(node)); }
  void controlClickRowOf(const StoreNode* node) { window.controlClickRow(rowOf(node)); }
  const FakeTree::Item& itemOf(const StoreNode* node) { return tree().items().at(node->treeItem); }
  std::string rows() {
    std::string text;
    for (const std::string& title : list().cells(0)) text.append(text.empty() ? "" : " ").append(title);
    return text;
  }

  // Points: an item, a row, neither.
  static constexpr Point kOnItem{5, 10};
  static constexpr Point kOnRow{5, 20};
  static constexpr Point kBeside{5, 30};
  Point over(const StoreNode* node) {
    tree().itemsAtY[kOnItem.y] = node->treeItem;
    return kOnItem;
  }
  Point overRow(int row) {
    list().rowsAtY[kOnRow.y] = row;
    return kOnRow;
  }
  void drop(const StoreNode* target) {
    const Point point = over(target);
    logic.dragMoved(point);
    logic.dragReleased(point);
  }
  void dragTo(const StoreNode* node, const StoreNode* target) {
    logic.treeDragBegun(node->treeItem);
    drop(target);
  }
};

}  // namespace varlo::test
