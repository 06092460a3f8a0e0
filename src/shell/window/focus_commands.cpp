#include "shell/window/focus_commands.h"

#include "core/program/program.h"
#include "shell/state/focus.h"
#include "shell/state/page_logic.h"
#include "shell/state/shell.h"
#include "shell/tree/item_list.h"
#include "shell/tree/node_changes.h"

namespace varlo {
namespace {

using PageAction = void (*)(Dialog& page, ControlId richEdit);

// Runs `action` on the rich edit that has the focus. False when none has. Without a current node the edit is grey,
// and keeps a focus that it had: what was put there would belong to nothing.
bool onRichEdit(Shell& shell, PageAction action) {
  if (shell.tabPage == nullptr || shell.pageLogic == nullptr || focusPlace(shell) != FocusPlace::RichEdit)
    return false;
  if (shell.program.project.currentNode != nullptr) action(*shell.tabPage, shell.pageLogic->richEdit());
  return true;
}

// The page where it is to be asked; null without one.
PageLogic* pageOf(const Shell& shell) { return shell.tabPage == nullptr ? nullptr : shell.pageLogic.get(); }

}  // namespace

void copyAtFocus(Shell& shell) {
  if (onRichEdit(shell, [](Dialog& page, ControlId edit) { page.copySelection(edit); })) return;
  const FocusPlace place = focusPlace(shell);
  if (place == FocusPlace::Tree || place == FocusPlace::ItemList) {
    copyNode(shell);
  } else if (PageLogic* page = pageOf(shell)) {
    page->copy(*shell.tabPage);
  }
}

// A node is pasted once the menu's own command has ended.
void pasteAtFocus(Shell& shell) {
  if (onRichEdit(shell, [](Dialog& page, ControlId edit) { page.paste(edit); })) return;
  const FocusPlace place = focusPlace(shell);
  if (place == FocusPlace::Tree) {
    shell.program.screen.postCommand(Command::TreePaste);
  } else if (place == FocusPlace::ItemList) {
    shell.program.screen.postCommand(Command::ListPaste);
  } else if (PageLogic* page = pageOf(shell)) {
    page->paste(*shell.tabPage);
  }
}

void deleteAtFocus(Shell& shell) {
  if (onRichEdit(shell, [](Dialog& page, ControlId edit) { page.replaceSelection(edit, ""); })) return;
  const FocusPlace place = focusPlace(shell);
  if (place == FocusPlace::Tree) {
    deleteTreeNode(shell);
  } else if (place == FocusPlace::ItemList) {
    deleteRows(shell);
  } else if (PageLogic* page = pageOf(shell)) {
    page->remove(*shell.tabPage);
  }
}

void selectAllAtFocus(Shell& shell) {
  if (onRichEdit(shell, [](Dialog& page, ControlId edit) { page.selectAll(edit); })) return;
  PageLogic* page = focusPlace(shell) == FocusPlace::RegionList ? pageOf(shell) : nullptr;
  if (page == nullptr || !page->selectAll(*shell.tabPage)) selectAllRows(shell);
}

}  // namespace varlo
