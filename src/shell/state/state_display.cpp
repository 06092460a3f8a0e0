#include "shell/state/state_display.h"

#include "core/program/program.h"
#include "core/program/scheme.h"
#include "core/tree/store_tree.h"
#include "platform/control_ids.h"
#include "shell/state/focus.h"
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
    {control::main::kPreview, &Buttons::preview},  {control::main::kProduct, &Buttons::productAndBuild},
    {control::main::kCategory, &Buttons::holders}, {control::main::kShelf, &Buttons::holders},
    {control::main::kList, &Buttons::holders},     {control::main::kBuild, &Buttons::productAndBuild},
};

using Page = CommandStates::Page;
namespace form = control::inventory;
// The buttons beside the image fields follow what stands in these; the form sees to them.
constexpr ControlState<Page> kInventoryFields[] = {
    {form::kTitle, &Page::fields},
    {form::kPageTitle, &Page::fields},
    {form::kFileName, &Page::ownPage},
    {form::kProductCode, &Page::fields},
    {form::kMetaKeywords, &Page::fields},
    {form::kMetaDescription, &Page::fields},
    {form::kImage, &Page::fields},
    {form::kImageLink, &Page::imageLink},
    {form::kTemplate, &Page::ownPage},
    {form::kCost, &Page::fields},
    {form::kWeight, &Page::fields},
    {form::kFreight, &Page::fields},
    {form::kTax, &Page::fields},
    {form::kDescription, &Page::fields},
    {form::kKeywordManager, &Page::fields},
    {form::kChooseImage, &Page::fields},
    {form::kPreview, &Page::fields},
    {form::kBuild, &Page::fields},
};
constexpr int kCustomFields = 6;

void showOnInventoryPage(Dialog& page, const Page& states) {
  for (const auto& [control, state] : kInventoryFields) page.enable(control, states.*state);
  for (int i = 0; i < kCustomFields; ++i) {
    page.enable(form::kLabel1 + i, states.fields);
    page.enable(form::kValue1 + i, states.fields);
  }
}

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
  if (facts.focus != FocusPlace::RichEdit || shell.tabPage == nullptr) return;
  facts.textSelected = shell.tabPage->hasSelection(richEditOf(shell.currentTab));
  facts.textToPaste = shell.program.clipboard.offersText();
}

}  // namespace

CommandFacts gatherFacts(const Shell& shell) {
  const StoreProject& project = shell.program.project;
  const AppConfig& config = shell.program.config;
  CommandFacts facts{.projectOpen = project.projectFile.isSet(),
                     .treeFilled = project.root != nullptr,
                     .dirty = project.dirty != 0,
                     .tab = shell.currentTab,
                     .focus = focusPlace(shell),
                     .nodeCopied = project.clipboardNode != nullptr,
                     .regionCurrent = project.currentRegion != nullptr,
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
  if (shell.currentTab == Tab::Inventory) showOnInventoryPage(*shell.tabPage, states.page);
}

}  // namespace varlo
