#include "shell/window/main_window_shell.h"

#include <gtest/gtest.h>

#include "core/program/work.h"
#include "shell/tabs/tab_switch.h"
#include "tests/support/shown_store.h"

namespace varlo::test {
namespace {

TEST(PopupMenuAtTheMouse, RunsWhatIsChosen) {
  ShownStore t;
  t.screen.chosenFromMenus = {Command::ToggleToolbar, Command::ToggleButtons};
  t.logic.treeRightClicked(ShownStore::kBeside);
  EXPECT_EQ(t.config().viewFlags, kViewButtons);
  t.logic.listRightClicked(ShownStore::kBeside);
  EXPECT_EQ(t.config().viewFlags, 0);
  EXPECT_EQ(t.screen.menus.size(), 2U);
}

TEST(PopupMenuAtTheMouse, ThatIsLeftDoesNothing) {
  ShownStore t;
  t.logic.treeRightClicked(ShownStore::kBeside);
  t.logic.listRightClicked(ShownStore::kBeside);
  EXPECT_EQ(t.screen.menus.size(), 2U);
  EXPECT_TRUE(t.screen.posted.empty());
  EXPECT_TRUE(t.screen.boxes.empty());
}

// Home with Toys, which holds Ball, and Books; Home is current.
class DuringWork : public testing::Test {
 protected:
  ShownStore t;
  StoreNode* home = t.category("Home");
  StoreNode* toys = t.category("Toys", home);
  StoreNode* ball = t.product("Ball", toys);
  StoreNode* books = t.category("Books", home);

  void SetUp() override { t.show(home); }
  void expectNothingHappened() {
    EXPECT_EQ(t.project().currentNode, home);
    EXPECT_EQ(t.project().treeNode, home);
    EXPECT_EQ(t.tree().selected(), home->treeItem);
    EXPECT_EQ(TreeText(t.project()), "Home(Toys(Ball),Books)");
    EXPECT_THAT(t.screen.posted, testing::IsEmpty());
    EXPECT_THAT(t.screen.menus, testing::IsEmpty());
  }
};

TEST_F(DuringWork, TheTreeTakesNoClickAndNoKey) {
  const Work work(t.program);
  t.click(toys);
  t.logic.treeSelectionChanged(toys->treeItem);
  t.logic.treeItemExpanding(toys->treeItem);
  t.logic.treeRightClicked(t.over(toys));
  for (const Key key : {Key::Delete, Key::Control, Key::Down, Key::KeypadPlus, Key::KeypadMinus, Key::Other}) {
    EXPECT_TRUE(t.logic.treeKey(key));
  }
  EXPECT_FALSE(t.shell.ctrlSeen);
  expectNothingHappened();
}

TEST_F(DuringWork, TheListTakesNoClickAndNoKey) {
  const Work work(t.program);
  t.clickRowOf(books);
  t.controlClickRowOf(toys);
  t.logic.rowClicked(1);
  t.logic.rowDoubleClicked(1);
  t.logic.columnClicked(0);
  t.logic.listKey(Key::Delete, false);
  t.logic.listKey(Key::A, true);
  for (int i = 0; i < kChangesOfAKey; ++i) t.logic.rowChanged(1);
  t.logic.listRightClicked(t.overRow(1));
  EXPECT_THAT(t.list().selectedRows(), testing::IsEmpty());
  EXPECT_EQ(t.rows(), "Toys Books");
  expectNothingHappened();
}

TEST_F(DuringWork, NoDragBegins) {
  const Work work(t.program);
  t.logic.treeDragBegun(toys->treeItem);
  t.logic.listDragBegun(0);
  EXPECT_FALSE(t.shell.treeDragging || t.shell.listDragging || t.window.dragging());
  expectNothingHappened();
}

TEST_F(DuringWork, ADragThatRanBeforeEndsWithoutADrop) {
  t.logic.treeDragBegun(toys->treeItem);
  t.logic.dragMoved(t.over(books));
  {
    const Work work(t.program);
    t.logic.dragReleased(t.over(books));
  }
  EXPECT_FALSE(t.shell.treeDragging || t.window.dragging());
  EXPECT_EQ(t.tree().dropHighlight(), kNoTreeItem);
  EXPECT_EQ(t.project().dragNode, nullptr);
  expectNothingHappened();
}

TEST_F(DuringWork, TheTabStays) {
  openTabPage(t.shell);
  const FakeWindow* page = t.window.page();
  const Work work(t.program);
  t.window.pickTab(3);
  EXPECT_EQ(t.shell.currentTab, Tab::Inventory);
  EXPECT_EQ(t.window.page(), page);
}

TEST_F(DuringWork, TheWindowDoesNotClose) {
  const Work work(t.program);
  t.logic.closeRequested();
  EXPECT_FALSE(t.window.ended());
}

TEST_F(DuringWork, TheWindowIsLaidOutAndPaintedAllTheSame) {
  openTabPage(t.shell);
  const Work work(t.program);
  t.logic.resized();
  EXPECT_GE(t.window.redraws(), 1);
  EXPECT_EQ(t.logic.cellText(toys, 0), "Toys");
}

TEST_F(DuringWork, WhatTheProgramSelectsItselfIsSelected) {
  const Work work(t.program);
  t.view.selectInTree(*toys);
  EXPECT_EQ(t.project().treeNode, toys);
  EXPECT_EQ(t.tree().selected(), toys->treeItem);
}

}  // namespace
}  // namespace varlo::test
