#include "shell/shell_view.h"

#include "shell/browser.h"
#include "shell/command_states.h"
#include "shell/form.h"
#include "shell/item_list.h"
#include "shell/shell.h"
#include "shell/tree_items.h"

namespace varlo {
namespace {

// The place of a new item behind that of `behind`: the head when `behind` holds the list or is not shown.
TreeItem placeBehind(const StoreNode& node, const StoreNode* behind) {
  if (behind == nullptr) return kLastItem;
  const bool sibling = behind->next == &node && behind->treeItem != kNoTreeItem;
  return sibling ? behind->treeItem : behind->child == &node ? kFirstItem : kLastItem;
}

}  // namespace

void ShellView::loadForm() {
  if (shell_ != nullptr) varlo::loadForm(*shell_);
}
void ShellView::loadItemList(StoreNode* holder) {
  if (shell_ != nullptr) varlo::loadItemList(*shell_, holder);
}
void ShellView::refreshCommandStates() {
  if (shell_ != nullptr) varlo::refreshCommandStates(*shell_);
}
void ShellView::clearTree() {
  if (shell_ != nullptr) varlo::clearTree(*shell_);
}
void ShellView::fillTree() {
  if (shell_ != nullptr) varlo::fillTree(*shell_);
}
void ShellView::insertTreeItem(StoreNode& node, StoreNode* behind) {
  if (shell_ == nullptr) return;
  const TreeItem parent = node.parent == nullptr ? kNoTreeItem : node.parent->treeItem;
  varlo::insertTreeItem(*shell_, node, parent, placeBehind(node, behind));
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
void ShellView::openInBrowser(std::string_view address) {
  if (shell_ != nullptr) varlo::openInBrowser(*shell_, address);
}
void ShellView::storeForm() {
  if (shell_ != nullptr) readForm(*shell_);
}
void ShellView::setWindowTitle(std::string_view title) {
  if (shell_ != nullptr && shell_->mainWindow != nullptr) shell_->mainWindow->setTitle(title);
}

}  // namespace varlo
