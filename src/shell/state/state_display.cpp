#include "shell/state/state_display.h"

#include "core/program/program.h"
#include "core/program/scheme.h"
#include "core/tree/store_tree.h"
#include "platform/main_window.h"
#include "shell/state/command_states.h"
#include "shell/state/focus.h"
#include "shell/state/page_logic.h"
#include "shell/state/shell.h"

namespace varlo {
namespace {

template <typename States>
struct CommandState {
  Command command = Command::None;
  bool States::*state = nullptr;
};

template <typename States>
struct ControlState {
  ControlId control = 0;
  bool States::*state = nullptr;
};

using Entries = CommandStates::Entries;
constexpr CommandState<Entries> kEntries[] = {
    {Command::NewStore, &Entries::free},
    {Command::OpenStore, &Entries::free},
    {Command::RestoreBackup, &Entries::free},
    {Command::Upgrade, &Entries::free},
    {Command::Quit, &Entries::free},
    {Command::NewList, &Entries::free},
    {Command::Preferences, &Entries::free},
    {Command::FreightRegions, &Entries::free},
    {Command::TaxOptions, &Entries::free},
    {Command::ImportFreight, &Entries::free},
    {Command::Save, &Entries::save},
    {Command::SaveAs, &Entries::needProject},
    {Command::Merge, &Entries::needProject},
    {Command::Import, &Entries::needProject},
    {Command::CreditCards, &Entries::needProject},
    {Command::NewCategory, &Entries::needProject},
    {Command::Disable, &Entries::needTree},
    {Command::Enable, &Entries::needTree},
    {Command::NewProduct, &Entries::needTree},
    {Command::NewShelf, &Entries::needTree},
    {Command::Copy, &Entries::copy},
    {Command::Paste, &Entries::paste},
    {Command::Delete, &Entries::remove},
    {Command::Find, &Entries::find},
    {Command::SelectAll, &Entries::selectAll},
    {Command::PreviewPage, &Entries::preview},
    {Command::BuildStore, &Entries::build},
};

using Tools = CommandStates::Tools;
constexpr CommandState<Tools> kTools[] = {
    {Command::NewStore, &Tools::free},
    {Command::OpenStore, &Tools::free},
    {Command::Upgrade, &Tools::free},
    {Command::Save, &Tools::save},
    {Command::NewProduct, &Tools::product},
    {Command::NewCategory, &Tools::holders},
    {Command::NewShelf, &Tools::holders},
    {Command::NewList, &Tools::holders},
    {Command::BuildStore, &Tools::buildAndPreview},
    {Command::PreviewPage, &Tools::buildAndPreview},
};

using Buttons = CommandStates::Buttons;
constexpr ControlState<Buttons> kButtons[] = {
    {main_window::kPreview, &Buttons::preview},  {main_window::kProduct, &Buttons::productAndBuild},
    {main_window::kCategory, &Buttons::holders}, {main_window::kShelf, &Buttons::holders},
    {main_window::kList, &Buttons::holders},     {main_window::kBuild, &Buttons::productAndBuild},
};

void gatherNode(const StoreProject& project, CommandFacts& facts) {
  const StoreNode* node = project.currentNode;
  if (node == nullptr) return;
  facts.node = node->kind;
  facts.nodeHasImage = node->image.isSet();
  const StoreNode* parent = LiveParent(*node);
  if (parent != nullptr) facts.parent = parent->kind;
}

// Asking for the selection or the clipboard costs, so it is done where the answer matters.
void gatherRichEdit(const Shell& shell, CommandFacts& facts) {
  if (facts.focus != FocusPlace::RichEdit || shell.tabPage == nullptr || shell.pageLogic == nullptr) return;
  facts.textSelected = shell.tabPage->hasSelection(shell.pageLogic->richEdit());
  facts.textToPaste = shell.program.clipboard.offersText();
}

}  // namespace

CommandFacts gatherFacts(const Shell& shell) {
  const StoreProject& project = shell.program.project;
  const AppConfig& config = shell.program.config;
  CommandFacts facts{.atWork = shell.program.atWork,
                     .projectOpen = project.projectFile.isSet(),
                     .treeFilled = project.root != nullptr,
                     .dirty = project.dirty != 0,
                     .tab = shell.currentTab,
                     .focus = focusPlace(shell),
                     .nodeCopied = project.clipboardNode != nullptr,
                     .regionCurrent = project.currentRegion != nullptr,
                     .regionCopied = project.freightClipboard != nullptr,
                     .variableCurrent = project.currentVariable != nullptr};
  gatherNode(project, facts);
  gatherRichEdit(shell, facts);
  if (config.currentStyle != nullptr) facts.styleType = config.currentStyle->type;
  if (config.currentScheme != nullptr) facts.schemeType = config.currentScheme->type;
  return facts;
}

void refreshCommandStates(Shell& shell) {
  if (shell.mainWindow == nullptr) return;
  MainWindow& window = *shell.mainWindow;
  const CommandStates states = commandStates(gatherFacts(shell));
  for (const auto& [command, state] : kEntries) window.enableEntry(command, states.entries.*state);
  for (const auto& [command, state] : kTools) window.enableTool(command, states.tools.*state);
  for (const auto& [control, state] : kButtons) window.controls().enable(control, states.buttons.*state);
  if (shell.tabPage == nullptr) return;
  if (shell.pageLogic != nullptr) shell.pageLogic->showStates(*shell.tabPage, states.page);
}

}  // namespace varlo
