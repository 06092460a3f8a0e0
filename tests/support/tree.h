// Making store trees for tests, and showing them as one line of text.
#pragma once

#include <string>

#include <gmock/gmock.h>

#include "core/store/store_project.h"
#include "core/tree/store_tree.h"
#include "core/tree/store_tree_check.h"

namespace varlo::test {

// A node of this kind and title at the end of the children of `parent`, or of the top-level list.
inline StoreNode* AddNode(StoreProject& project, NodeKind kind, const char* title, StoreNode* parent = nullptr) {
  StoreNode* node = project.nodes.allocate();
  node->kind = kind;
  node->title.assign(title);
  node->parent = parent;
  StoreNode*& head = parent == nullptr ? project.root : parent->child;
  StoreNode* last = LastSibling(head);
  node->prev = last == nullptr ? parent : last;
  (last == nullptr ? head : last->next) = node;
  return node;
}

inline StoreNode* AddCategory(StoreProject& project, const char* title, StoreNode* parent = nullptr) {
  return AddNode(project, NodeKind::Category, title, parent);
}
inline StoreNode* AddProduct(StoreProject& project, const char* title, StoreNode* parent = nullptr) {
  return AddNode(project, NodeKind::Product, title, parent);
}

// The tree as in "Home(Toys(Ball,Car),Books)"; what hangs below a product stands in brackets.
inline std::string TreeText(const StoreProject& project) {
  std::string text;
  TreeWalk walk(project.root, true);
  bool first = true;
  for (auto step = walk.advance(); step != TreeWalk::Step::Done; step = walk.advance()) {
    if (step == TreeWalk::Step::EndOfBranch) {
      text += IsProduct(*walk.branch()) ? ']' : ')';
      first = false;
      continue;
    }
    if (!first) text += ',';
    text += walk.node()->title.orEmpty();
    first = walk.node()->child != nullptr;
    if (first) text += IsProduct(*walk.node()) ? '[' : '(';
  }
  return text;
}

// Fails the test for each broken rule of the tree.
inline void ExpectSoundTree(const StoreProject& project) {
  EXPECT_THAT(StoreTreeCheck(project).faults, testing::IsEmpty());
}

// The same, and no link that names another node than the true neighbour.
inline void ExpectPlainTree(const StoreProject& project) {
  const StoreTreeReport report = StoreTreeCheck(project);
  EXPECT_THAT(report.faults, testing::IsEmpty());
  EXPECT_EQ(report.strangePrev, 0U);
  EXPECT_EQ(report.strangeParent, 0U);
}

// Makes `node` current in the tree and in the form.
inline void Select(StoreProject& project, StoreNode* node) { project.currentNode = project.treeNode = node; }

}  // namespace varlo::test
