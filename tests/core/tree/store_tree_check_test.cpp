#include "core/tree/store_tree_check.h"

#include <gtest/gtest.h>

#include "tests/support/test_program.h"
#include "tests/support/tree.h"

namespace varlo {
namespace {

using namespace test;
using testing::Contains;
using testing::HasSubstr;

class StoreTreeCheckTest : public testing::Test {
 protected:
  TestProgram t;
  StoreProject& project = t.project();
  StoreNode* home = AddCategory(project, "Home");
  StoreNode* toys = AddCategory(project, "Toys", home);
  StoreNode* ball = AddProduct(project, "Ball", toys);
  StoreNode* car = AddProduct(project, "Car", toys);

  void expectFault(const char* words) { EXPECT_THAT(StoreTreeCheck(project).faults, Contains(HasSubstr(words))); }
};

TEST_F(StoreTreeCheckTest, ASoundTreeHasNoFaults) {
  ExpectPlainTree(project);
  EXPECT_EQ(StoreTreeCheck(project).nodes, 4U);
}

TEST_F(StoreTreeCheckTest, FindsACircleOfSiblings) {
  car->next = ball;
  expectFault("reached twice");
  car->next = nullptr;
}

TEST_F(StoreTreeCheckTest, FindsANodeInTwoLists) {
  home->next = ball;
  expectFault("reached twice");
}

TEST_F(StoreTreeCheckTest, FindsAReleasedNode) {
  project.nodes.release(*car);
  expectFault("a released node is in the tree");
}

TEST_F(StoreTreeCheckTest, FindsANodeThatIsNotOfThePool) {
  StoreNode foreign;
  foreign.prev = car;
  foreign.parent = toys;
  car->next = &foreign;
  expectFault("not of the pool");
  car->next = nullptr;
}

TEST_F(StoreTreeCheckTest, FindsAWrongPrevOfANodeFromAFile) {
  car->prev = home;
  expectFault("a prev is not the node before");
}

TEST_F(StoreTreeCheckTest, AcceptsAndCountsTheStrangePrevOfAMadeProduct) {
  car->prev = home;
  car->id = 3;
  const StoreTreeReport report = StoreTreeCheck(project);
  EXPECT_THAT(report.faults, testing::IsEmpty());
  EXPECT_EQ(report.strangePrev, 1U);
}

TEST_F(StoreTreeCheckTest, FindsAProductAsParent) {
  car->parent = ball;
  expectFault("a parent is a product");
}

TEST_F(StoreTreeCheckTest, FindsARootWithPrevOrParent) {
  home->prev = toys;
  home->parent = toys;
  expectFault("the root has a prev");
  expectFault("the root has a parent");
}

TEST_F(StoreTreeCheckTest, AcceptsARootThatWasMovedDownAndChecksWhatStandsInFrontOfIt) {
  StoreNode* second = AddCategory(project, "Second");
  AddProduct(project, "Cup", second);
  AddCategory(project, "Third");
  ASSERT_EQ(StoreNodeSwapWithNext(project, *home), 1);
  ASSERT_EQ(StoreNodeSwapWithNext(project, *home), 1);
  const StoreTreeReport report = StoreTreeCheck(project);
  EXPECT_THAT(report.faults, testing::IsEmpty());
  EXPECT_EQ(report.nodes, 4U);
  EXPECT_EQ(report.inFront, 3U);
  second->child->parent = ball;
  expectFault("a parent is a product");
}

TEST_F(StoreTreeCheckTest, FindsAPrevOfTheRootThatDoesNotLeadBackToIt) {
  StoreNode* second = AddCategory(project, "Second");
  StoreNodeSwapWithNext(project, *home);
  second->next = nullptr;
  expectFault("the root has a prev");
}

TEST_F(StoreTreeCheckTest, FindsACircleInFrontOfTheRoot) {
  StoreNode* second = AddCategory(project, "Second");
  StoreNodeSwapWithNext(project, *home);
  second->prev = home;
  home->next = second;
  expectFault("reached twice");
  home->next = nullptr;
}

TEST_F(StoreTreeCheckTest, FindsAReferenceToAReleasedNode) {
  StoreNode* gone = project.nodes.allocate();
  project.nodes.release(*gone);
  project.treeNode = gone;
  expectFault("a reference names a released node");
}

TEST_F(StoreTreeCheckTest, FindsALinkedClipboardNode) {
  project.clipboardNode = std::make_unique<StoreNode>();
  project.clipboardNode->next = home;
  expectFault("the clipboard's node is linked");
}

TEST_F(StoreTreeCheckTest, CountsNonProductsBelowAShelf) {
  StoreNode* shelf = AddNode(project, NodeKind::Shelf, "Rack", home);
  AddCategory(project, "Wrong", shelf);
  EXPECT_EQ(StoreTreeCheck(project).misplaced, 1U);
}

}  // namespace
}  // namespace varlo
