// Random commands over growing trees, with every link checked after each.

#include <random>

#include <gtest/gtest.h>

#include "core/program/project_close.h"
#include "core/tree/node_commands.h"
#include "tests/support/rounds.h"
#include "tests/support/test_program.h"
#include "tests/support/tree.h"

namespace varlo {
namespace {

using namespace test;

const int kCommands = Rounds(100000);
constexpr std::size_t kLargestTree = 300;

class RandomCommands {
 public:
  explicit RandomCommands(unsigned seed) : random_(seed) {}

  void run() {
    for (int i = 0; i < kCommands; ++i) {
      mayLose_ = false;
      step();
      const StoreTreeReport report = StoreTreeCheck(project_);
      // Only a delete and the close take nodes out of the tree.
      ASSERT_TRUE(mayLose_ || report.nodes >= nodes_.size()) << "after command " << i;
      ASSERT_THAT(report.faults, testing::IsEmpty()) << "after command " << i;
      // No command puts a non-product below a shelf, a list or a product.
      ASSERT_EQ(report.misplaced, 0U) << "after command " << i;
      largest_ = std::max(largest_, report.nodes);
      t_.view.calls.clear();
    }
    EXPECT_GT(largest_, kLargestTree / 2);
  }

 private:
  std::size_t below(std::size_t limit) { return std::uniform_int_distribution<std::size_t>(0, limit - 1)(random_); }

  void collect() {
    nodes_.clear();
    TreeWalk walk(project_.root, true);
    for (auto step = walk.advance(); step != TreeWalk::Step::Done; step = walk.advance()) {
      if (step == TreeWalk::Step::Node) nodes_.push_back(walk.node());
    }
  }

  StoreNode* any() { return nodes_.empty() ? nullptr : nodes_[below(nodes_.size())]; }

  // As a user does: a node of the tree, or a row of the list below it.
  void select() {
    project_.treeNode = project_.currentNode = any();
    StoreNode* shown = project_.treeNode;
    if (shown == nullptr || IsProduct(*shown) || shown->child == nullptr || below(2) == 0) return;
    project_.currentNode = shown->child;
    for (std::size_t i = below(5); i > 0 && project_.currentNode->next != nullptr; --i) {
      project_.currentNode = project_.currentNode->next;
    }
  }

  void step() {
    collect();
    if (nodes_.size() > kLargestTree && below(20) == 0) {
      mayLose_ = true;
      ProjectClose(t_.program);
      return;
    }
    switch (below(16)) {
      case 0:
      case 1:
      case 2:
        select();
        break;
      case 3:  // any pair of references, which no window would make
        project_.treeNode = any();
        project_.currentNode = any();
        break;
      case 4:
      case 5:
      case 6:
        NewProduct(t_.program, "P");
        break;
      case 7:
        NewNode(t_.program, NodeKind::Category);
        break;
      case 8:
        NewNode(t_.program, below(2) == 0 ? NodeKind::Shelf : NodeKind::List);
        break;
      case 9:
        if (nodes_.empty() || below(10) == 0) NewTopCategory(t_.program);
        break;
      case 10:
        CopyNode(t_.program);
        break;
      case 11:
        PasteNode(t_.program);
        break;
      case 12:
      case 13:
        StoreNodeInsert(t_.program, any(), any());
        break;
      case 14:
        remove(any());
        break;
      default:
        mark(any());
    }
  }

  void remove(StoreNode* node) {
    if (node == nullptr || (node->child != nullptr && below(8) != 0)) return;
    mayLose_ = true;
    StoreNodeMarkSiblings(project_, *node);
    const std::size_t before = nodes_.size();
    std::size_t branch = 0;
    for (const StoreNode* other : nodes_) branch += IsInBranch(*node, *other) ? 1 : 0;
    StoreNodeDelete(t_.program, node);
    collect();
    // Exactly the node and what was below it is gone.
    ASSERT_EQ(nodes_.size(), before - branch);
  }

  void mark(StoreNode* node) {
    if (node != nullptr) StoreNodeMarkSiblings(project_, *node);
  }

  TestProgram t_;
  StoreProject& project_ = t_.project();
  std::mt19937 random_;
  std::vector<StoreNode*> nodes_;
  std::size_t largest_ = 0;
  bool mayLose_ = false;
};

TEST(StoreTreeRandom, HundredThousandCommandsKeepEveryLinkSound) { RandomCommands(20031).run(); }

}  // namespace
}  // namespace varlo
