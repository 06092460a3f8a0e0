// What the model tells the window. The shell implements it; this base, which shows nothing, serves
// command-line use and the engine's own tests.
#pragma once

#include <span>
#include <string_view>

namespace varlo {

struct StoreNode;

struct View {
  virtual ~View() = default;

  // Fills the form of the open tab from the current node.
  virtual void loadForm() {}
  // Shows the children of `holder` in the item list; none for null or a product.
  virtual void loadItemList(StoreNode* /*holder*/) {}
  // Sets the enabled state of every menu entry, button and control.
  virtual void refreshCommandStates() {}

  // Something has the program to itself from now on, and no longer.
  virtual void workBegan() {}
  virtual void workEnded() {}

  // Empties the tree and the item list.
  virtual void clearTree() {}
  // Inserts the whole tree from the root.
  virtual void fillTree() {}
  // Inserts the item of a new node. `behind` is its prev, which need not be the node before it.
  virtual void insertTreeItem(StoreNode& /*node*/, StoreNode* /*behind*/) {}
  // Inserts the items of new nodes that were made one after the other at the same place.
  virtual void insertTreeItems(std::span<StoreNode* const> nodes);
  // Inserts the item of `node`, with its branch, anew at the place where the node is linked now.
  virtual void moveTreeItem(StoreNode& /*node*/) {}
  virtual void removeTreeItem(StoreNode& /*node*/) {}
  // Refreshes icon and expand flag of an item.
  virtual void refreshTreeItem(StoreNode& /*node*/) {}
  virtual void selectInTree(StoreNode& /*node*/) {}
  // A node has another title.
  virtual void nodeRenamed(StoreNode& /*node*/) {}

  // Fill the lists of the tabs that show them, if they are open.
  virtual void loadVariableList() {}
  virtual void loadFreightList() {}
  virtual void loadCardList() {}
  virtual void loadSchemeLists() {}

  // Shows the context help of a control, command or dialog in the help pane, if it is open; 0 stands for the open
  // tab. Refreshes the states of the commands first, in any case.
  virtual void showHelp(int /*id*/) {}
  // Opens the help pane above the dialog with this number, on its topic.
  virtual void openHelpPane(int /*dialogId*/) {}
  // Shows an address or a file in the browser.
  virtual void openInBrowser(std::string_view /*address*/) {}
  // Shows the open store in the browser as it would be with the current scheme.
  virtual void previewScheme() {}
  // Stores what the open form holds, as each edit in it does.
  virtual void storeForm() {}
  virtual void setWindowTitle(std::string_view /*title*/) {}
};

}  // namespace varlo
