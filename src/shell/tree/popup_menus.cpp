#include "shell/tree/popup_menus.h"

#include <initializer_list>

#include "core/program/program.h"
#include "core/tree/store_tree.h"
#include "shell/state/shell.h"

namespace varlo {
namespace {

// The entries stand in for what their commands are in tree and list.
struct NodeEntries {
  Command copy = Command::None;
  Command remove = Command::None;
  Command enable = Command::None;
  Command disable = Command::None;
  Command paste = Command::None;
};
constexpr NodeEntries kTree{Command::TreeCopy, Command::TreeDelete, Command::TreeEnable, Command::TreeDisable,
                            Command::TreePaste};
constexpr NodeEntries kList{Command::ListCopy, Command::ListDelete, Command::ListEnable, Command::ListDisable,
                            Command::ListPaste};

PopupMenu beginning() {
  return {{.label = "Pre&view", .command = Command::PreviewPage},
          {.label = "&New",
           .entries = {{.label = "&Category", .command = Command::TreeNewCategory},
                       {.label = "&Product", .command = Command::NewProduct},
                       {.label = "&Shelf", .command = Command::NewShelf},
                       {.label = "&List", .command = Command::NewList},
                       {.label = "&Store", .command = Command::NewStore}}}};
}

// Entries that were removed stay so, and grey ones stay grey.
void grey(PopupMenu& menu, std::initializer_list<Command> commands) {
  for (MenuEntry& entry : menu) {
    for (const Command command : commands) {
      if (entry.command == command) entry.enabled = false;
    }
    grey(entry.entries, commands);
  }
}

void remove(PopupMenu& menu, Command command) {
  std::erase_if(menu, [command](const MenuEntry& entry) { return entry.command == command; });
  for (MenuEntry& entry : menu) remove(entry.entries, command);
}

bool isInShelfOrList(const StoreNode* node) {
  if (node == nullptr) return false;
  const StoreNode* parent = LiveParent(*node);
  return IsShelfOrList(*node) || (parent != nullptr && IsShelfOrList(*parent));
}

void greyWhatNeedsAHit(PopupMenu& menu, const NodeEntries& node) {
  grey(menu, {node.copy, Command::NewProduct, Command::NewShelf, node.remove, node.enable, node.disable,
              Command::PreviewPage});
}

void chooseStoreOrNodes(PopupMenu& menu, bool nodes) {
  if (nodes) {
    remove(menu, Command::NewStore);
  } else {
    for (const Command command : {Command::NewShelf, Command::NewProduct, Command::TreeNewCategory}) {
      remove(menu, command);
    }
  }
}

void greyHolders(PopupMenu& menu) { grey(menu, {Command::TreeNewCategory, Command::NewShelf, Command::NewList}); }

// The rules that both menus have.
void applyCommonRules(PopupMenu& menu, const NodeEntries& node, bool nodes, const Shell& shell) {
  const StoreProject& project = shell.program.project;
  if (!shell.hitItem) greyWhatNeedsAHit(menu, node);
  chooseStoreOrNodes(menu, nodes);
  if (project.clipboardNode == nullptr) grey(menu, {node.paste});
  if (isInShelfOrList(project.currentNode)) greyHolders(menu);
}

}  // namespace

PopupMenu treePopup(const Shell& shell) {
  PopupMenu menu = beginning();
  menu.push_back({.label = "&Copy", .command = Command::TreeCopy});
  menu.push_back({.label = "&Paste", .command = Command::TreePaste});
  menu.push_back({.label = "Delete", .command = Command::TreeDelete});
  menu.push_back({.label = "Disable", .command = Command::TreeDisable});
  menu.push_back({.label = "Enable", .command = Command::TreeEnable});

  const StoreProject& project = shell.program.project;
  const bool projectOpen = project.projectFile.isSet();
  applyCommonRules(menu, kTree, projectOpen, shell);
  const bool canDisable = project.currentNode != nullptr && project.currentNode->status != kStatusDisabled;
  grey(menu, {canDisable ? Command::TreeEnable : Command::TreeDisable});
  if (!projectOpen) greyHolders(menu);
  return menu;
}

PopupMenu listPopup(const Shell& shell) {
  PopupMenu menu = beginning();
  menu.push_back({.label = "&Copy", .command = Command::ListCopy});
  menu.push_back({.label = "&Paste", .command = Command::ListPaste});
  menu.push_back({.label = "Delete", .command = Command::ListDelete});
  menu.push_back({.label = "Enable", .command = Command::ListEnable});
  menu.push_back({.label = "Disable", .command = Command::ListDisable});
  menu.push_back({.label = "Select &All", .command = Command::ListSelectAll});
  applyCommonRules(menu, kList, shell.program.project.root != nullptr, shell);
  return menu;
}

}  // namespace varlo
