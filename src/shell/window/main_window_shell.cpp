#include "shell/window/main_window_shell.h"

#include "core/program/program.h"
#include "core/program/work.h"
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
  if (!isFree()) return;
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

// While something is at work, what the user does in tree and list would reach into it.
bool MainWindowShell::isFree() const { return !shell_.program.atWork; }

void MainWindowShell::treeSelectionChanged(TreeItem item) {
  if (isFree()) onTreeSelection(shell_, item);
}
void MainWindowShell::treeItemExpanding(TreeItem item) {
  if (isFree()) onTreeExpanding(shell_, item);
}
bool MainWindowShell::treeKey(Key key) { return !isFree() || onTreeKey(shell_, key); }
void MainWindowShell::treeRightClicked(Point point) {
  if (isFree() && onTreeRightClicked(shell_, point)) showPopup(treePopup(shell_));
}
void MainWindowShell::treeDragBegun(TreeItem item) {
  if (isFree()) onTreeDragBegun(shell_, item);
}

std::string_view MainWindowShell::cellText(ItemData data, int column) {
  return varlo::cellText(*static_cast<StoreNode*>(data), column);
}
int MainWindowShell::rowIcon(ItemData data) { return iconOf(*static_cast<StoreNode*>(data)); }
void MainWindowShell::rowClicked(int row) {
  if (isFree()) onRowClicked(shell_, row);
}
void MainWindowShell::rowDoubleClicked(int row) {
  if (isFree()) onRowDoubleClicked(shell_, row);
}
void MainWindowShell::rowChanged(int row) {
  if (isFree()) onRowChanged(shell_, row);
}
void MainWindowShell::columnClicked(int column) {
  if (isFree()) sortItemList(shell_, column);
}
void MainWindowShell::listKey(Key key, bool control) {
  if (isFree()) onListKey(shell_, key, control);
}
void MainWindowShell::listRightClicked(Point point) {
  if (isFree() && onListRightClicked(shell_, point)) showPopup(listPopup(shell_));
}
void MainWindowShell::listDragBegun(int row) {
  if (isFree()) onListDragBegun(shell_, row);
}

void MainWindowShell::dragMoved(Point point) { onDragMoved(shell_, point); }
void MainWindowShell::dragTicked() {
  if (shell_.mainWindow != nullptr) onDragMoved(shell_, shell_.mainWindow->cursor());
}
// A drag that is let go over work that is under way ends without a drop.
void MainWindowShell::dragReleased(Point point) {
  const Work work(shell_.program);
  onDragReleased(shell_, point, static_cast<bool>(work));
}

void MainWindowShell::showPopup(const PopupMenu& menu) {
  dispatchCommand(shell_, shell_.program.screen.popupMenu(menu));
}

}  // namespace varlo
