// Shell: the state behind the main window, and how the user's doings reach the model.
#pragma once

#include <array>
#include <memory>
#include <optional>
#include <string>

#include "commerce/wizard/wizard_state.h"
#include "core/forms/modeless_window.h"
#include "core/store/user_variable.h"
#include "core/text/text.h"
#include "generator/state/generator.h"
#include "import/import_state.h"
#include "platform/browser_system.h"
#include "platform/main_window.h"

namespace varlo {

struct Program;
class StoreBuildDialog;
struct PageLogic;

// The tabs, in the order of the tab control.
enum class Tab { Inventory, Template, Freight, OrderForm, Confirmation, Layout, Variables };
inline constexpr int kTabs = 7;

// The number by which the help pane knows the open tab.
inline constexpr int kHelpOfTab = 0;
// And the choice of a file to import.
inline constexpr int kHelpOfImport = 2;

struct Shell {
  Shell(Program& theProgram, BrowserSystem& theBrowsers);
  ~Shell();
  Shell(const Shell&) = delete;
  Shell& operator=(const Shell&) = delete;

  Program& program;
  BrowserSystem& browsers;
  Generator generator;
  WizardState wizard;  // of the store wizard, from run to run
  ModelessWindow<StoreBuildDialog> buildWindow;
  ImportState import;

  MainWindow* mainWindow = nullptr;  // while it is open
  Dialog* tabPage = nullptr;         // the page of the open tab; null while it is swapped
  std::shared_ptr<PageLogic> pageLogic;
  Tab currentTab = Tab::Inventory;

  bool fromList = false;  // currentNode was picked in the item list
  bool hitItem = false;   // the last right click hit an item or a row

  // Guards. A change that filling causes must not reach the model.
  bool formLoading = false;         // a page is being filled
  bool formBusy = false;            // neither loadForm nor readForm does anything
  bool notificationsMuted = false;  // the tree or the list is being filled
  bool listFrozen = false;          // loadItemList does nothing, while a node is moved by key
  bool listBusy = false;            // rows are being deleted; clicks do nothing
  bool editWaits = false;           // a field changed while something was at work; read when that has ended

  // The form.
  std::optional<std::string> descriptionCache;  // text last put into the rich edit of a page
  ControlId focusedField = 0;                   // the field that the Edit dialog mirrors
  ControlId linkedField = 0;
  Text heldTemplateName;  // file name of the template in hand; null when it could not be read, or was written
  std::unique_ptr<UserVariable> variableClipboard;

  // The tree and the list.
  int listKeyCountdown = 0;  // row changes until one of a key press counts
  bool ctrlSeen = false;     // Ctrl was pressed in the tree; only a move up takes it back
  bool treeDragging = false;
  bool listDragging = false;
  int dragRow = kNoRow;                  // highlighted while dragging
  TreeItem dropHighlight = kNoTreeItem;  // the same in the tree

  bool launchBusy = false;  // a browser is being spoken to
};

}  // namespace varlo
