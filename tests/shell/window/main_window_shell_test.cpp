#include "shell/window/main_window_shell.h"

#include <gtest/gtest.h>

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

}  // namespace
}  // namespace varlo::test
