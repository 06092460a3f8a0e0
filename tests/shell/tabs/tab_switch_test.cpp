#include "shell/tabs/tab_switch.h"

#include <set>

#include <gtest/gtest.h>

#include "shell/tabs/form.h"
#include "shell/tabs/inventory_page.h"
#include "shell/window/main_layout.h"
#include "tests/support/test_form.h"
#include "tests/support/test_shell.h"
#include "tests/support/tree.h"

namespace varlo::test {
namespace {

TEST(Pages, TheTabsHaveTheirLabelsAndPages) {
  const std::vector<std::string_view> expected{"Inventory",    "Template", "Freight",  "Order Form",
                                               "Confirmation", "Layout",   "Variables"};
  TestForm t;
  ASSERT_EQ(static_cast<int>(expected.size()), kTabs);
  std::set<ControlId> windows;
  for (int tab = 0; tab < kTabs; ++tab) {
    const TabTraits& traits = traitsOf(static_cast<Tab>(tab));
    EXPECT_EQ(traits.label, expected[static_cast<std::size_t>(tab)]);
    const std::shared_ptr<TabPage> page = traits.makePage(t.shell);
    EXPECT_EQ(page->shape().form, Form::Page);
    EXPECT_TRUE(windows.insert(page->shape().id).second) << "two pages with the number " << page->shape().id;
  }
}

TEST(Pages, EachIsTheShellsPageWhileItIsOpen) {
  TestForm t;
  for (int tab = 0; tab < kTabs; ++tab) {
    t.open(static_cast<Tab>(tab));
    EXPECT_EQ(t.shell.tabPage, t.page.get()) << tab;
    t.close();
    EXPECT_EQ(t.shell.tabPage, nullptr) << tab;
  }
}

TEST(Pages, TheInventoryPageIsFilledWhenItOpens) {
  TestForm t;
  t.ball->body.assign("round");
  t.open();
  EXPECT_EQ(t.page->text(inventory::kTitle), "Ball");
  EXPECT_EQ(t.page->text(inventory::kDescription), "round");
  EXPECT_EQ(t.project().dirty, 0);
}

TEST(Pages, EachPassesItsNotificationsToTheForm) {
  TestForm t;
  for (int tab = 0; tab < kTabs; ++tab) {
    t.open(static_cast<Tab>(tab));
    t.project().dirty = 0;
    t.logic->notified(*t.page, {.control = 99, .notice = Notice::GotFocus});
    EXPECT_THAT(t.view.calls, testing::Contains("showHelp 99")) << tab;
    t.logic->notified(*t.page, {.control = 99, .notice = Notice::Changed});
    EXPECT_EQ(t.project().dirty, 1) << tab;
  }
}

TEST(Pages, EscapeOnAPageEndsTheProgram) {
  for (int tab = 0; tab < kTabs; ++tab) {
    TestShell t;
    t.shell.mainWindow = &t.window;
    t.shell.currentTab = static_cast<Tab>(tab);
    openTabPage(t.shell);
    t.window.page()->close();
    EXPECT_THAT(t.screen.posted, testing::ElementsAre(Command::Quit)) << tab;
    closeTabPage(t.shell);
  }
}

// Some controls tell of a change when their list is emptied.
TEST(Pages, WhatTheControlsTellWhileAPageIsPreparedDoesNotEmptyTheNode) {
  struct TalkingWindow : FakeWindow {
    explicit TalkingWindow(DialogLogic& theLogic) : FakeWindow(theLogic), logic(theLogic) {}
    void clearRows(ControlId control) override {
      logic.notified(*this, {.control = control, .notice = Notice::Changed});
    }
    DialogLogic& logic;
  };
  TestForm t;
  t.shell.pageLogic = traitsOf(Tab::Inventory).makePage(t.shell);
  const std::shared_ptr<PageLogic> logic = t.shell.pageLogic;
  TalkingWindow window(*logic);
  window.open();
  EXPECT_EQ(t.ball->title.view(), "Ball");
  EXPECT_EQ(window.text(inventory::kTitle), "Ball");
  EXPECT_EQ(t.project().dirty, 0);
  logic->closed();
  t.shell.pageLogic = nullptr;
}

class TabSwitch : public testing::Test {
 protected:
  TestShell t;

