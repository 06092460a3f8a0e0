#include "shell/window/shell_view.h"

#include "shell/browser/browser.h"
#include "shell/browser/build_commands.h"
#include "shell/state/shell.h"
#include "shell/state/state_display.h"
#include "shell/tabs/form.h"
#include "shell/tree/item_list.h"
#include "shell/tree/node_selection.h"
#include "shell/tree/tree_items.h"

namespace varlo {
void ShellView::loadForm() {
  if (shell_ != nullptr) varlo::loadForm(*shell_);
}
void ShellView::loadItemList(StoreNode* holder) {
  if (shell_ != nullptr) varlo::loadItemList(*shell_, holder);
}
void ShellView::refreshCommandStates() {
  if (shell_ != nullptr) varlo::refreshCommandStates(*shell_);
}
void ShellView::workBegan() { refreshCommandStates(); }
void ShellView::workEnded() {
  if (shell_ == nullptr) return;
  varlo::refreshCommandStates(*shell_);
  readWaitingEdit(*shell_);
}
void ShellView::clearTree() {
  if (shell_ != nullptr) varlo::clearTree(*shell_);
}
void ShellView::fillTree() {
  if (shell_ != nullptr) varlo::fillTree(*shell_);
}
// A product made while the tree shows another node has a prev that is not the one before it, and a chain that it is
// put in front of is shown already: so its item goes where the node hangs, with all that hangs below it.
void ShellView::insertTreeItem(StoreNode& node, StoreNode* /*behind*/) {
  if (shell_ != nullptr) varlo::moveTreeItem(*shell_, node);
}
void ShellView::insertTreeItems(std::span<StoreNode* const> nodes) {
  if (shell_ != nullptr) varlo::insertTreeItems(*shell_, nodes);
}
void ShellView::moveTreeItem(StoreNode& node) {
  if (shell_ != nullptr) varlo::moveTreeItem(*shell_, node);
}
void ShellView::removeTreeItem(StoreNode& node) {
  if (shell_ != nullptr) varlo::removeTreeItem(*shell_, node);
}
void ShellView::refreshTreeItem(StoreNode& node) {
  if (shell_ == nullptr) return;
  refreshIcon(*shell_, node);
  refreshChildrenFlag(*shell_, node);
}
void ShellView::selectInTree(StoreNode& node) {
  if (shell_ != nullptr) varlo::selectInTree(*shell_, node);
}
void ShellView::nodeRenamed(StoreNode& node) {
  if (shell_ != nullptr) refreshLabel(*shell_, node);
}
void ShellView::refillList(PageList list) {
  if (shell_ == nullptr || shell_->tabPage == nullptr || shell_->pageLogic == nullptr) return;
  shell_->pageLogic->refillList(*shell_->tabPage, list);
}
void ShellView::loadFreightList() { refillList(PageList::Freight); }
void ShellView::loadVariableList() { refillList(PageList::Variables); }
void ShellView::loadCardList() { refillList(PageList::Cards); }
void ShellView::loadSchemeLists() { refillList(PageList::Schemes); }
// What can be done is looked at whenever help is asked for, so on almost every move of the focus.
void ShellView::showHelp(int /*id*/) {
  if (shell_ != nullptr) varlo::refreshCommandStates(*shell_);
}
void ShellView::openInBrowser(std::string_view address) {
  if (shell_ != nullptr) varlo::openInBrowser(*shell_, address);
}
void ShellView::previewScheme() {
  if (shell_ != nullptr) varlo::previewScheme(*shell_);
}
void ShellView::storeForm() {
  if (shell_ != nullptr) readForm(*shell_);
}
void ShellView::setWindowTitle(std::string_view title) {
  if (shell_ != nullptr && shell_->mainWindow != nullptr) shell_->mainWindow->setTitle(title);
}

}  // namespace varlo
