#include "shell/tree/tree_items.h"

#include <array>
#include <span>
#include <vector>

#include "core/program/program.h"
#include "core/tree/store_tree.h"
#include "generator/items/html_text.h"
#include "shell/state/guards.h"
#include "shell/state/shell.h"
#include "shell/tree/item_list.h"

namespace varlo {
namespace {

constexpr std::string_view kInsertError = "TVM_INSERTITEM failed";

struct Icons {
  int enabled;
  int disabled;
};

// By the numbers of the kinds.
constexpr std::array<Icons, 4> kIcons{{{10, 17}, {11, 19}, {20, 21}, {23, 24}}};

bool offersChildren(const StoreNode& node) { return node.child != nullptr && !IsProduct(node); }

TreeWindow* treeOf(Shell& shell) { return shell.mainWindow == nullptr ? nullptr : &shell.mainWindow->tree(); }

// The control has given up the node's item.
void forgetItem(Shell& shell, StoreNode& node) {
  if (node.treeItem == shell.dropHighlight && node.treeItem != kNoTreeItem) {
    shell.dropHighlight = kNoTreeItem;
    shell.mainWindow->tree().setDropHighlight(kNoTreeItem);
  }
  node.treeItem = kNoTreeItem;
}

// Removes the items of the node and of all below it. Those below go with the topmost one that is shown.
void removeBranch(Shell& shell, StoreNode& node) {
  TreeWindow& tree = shell.mainWindow->tree();
  const bool shown = node.treeItem != kNoTreeItem;
  if (shown) tree.remove(node.treeItem);
  forgetItem(shell, node);
  std::optional<std::size_t> gone;  // depth of the topmost one
  TreeWalk walk(node.child, true);
  for (auto step = walk.advance(); step != TreeWalk::Step::Done; step = walk.advance()) {
    if (step != TreeWalk::Step::Node) continue;
    StoreNode& below = *walk.node();
    if (gone.has_value() && walk.depth() <= *gone) gone.reset();
    if (below.treeItem == kNoTreeItem) continue;
    if (!shown && !gone.has_value()) {
      tree.remove(below.treeItem);
      gone = walk.depth();
    }
    forgetItem(shell, below);
  }
}

bool isChildOf(const StoreNode& node, const StoreNode& holder) {
  const StoreNode* child = holder.child;
  while (child != nullptr && child != &node) child = child->next;
  return child != nullptr;
}

// The node that holds the list in which `node` hangs, null for the top level; nothing when it hangs nowhere. Its
// parent is asked first: among thousands of imported products the way back from each to the one before is long.
std::optional<StoreNode*> holderOf(const StoreProject& project, const StoreNode& node) {
  StoreNode* parent = LiveParent(node);
  if (parent != nullptr && isChildOf(node, *parent)) return parent;
  const StoreNode* first = &node;
  NodePlace place = FindNodePlace(project, *first);
  while (place.found && place.owner != nullptr && !place.asChild) {
    first = place.owner;
    place = FindNodePlace(project, *first);
  }
  if (place.found) return place.owner;
  // The root was moved down by key, and this list starts in front of it.
  const bool inFront = first->parent == nullptr && first->treeItem != kNoTreeItem;
  return inFront ? std::optional<StoreNode*>(nullptr) : std::nullopt;
}

}  // namespace

StoreNode* nodeOfItem(const Shell& shell, TreeItem item) {
  if (shell.mainWindow == nullptr || item == kNoTreeItem) return nullptr;
  return static_cast<StoreNode*>(shell.mainWindow->tree().data(item));
}

int iconOf(const StoreNode& node) {
  const Icons& icons = kIcons[static_cast<std::size_t>(node.kind)];
  return node.status == kStatusDisabled ? icons.disabled : icons.enabled;
}

std::optional<TreeItem> parentItemOf(const Shell& shell, const StoreNode& node) {
  const std::optional<StoreNode*> holder = holderOf(shell.program.project, node);
  if (!holder.has_value()) return std::nullopt;
  if (*holder == nullptr) return kNoTreeItem;
  const TreeItem item = (*holder)->treeItem;
  return item == kNoTreeItem ? std::nullopt : std::optional(item);
}

TreeItem itemBefore(const Shell& shell, const StoreNode& node, TreeItem parent) {
  const StoreNode* holder = nodeOfItem(shell, parent);
  const StoreNode* sibling = holder == nullptr ? shell.program.project.root : holder->child;
  TreeItem before = kFirstItem;
  for (; sibling != nullptr && sibling != &node; sibling = sibling->next) {
    if (sibling->treeItem != kNoTreeItem) before = sibling->treeItem;
  }
  return before;
}

void insertTreeItem(Shell& shell, StoreNode& node, TreeItem parent, TreeItem behind) {
  TreeWindow* tree = treeOf(shell);
  if (tree == nullptr) return;
  node.treeItem = tree->insert({.parent = parent,
                                .behind = behind == kNoTreeItem ? kLastItem : behind,
                                .label = displayTitle(&node),
                                .icon = iconOf(node),
                                .hasChildren = offersChildren(node),
                                .data = &node});
  if (node.treeItem == kNoTreeItem) ErrorBox(shell.program, kInsertError);
}

void insertTreeBranch(Shell& shell, StoreNode* first, TreeItem parent, TreeItem behind) {
  // A list that is still to be inserted, from its next node on. Depth is no matter.
  struct List {
    StoreNode* next;
    TreeItem parent;
    TreeItem behind;
  };
  if (shell.mainWindow == nullptr) return;
  std::vector<List> lists{{first, parent, behind}};
  while (!lists.empty()) {
    List& list = lists.back();
    if (list.next == nullptr) {
      lists.pop_back();
      continue;
    }
    StoreNode& node = *list.next;
    list.next = node.next;
    insertTreeItem(shell, node, list.parent, list.behind);
    if (node.treeItem == kNoTreeItem) continue;
    list.behind = node.treeItem;
    if (node.child != nullptr) lists.push_back({node.child, node.treeItem, kLastItem});
  }
}

void moveTreeItem(Shell& shell, StoreNode& node) {
  if (shell.mainWindow == nullptr) return;
  const Raised muted(shell.notificationsMuted);
  const HeldPainting held(shell.mainWindow->tree());
  removeBranch(shell, node);
  const std::optional<TreeItem> parent = parentItemOf(shell, node);
  if (!parent.has_value()) return;
  insertTreeItem(shell, node, *parent, itemBefore(shell, node, *parent));
  if (node.treeItem != kNoTreeItem) insertTreeBranch(shell, node.child, node.treeItem, kLastItem);
  StoreNode* holder = nodeOfItem(shell, *parent);
  if (holder != nullptr) refreshChildrenFlag(shell, *holder);
}

void insertTreeItems(Shell& shell, std::span<StoreNode* const> nodes) {
  if (shell.mainWindow == nullptr) return;
  const Raised muted(shell.notificationsMuted);
  const HeldPainting held(shell.mainWindow->tree());
  const StoreNode* before = nullptr;
  std::optional<TreeItem> parent;
  for (StoreNode* node : nodes) {
    if (before == nullptr || before->next != node) {
      // A chain is inserted with its first node.
      if (node->treeItem == kNoTreeItem) moveTreeItem(shell, *node);
      parent = parentItemOf(shell, *node);
    } else if (parent.has_value() && before->treeItem != kNoTreeItem) {
      insertTreeItem(shell, *node, *parent, before->treeItem);
    }
    before = node;
  }
}

void removeTreeItem(Shell& shell, StoreNode& node) {
  if (shell.mainWindow == nullptr) return;
  const Raised muted(shell.notificationsMuted);
  removeBranch(shell, node);
}

void refreshIcon(Shell& shell, StoreNode& node) {
  if (shell.mainWindow == nullptr || node.treeItem == kNoTreeItem) return;
  shell.mainWindow->tree().setIcon(node.treeItem, iconOf(node));
}

void refreshLabel(Shell& shell, StoreNode& node) {
  if (shell.mainWindow == nullptr || node.treeItem == kNoTreeItem) return;
  shell.mainWindow->tree().setLabel(node.treeItem, displayTitle(&node));
}

void refreshChildrenFlag(Shell& shell, StoreNode& node) {
  if (shell.mainWindow == nullptr || node.treeItem == kNoTreeItem) return;
  shell.mainWindow->tree().setHasChildren(node.treeItem, offersChildren(node));
}

void followTreeNode(Shell& shell) {
  TreeWindow* tree = treeOf(shell);
  if (tree == nullptr) return;
  const Raised muted(shell.notificationsMuted);
  const StoreNode* node = shell.program.project.treeNode;
  tree->select(node == nullptr ? kNoTreeItem : node->treeItem);
}

void clearTree(Shell& shell) {
  if (shell.mainWindow == nullptr) return;
  const Raised muted(shell.notificationsMuted);
  NodePool& nodes = shell.program.project.nodes;
  // Also of nodes that are shown and in the tree no more.
  for (std::size_t i = 0; i < nodes.size(); ++i) nodes.at(i).treeItem = kNoTreeItem;
  shell.dropHighlight = kNoTreeItem;
  shell.dragRow = kNoRow;
  shell.fromList = false;
  const HeldPainting heldTree(shell.mainWindow->tree());
  const HeldPainting heldList(shell.mainWindow->list());
  shell.mainWindow->tree().setDropHighlight(kNoTreeItem);
  shell.mainWindow->list().removeAll();
  shell.mainWindow->tree().removeAll();
}

void fillTree(Shell& shell) {
  if (shell.mainWindow == nullptr) return;
  const Raised muted(shell.notificationsMuted);
  const HeldPainting held(shell.mainWindow->tree());
  insertTreeBranch(shell, shell.program.project.root, kNoTreeItem, kLastItem);
  followTreeNode(shell);
}

void refillTree(Shell& shell) {
  clearTree(shell);
  fillTree(shell);
  loadItemList(shell, shell.program.project.currentNode);
}

}  // namespace varlo
