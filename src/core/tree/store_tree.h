// The links of the store tree: walking, inserting, deleting, marking. Rules:
// - A sibling list ends with next null; the top-level list starts at the project's root.
// - prev of a first child is the node above it, and null in the first top-level node.
// - parent never names a product.
// - A product's child is the head of a chain (pasted or made onto it) or of a branch in an old file;
//   the tree control shows it, nothing builds or saves it.
// Deliberate: some commands leave prev or parent pointing elsewhere (a product made while the tree
// shows another node, merged nodes). The values stay as they are made, and what unlinks a node looks
// for its true place, so that no item and no sibling is lost by them.
#pragma once

#include <vector>

#include "core/store/store_node.h"

namespace varlo {

struct Program;
struct StoreProject;

// Where a node hangs: in `owner`, as its child or its next; the owner is null for the root. A node
// that hangs nowhere has no place.
struct NodePlace {
  StoreNode* owner = nullptr;
  bool asChild = false;
  bool found = false;
};

// The true place of `node` in the tree.
[[nodiscard]] NodePlace FindNodePlace(const StoreProject& project, const StoreNode& node);

// The parent of `node`, null when there is none or it was deleted meanwhile.
[[nodiscard]] StoreNode* LiveParent(const StoreNode& node);

// Whether the node is an item of a shelf or a list, and so has no page of its own.
[[nodiscard]] bool IsShownByParent(const StoreNode& node);

// Whether `node` is `top` or hangs anywhere below it.
[[nodiscard]] bool IsInBranch(const StoreNode& top, const StoreNode& node);

// The last node of a sibling list, null for an empty one.
[[nodiscard]] StoreNode* LastSibling(StoreNode* head);

// Moves `node`, or links a new one, as told by both kinds:
// - onto a category, shelf or list: to the end of its children;
// - a non-product onto a product: to the end of the children of the product's parent;
// - a product onto a product: to the head of the chain below it.
// Gives 1, or 0 and changes nothing: for a non-product onto a shelf, a list or one of their products,
// for a node that already is the last child, for a null or missing target, and for a target in the
// node's own branch.
int StoreNodeInsert(Program& program, StoreNode* node, StoreNode* target);

// Swaps `node` with its next sibling; 0 when there is none. Deliberate: the root stays the node that it is, so the
// sibling that comes before it is out of the tree until the two are swapped back.
int StoreNodeSwapWithNext(StoreProject& project, StoreNode& node);

// Unlinks and releases the node; those below it are gone from the tree with it. The parent of a first
// child, else the previous node, else the next top-level node becomes current.
void StoreNodeDelete(Program& program, StoreNode* node);

// Sets `modified` on the parent and on every node of the list that holds `node`.
void StoreNodeMarkSiblings(StoreProject& project, StoreNode& node);

// Releases the nodes from `head` along next, not what is below them. A reference of the project to a
// released node becomes null.
void StoreNodeListFree(StoreProject& project, StoreNode* head);

// Walks a list and all below it in the order of the tree, without recursion.
class TreeWalk {
 public:
  // `withChains` also follows what hangs below products.
  explicit TreeWalk(StoreNode* head, bool withChains = false) : node_(head), withChains_(withChains) {}

  enum class Step { Node, EndOfBranch, Done };

  // Goes on: to a node (see node()), or to the end of the branch below branch().
  Step advance();
  [[nodiscard]] StoreNode* node() const { return node_; }
  [[nodiscard]] StoreNode* branch() const { return node_; }
  // How many branches are open at the node.
  [[nodiscard]] std::size_t depth() const { return open_.size(); }

 private:
  enum class State { AtStart, AtNode, AfterBranch };
  [[nodiscard]] bool descends() const;

  StoreNode* node_;
  std::vector<StoreNode*> open_;
  State state_ = State::AtStart;
  bool withChains_;
};

}  // namespace varlo
