#include "shell/pages.h"

#include "shell/form.h"
#include "tests/support/test_form.h"

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

TEST(Pages, EscapeDoesNotCloseAPageAlone) {
  TestForm t;
  for (int tab = 0; tab < kTabs; ++tab) {
    t.open(static_cast<Tab>(tab));
    t.page->close();
    EXPECT_TRUE(t.page->isOpen()) << tab;
  }
}

}  // namespace
}  // namespace varlo
