#include "core/tree/store_tree.h"

#include <gtest/gtest.h>

#include "core/tree/node_commands.h"
#include "tests/support/test_program.h"
#include "tests/support/tree.h"

namespace varlo {
namespace {

using namespace test;

// Home(Toys(Ball,Car,Kite),Books(Novel),Rack(Pen)), where Rack is a shelf.
class StoreTree : public testing::Test {
 protected:
  TestProgram t;
  StoreProject& project = t.project();
  StoreNode* home = AddCategory(project, "Home");
  StoreNode* toys = AddCategory(project, "Toys", home);
  StoreNode* ball = AddProduct(project, "Ball", toys);
  StoreNode* car = AddProduct(project, "Car", toys);
  StoreNode* kite = AddProduct(project, "Kite", toys);
  StoreNode* books = AddCategory(project, "Books", home);
  StoreNode* novel = AddProduct(project, "Novel", books);
  StoreNode* rack = AddNode(project, NodeKind::Shelf, "Rack", home);
  StoreNode* pen = AddProduct(project, "Pen", rack);
  const std::string whole = "Home(Toys(Ball,Car,Kite),Books(Novel),Rack(Pen))";

  StoreNode* fresh(NodeKind kind, const char* title) {
    StoreNode* node = project.nodes.allocate();
    node->kind = kind;
    node->title.assign(title);
    return node;
  }
  int insert(StoreNode* node, StoreNode* target) { return StoreNodeInsert(t.program, node, target); }
  void remove(StoreNode* node) { StoreNodeDelete(t.program, node); }
  void expectUnchanged() {
    EXPECT_EQ(TreeText(project), whole);
    ExpectPlainTree(project);
  }
};

TEST_F(StoreTree, ACategoryGoesToTheEndOfACategory) {
  EXPECT_EQ(insert(books, toys), 1);
  EXPECT_EQ(TreeText(project), "Home(Toys(Ball,Car,Kite,Books(Novel)),Rack(Pen))");
  EXPECT_EQ(books->parent, toys);
  EXPECT_EQ(books->prev, kite);
  EXPECT_EQ(books->next, nullptr);
  EXPECT_EQ(rack->prev, toys);
  ExpectPlainTree(project);
}

TEST_F(StoreTree, AnOnlyChildNamesItsHolderAsPrev) {
  StoreNode* empty = AddCategory(project, "Empty", home);
  EXPECT_EQ(insert(ball, empty), 1);
  EXPECT_EQ(ball->prev, empty);
  EXPECT_EQ(ball->parent, empty);
  EXPECT_EQ(toys->child, car);
  EXPECT_EQ(car->prev, toys);
  ExpectPlainTree(project);
}

TEST_F(StoreTree, PastingACategoryOnAShelfIsRefusedAndNothingChanges) {
  EXPECT_EQ(insert(fresh(NodeKind::Category, "New"), rack), 0);
  expectUnchanged();
}

TEST_F(StoreTree, AShelfOntoAShelfIsRefused) {
  EXPECT_EQ(insert(fresh(NodeKind::Shelf, "New"), rack), 0);
  expectUnchanged();
}

TEST_F(StoreTree, ANonProductOntoAProductOfAShelfIsRefused) {
  EXPECT_EQ(insert(toys, pen), 0);
  expectUnchanged();
}

TEST_F(StoreTree, AListOntoAListIsRefused) {
  StoreNode* list = AddNode(project, NodeKind::List, "Lines", home);
  EXPECT_EQ(insert(fresh(NodeKind::List, "New"), list), 0);
  EXPECT_EQ(list->child, nullptr);
}

TEST_F(StoreTree, ACategoryOntoAProductGoesBehindTheLastChildOfItsParent) {
  EXPECT_EQ(insert(books, ball), 1);
  EXPECT_EQ(TreeText(project), "Home(Toys(Ball,Car,Kite,Books(Novel)),Rack(Pen))");
  ExpectPlainTree(project);
}

TEST_F(StoreTree, ACategoryOntoATopLevelProductIsRefused) {
  StoreNode* single = AddProduct(project, "Single");
  EXPECT_EQ(insert(books, single), 0);
  EXPECT_EQ(single->child, nullptr);
  ExpectPlainTree(project);
}

TEST_F(StoreTree, DroppingTheLastChildOnItsOwnParentIsRefused) {
  EXPECT_EQ(insert(kite, toys), 0);
  EXPECT_EQ(insert(rack, home), 0);
  expectUnchanged();
}

TEST_F(StoreTree, DroppingAnEarlierChildOnItsOwnParentMakesItTheLast) {
  EXPECT_EQ(insert(ball, toys), 1);
  EXPECT_EQ(TreeText(project), "Home(Toys(Car,Kite,Ball),Books(Novel),Rack(Pen))");
  ExpectPlainTree(project);
}

TEST_F(StoreTree, DroppingANodeOnItsOwnDescendantIsRefused) {
  StoreNode* deep = AddCategory(project, "Deep", toys);
  EXPECT_EQ(insert(toys, deep), 0);
  EXPECT_EQ(insert(home, deep), 0);
  EXPECT_EQ(insert(toys, toys), 0);
  ExpectPlainTree(project);
}

TEST_F(StoreTree, DroppingACategoryOnAProductDirectlyBelowItIsRefused) {
  EXPECT_EQ(insert(toys, ball), 0);
  expectUnchanged();
}

TEST_F(StoreTree, ANullNodeOrTargetIsRefused) {
  EXPECT_EQ(insert(nullptr, toys), 0);
  EXPECT_EQ(insert(ball, nullptr), 0);
  expectUnchanged();
}

TEST_F(StoreTree, AFreshProductOntoAProductBecomesTheHeadOfItsChain) {
  StoreNode* first = fresh(NodeKind::Product, "First");
  StoreNode* second = fresh(NodeKind::Product, "Second");
  EXPECT_EQ(insert(first, ball), 1);
  EXPECT_EQ(insert(second, ball), 1);
  EXPECT_EQ(TreeText(project), "Home(Toys(Ball[Second[First]],Car,Kite),Books(Novel),Rack(Pen))");
  EXPECT_EQ(second->prev, ball);
  EXPECT_EQ(second->child, first);
  EXPECT_EQ(first->prev, second);
  EXPECT_EQ(first->parent, toys);
  EXPECT_EQ(second->parent, toys);
  ExpectPlainTree(project);
}

TEST_F(StoreTree, AChainedProductThatMovesLeavesTheRestOfItsChain) {
  for (const char* title : {"C", "B", "A"}) insert(fresh(NodeKind::Product, title), ball);
  StoreNode* b = ball->child->child;
  EXPECT_EQ(insert(b, novel), 1);
  EXPECT_EQ(TreeText(project), "Home(Toys(Ball[A[C]],Car,Kite),Books(Novel[B]),Rack(Pen))");
  ExpectPlainTree(project);
}

TEST_F(StoreTree, AProductInAListThatIsChainedLeavesItsSiblingsBehind) {
  EXPECT_EQ(insert(car, novel), 1);
  EXPECT_EQ(TreeText(project), "Home(Toys(Ball,Kite),Books(Novel[Car]),Rack(Pen))");
  ExpectPlainTree(project);
}

TEST_F(StoreTree, AProductDroppedIntoItsOwnChainIsRefused) {
  insert(fresh(NodeKind::Product, "A"), ball);
  EXPECT_EQ(insert(ball, ball->child), 0);
  ExpectPlainTree(project);
}

TEST_F(StoreTree, TheRootMayMoveBelowAnotherTopLevelNode) {
  StoreNode* second = AddCategory(project, "Second");
  EXPECT_EQ(insert(home, second), 1);
  EXPECT_EQ(project.root, second);
  EXPECT_EQ(second->prev, nullptr);
  EXPECT_EQ(TreeText(project), "Second(Home(Toys(Ball,Car,Kite),Books(Novel),Rack(Pen)))");
  ExpectPlainTree(project);
}

TEST_F(StoreTree, TheOnlyTopLevelNodeDoesNotLeaveTheTree) {
  StoreNode* floating = fresh(NodeKind::Category, "Floating");
  EXPECT_EQ(insert(home, floating), 0);
  expectUnchanged();
}

TEST_F(StoreTree, InsertTellsTheWindowWhatChanged) {
  t.view.calls.clear();
  insert(ball, books);
  EXPECT_THAT(t.view.calls, testing::ElementsAre("refreshTreeItem Toys", "moveTreeItem Ball", "refreshTreeItem Books",
                                                 "loadItemList Books"));
}

TEST_F(StoreTree, InsertDoesNotMarkTheProject) {
  insert(ball, books);
  EXPECT_EQ(project.dirty, 0);
}

TEST_F(StoreTree, DeletingTheFirstChildHandsTheParentToItsSibling) {
  remove(ball);
  EXPECT_EQ(toys->child, car);
  EXPECT_EQ(car->prev, toys);
  EXPECT_EQ(project.currentNode, toys);
  ExpectPlainTree(project);
}

TEST_F(StoreTree, DeletingALaterChildMakesThePreviousCurrent) {
  remove(car);
  EXPECT_EQ(ball->next, kite);
  EXPECT_EQ(kite->prev, ball);
  EXPECT_EQ(project.currentNode, ball);
  ExpectPlainTree(project);
}

TEST_F(StoreTree, DeletingACategoryDropsItsBranchFromTheTree) {
  project.treeNode = kite;
  remove(toys);
  EXPECT_EQ(TreeText(project), "Home(Books(Novel),Rack(Pen))");
  EXPECT_EQ(project.treeNode, nullptr);
  EXPECT_EQ(project.currentNode, home);
  ExpectPlainTree(project);
}

TEST_F(StoreTree, DeletingRootWithAFollowingTopLevelNodeMakesThatNodeTheRoot) {
  StoreNode* second = AddCategory(project, "Second");
  remove(home);
  EXPECT_EQ(project.root, second);
  EXPECT_EQ(second->prev, nullptr);
  EXPECT_EQ(second->parent, nullptr);
  EXPECT_EQ(project.currentNode, second);
  ExpectPlainTree(project);
}

TEST_F(StoreTree, DeletingTheLastRootLeavesNothingCurrent) {
  Select(project, home);
  remove(home);
  EXPECT_EQ(project.root, nullptr);
  EXPECT_EQ(project.currentNode, nullptr);
  EXPECT_EQ(project.treeNode, nullptr);
  ExpectPlainTree(project);
}

TEST_F(StoreTree, DeletingAProductMadeWhileTheTreeShowedItsCategoryKeepsItsSiblings) {
  project.treeNode = toys;
  project.currentNode = ball;
  NewProduct(t.program, "New Product");
  StoreNode* made = project.currentNode;
  ASSERT_EQ(made->prev, toys);
  EXPECT_EQ(TreeText(project), "Home(Toys(Ball,New Product,Car,Kite),Books(Novel),Rack(Pen))");
  remove(made);
  expectUnchanged();
}

TEST_F(StoreTree, DeletingAProductMadeInACategoryOfTheListKeepsItsSiblings) {
  project.treeNode = home;
  project.currentNode = toys;
  StoreNode* empty = AddCategory(project, "Empty", home);
  project.currentNode = empty;
  NewProduct(t.program, "Lone");
  StoreNode* made = project.currentNode;
  EXPECT_EQ(made->prev, home);
  EXPECT_EQ(made->parent, home);
  EXPECT_EQ(empty->child, made);
  remove(made);
  EXPECT_EQ(TreeText(project), "Home(Toys(Ball,Car,Kite),Books(Novel),Rack(Pen),Empty)");
  ExpectPlainTree(project);
}

TEST_F(StoreTree, DeletingAMergedNodeWithoutPrevKeepsItsSiblings) {
  car->prev = nullptr;
  car->parent = nullptr;
  remove(car);
  EXPECT_EQ(TreeText(project), "Home(Toys(Ball,Kite),Books(Novel),Rack(Pen))");
  EXPECT_EQ(kite->prev, ball);
  ExpectPlainTree(project);
}

TEST_F(StoreTree, ItemsOfAShelfOrAListAreShownByTheirParent) {
  EXPECT_TRUE(IsShownByParent(*rack->child));
  rack->kind = NodeKind::List;
  EXPECT_TRUE(IsShownByParent(*rack->child));
  EXPECT_FALSE(IsShownByParent(*rack));
  EXPECT_FALSE(IsShownByParent(*novel));
  EXPECT_FALSE(IsShownByParent(*project.root));
}

TEST_F(StoreTree, ANodeWhoseParentWasDeletedIsTreatedAsHavingNone) {
  novel->parent = toys;
  remove(toys);
  EXPECT_EQ(LiveParent(*novel), nullptr);
  EXPECT_EQ(insert(fresh(NodeKind::Category, "New"), novel), 0);
  ExpectSoundTree(project);
}

TEST_F(StoreTree, ANodeWhoseParentWentWithADeletedBranchIsTreatedAsHavingNone) {
  StoreNode* deep = AddCategory(project, "Deep", toys);
  novel->parent = deep;
  remove(toys);
  EXPECT_EQ(LiveParent(*novel), nullptr);
  EXPECT_EQ(insert(rack, novel), 0);
  EXPECT_EQ(TreeText(project), "Home(Books(Novel),Rack(Pen))");
  ExpectSoundTree(project);
}

TEST_F(StoreTree, AParentOutsideTheTreeTakesNothingOutOfIt) {
  novel->parent = fresh(NodeKind::Category, "Floating");
  EXPECT_EQ(insert(rack, novel), 0);
  EXPECT_EQ(TreeText(project), whole);
  ExpectSoundTree(project);
}

TEST_F(StoreTree, DeletingTellsTheWindow) {
  t.view.calls.clear();
  remove(ball);
  EXPECT_THAT(t.view.calls, testing::ElementsAre("removeTreeItem Ball", "loadForm"));
}

TEST_F(StoreTree, MarkingSiblingsSetsTheParentAndTheWholeList) {
  StoreNodeMarkSiblings(project, *car);
  EXPECT_EQ(toys->modified, 1);
  for (const StoreNode* node : {ball, car, kite}) EXPECT_EQ(node->modified, 1);
  for (const StoreNode* node : {home, books, novel, rack, pen}) EXPECT_EQ(node->modified, 0);
}

TEST_F(StoreTree, MarkingTopLevelSiblingsStartsAtTheFirst) {
  StoreNode* second = AddCategory(project, "Second");
  StoreNode* third = AddCategory(project, "Third");
  StoreNodeMarkSiblings(project, *third);
  for (const StoreNode* node : {home, second, third}) EXPECT_EQ(node->modified, 1);
  EXPECT_EQ(toys->modified, 0);
}

TEST_F(StoreTree, MarkingWithPrevLinksInACircleEnds) {
  StoreNode* second = AddCategory(project, "Second");
  home->prev = second;
  StoreNodeMarkSiblings(project, *second);
  EXPECT_EQ(second->modified, 1);
  home->prev = nullptr;
}

TEST_F(StoreTree, ListFreeReleasesAlongNextAndForgetsReferences) {
  project.currentNode = car;
  project.treeNode = kite;
  StoreNode* list = ball;
  toys->child = nullptr;
  StoreNodeListFree(project, list);
  EXPECT_TRUE(ball->released);
  EXPECT_TRUE(kite->released);
  EXPECT_EQ(project.currentNode, nullptr);
  EXPECT_EQ(project.treeNode, nullptr);
  EXPECT_FALSE(novel->released);
}

TEST_F(StoreTree, ListFreeDoesNotDescend) {
  StoreNode* head = books;
  toys->next = nullptr;
  StoreNodeListFree(project, head);
  EXPECT_TRUE(rack->released);
  EXPECT_FALSE(novel->released);
}

TEST_F(StoreTree, SwapsANodeWithItsNextSibling) {
  EXPECT_EQ(StoreNodeSwapWithNext(project, *toys), 1);
  EXPECT_EQ(TreeText(project), "Home(Books(Novel),Toys(Ball,Car,Kite),Rack(Pen))");
  EXPECT_EQ(StoreNodeSwapWithNext(project, *toys), 1);
  EXPECT_EQ(TreeText(project), "Home(Books(Novel),Rack(Pen),Toys(Ball,Car,Kite))");
  EXPECT_EQ(StoreNodeSwapWithNext(project, *toys), 0);
  EXPECT_EQ(StoreNodeSwapWithNext(project, *home), 0);
  ExpectPlainTree(project);
}

TEST_F(StoreTree, SwapsByTrueNeighboursWhatHasAnOddPrev) {
  StoreNode* made = AddProduct(project, "Made", toys);
  made->id = 1;
  made->prev = toys;
  AddProduct(project, "Last", toys);
  EXPECT_EQ(StoreNodeSwapWithNext(project, *kite), 1);
  EXPECT_EQ(StoreNodeSwapWithNext(project, *kite), 1);
  EXPECT_EQ(TreeText(project), "Home(Toys(Ball,Car,Made,Last,Kite),Books(Novel),Rack(Pen))");
  ExpectPlainTree(project);
}

TEST_F(StoreTree, SwappingTheRootLeavesItTheRootBehindTheOther) {
  StoreNode* second = AddCategory(project, "Second");
  AddCategory(project, "Third");
  EXPECT_EQ(StoreNodeSwapWithNext(project, *home), 1);
  EXPECT_EQ(project.root, home);
  EXPECT_EQ(second->next, home);
  EXPECT_EQ(second->prev, nullptr);
  EXPECT_EQ(TreeText(project), whole + ",Third");
  ExpectPlainTree(project);
  // The root moves on, and the other stays in front.
  EXPECT_EQ(StoreNodeSwapWithNext(project, *home), 1);
  EXPECT_EQ(TreeText(project), whole);
  EXPECT_EQ(second->next->next, home);
  ExpectPlainTree(project);
  // Back, one by one.
  EXPECT_EQ(StoreNodeSwapWithNext(project, *second->next), 1);
  EXPECT_EQ(StoreNodeSwapWithNext(project, *second), 1);
  EXPECT_EQ(TreeText(project), whole + ",Second,Third");
  ExpectPlainTree(project);
}

TEST_F(StoreTree, ANodeInFrontOfTheRootDoesNotSwapWithWhatIsGoneFromBehindIt) {
  StoreNode* second = AddCategory(project, "Second");
  StoreNode* third = AddCategory(project, "Third");
  StoreNodeSwapWithNext(project, *home);
  StoreNodeDelete(t.program, home);
  EXPECT_EQ(project.root, third);
  EXPECT_EQ(StoreNodeSwapWithNext(project, *second), 0);
  ExpectPlainTree(project);
}

TEST_F(StoreTree, DeletingANodeInFrontOfTheRootLeavesTheTreeWhole) {
  StoreNode* second = AddCategory(project, "Second");
  StoreNodeSwapWithNext(project, *home);
  project.currentNode = project.treeNode = second;
  remove(second);
  EXPECT_TRUE(second->released);
  EXPECT_EQ(project.root, home);
  EXPECT_EQ(project.currentNode, home);
  expectUnchanged();
}

TEST_F(StoreTree, MovingANodeInFrontOfTheRootPutsTheRootFirst) {
  StoreNode* second = AddCategory(project, "Second");
  StoreNodeSwapWithNext(project, *home);
  EXPECT_EQ(insert(second, home), 1);
  EXPECT_EQ(TreeText(project), "Home(Toys(Ball,Car,Kite),Books(Novel),Rack(Pen),Second)");
  ExpectPlainTree(project);
}

TEST_F(StoreTree, NothingInFrontOfTheRootLeadsToItOnceItIsDeleted) {
  StoreNode* second = AddCategory(project, "Second");
  StoreNodeSwapWithNext(project, *home);
  remove(home);
  EXPECT_EQ(second->next, nullptr);
  EXPECT_EQ(project.root, nullptr);
}

TEST_F(StoreTree, TheWalkSkipsChainsUnlessAsked) {
  insert(fresh(NodeKind::Product, "Chained"), ball);
  int nodes = 0;
  TreeWalk walk(project.root);
  for (auto step = walk.advance(); step != TreeWalk::Step::Done; step = walk.advance()) {
    if (step == TreeWalk::Step::Node) ++nodes;
  }
  EXPECT_EQ(nodes, 9);
}

}  // namespace
}  // namespace varlo
