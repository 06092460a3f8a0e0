#include "core/tree/store_tree.h"

#include "core/program/program.h"

namespace varlo {
namespace {

// The place of `node` among the siblings that start at `head`, which hangs in `owner` as its child.
NodePlace findInList(StoreNode* owner, StoreNode* head, const StoreNode& node) {
  if (head == &node) return {.owner = owner, .asChild = true, .found = true};
  for (StoreNode* sibling = head; sibling != nullptr; sibling = sibling->next) {
    if (sibling->next == &node) return {.owner = sibling, .asChild = false, .found = true};
  }
  return {};
}

NodePlace findInChildren(StoreNode* owner, const StoreNode& node) {
  return owner == nullptr || owner->released ? NodePlace() : findInList(owner, owner->child, node);
}

NodePlace findInTree(const StoreProject& project, const StoreNode& node) {
  TreeWalk walk(project.root, true);
  for (auto step = walk.advance(); step != TreeWalk::Step::Done; step = walk.advance()) {
    if (step != TreeWalk::Step::Node) continue;
    StoreNode* owner = walk.node();
    if (owner->child == &node) return {.owner = owner, .asChild = true, .found = true};
    if (owner->next == &node) return {.owner = owner, .asChild = false, .found = true};
  }
  return {};
}

// The root goes: what it was moved behind by key must not lead to it any more.
void forgetRootInFront(const StoreProject& project) {
  const StoreNode* root = project.root;
  if (root != nullptr && root->prev != nullptr && root->prev->next == root) root->prev->next = nullptr;
}

// Lets `place` point at `node` instead of what hung there, which may be null.
void linkAt(StoreProject& project, const NodePlace& place, StoreNode* node) {
  if (place.owner == nullptr) {
    forgetRootInFront(project);
    project.root = node;
    if (node != nullptr) node->parent = nullptr;
  } else {
    (place.asChild ? place.owner->child : place.owner->next) = node;
  }
  if (node != nullptr) node->prev = place.owner;
}

// Takes `node` out of its list; its branch stays below it. Without a place it may stand in front of a root that was
// moved down by key.
void unlink(StoreProject& project, const NodePlace& place, StoreNode& node) {
  StoreNode* next = node.next;
  node.next = nullptr;
  if (place.found) {
    linkAt(project, place, next);
  } else if (next != nullptr && next->prev == &node) {
    next->prev = nullptr;
  }
}

// Takes a product out of its chain or list; the chain below it takes its place.
void unlinkFromChain(StoreProject& project, const NodePlace& place, StoreNode& node) {
  StoreNode* chain = node.child;
  node.child = nullptr;
  if (!place.found || chain == nullptr) {
    unlink(project, place, node);
    return;
  }
  StoreNode* last = LastSibling(chain);
  last->next = node.next;
  if (node.next != nullptr) node.next->prev = last;
  linkAt(project, place, chain);
  node.next = nullptr;
}

void refreshOldParent(Program& program, StoreNode* parent) {
  if (parent != nullptr) program.view.refreshTreeItem(*parent);
}

int showInserted(Program& program, StoreNode& node, StoreNode* oldParent, StoreNode& target) {
  refreshOldParent(program, oldParent);
  program.view.moveTreeItem(node);
  program.view.refreshTreeItem(target);
  program.view.loadItemList(&target);
  return 1;
}

int appendChild(Program& program, StoreNode& node, StoreNode& target) {
  StoreNode* last = LastSibling(target.child);
  if (last == &node) return 0;
  const NodePlace place = FindNodePlace(program.project, node);
  // Outside the tree nothing is shown or saved: the only top-level node does not go there.
  if (place.found && place.owner == nullptr && node.next == nullptr) return 0;
  StoreNode* oldParent = LiveParent(node);
  unlink(program.project, place, node);
  node.parent = &target;
  node.prev = last == nullptr ? &target : last;
  (last == nullptr ? target.child : last->next) = &node;
  return showInserted(program, node, oldParent, target);
}

// Deliberate: the chain runs through child, one product below the other, and is neither built nor
// saved. Paste onto a product makes it.
int insertIntoChain(Program& program, StoreNode& node, StoreNode& target) {
  const NodePlace place = FindNodePlace(program.project, node);
  if (place.found && place.owner == nullptr && node.next == nullptr) return 0;
  StoreNode* oldParent = LiveParent(node);
  unlinkFromChain(program.project, place, node);
  node.prev = &target;
  node.child = target.child;
  node.parent = LiveParent(target);
  if (node.child != nullptr) node.child->prev = &node;
  target.child = &node;
  return showInserted(program, node, oldParent, target);
}

bool refusesNonProduct(const StoreNode& target) {
  const StoreNode* parent = LiveParent(target);
  return IsShelfOrList(target) || (parent != nullptr && IsShelfOrList(*parent));
}

bool isInTree(const StoreProject& project, const StoreNode& node) {
  TreeWalk walk(project.root, true);
  for (auto step = walk.advance(); step != TreeWalk::Step::Done; step = walk.advance()) {
    if (step == TreeWalk::Step::Node && walk.node() == &node) return true;
  }
  return false;
}

// Where a non-product goes that is put onto `product`: its parent, if there is one. A parent that is not
// in the tree, as a refused paste leaves one behind, must not swallow what is.
StoreNode* holderOf(const StoreProject& project, const StoreNode& product) {
  StoreNode* parent = LiveParent(product);
  const bool lost = parent != nullptr && !isInTree(project, *parent) && isInTree(project, product);
  return lost ? nullptr : parent;
}

// The branch of `top` is about to leave the tree: forgets the references into it, and marks its nodes as
// gone. Nodes elsewhere may name one of them as parent, and nothing must be put there.
void leaveTree(StoreProject& project, StoreNode& top) {
  for (StoreNode** reference : {&project.treeNode, &project.dragNode, &project.dragList}) {
    if (*reference != nullptr && IsInBranch(top, **reference)) *reference = nullptr;
  }
  TreeWalk walk(top.child, true);
  for (auto step = walk.advance(); step != TreeWalk::Step::Done; step = walk.advance()) {
    if (step == TreeWalk::Step::Node) walk.node()->released = true;
  }
}

// What becomes current when `node`, at `place`, goes.
StoreNode* remainingNode(const StoreProject& project, const NodePlace& place, const StoreNode& node) {
  if (project.root == &node) return node.next;
  StoreNode* parent = LiveParent(node);
  if (parent != nullptr && parent->child == &node) return parent;
  const bool prevStays = node.prev != nullptr && !node.prev->released && !IsInBranch(node, *node.prev);
  if (prevStays) return node.prev;
  return place.owner != nullptr ? place.owner : project.root;
}

// Whether `node` is the sibling behind `before`. A node in front of the root keeps its next when that moves away.
bool hangsBehind(const StoreProject& project, const StoreNode& node, const StoreNode& before) {
  if (&node == project.root) return node.prev == &before;
  const NodePlace place = FindNodePlace(project, node);
  return place.found && place.owner == &before && !place.asChild;
}

}  // namespace

NodePlace FindNodePlace(const StoreProject& project, const StoreNode& node) {
  if (project.root == &node) return {.owner = nullptr, .asChild = false, .found = true};
  if (node.prev != nullptr && !node.prev->released) {
    if (node.prev->child == &node) return {.owner = node.prev, .asChild = true, .found = true};
    if (node.prev->next == &node) return {.owner = node.prev, .asChild = false, .found = true};
  }
  NodePlace place = findInChildren(node.parent, node);
  if (!place.found) place = findInChildren(node.prev, node);
  if (!place.found) place = findInTree(project, node);
  return place;
}

StoreNode* LiveParent(const StoreNode& node) {
  return node.parent != nullptr && node.parent->released ? nullptr : node.parent;
}

bool IsShownByParent(const StoreNode& node) {
  const StoreNode* parent = LiveParent(node);
  return parent != nullptr && IsShelfOrList(*parent);
}

bool IsInBranch(const StoreNode& top, const StoreNode& node) {
  if (&top == &node) return true;
  TreeWalk walk(top.child, true);
  for (auto step = walk.advance(); step != TreeWalk::Step::Done; step = walk.advance()) {
    if (step == TreeWalk::Step::Node && walk.node() == &node) return true;
  }
  return false;
}

StoreNode* LastSibling(StoreNode* head) {
  while (head != nullptr && head->next != nullptr) head = head->next;
  return head;
}

int StoreNodeInsert(Program& program, StoreNode* node, StoreNode* target) {
  if (node == nullptr || target == nullptr) return 0;
  const bool product = IsProduct(*node);
  if (!product && refusesNonProduct(*target)) return 0;
  if (!product && IsProduct(*target)) target = holderOf(program.project, *target);
  if (target == nullptr || IsInBranch(*node, *target)) return 0;
  return IsProduct(*target) ? insertIntoChain(program, *node, *target) : appendChild(program, *node, *target);
}

int StoreNodeSwapWithNext(StoreProject& project, StoreNode& node) {
  StoreNode* below = node.next;
  if (below == nullptr || !hangsBehind(project, *below, node)) return 0;
  NodePlace place = FindNodePlace(project, node);
  if (&node == project.root && node.prev != nullptr && node.prev->next == &node) place.owner = node.prev;
  node.next = below->next;
  if (node.next != nullptr) node.next->prev = &node;
  node.prev = below;
  below->next = &node;
  below->prev = place.owner;
  if (place.owner != nullptr) (place.asChild ? place.owner->child : place.owner->next) = below;
  return 1;
}

void StoreNodeDelete(Program& program, StoreNode* node) {
  if (node == nullptr || node->released) return;
  StoreProject& project = program.project;
  const NodePlace place = FindNodePlace(project, *node);
  StoreNode* remaining = remainingNode(project, place, *node);
  leaveTree(project, *node);
  unlink(project, place, *node);
  program.view.removeTreeItem(*node);
  StoreNodeListFree(project, node);
  project.currentNode = remaining;
  if (project.root == nullptr) project.treeNode = nullptr;
  program.view.loadForm();
}

void StoreNodeMarkSiblings(StoreProject& project, StoreNode& node) {
  StoreNode* parent = LiveParent(node);
  StoreNode* head = &node;
  if (parent != nullptr) parent->modified = 1;
  if (parent != nullptr && parent->child != nullptr) {
    head = parent->child;
  } else {
    // A prev that names another node than the previous one could lead in a circle.
    std::size_t steps = project.nodes.size();
    while (head->prev != nullptr && head->prev->child != head && steps-- > 0) head = head->prev;
  }
  for (; head != nullptr; head = head->next) head->modified = 1;
}

void StoreNodeListFree(StoreProject& project, StoreNode* head) {
  while (head != nullptr) {
    StoreNode* next = head->next;
    for (StoreNode** reference : {&project.currentNode, &project.treeNode, &project.dragNode, &project.dragList}) {
      if (*reference == head) *reference = nullptr;
    }
    project.nodes.release(*head);
    head = next;
  }
}

}  // namespace varlo
