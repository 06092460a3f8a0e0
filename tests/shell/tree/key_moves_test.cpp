#include <gtest/gtest.h>

#include "shell/tree/key_moves.h"
#include "tests/support/shown_store.h"

namespace varlo::test {
namespace {

// Home with A, B, which holds Ball, and C.
struct SmallStore : ShownStore {
  StoreNode* home = category("Home");
  StoreNode* a = category("A", home);
  StoreNode* b = category("B", home);
  StoreNode* ball = product("Ball", b);
  StoreNode* c = category("C", home);
  SmallStore() { show(home); }

  bool press(Key key) { return logic.treeKey(key); }
  std::string text() { return TreeText(project()); }
};

TEST(KeyMoves, WithoutControlOnlyTheKeypadMoves) {
  SmallStore t;
  t.click(t.b);
  for (const Key key : {Key::Up, Key::Down, Key::Other, Key::A, Key::Delete}) EXPECT_FALSE(t.press(key));
  EXPECT_EQ(t.text(), "Home(A,B(Ball),C)");
  EXPECT_TRUE(t.press(Key::KeypadPlus));
  EXPECT_EQ(t.text(), "Home(A,C,B(Ball))");
  EXPECT_TRUE(t.press(Key::KeypadMinus));
  EXPECT_EQ(t.text(), "Home(A,B(Ball),C)");
  ExpectPlainTree(t.project());
}

TEST(KeyMoves, DownSelectsTheNodeAtItsNewPlace) {
  SmallStore t;
  t.click(t.a);
  EXPECT_TRUE(t.press(Key::Control));
  EXPECT_TRUE(t.press(Key::Down));
  EXPECT_EQ(t.text(), "Home(B(Ball),A,C)");
  EXPECT_EQ(t.tree().shown(), "Home(B(Ball) A C)");
  EXPECT_EQ(t.tree().selected(), t.a->treeItem);
  EXPECT_EQ(t.project().treeNode, t.a);
  EXPECT_EQ(t.project().currentNode, t.a);
  ExpectPlainTree(t.project());
}

TEST(KeyMoves, UpMakesTheNodeVisible) {
  SmallStore t;
  t.click(t.c);
  t.tree().calls.clear();
  t.press(Key::KeypadMinus);
  EXPECT_EQ(t.text(), "Home(A,C,B(Ball))");
  EXPECT_THAT(t.tree().calls, testing::ElementsAre("ensureVisible C"));
  EXPECT_EQ(t.tree().selected(), t.c->treeItem);
}

TEST(KeyMoves, AMovedBranchHasItsButtonAndNoChildrenUntilTheTreeIsFilled) {
  SmallStore t;
  t.click(t.b);
  t.press(Key::KeypadPlus);
  EXPECT_EQ(t.tree().shown(), "Home(A C B)");
  EXPECT_TRUE(t.itemOf(t.b).hasChildren);
  EXPECT_EQ(t.ball->treeItem, kNoTreeItem);
  refillTree(t.shell);
  EXPECT_EQ(t.tree().shown(), "Home(A C B(Ball))");
}

TEST(KeyMoves, UpRebuildsTheSiblingThatGivesWay) {
  SmallStore t;
  t.click(t.c);
  t.press(Key::KeypadMinus);
  EXPECT_EQ(t.tree().shown(), "Home(A C B)");
  EXPECT_EQ(t.ball->treeItem, kNoTreeItem);
}

TEST(KeyMoves, TheItemListIsNotReloadedMeanwhile) {
  SmallStore t;
  t.click(t.b);
  t.list().setSelected(0, true);
  t.press(Key::KeypadPlus);
  EXPECT_THAT(t.list().selectedRows(), testing::ElementsAre(0));
  EXPECT_FALSE(t.shell.listFrozen);
}

TEST(KeyMoves, ControlIsRememberedUntilAMoveUp) {
  SmallStore t;
  t.click(t.a);
  t.press(Key::Control);
  EXPECT_TRUE(t.press(Key::Down));
  EXPECT_TRUE(t.press(Key::KeypadPlus));
  EXPECT_TRUE(t.press(Key::Other));  // dead
  EXPECT_TRUE(t.press(Key::Down));   // no sibling behind
  EXPECT_EQ(t.text(), "Home(B(Ball),C,A)");
  EXPECT_TRUE(t.press(Key::Up));
  EXPECT_EQ(t.text(), "Home(B(Ball),A,C)");
  EXPECT_FALSE(t.press(Key::Up));
  EXPECT_EQ(t.text(), "Home(B(Ball),A,C)");
}

TEST(KeyMoves, AMoveUpThatSwapsNothingForgetsControlToo) {
  SmallStore t;
  t.click(t.a);
  t.press(Key::Control);
  EXPECT_TRUE(t.press(Key::Up));
  EXPECT_EQ(t.text(), "Home(A,B(Ball),C)");
  EXPECT_FALSE(t.shell.ctrlSeen);
  t.press(Key::Control);
  EXPECT_TRUE(t.press(Key::KeypadMinus));
  EXPECT_FALSE(t.shell.ctrlSeen);
}

TEST(KeyMoves, DeletePostsTreeDeleteInEveryCase) {
  SmallStore t;
  EXPECT_FALSE(t.press(Key::Delete));
  t.press(Key::Control);
  EXPECT_TRUE(t.press(Key::Delete));
  EXPECT_THAT(t.screen.posted, testing::ElementsAre(Command::TreeDelete, Command::TreeDelete));
}

TEST(KeyMoves, DoNotMarkTheProjectAsChanged) {
  SmallStore t;
  t.click(t.b);
  t.press(Key::KeypadPlus);
  t.press(Key::KeypadMinus);
  EXPECT_EQ(t.project().dirty, 0);
}

TEST(KeyMoves, OfTheFirstTopLevelNodeLeaveItTheRoot) {
  SmallStore t;
  StoreNode* second = t.category("Second");
  t.show(t.home);
  t.press(Key::KeypadPlus);
  EXPECT_EQ(t.project().root, t.home);
  EXPECT_EQ(second->next, t.home);
  EXPECT_EQ(t.home->prev, second);
  EXPECT_EQ(t.text(), "Home(A,B(Ball),C)");  // the other stands in front of it
  EXPECT_EQ(t.tree().shown(), "Second Home");
  t.press(Key::KeypadMinus);  // no way back up
  EXPECT_EQ(second->next, t.home);
  t.click(second);
  t.press(Key::KeypadPlus);
  EXPECT_EQ(t.text(), "Home(A,B(Ball),C),Second");
  EXPECT_EQ(t.tree().shown(), "Home Second");
  ExpectPlainTree(t.project());
}

TEST(KeyMoves, TheSecondTopLevelNodeCannotMoveUpAndTheThirdCan) {
  SmallStore t;
  StoreNode* second = t.category("Second");
  StoreNode* third = t.category("Third");
  t.show(second);
  t.press(Key::KeypadMinus);
  EXPECT_EQ(t.text(), "Home(A,B(Ball),C),Second,Third");
  t.click(third);
  t.press(Key::KeypadMinus);
  EXPECT_EQ(t.text(), "Home(A,B(Ball),C),Third,Second");
  EXPECT_EQ(t.tree().shown(), "Home(A B(Ball) C) Third Second");
}

TEST(KeyMoves, UpNeedsAPrevThatIsTheSiblingBefore) {
  SmallStore t;
  StoreNode* pen = t.product("Pen", t.home);
  pen->prev = t.home;  // as a product made in the list has it
  pen->id = 1;
  t.show(pen);
  t.press(Key::KeypadMinus);
  EXPECT_EQ(t.text(), "Home(A,B(Ball),C,Pen)");
  t.click(t.c);
  t.press(Key::KeypadPlus);
  EXPECT_EQ(t.text(), "Home(A,B(Ball),Pen,C)");
  ExpectPlainTree(t.project());
}

TEST(KeyMoves, MoveANodeThatTheTreeDoesNotShow) {
  SmallStore t;
  removeTreeItem(t.shell, *t.a);
  Select(t.project(), t.a);
  t.press(Key::KeypadPlus);
  EXPECT_EQ(t.text(), "Home(B(Ball),A,C)");
  EXPECT_EQ(t.tree().shown(), "Home(B(Ball) C)");
  t.press(Key::KeypadMinus);
  EXPECT_EQ(t.text(), "Home(A,B(Ball),C)");
}

TEST(KeyMoves, ASiblingKeepsItsPlaceBesideANodeThatTheTreeDoesNotShow) {
  SmallStore t;
  removeTreeItem(t.shell, *t.b);
  Select(t.project(), t.b);
  t.press(Key::KeypadMinus);
  EXPECT_EQ(t.text(), "Home(B(Ball),A,C)");
  EXPECT_EQ(t.tree().shown(), "Home(A C)");
}

TEST(KeyMoves, WithoutANodeDoNothing) {
  SmallStore t;
  t.project().treeNode = nullptr;
  EXPECT_TRUE(t.press(Key::KeypadPlus));
  EXPECT_TRUE(t.press(Key::KeypadMinus));
  EXPECT_EQ(t.text(), "Home(A,B(Ball),C)");
}

TEST(KeyMoves, AnItemThatIsRefusedIsToldAndTheNodeStaysCurrent) {
  SmallStore t;
  t.click(t.a);
  t.tree().refuses = true;
  t.press(Key::KeypadPlus);
  EXPECT_EQ(t.screen.boxes.size(), 1U);
  EXPECT_EQ(t.project().treeNode, t.a);
  EXPECT_EQ(t.text(), "Home(B(Ball),A,C)");
}

}  // namespace
}  // namespace varlo::test
