#include "shell/window/focus_commands.h"

#include <gtest/gtest.h>

#include "shell/tabs/inventory_page.h"
#include "shell/window/commands.h"
#include "tests/support/page_stand_in.h"
#include "tests/support/test_shell.h"
#include "tests/support/tree.h"

namespace varlo::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
constexpr ControlId kEdit = inventory::kDescription;

class FocusCommands : public testing::Test {
 protected:
  TestShell t;
  PageStandIn page;
  StoreNode* home = AddCategory(t.project(), "Home");
  StoreNode* ball = AddProduct(t.project(), "Ball", home);

  void SetUp() override {
    t.attach();
    page.openIn(t.shell);
    t.project().projectFile.assign(kShopPath);
    t.project().currentNode = t.project().treeNode = ball;
    page.window.setText(kEdit, "Round ball");
    page.window.select(kEdit, 0, 6);
  }
  void focusOn(Focus::Place place, ControlId control = 0) { t.window.focused = {place, control}; }
  void run(Command command) { dispatchCommand(t.shell, command); }
};

TEST_F(FocusCommands, CopyInTheRichEditTakesTheSelectionAndNoNode) {
  focusOn(Focus::Place::Page, kEdit);
  run(Command::Copy);
  EXPECT_EQ(page.window.clipboard, "Round ");
  EXPECT_EQ(t.project().clipboardNode, nullptr);
}

TEST_F(FocusCommands, PasteInTheRichEditReplacesTheSelectionAndPostsNothing) {
  focusOn(Focus::Place::Page, kEdit);
  page.window.clipboard = "Red ";
  run(Command::Paste);
  EXPECT_EQ(page.window.text(kEdit), "Red ball");
  EXPECT_THAT(t.screen.posted, IsEmpty());
}

TEST_F(FocusCommands, WithoutACurrentNodeNothingIsPutIntoTheRichEdit) {
  t.project().currentNode = nullptr;
  focusOn(Focus::Place::Page, kEdit);
  page.window.clipboard = "Red ";
  run(Command::Paste);
  run(Command::Delete);
  EXPECT_EQ(page.window.text(kEdit), "Round ball");
  EXPECT_THAT(t.screen.posted, IsEmpty());
}

TEST_F(FocusCommands, DeleteInTheRichEditRemovesTheSelectionAndNoNode) {
  focusOn(Focus::Place::Page, kEdit);
  run(Command::Delete);
  EXPECT_EQ(page.window.text(kEdit), "ball");
  EXPECT_EQ(TreeText(t.project()), "Home(Ball)");
}

TEST_F(FocusCommands, SelectAllInTheRichEditSelectsItsText) {
  page.window.select(kEdit, 0, 0);
  focusOn(Focus::Place::Page, kEdit);
  run(Command::SelectAll);
  run(Command::Copy);
  EXPECT_EQ(page.window.clipboard, "Round ball");
}

TEST_F(FocusCommands, CopyInTreeAndListTakesTheCurrentNode) {
  for (const auto place : {Focus::Place::Tree, Focus::Place::ItemList}) {
    t.project().clipboardNode.reset();
    focusOn(place);
    run(Command::Copy);
    ASSERT_NE(t.project().clipboardNode, nullptr);
    EXPECT_EQ(t.project().clipboardNode->title.view(), "Ball");
  }
  EXPECT_EQ(page.window.clipboard, "");
}

TEST_F(FocusCommands, PasteOfANodeIsPosted) {
  t.project().clipboardNode = std::make_unique<StoreNode>();
  focusOn(Focus::Place::Tree);
  run(Command::Paste);
  focusOn(Focus::Place::ItemList);
  run(Command::Paste);
  EXPECT_THAT(t.screen.posted, ElementsAre(Command::TreePaste, Command::ListPaste));
  EXPECT_EQ(TreeText(t.project()), "Home(Ball)");
}

TEST_F(FocusCommands, DeleteInTheTreeTakesTheTreesNode) {
  focusOn(Focus::Place::Tree);
  run(Command::Delete);
  EXPECT_EQ(TreeText(t.project()), "Home");
}

TEST_F(FocusCommands, DeleteInTheListTakesTheSelectedRows) {
  t.window.theList.append(ball);
  t.window.theList.setSelected(0, true);
  focusOn(Focus::Place::ItemList);
  run(Command::Delete);
  EXPECT_EQ(TreeText(t.project()), "Home");
}

TEST_F(FocusCommands, SelectAllAnywhereElseSelectsEveryRow) {
  t.window.theList.append(home);
  t.window.theList.append(ball);
  for (const auto place : {Focus::Place::ItemList, Focus::Place::Elsewhere}) {
    t.window.theList.setSelected(0, false);
    focusOn(place);
    run(Command::SelectAll);
    EXPECT_THAT(t.window.theList.selectedRows(), ElementsAre(0, 1));
  }
}

TEST_F(FocusCommands, ElsewhereThereIsNothingToCopyPasteOrDelete) {
  t.project().clipboardNode = std::make_unique<StoreNode>();
  for (const Focus focus : {Focus{}, Focus{Focus::Place::Page, inventory::kTitle}}) {
    t.window.focused = focus;
    for (const Command command : {Command::Copy, Command::Paste, Command::Delete}) run(command);
  }
  EXPECT_THAT(t.screen.posted, IsEmpty());
  EXPECT_TRUE(t.project().clipboardNode->title.isNull());
  EXPECT_EQ(TreeText(t.project()), "Home(Ball)");
  EXPECT_EQ(page.window.clipboard, "");
}

TEST_F(FocusCommands, WithoutAPageTheRichEditHasNoUseForThem) {
  focusOn(Focus::Place::Page, kEdit);
  t.shell.tabPage = nullptr;
  for (const Command command : {Command::Copy, Command::Paste, Command::Delete}) run(command);
  EXPECT_EQ(page.window.text(kEdit), "Round ball");
  EXPECT_THAT(t.screen.posted, IsEmpty());
}

}  // namespace
}  // namespace varlo::test
