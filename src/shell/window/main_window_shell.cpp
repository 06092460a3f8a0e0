#include "shell/window/main_window_shell.h"

#include "core/program/program.h"
#include "shell/state/state_display.h"
#include "shell/tabs/tab_switch.h"
#include "shell/tree/drag_drop.h"
#include "shell/tree/item_list.h"
#include "shell/tree/key_moves.h"
#include "shell/tree/node_selection.h"
#include "shell/tree/popup_menus.h"
#include "shell/tree/tree_items.h"
#include "shell/window/commands.h"
#include "shell/window/main_layout.h"
#include "shell/window/main_window_life.h"
#include "shell/window/toolbar.h"

namespace varlo {

const DialogShape& MainWindowShell::shape() const { return MainWindowShape(); }

void MainWindowShell::opened(MainWindow& window) { setUpMainWindow(shell_, window); }
void MainWindowShell::command(Command command) { dispatchCommand(shell_, command); }
void MainWindowShell::tabSelected(int tab) {
  switchTab(shell_, static_cast<Tab>(tab));
  placeTabPage(shell_);
}
void MainWindowShell::resized() { resizeMainWindow(shell_); }
void MainWindowShell::moved() {}
void MainWindowShell::closeRequested() { dispatchCommand(shell_, Command::Quit); }
void MainWindowShell::closing() { closeMainWindow(shell_); }
// A tool tip goes with the help of its command.
std::string_view MainWindowShell::toolTip(Command command) {
  shell_.program.view.showHelp(static_cast<int>(command));
  return toolTipOf(command);
}
void MainWindowShell::focusMoved() { refreshCommandStates(shell_); }

void MainWindowShell::treeSelectionChanged(TreeItem item) { onTreeSelection(shell_, item); }
void MainWindowShell::treeItemExpanding(TreeItem item) { onTreeExpanding(shell_, item); }
bool MainWindowShell::treeKey(Key key) { return onTreeKey(shell_, key); }
void MainWindowShell::treeRightClicked(Point point) {
  if (onTreeRightClicked(shell_, point)) showPopup(treePopup(shell_));
}
void MainWindowShell::treeDragBegun(TreeItem item) { onTreeDragBegun(shell_, item); }

std::string_view MainWindowShell::cellText(ItemData data, int column) {
  return varlo::cellText(*static_cast<StoreNode*>(data), column);
}
int MainWindowShell::rowIcon(ItemData data) { return iconOf(*static_cast<StoreNode*>(data)); }
void MainWindowShell::rowClicked(int row) { onRowClicked(shell_, row); }
void MainWindowShell::rowDoubleClicked(int row) { onRowDoubleClicked(shell_, row); }
void MainWindowShell::rowChanged(int row) { onRowChanged(shell_, row); }
void MainWindowShell::columnClicked(int column) { sortItemList(shell_, column); }
void MainWindowShell::listKey(Key key, bool control) { onListKey(shell_, key, control); }
void MainWindowShell::listRightClicked(Point point) {
  if (onListRightClicked(shell_, point)) showPopup(listPopup(shell_));
}
void MainWindowShell::listDragBegun(int row) { onListDragBegun(shell_, row); }

void MainWindowShell::dragMoved(Point point) { onDragMoved(shell_, point); }
void MainWindowShell::dragTicked() {
  if (shell_.mainWindow != nullptr) onDragMoved(shell_, shell_.mainWindow->cursor());
}
void MainWindowShell::dragReleased(Point point) { onDragReleased(shell_, point); }

void MainWindowShell::showPopup(const PopupMenu& menu) {
  dispatchCommand(shell_, shell_.program.screen.popupMenu(menu));
}

}  // namespace varlo
