#include "shell/tree/node_changes.h"

#include <gtest/gtest.h>

#include "tests/support/shown_store.h"

namespace varlo::test {
namespace {

const ShownBox kQuestion{"You are about to delete a Category and all nodes below it. Do you wish to proceed?",
                         "Confirmation", Buttons::YesNo, Icon::Question};

// Home with Toys, which holds Ball, Car and Dice, and the shelf Desk with Pen.
struct SmallStore : ShownStore {
  StoreNode* home = category("Home");
  StoreNode* toys = category("Toys", home);
  StoreNode* ball = product("Ball", toys);
  StoreNode* car = product("Car", toys);
  StoreNode* dice = product("Dice", toys);
  StoreNode* desk = node(NodeKind::Shelf, "Desk", home);
  StoreNode* pen = product("Pen", desk);
  SmallStore() { show(home); }
  ~SmallStore() {
    ExpectSoundTree(project());
    EXPECT_FALSE(shell.listBusy || shell.listFrozen || shell.notificationsMuted);
    EXPECT_FALSE(tree().paintingIsHeld() || list().paintingIsHeld());
  }

  StoreNode* current() { return project().currentNode; }
  StoreNode* inTree() { return project().treeNode; }
  bool dirty() { return project().dirty != 0; }
  void copyOf(StoreNode* copied) {
    click(copied);
    copyNode(shell);
  }
};

TEST(NewNodes, AreSelectedInTheTreeAndMarkTheProject) {
  for (const auto& [kind, title] : {std::pair(NodeKind::Category, "New Category"),
                                    {NodeKind::Shelf, "New Shelf"},
                                    {NodeKind::List, "New List"}}) {
    SmallStore t;
    newNode(t.shell, kind);
    StoreNode* made = t.desk->next;
    ASSERT_NE(made, nullptr);
    EXPECT_EQ(made->title.view(), title);
    EXPECT_EQ(made->fileName.view(), "1.htm");
    EXPECT_EQ(t.current(), made);
    EXPECT_EQ(t.inTree(), made);
    EXPECT_EQ(t.tree().selected(), made->treeItem);
    EXPECT_EQ(t.list().count(), 0);
    EXPECT_TRUE(t.dirty());
  }
}

TEST(NewNodes, ThatARefusingTreeDoesNotShowBecomeCurrentToo) {
  SmallStore t;
  t.tree().refuses = true;
  newNode(t.shell, NodeKind::Category);
  EXPECT_EQ(t.current(), t.desk->next);
  EXPECT_EQ(t.inTree(), t.desk->next);
  EXPECT_EQ(t.screen.boxes.size(), 1U);
}

TEST(NewNodes, ThatMayNotStandThereAreDroppedWithoutAMessage) {
  SmallStore t;
  t.click(t.desk);
  newNode(t.shell, NodeKind::List);
  EXPECT_EQ(TreeText(t.project()), "Home(Toys(Ball,Car,Dice),Desk(Pen))");
  EXPECT_TRUE(t.screen.boxes.empty());
  EXPECT_EQ(t.current(), t.desk);
  EXPECT_FALSE(t.dirty());
}

TEST(NewNodes, NewCategoryWithTheListFocusedActsOnTheSelectedRow) {
  SmallStore t;
  t.clickRowOf(t.toys);
  newNode(t.shell, NodeKind::Category);
  EXPECT_EQ(TreeText(t.project()), "Home(Toys(Ball,Car,Dice,New Category),Desk(Pen))");
  EXPECT_EQ(t.tree().shown(), "Home(Toys(Ball Car Dice New Category) Desk(Pen))");
  EXPECT_FALSE(t.shell.fromList);
}

TEST(NewNodes, ATopCategoryGoesBehindTheLastOrStartsTheTree) {
  ShownStore t;
  newTopCategory(t.shell);
  StoreNode* first = t.project().root;
  ASSERT_NE(first, nullptr);
  EXPECT_EQ(t.project().currentNode, first);
  EXPECT_EQ(t.tree().selected(), first->treeItem);
  EXPECT_EQ(t.project().dirty, 1);
  newTopCategory(t.shell);
  EXPECT_EQ(t.tree().shown(), "New Category New Category");
  EXPECT_EQ(t.project().treeNode, first->next);
  EXPECT_EQ(first->next->fileName.view(), "2.htm");
  ExpectSoundTree(t.project());
}

TEST(NewProducts, AreSelectedInTheTreeWhileTheListShowsTheirParent) {
  SmallStore t;
  t.click(t.toys);
  newProduct(t.shell);
  StoreNode* made = t.dice->next;
  ASSERT_NE(made, nullptr);
  EXPECT_EQ(made->title.view(), "New Product");
  EXPECT_EQ(t.current(), made);
  EXPECT_EQ(t.inTree(), made);
  EXPECT_EQ(t.tree().selected(), made->treeItem);
  EXPECT_EQ(t.rows(), "Ball Car Dice New Product");
  EXPECT_TRUE(t.dirty());
}

TEST(NewProducts, NeedACurrentNodeAndATreeNode) {
  SmallStore t;
  t.project().treeNode = nullptr;
  newProduct(t.shell);
  EXPECT_EQ(TreeText(t.project()), "Home(Toys(Ball,Car,Dice),Desk(Pen))");
  EXPECT_FALSE(t.dirty());
}

TEST(NewProducts, AtAProductInsideAListHaveNoFileName) {
  SmallStore t;
  StoreNode* links = t.node(NodeKind::List, "Links", t.home);
  StoreNode* link = t.product("Link", links);
  t.show(link);
  newProduct(t.shell);
  EXPECT_TRUE(t.current()->fileName.isNull());
  EXPECT_EQ(t.current()->templateName.view(), "list.htm");
}

TEST(NewProducts, AtTheListItselfAndAnywhereInAShelfHaveOne) {
  SmallStore t;
  StoreNode* links = t.node(NodeKind::List, "Links", t.home);
  t.product("Link", links);
  for (StoreNode* at : {links, t.desk, t.pen}) {
    t.show(at);
    newProduct(t.shell);
    EXPECT_TRUE(t.current()->fileName.isSet()) << at->title.orEmpty();
  }
}

TEST(CopyAndPaste, CopyKeepsTheOneNodeAndOffersPaste) {
  SmallStore t;
  t.copyOf(t.toys);
  const StoreNode* kept = t.project().clipboardNode.get();
  ASSERT_NE(kept, nullptr);
  EXPECT_EQ(kept->title.view(), "Toys");
  EXPECT_EQ(kept->child, nullptr);
  EXPECT_TRUE(t.window.entryEnabled(Command::Paste));
  EXPECT_FALSE(t.dirty());
}

TEST(CopyAndPaste, WithoutANodeNothingIsCopiedOrPasted) {
  SmallStore t;
  t.project().currentNode = nullptr;
  copyNode(t.shell);
  EXPECT_EQ(t.project().clipboardNode, nullptr);
  pasteNode(t.shell);
  EXPECT_EQ(t.current(), nullptr);
  EXPECT_FALSE(t.dirty());
}

TEST(CopyAndPaste, TheCopyKeepsThePageNameCodeAndNumberOfItsSource) {
  SmallStore t;
  t.click(t.toys);
  newProduct(t.shell);
  const StoreNode* made = t.current();
  copyNode(t.shell);
  t.click(t.desk);
  t.shell.fromList = true;
  pasteNode(t.shell);
  const StoreNode* copy = t.pen->next;
  ASSERT_NE(copy, nullptr);
  EXPECT_EQ(copy->fileName, made->fileName);
  EXPECT_EQ(copy->productCode, made->productCode);
  EXPECT_EQ(copy->id, made->id);
  EXPECT_EQ(t.current(), copy);
  EXPECT_EQ(t.inTree(), copy);
  EXPECT_EQ(t.tree().selected(), copy->treeItem);
  EXPECT_FALSE(t.shell.fromList);
}

TEST(CopyAndPaste, OfACategoryOntoAProductPlacesItBehindTheLastChildOfItsParent) {
  SmallStore t;
  t.copyOf(t.desk);
  t.click(t.ball);
  pasteNode(t.shell);
  EXPECT_EQ(TreeText(t.project()), "Home(Toys(Ball,Car,Dice,Desk),Desk(Pen))");
  EXPECT_EQ(t.tree().shown(), "Home(Toys(Ball Car Dice Desk) Desk(Pen))");
}

TEST(CopyAndPaste, OfACategoryOntoAShelfOrAProductOfAListLinksItNowhere) {
  SmallStore t;
  StoreNode* links = t.node(NodeKind::List, "Links", t.home);
  StoreNode* link = t.product("Link", links);
  t.show(t.home);
  const std::string before = TreeText(t.project());
  const std::string shown = t.tree().shown();
  t.copyOf(t.toys);
  for (StoreNode* at : {t.desk, link}) {
    t.click(at);
    t.project().dirty = 0;
    pasteNode(t.shell);
    EXPECT_EQ(TreeText(t.project()), before);
    EXPECT_EQ(t.tree().shown(), shown);
    // The form shows the copy until the next selection.
    EXPECT_EQ(t.current()->title.view(), "Toys");
    EXPECT_NE(t.current(), t.toys);
    EXPECT_EQ(t.list().count(), 0);
    EXPECT_TRUE(t.dirty());
    t.click(at);
    EXPECT_EQ(t.current(), at);
  }
}

TEST(CopyAndPaste, WhatIsMadeInACopyThatIsLinkedNowhereIsNeitherShownNorInTheTree) {
  SmallStore t;
  t.copyOf(t.toys);
  t.click(t.desk);
  pasteNode(t.shell);
  newNode(t.shell, NodeKind::Category);
  newProduct(t.shell);
  pasteNode(t.shell);
  t.screen.answers = {Answer::Yes};
  EXPECT_EQ(t.tree().shown(), "Home(Toys(Ball Car Dice) Desk(Pen))");
  deleteTreeNode(t.shell);
  EXPECT_EQ(TreeText(t.project()), "Home(Toys(Ball,Car,Dice),Desk(Pen))");
  EXPECT_NE(t.current(), nullptr);
}

TEST(TreeDelete, OfAProductAsksNothing) {
  SmallStore t;
  t.click(t.car);
  deleteTreeNode(t.shell);
  EXPECT_TRUE(t.screen.boxes.empty());
  EXPECT_EQ(t.tree().shown(), "Home(Toys(Ball Dice) Desk(Pen))");
  EXPECT_EQ(t.current(), t.ball);
  EXPECT_EQ(t.inTree(), t.ball);
  EXPECT_EQ(t.tree().selected(), t.ball->treeItem);
  EXPECT_TRUE(t.dirty());
  EXPECT_EQ(t.toys->modified, 1);
  EXPECT_EQ(t.dice->modified, 1);
  EXPECT_EQ(t.home->modified, 0);
}

TEST(TreeDelete, OfAnythingElseAsksAndGoesOnWithYesOnly) {
  SmallStore t;
  t.click(t.toys);
  for (const Answer answer : {Answer::No, Answer::Cancel}) {
    t.screen.answers = {answer};
    deleteTreeNode(t.shell);
    EXPECT_EQ(t.tree().shown(), "Home(Toys(Ball Car Dice) Desk(Pen))");
    EXPECT_FALSE(t.dirty());
    EXPECT_EQ(t.home->modified, 0);
  }
  t.screen.answers = {Answer::Yes};
  deleteTreeNode(t.shell);
  EXPECT_THAT(t.screen.boxes, testing::Each(kQuestion));
  EXPECT_EQ(t.screen.boxes.size(), 3U);
  EXPECT_EQ(t.tree().shown(), "Home(Desk(Pen))");
  EXPECT_EQ(t.current(), t.home);
  EXPECT_EQ(t.rows(), "Desk");
}

TEST(TreeDelete, TakesTheTreesNodeAndNotThatOfTheList) {
  SmallStore t;
  t.click(t.toys);
  t.clickRowOf(t.ball);
  deleteTreeNode(t.shell);  // answered with No
  EXPECT_EQ(t.current(), t.toys);
  EXPECT_FALSE(t.shell.fromList);
  EXPECT_THAT(t.screen.boxes, testing::ElementsAre(kQuestion));
}

TEST(TreeDelete, OfTheOnlyChildTakesTheExpandFlagOfItsParent) {
  SmallStore t;
  t.click(t.pen);
  deleteTreeNode(t.shell);
  EXPECT_EQ(t.current(), t.desk);
  EXPECT_FALSE(t.itemOf(t.desk).hasChildren);
}

TEST(TreeDelete, OfTheRootMakesTheNextTopLevelNodeCurrent) {
  SmallStore t;
  StoreNode* second = t.category("Second");
  t.show(t.home);
  t.screen.answers = {Answer::Yes};
  deleteTreeNode(t.shell);
  EXPECT_EQ(t.project().root, second);
  EXPECT_EQ(t.current(), second);
  EXPECT_EQ(t.tree().shown(), "Second");
}

TEST(TreeDelete, OfTheLastNodeClearsTheSelection) {
  SmallStore t;
  t.screen.answers = {Answer::Yes};
  deleteTreeNode(t.shell);
  EXPECT_EQ(t.project().root, nullptr);
  EXPECT_EQ(t.current(), nullptr);
  EXPECT_EQ(t.inTree(), nullptr);
  EXPECT_EQ(t.tree().selected(), kNoTreeItem);
  EXPECT_EQ(t.list().count(), 0);
  EXPECT_TRUE(t.dirty());
  deleteTreeNode(t.shell);
  EXPECT_EQ(t.screen.boxes.size(), 1U);
}

TEST(ListDelete, TakesAllRowsThatWereSelectedWhenItBegan) {
  SmallStore t;
  t.click(t.toys);
  t.clickRowOf(t.ball);
  t.controlClickRowOf(t.dice);
  deleteRows(t.shell);
  EXPECT_TRUE(t.screen.boxes.empty());
  EXPECT_EQ(TreeText(t.project()), "Home(Toys(Car),Desk(Pen))");
  EXPECT_EQ(t.tree().shown(), "Home(Toys(Car) Desk(Pen))");
  EXPECT_TRUE(t.dirty());
}

TEST(ListDelete, MakesWhatRemainsCurrentAndSelectsItInTheTree) {
  SmallStore t;
  t.click(t.toys);
  t.clickRowOf(t.car);
  deleteRows(t.shell);
  EXPECT_EQ(t.current(), t.ball);
  EXPECT_EQ(t.inTree(), t.ball);
  EXPECT_EQ(t.tree().selected(), t.ball->treeItem);
  EXPECT_FALSE(t.shell.fromList);
}

TEST(ListDelete, OfAllRowsLeavesTheirHolderWithoutAButton) {
  SmallStore t;
  t.click(t.toys);
  t.clickRowOf(t.ball);
  selectAllRows(t.shell);
  deleteRows(t.shell);
  EXPECT_EQ(t.current(), t.toys);
  EXPECT_FALSE(t.itemOf(t.toys).hasChildren);
  EXPECT_EQ(t.list().count(), 0);
}

TEST(ListDelete, AsksAboutTheCurrentNodeOnly) {
  SmallStore t;
  StoreNode* lamp = t.product("Lamp", t.home);
  t.show(t.home);
  t.clickRowOf(t.toys);
  t.controlClickRowOf(lamp);  // current now
  deleteRows(t.shell);
  EXPECT_TRUE(t.screen.boxes.empty());
  EXPECT_EQ(TreeText(t.project()), "Home(Desk(Pen))");
  t.click(t.home);
  t.clickRowOf(t.desk);
  deleteRows(t.shell);
  EXPECT_THAT(t.screen.boxes, testing::ElementsAre(kQuestion));
  EXPECT_EQ(TreeText(t.project()), "Home(Desk(Pen))");
}

TEST(ListDelete, MarksTheSiblingsOfTheCurrentNode) {
  SmallStore t;
  t.click(t.toys);
  t.clickRowOf(t.car);
  deleteRows(t.shell);
  EXPECT_EQ(t.toys->modified, 1);
  EXPECT_EQ(t.ball->modified, 1);
  EXPECT_EQ(t.dice->modified, 1);
  EXPECT_EQ(t.desk->modified, 0);
}

TEST(ListDelete, WithoutASelectedRowDoesNothing) {
  SmallStore t;
  deleteRows(t.shell);
  EXPECT_TRUE(t.screen.boxes.empty());
  EXPECT_FALSE(t.dirty());
}

TEST(DisableAndEnable, ChangeStatusAndIconAndNothingElse) {
  SmallStore t;
  t.click(t.toys);
  disableNode(t.shell);
  EXPECT_EQ(t.toys->status, -2);
  EXPECT_EQ(t.itemOf(t.toys).icon, 17);
  EXPECT_EQ(t.ball->status, 0);
  disableNode(t.shell);
  enableNode(t.shell);
  EXPECT_EQ(t.toys->status, 0);
  EXPECT_EQ(t.itemOf(t.toys).icon, 10);
  EXPECT_FALSE(t.dirty());
}

TEST(DisableAndEnable, EnableActsOnlyOnADisabledNode) {
  SmallStore t;
  t.toys->status = -1;
  t.click(t.toys);
  enableNode(t.shell);
  EXPECT_EQ(t.toys->status, -1);
  t.clickRowOf(t.ball);
  t.ball->status = -1;
  enableRows(t.shell);
  EXPECT_EQ(t.ball->status, -1);
  disableRows(t.shell);
  EXPECT_EQ(t.ball->status, -2);
}

TEST(DisableAndEnable, DisablingByListLeavesTheTreesIconStaleUntilTheNextFilling) {
  SmallStore t;
  t.click(t.toys);
  t.clickRowOf(t.ball);
  t.controlClickRowOf(t.dice);
  disableRows(t.shell);
  EXPECT_EQ(t.ball->status, -2);
  EXPECT_EQ(t.dice->status, -2);
  EXPECT_EQ(t.car->status, 0);
  EXPECT_EQ(t.itemOf(t.ball).icon, 11);
  EXPECT_EQ(t.logic.rowIcon(t.ball), 19);
  EXPECT_THAT(t.list().repainted, testing::ElementsAre(0, 2));
  EXPECT_FALSE(t.dirty());
  refillTree(t.shell);
  EXPECT_EQ(t.itemOf(t.ball).icon, 19);
}

TEST(DisableAndEnable, EnablingByListRefreshesTheTreesIconOfTheCurrentNodeOnly) {
  SmallStore t;
  t.ball->status = t.dice->status = kStatusDisabled;
  t.show(t.toys);
  t.clickRowOf(t.ball);
  t.controlClickRowOf(t.dice);  // current now
  enableRows(t.shell);
  EXPECT_EQ(t.ball->status, 0);
  EXPECT_EQ(t.dice->status, 0);
  EXPECT_EQ(t.itemOf(t.dice).icon, 11);
  EXPECT_EQ(t.itemOf(t.ball).icon, 19);
}

TEST(DisableAndEnable, WithoutACurrentNodeDoNothing) {
  SmallStore t;
  t.project().currentNode = nullptr;
  disableNode(t.shell);
  enableNode(t.shell);
  enableRows(t.shell);
  EXPECT_EQ(t.home->status, 0);
}

}  // namespace
}  // namespace varlo::test
