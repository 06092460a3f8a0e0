#include "shell/tree/node_selection.h"

#include <gtest/gtest.h>

#include "platform/main_window.h"
#include "shell/tabs/inventory_page.h"
#include "shell/window/commands.h"
#include "tests/support/shown_store.h"

namespace varlo::test {
namespace {

// Home with Toys, which holds Ball and Car, and Books.
struct SmallStore : ShownStore {
  StoreNode* home = category("Home");
  StoreNode* toys = category("Toys", home);
  StoreNode* ball = product("Ball", toys);
  StoreNode* car = product("Car", toys);
  StoreNode* books = category("Books", home);
  SmallStore() { show(home); }

  StoreNode* current() { return project().currentNode; }
  StoreNode* inTree() { return project().treeNode; }
};

TEST(TreeSelection, TakesTheNodeAndShowsItsChildren) {
  SmallStore t;
  t.shell.fromList = true;
  t.click(t.toys);
  EXPECT_EQ(t.current(), t.toys);
  EXPECT_EQ(t.inTree(), t.toys);
  EXPECT_FALSE(t.shell.fromList);
  EXPECT_EQ(t.rows(), "Ball Car");
}

TEST(TreeSelection, IsIgnoredWhileMutedAndWhenItIsOfNothing) {
  SmallStore t;
  t.shell.notificationsMuted = true;
  t.click(t.toys);
  t.logic.treeItemExpanding(t.toys->treeItem);
  EXPECT_EQ(t.current(), t.home);
  t.shell.notificationsMuted = false;
  t.logic.treeSelectionChanged(kNoTreeItem);
  t.logic.treeItemExpanding(kNoTreeItem);
  EXPECT_EQ(t.current(), t.home);
}

TEST(TreeSelection, ByExpandingLeavesTheItemListAsItIs) {
  SmallStore t;
  t.shell.fromList = true;
  t.logic.treeItemExpanding(t.toys->treeItem);
  EXPECT_EQ(t.current(), t.toys);
  EXPECT_EQ(t.inTree(), t.toys);
  EXPECT_FALSE(t.shell.fromList);
  EXPECT_EQ(t.rows(), "Toys Books");
}

TEST(RowSelection, ByAClickMakesTheRowsNodeCurrentAndLeavesTheTree) {
  SmallStore t;
  t.clickRowOf(t.books);
  EXPECT_EQ(t.current(), t.books);
  EXPECT_EQ(t.inTree(), t.home);
  EXPECT_TRUE(t.shell.fromList);
}

TEST(RowSelection, ByAClickBesideTheRowsChangesNothing) {
  SmallStore t;
  t.logic.rowClicked(kNoRow);
  t.logic.rowDoubleClicked(kNoRow);
  EXPECT_EQ(t.current(), t.home);
  EXPECT_FALSE(t.shell.fromList);
}

TEST(RowSelection, ByADoubleClickMovesTheTreeToo) {
  SmallStore t;
  t.logic.rowDoubleClicked(t.rowOf(t.toys));
  EXPECT_EQ(t.current(), t.toys);
  EXPECT_EQ(t.inTree(), t.toys);
  EXPECT_EQ(t.tree().selected(), t.toys->treeItem);
  EXPECT_FALSE(t.shell.fromList);
  EXPECT_EQ(t.rows(), "Ball Car");
}

TEST(RowSelection, ByADoubleClickReachesANodeThatTheTreeDoesNotShow) {
  SmallStore t;
  removeTreeItem(t.shell, *t.books);
  t.logic.rowDoubleClicked(t.rowOf(t.books));
  EXPECT_EQ(t.inTree(), t.books);
  EXPECT_EQ(t.list().count(), 0);
}

TEST(RowSelection, ByAKeyCountsOnTheThirdChangeOnly) {
  SmallStore t;
  t.logic.listKey(Key::Down, false);
  EXPECT_EQ(t.shell.listKeyCountdown, 3);
  t.logic.rowChanged(0);
  t.logic.rowChanged(1);
  EXPECT_EQ(t.current(), t.home);
  t.logic.rowChanged(1);
  EXPECT_EQ(t.current(), t.books);
  EXPECT_TRUE(t.shell.fromList);
  t.logic.rowChanged(0);
  EXPECT_EQ(t.current(), t.books);
}

TEST(RowSelection, ChangesWithoutAKeyDoNotCount) {
  SmallStore t;
  for (int i = 0; i < 5; ++i) t.logic.rowChanged(1);
  EXPECT_EQ(t.current(), t.home);
}

TEST(RowSelection, AClickAfterAKeyThatChangedNothingCounts) {
  SmallStore t;
  t.logic.listKey(Key::Other, false);
  t.clickRowOf(t.books);
  EXPECT_EQ(t.current(), t.books);
  t.controlClickRowOf(t.toys);
  EXPECT_EQ(t.current(), t.toys);
  EXPECT_EQ(t.shell.listKeyCountdown, 0);
}

TEST(RowSelection, DoesNothingWhileAGuardIsUp) {
  for (bool Shell::*guard :
       {&Shell::listBusy, &Shell::notificationsMuted, &Shell::treeDragging, &Shell::listDragging}) {
    SmallStore t;
    t.shell.*guard = true;
    t.shell.listKeyCountdown = 1;
    t.logic.rowClicked(1);
    t.logic.rowDoubleClicked(1);
    t.logic.rowChanged(1);
    t.over(t.toys);
    t.overRow(1);
    t.logic.treeRightClicked(ShownStore::kOnItem);
    t.logic.listRightClicked(ShownStore::kOnRow);
    EXPECT_EQ(t.current(), t.home);
    EXPECT_EQ(t.shell.listKeyCountdown, 1);
    t.shell.*guard = false;
  }
}

TEST(RowSelection, AsksForTheHelpOfTheListAndThatOfTheTreeForTheTree) {
  SmallStore t;
  t.view.helps.clear();
  t.window.clickRow(0);
  EXPECT_EQ(t.view.helps, std::vector<int>{main_window::kItemList});
  t.view.helps.clear();
  t.logic.treeItemExpanding(t.window.theTree.selected());
  EXPECT_EQ(t.view.helps, std::vector<int>{main_window::kTree});
}

TEST(ListKeys, PostDeleteAndWithControlSelectAll) {
  SmallStore t;
  t.logic.listKey(Key::Delete, false);
  t.logic.listKey(Key::A, false);
  t.logic.listKey(Key::A, true);
  EXPECT_THAT(t.screen.posted, testing::ElementsAre(Command::ListDelete, Command::ListSelectAll));
}

TEST(RightClick, OnAnItemMakesItCurrentInTheTree) {
  SmallStore t;
  t.shell.fromList = true;
  t.logic.treeRightClicked(t.over(t.toys));
  EXPECT_TRUE(t.shell.hitItem);
  EXPECT_EQ(t.current(), t.toys);
  EXPECT_EQ(t.inTree(), t.toys);
  EXPECT_EQ(t.tree().selected(), t.toys->treeItem);
  EXPECT_FALSE(t.shell.fromList);
  EXPECT_EQ(t.rows(), "Ball Car");
}

TEST(RightClick, OnBlankSpaceHitsNothing) {
  SmallStore t;
  t.shell.hitItem = true;
  t.logic.treeRightClicked(ShownStore::kBeside);
  EXPECT_FALSE(t.shell.hitItem);
  t.shell.hitItem = true;
  t.logic.listRightClicked(ShownStore::kBeside);
  EXPECT_FALSE(t.shell.hitItem);
  EXPECT_EQ(t.current(), t.home);
}

TEST(RightClick, OnARowMakesItCurrentFromTheList) {
  SmallStore t;
  t.logic.listRightClicked(t.overRow(t.rowOf(t.books)));
  EXPECT_TRUE(t.shell.hitItem);
  EXPECT_EQ(t.current(), t.books);
  EXPECT_EQ(t.inTree(), t.home);
  EXPECT_TRUE(t.shell.fromList);
}

TEST(SelectCurrent, SetsBothReferencesAndShowsTheChildren) {
  SmallStore t;
  t.shell.fromList = true;
  selectCurrent(t.shell, t.toys);
  EXPECT_EQ(t.current(), t.toys);
  EXPECT_EQ(t.inTree(), t.toys);
  EXPECT_FALSE(t.shell.fromList);
  EXPECT_EQ(t.rows(), "Ball Car");
}

TEST(SelectCurrent, OfNothingOnlyTurnsPreviewOff) {
  SmallStore t;
  t.window.frame().enable(main_window::kPreview, true);
  t.shell.fromList = true;
  selectCurrent(t.shell, nullptr);
  EXPECT_FALSE(t.window.frame().isEnabled(main_window::kPreview));
  EXPECT_EQ(t.current(), t.home);
  EXPECT_TRUE(t.shell.fromList);
  EXPECT_EQ(t.rows(), "Toys Books");
}

TEST(SelectCurrent, FillsTheForm) {
  TestShell t;
  t.nameShop();
  t.open();
  selectCurrent(t.shell, t.project().root->child);
  EXPECT_EQ(t.window.page()->text(inventory::kTitle), "Toys");
}

TEST(SelectInTree, MakesTheNodeCurrentAndItsItemVisible) {
  ShownStore t;
  StoreNode* home = t.category("Home");
  StoreNode* toys = t.category("Toys", home);
  t.product("Ball", toys);
  t.show(home);
  selectInTree(t.shell, *toys);
  EXPECT_EQ(t.tree().selected(), toys->treeItem);
  EXPECT_THAT(t.tree().calls, testing::ElementsAre("ensureVisible Toys"));
  EXPECT_EQ(t.project().currentNode, toys);
  EXPECT_EQ(t.project().treeNode, toys);
  EXPECT_EQ(t.rows(), "Ball");
}

TEST(SelectInTree, MakesANodeCurrentThatIsNotShownOrIsSelectedAlready) {
  ShownStore t;
  StoreNode* home = t.category("Home");
  StoreNode* toys = t.category("Toys", home);
  t.show(home);
  t.project().currentNode = toys;
  selectInTree(t.shell, *home);
  EXPECT_EQ(t.project().currentNode, home);
  removeTreeItem(t.shell, *toys);
  selectInTree(t.shell, *toys);
  EXPECT_EQ(t.project().treeNode, toys);
  EXPECT_EQ(t.tree().selected(), kNoTreeItem);
}

TEST(SelectInTree, MakesTheNodeCurrentAlsoWithoutAWindow) {
  ShownStore t;
  t.shell.mainWindow = nullptr;
  StoreNode* home = t.category("Home");
  selectInTree(t.shell, *home);
  EXPECT_EQ(t.project().currentNode, home);
}

}  // namespace
}  // namespace varlo::test
