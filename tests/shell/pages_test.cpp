#include "shell/pages.h"

#include "shell/form.h"
#include "tests/support/test_form.h"
#include "tests/support/test_shell.h"

namespace varlo {
namespace {

using namespace test;

TEST(Pages, TheTabsHaveTheirLabelsAndPages) {
  const std::vector<std::pair<std::string_view, int>> expected{
      {"Inventory", dialog::kInventoryPage},       {"Template", dialog::kTemplatePage},
      {"Freight", dialog::kFreightPage},           {"Order Form", dialog::kOrderFormPage},
      {"Confirmation", dialog::kConfirmationPage}, {"Layout", dialog::kLayoutPage},
      {"Variables", dialog::kVariablesPage}};
  ASSERT_EQ(static_cast<int>(expected.size()), kTabs);
  for (int tab = 0; tab < kTabs; ++tab) {
    const TabTraits& traits = traitsOf(static_cast<Tab>(tab));
    EXPECT_EQ(traits.label, expected[static_cast<std::size_t>(tab)].first);
    EXPECT_EQ(traits.dialogId, expected[static_cast<std::size_t>(tab)].second);
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
  EXPECT_EQ(t.page->text(control::inventory::kTitle), "Ball");
  EXPECT_EQ(t.page->text(control::inventory::kDescription), "round");
  EXPECT_EQ(t.project().dirty, 0);
}

TEST(Pages, TheOtherPagesShowTheirFrame) {
  TestForm t;
  for (int tab = 1; tab < kTabs; ++tab) {
    t.open(static_cast<Tab>(tab));
    EXPECT_TRUE(t.page->placements().empty()) << tab;
    EXPECT_EQ(t.page->text(control::inventory::kTitle), "") << tab;
  }
}

TEST(Pages, EachPassesItsNotificationsToTheForm) {
  TestForm t;
  for (int tab = 0; tab < kTabs; ++tab) {
    t.open(static_cast<Tab>(tab));
    t.project().dirty = 0;
    t.page->enter(99);
    EXPECT_THAT(t.view.calls, testing::ElementsAre("showHelp 99")) << tab;
    t.page->type(99, "x");
    EXPECT_EQ(t.project().dirty, 1) << tab;
  }
}

TEST(Pages, EscapeOnAPageEndsTheProgram) {
  for (int tab = 0; tab < kTabs; ++tab) {
    TestShell t;
    t.shell.mainWindow = &t.window;
    t.shell.currentTab = static_cast<Tab>(tab);
    const std::unique_ptr<DialogLogic> logic = makePage(t.shell, t.shell.currentTab);
    t.window.openPage(traitsOf(t.shell.currentTab).dialogId, *logic);
    t.window.page()->close();
    EXPECT_TRUE(t.window.ended()) << tab;
    t.window.closePage();
  }
}

// Some controls tell of a change when their list is emptied.
TEST(Pages, WhatTheControlsTellWhileAPageIsPreparedDoesNotEmptyTheNode) {
  struct TalkingWindow : FakeWindow {
    explicit TalkingWindow(DialogLogic& theLogic) : FakeWindow(theLogic), logic(theLogic) {}
    void clearCombo(ControlId control) override { logic.notified(*this, {control, Notice::Changed}); }
    DialogLogic& logic;
  };
  TestForm t;
  const std::unique_ptr<DialogLogic> logic = makePage(t.shell, Tab::Inventory);
  TalkingWindow window(*logic);
  window.open();
  EXPECT_EQ(t.ball->title.view(), "Ball");
  EXPECT_EQ(window.text(control::inventory::kTitle), "Ball");
  EXPECT_EQ(t.project().dirty, 0);
  logic->closed();
}

}  // namespace
}  // namespace varlo
