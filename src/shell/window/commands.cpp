#include "shell/window/commands.h"

#include <algorithm>
#include <optional>
#include <string>

#include "commerce/cards/accepted_cards_dialog.h"
#include "commerce/wizard/wizard_dialog.h"
#include "core/program/messages.h"
#include "core/program/program.h"
#include "core/program/work.h"
#include "import/import_window.h"
#include "persist/dialogs/preferences_dialog.h"
#include "persist/dialogs/restore_dialog.h"
#include "persist/dialogs/save_as_dialog.h"
#include "persist/life/project_life.h"
#include "persist/project/project_merge.h"
#include "shell/browser/browser.h"
#include "shell/browser/build_commands.h"
#include "shell/browser/order_server.h"
#include "shell/browser/upgrade.h"
#include "shell/state/command_states.h"
#include "shell/state/shell.h"
#include "shell/state/state_display.h"
#include "shell/tabs/form.h"
#include "shell/tree/item_list.h"
#include "shell/tree/node_changes.h"
#include "shell/tree/node_selection.h"
#include "shell/tree/tree_items.h"
#include "shell/window/focus_commands.h"
#include "shell/window/main_layout.h"
#include "shell/window/main_window_life.h"

namespace varlo {
namespace {

void openStore(Shell& shell) {
  ProjectOpenDialog(shell.program);
  loadForm(shell);
  refreshCommandStates(shell);
}

void save(Shell& shell) { ProjectSaveNow(shell.program); }

template <typename Logic>
void runDialog(Shell& shell) {
  Logic logic(shell.program);
  shell.program.screen.runDialog(logic);
  refreshCommandStates(shell);
}

void import(Shell& shell) {
  shell.program.view.showHelp(kHelpOfImport);
  OpenImport(shell.program, shell.import);
}

// The tree was filled anew, so its selection is gone and the form may show what was read over.
void merge(Shell& shell) {
  const std::optional<std::string> path = ChooseProjectFile(shell.program, message::kImportTitle);
  if (!path || ProjectMerge(shell.program, path->c_str()) == 0) return;
  StoreNode* current = shell.program.project.currentNode;
  if (current != nullptr) selectInTree(shell, *current);
  loadForm(shell);
}

// The page is shown anew, whether or not anything was read.
void importFreight(Shell& shell) {
  const std::optional<std::string> path = ChooseProjectFile(shell.program, message::kImportTitle);
  if (path) FreightImport(shell.program, path->c_str());
  shell.program.view.loadFreightList();
}

template <WizardMode mode>
void runWizard(Shell& shell) {
  RunWizard(shell.program, shell.wizard, mode);
  refreshCommandStates(shell);
}

void showCreditCards(Shell& shell) {
  ShowAcceptedCards(shell.program);
  refreshCommandStates(shell);
}

void showTaxOptions(Shell& shell) {
  ShowTaxOptions(shell.program, shell.wizard);
  refreshCommandStates(shell);
}

void disable(Shell& shell) { shell.fromList ? disableRows(shell) : disableNode(shell); }
void enable(Shell& shell) { shell.fromList ? enableRows(shell) : enableNode(shell); }

template <NodeKind kind>
void makeNode(Shell& shell) {
  newNode(shell, kind);
}

void newCategory(Shell& shell) {
  shell.hitItem = shell.program.project.root != nullptr;
  if (shell.hitItem) {
    newNode(shell, NodeKind::Category);
  } else {
    shell.program.screen.postCommand(Command::TreeNewCategory);
  }
}

void newCategoryAtMouse(Shell& shell) { shell.hitItem ? newNode(shell, NodeKind::Category) : newTopCategory(shell); }

template <std::int32_t bit, Command entry>
void toggleView(Shell& shell) {
  std::int32_t& flags = shell.program.config.viewFlags;
  flags ^= bit;
  resizeMainWindow(shell);
  if (shell.mainWindow != nullptr) shell.mainWindow->checkEntry(entry, (flags & bit) != 0);
}

void openOnSite(Shell& shell, std::string_view path) { openInBrowser(shell, std::string(kProductSite).append(path)); }
void openFaq(Shell& shell) { openOnSite(shell, "/faq/varlo.faq"); }
void openManual(Shell& shell) { openOnSite(shell, "/varlo/manual.htm"); }

// Work waits for nothing else to be at work. What changes nothing in the store need not.
enum class Effect { Work, Harmless };

struct CommandRow {
  Command command = Command::None;
  void (*run)(Shell&) = nullptr;
  Effect effect = Effect::Work;
};

constexpr CommandRow kCommands[] = {
    {Command::NewStore, runWizard<WizardMode::NewStore>},
    {Command::OpenStore, openStore},
    {Command::Save, save},
    {Command::SaveAs, runDialog<SaveAsDialog>},
    {Command::RestoreBackup, runDialog<RestoreDialog>},
    {Command::Import, import},
    {Command::Merge, merge},
    {Command::Upgrade, launchUpgrade},
    {Command::Quit, quit},

    {Command::Copy, copyAtFocus},
    {Command::Paste, pasteAtFocus},
    {Command::Disable, disable},
    {Command::Enable, enable},
    {Command::Delete, deleteAtFocus},
    {Command::NewCategory, newCategory},
    {Command::NewProduct, newProduct},
    {Command::NewShelf, makeNode<NodeKind::Shelf>},
    {Command::NewList, makeNode<NodeKind::List>},
    {Command::SelectAll, selectAllAtFocus},

    {Command::ViewOrders, viewOrders, Effect::Harmless},
    {Command::ToggleToolbar, toggleView<kViewToolbar, Command::ToggleToolbar>, Effect::Harmless},
    {Command::ToggleButtons, toggleView<kViewButtons, Command::ToggleButtons>, Effect::Harmless},

    {Command::Preferences, runDialog<PreferencesDialog>},
    {Command::PreviewPage, previewCurrent},
    {Command::BuildStore, openBuildWindow},
    {Command::CreditCards, showCreditCards},
    {Command::FreightRegions, runWizard<WizardMode::Regions>},
    {Command::TaxOptions, showTaxOptions},
    {Command::ImportFreight, importFreight},

    {Command::Faq, openFaq, Effect::Harmless},
    {Command::Manual, openManual, Effect::Harmless},

    {Command::TreeNewCategory, newCategoryAtMouse},
    {Command::TreeCopy, copyNode},
    {Command::TreePaste, pasteNode},
    {Command::TreeDelete, deleteTreeNode},
    {Command::TreeDisable, disableNode},
    {Command::TreeEnable, enableNode},

    {Command::ListCopy, copyNode},
    {Command::ListPaste, pasteNode},
    {Command::ListDelete, deleteRows},
    {Command::ListDisable, disableRows},
    {Command::ListEnable, enableRows},
    {Command::ListSelectAll, selectAllRows},

    {Command::RefillTree, refillTree},
    {Command::ResizeMainWindow, resizeMainWindow, Effect::Harmless},
};

}  // namespace

void dispatchCommand(Shell& shell, Command command) {
  const auto* row = std::ranges::find(kCommands, command, &CommandRow::command);
  if (row == std::end(kCommands)) return;
  if (row->effect == Effect::Harmless) return row->run(shell);
  const Work work(shell.program);
  if (work) row->run(shell);
}

}  // namespace varlo