  void SetUp() override {
    t.attach();
    t.project().projectFile.assign(kShopPath);
    t.project().currentNode = t.project().treeNode = AddCategory(t.project(), "Home");
    openTabPage(t.shell);
  }
};

TEST_F(TabSwitch, OpensThePageOfEachTabInThePlaceOfTheOneBefore) {
  for (const Tab tab : {Tab::Template, Tab::Freight, Tab::OrderForm, Tab::Confirmation, Tab::Layout, Tab::Variables,
                        Tab::Inventory}) {
    t.window.pickTab(static_cast<int>(tab));
    EXPECT_EQ(t.shell.currentTab, tab);
    EXPECT_EQ(t.window.pageId(), traitsOf(tab).makePage(t.shell)->shape().id);
    EXPECT_EQ(t.shell.tabPage, t.window.page());
    ASSERT_NE(t.shell.tabPage, nullptr);
    EXPECT_EQ(t.window.pagePlace(), layOutMainWindow(layoutFactsOf(t.shell)).page);
  }
}

TEST_F(TabSwitch, ForgetsWhatBelongedToThePageBefore) {
  t.shell.focusedField = t.shell.linkedField = inventory::kDescription;
  t.shell.descriptionCache = "old";
  t.window.pickTab(1);
  EXPECT_EQ(t.shell.focusedField, 0);
  EXPECT_EQ(t.shell.linkedField, 0);
  EXPECT_NE(t.shell.descriptionCache, "old");
}

TEST_F(TabSwitch, ToTheTabThatIsOpenKeepsThePage) {
  const FakeWindow* page = t.window.page();
  t.shell.descriptionCache = "kept";
  t.window.pickTab(0);
  EXPECT_EQ(t.window.page(), page);
  EXPECT_EQ(t.shell.descriptionCache, "kept");
}

TEST_F(TabSwitch, ANumberWithoutATabIsIgnored) {
  const FakeWindow* page = t.window.page();
  t.window.pickTab(7);
  t.window.pickTab(-1);
  EXPECT_EQ(t.window.page(), page);
  EXPECT_EQ(t.shell.currentTab, Tab::Inventory);
}

TEST_F(TabSwitch, ShowsTheHelpOfTheTab) {
  t.window.pickTab(3);
  EXPECT_EQ(t.view.helps, std::vector{kHelpOfTab});
}

TEST_F(TabSwitch, RefreshesTheCommands) {
  t.project().dirty = 1;
  t.window.enableEntry(Command::Save, false);
  t.window.pickTab(2);
  EXPECT_TRUE(t.window.entryEnabled(Command::Save));
}

TEST_F(TabSwitch, WhileTypingLosesNothing) {
  t.window.page()->type(inventory::kTitle, "Toys");
  t.window.page()->type(inventory::kDescription, "Roun");
  t.window.page()->type(inventory::kDescription, "Round");
  t.window.pickTab(1);
  EXPECT_EQ(t.project().root->title.view(), "Toys");
  EXPECT_EQ(t.project().root->body.view(), "Round");
  t.window.pickTab(0);
  EXPECT_EQ(t.window.page()->text(inventory::kTitle), "Toys");
  EXPECT_EQ(t.window.page()->text(inventory::kDescription), "Round");
}

TEST_F(TabSwitch, AClosedPageIsNoLongerKnown) {
  closeTabPage(t.shell);
  EXPECT_EQ(t.shell.tabPage, nullptr);
  EXPECT_EQ(t.window.page(), nullptr);
  EXPECT_EQ(t.shell.pageLogic, nullptr);
}

TEST_F(TabSwitch, WithoutAWindowDoesNothing) {
  t.shell.mainWindow = nullptr;
  switchTab(t.shell, Tab::Layout);
  EXPECT_EQ(t.shell.currentTab, Tab::Inventory);
  t.shell.mainWindow = &t.window;
}

}  // namespace
}  // namespace varlo::test
