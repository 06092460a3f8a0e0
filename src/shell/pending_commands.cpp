#include "shell/command_states.h"
#include "shell/commands.h"
#include "shell/main_layout.h"
#include "shell/main_window_life.h"
#include "shell/popup_menus.h"
#include "shell/shell.h"
#include "shell/tab_switch.h"
#include "shell/toolbar.h"
namespace varlo {
void dispatchCommand(Shell&, Command) {}
void selectCurrent(Shell&, StoreNode*) {}
bool requireServer(Shell&) { return false; }
void refreshCommandStates(Shell&) {}
MainLayout layOutMainWindow(const LayoutFacts&) { return {}; }
void resizeMainWindow(Shell&) {}
void setUpMainWindow(Shell& shell, MainWindow& window) { shell.mainWindow = &window; }
void closeMainWindow(Shell&) {}
void quit(Shell&) {}
PopupMenu treePopup(const Shell&) { return {}; }
PopupMenu listPopup(const Shell&) { return {}; }
void showPopup(Shell&, const PopupMenu&) {}
void switchTab(Shell&, Tab) {}
void openTabPage(Shell&) {}
void closeTabPage(Shell&) {}
std::span<const ToolbarButton> toolbarButtons() { return {}; }
std::string_view toolTipOf(Command) { return {}; }
}  // namespace varlo
