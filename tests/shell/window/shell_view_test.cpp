#include "shell/window/shell_view.h"

#include <gtest/gtest.h>

#include "platform/main_window.h"
#include "tests/support/shown_store.h"

namespace varlo::test {
namespace {

TEST(ShellView, WithoutAShellShowsNothing) {
  ShellView view;
  StoreNode node;
  view.clearTree();
  view.fillTree();
  view.loadItemList(&node);
  view.insertTreeItem(node, nullptr);
  view.moveTreeItem(node);
  view.removeTreeItem(node);
  view.refreshTreeItem(node);
  view.selectInTree(node);
  EXPECT_EQ(node.treeItem, kNoTreeItem);
}

TEST(ShellView, RefreshesTheCommandsWheneverHelpIsAskedFor) {
  ShownStore t;
  t.project().projectFile.assign(kShopPath);
  t.project().dirty = 1;
  t.window.enableEntry(Command::Save, false);
  t.view.showHelp(main_window::kTree);
  EXPECT_TRUE(t.window.entryEnabled(Command::Save));
}

TEST(ShellView, InsertsANewItemWhereItsNodeHangsWhateverItsPrevIs) {
  ShownStore t;
  StoreNode* home = t.category("Home");
  StoreNode* ball = t.product("Ball", home);
  t.show(home);
  StoreNode* last = t.product("Last", home);
  StoreNode* top = t.category("Top");
  StoreNode* below = t.product("Below", ball);
  t.view.insertTreeItem(*last, home);
  t.view.insertTreeItem(*top, ball);
  t.view.insertTreeItem(*below, nullptr);
  EXPECT_EQ(t.tree().shown(), "Home(Ball(Below) Last) Top");
}

TEST(ShellView, InsertsNothingWhoseHolderIsGoneOrNotShown) {
  ShownStore t;
  StoreNode* home = t.category("Home");
  StoreNode* toys = t.category("Toys", home);
  StoreNode* ball = t.product("Ball", toys);
  t.show(home);
  StoreNodeDelete(t.program, toys);
  ball->parent = toys;
  t.view.insertTreeItem(*ball, toys);
  t.view.moveTreeItem(*ball);
  EXPECT_EQ(t.tree().shown(), "Home");
}

TEST(ShellView, RefreshesIconAndExpandFlagOfAnItem) {
  ShownStore t;
  StoreNode* home = t.category("Home");
  t.show(home);
  home->status = kStatusDisabled;
  t.category("Toys", home);
  t.view.refreshTreeItem(*home);
  EXPECT_EQ(t.itemOf(home).icon, 17);
  EXPECT_TRUE(t.itemOf(home).hasChildren);
}

TEST(ShellView, SetsTheTitleOfTheWindow) {
  ShownStore t;
  t.view.setWindowTitle("Varlo PRO - Demo");
  EXPECT_EQ(t.window.title(), "Varlo PRO - Demo");
}

}  // namespace
}  // namespace varlo::test
