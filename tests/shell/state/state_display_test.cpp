#include "shell/state/state_display.h"

#include <algorithm>

#include <gtest/gtest.h>

#include "core/program/scheme.h"
#include "core/program/work.h"
#include "core/store/user_variable.h"
#include "platform/main_window.h"
#include "shell/tabs/inventory_page.h"
#include "shell/tabs/tab_switch.h"
#include "shell/window/toolbar.h"
#include "tests/support/page_stand_in.h"
#include "tests/support/test_shell.h"
#include "tests/support/tree.h"

namespace varlo::test {
namespace {

class States : public testing::Test {
 protected:
  TestShell t;
  PageStandIn page;

  void SetUp() override { t.attach(); }
  void openShop() {
    t.project().projectFile.assign(kShopPath);
    t.project().currentNode = t.project().treeNode = AddCategory(t.project(), "Home");
  }
  void openPage() { page.openIn(t.shell); }
  void focusOn(Focus::Place place, ControlId control = 0) { t.window.focused = {place, control}; }
  std::vector<Command> enabledOf(const std::vector<Command>& commands) {
    std::vector<Command> enabled;
    for (const Command command : commands) {
      if (t.window.entryEnabled(command)) enabled.push_back(command);
    }
    return enabled;
  }
};

TEST_F(States, WithoutAWindowThereIsNothingToDo) {
  t.shell.mainWindow = nullptr;
  refreshCommandStates(t.shell);
  EXPECT_TRUE(t.window.entryEnabled(Command::Save));
}

TEST_F(States, WithNoProjectOnlyWhatNeedsNoneIsUsable) {
  refreshCommandStates(t.shell);
  EXPECT_EQ(enabledOf({Command::Save, Command::SaveAs, Command::Import, Command::Merge, Command::Copy, Command::Paste,
                       Command::Disable, Command::Enable, Command::Delete, Command::NewCategory, Command::NewProduct,
                       Command::NewShelf, Command::Find, Command::SelectAll, Command::PreviewPage,
                       Command::BuildStore, Command::CreditCards}),
            std::vector<Command>{});
  const std::vector<Command> always{Command::NewStore,      Command::OpenStore,     Command::RestoreBackup,
                                    Command::Upgrade,       Command::Quit,          Command::NewList,
                                    Command::ViewOrders,    Command::ToggleToolbar, Command::ToggleButtons,
                                    Command::Preferences,   Command::TaxOptions,    Command::FreightRegions,
                                    Command::ImportFreight, Command::About,         Command::Help,
                                    Command::Faq,           Command::Manual};
  EXPECT_EQ(enabledOf(always), always);
}

TEST_F(States, WhileSomethingIsAtWorkOnlyWhatIsHarmlessIsUsable) {
  openShop();
  t.project().dirty = 1;
  const Work work(t.program);
  const std::vector<Command> harmless{Command::ViewOrders, Command::ToggleToolbar, Command::ToggleButtons,
                                      Command::About,      Command::Help,          Command::Faq,
                                      Command::Manual};
  EXPECT_EQ(enabledOf(harmless), harmless);
  EXPECT_EQ(enabledOf({Command::NewStore,       Command::OpenStore,   Command::Save,         Command::SaveAs,
                       Command::RestoreBackup,  Command::Import,      Command::Merge,        Command::Upgrade,
                       Command::Quit,           Command::Copy,        Command::Paste,        Command::Disable,
                       Command::Enable,         Command::Delete,      Command::NewCategory,  Command::NewProduct,
                       Command::NewShelf,       Command::NewList,     Command::Find,         Command::SelectAll,
                       Command::Preferences,    Command::PreviewPage, Command::BuildStore,   Command::CreditCards,
                       Command::FreightRegions, Command::TaxOptions,  Command::ImportFreight}),
            std::vector<Command>{});
  for (const ToolbarButton& button : toolbarButtons()) {
    const bool harmlessTool = std::ranges::count(harmless, button.command) != 0;
    if (button.command != Command::None) {
      EXPECT_EQ(t.window.toolEnabled(button.command), harmlessTool) << static_cast<int>(button.command);
    }
  }
}

TEST_F(States, ComeBackWhenTheWorkHasEnded) {
  openShop();
  { const Work work(t.program); }
  EXPECT_TRUE(t.window.entryEnabled(Command::OpenStore));
  EXPECT_TRUE(t.window.entryEnabled(Command::SaveAs));
  EXPECT_TRUE(t.window.toolEnabled(Command::NewStore));
}

// A button or a field that is turned off would lose the focus.
TEST_F(States, OfButtonsAndFieldsStayWhileSomethingIsAtWork) {
  openShop();
  openPage();
  const Work work(t.program);
  EXPECT_TRUE(t.window.frame().isEnabled(main_window::kProduct));
  EXPECT_TRUE(page.window.isEnabled(inventory::kTitle));
}

TEST_F(States, AShopEnablesMenuButtonsAndTools) {
  openShop();
  t.project().dirty = 1;
  refreshCommandStates(t.shell);
  for (const Command command : {Command::Save, Command::SaveAs, Command::Import, Command::Merge, Command::CreditCards,
                                Command::NewCategory, Command::Disable, Command::Enable, Command::NewProduct,
                                Command::NewShelf, Command::PreviewPage, Command::BuildStore}) {
    EXPECT_TRUE(t.window.entryEnabled(command)) << static_cast<int>(command);
  }
  for (const Command command : {Command::Save, Command::NewProduct, Command::NewCategory, Command::NewShelf,
                                Command::NewList, Command::BuildStore, Command::PreviewPage}) {
    EXPECT_TRUE(t.window.toolEnabled(command)) << static_cast<int>(command);
  }
  for (ControlId button = main_window::kPreview; button <= main_window::kBuild; ++button) {
    EXPECT_TRUE(t.window.frame().isEnabled(button)) << button;
  }
}

TEST_F(States, WithoutAShopButtonsAndToolsAreGrey) {
  refreshCommandStates(t.shell);
  for (ControlId button = main_window::kPreview; button <= main_window::kBuild; ++button) {
    EXPECT_FALSE(t.window.frame().isEnabled(button)) << button;
  }
  for (const Command command : {Command::Save, Command::NewProduct, Command::NewCategory, Command::NewShelf,
                                Command::NewList, Command::BuildStore, Command::PreviewPage}) {
    EXPECT_FALSE(t.window.toolEnabled(command)) << static_cast<int>(command);
  }
  for (const Command command :
       {Command::NewStore, Command::OpenStore, Command::Upgrade, Command::Help, Command::ViewOrders}) {
    EXPECT_TRUE(t.window.toolEnabled(command)) << static_cast<int>(command);
  }
}

TEST_F(States, AnEmptyProjectPathIsNoProject) {
  t.project().projectFile.assign("");
  EXPECT_FALSE(gatherFacts(t.shell).projectOpen);
}

TEST_F(States, SettingDirtyRefreshesThem) {
  openShop();
  SetDirty(t.program, 1);
  EXPECT_TRUE(t.window.entryEnabled(Command::Save));
  SetDirty(t.program, 0);
  EXPECT_FALSE(t.window.entryEnabled(Command::Save));
}

TEST_F(States, TheFocusMovingRefreshesThem) {
  openShop();
  focusOn(Focus::Place::Tree);
  t.logic.focusMoved();
  EXPECT_TRUE(t.window.entryEnabled(Command::Copy));
  EXPECT_FALSE(t.window.entryEnabled(Command::SelectAll));
  focusOn(Focus::Place::ItemList);
  t.logic.focusMoved();
  EXPECT_TRUE(t.window.entryEnabled(Command::SelectAll));
  focusOn(Focus::Place::Elsewhere);
  t.logic.focusMoved();
  EXPECT_FALSE(t.window.entryEnabled(Command::Copy));
}

TEST_F(States, PasteInTheTreeNeedsACopiedNode) {
  openShop();
  focusOn(Focus::Place::Tree);
  refreshCommandStates(t.shell);
  EXPECT_FALSE(t.window.entryEnabled(Command::Paste));
  t.project().clipboardNode = std::make_unique<StoreNode>();
  refreshCommandStates(t.shell);
  EXPECT_TRUE(t.window.entryEnabled(Command::Paste));
}

TEST_F(States, InTheDescriptionSelectionAndClipboardDecide) {
  openShop();
  openPage();
  focusOn(Focus::Place::Page, inventory::kDescription);
  refreshCommandStates(t.shell);
  EXPECT_TRUE(t.window.entryEnabled(Command::Find));
  EXPECT_TRUE(t.window.entryEnabled(Command::SelectAll));
  EXPECT_FALSE(t.window.entryEnabled(Command::Copy));
  EXPECT_FALSE(t.window.entryEnabled(Command::Paste));

  page.window.setText(inventory::kDescription, "Round");
  page.window.select(inventory::kDescription, 0, 2);
  t.clipboard.putText("and red");
  refreshCommandStates(t.shell);
  EXPECT_TRUE(t.window.entryEnabled(Command::Copy));
  EXPECT_TRUE(t.window.entryEnabled(Command::Delete));
  EXPECT_TRUE(t.window.entryEnabled(Command::Paste));
}

TEST_F(States, AnotherFieldOfThePageIsNoRichEdit) {
  openShop();
  openPage();
  focusOn(Focus::Place::Page, inventory::kTitle);
  EXPECT_EQ(gatherFacts(t.shell).focus, FocusPlace::Elsewhere);
  focusOn(Focus::Place::Page, inventory::kDescription);
  t.shell.pageLogic = traitsOf(Tab::Freight).makePage(t.shell);
  EXPECT_EQ(gatherFacts(t.shell).focus, FocusPlace::Elsewhere);
}

TEST_F(States, EveryFieldOfTheInventoryFormFollowsTheNode) {
  openPage();
  refreshCommandStates(t.shell);
  for (ControlId field = inventory::kTitle; field <= inventory::kDescription; ++field) {
    EXPECT_FALSE(page.window.isEnabled(field)) << field;
  }
  openShop();
  t.project().root->image.assign("a.gif");
  refreshCommandStates(t.shell);
  for (ControlId field = inventory::kTitle; field <= inventory::kDescription; ++field) {
    EXPECT_TRUE(page.window.isEnabled(field)) << field;
  }
}

TEST_F(States, FileNameAndTemplateOfAProductInAListAreGrey) {
  openShop();
  openPage();
  StoreNode* list = AddNode(t.project(), NodeKind::List, "Rows", t.project().root);
  t.project().currentNode = AddProduct(t.project(), "Ball", list);
  refreshCommandStates(t.shell);
  EXPECT_FALSE(page.window.isEnabled(inventory::kFileName));
  EXPECT_FALSE(page.window.isEnabled(inventory::kTemplate));
  EXPECT_TRUE(page.window.isEnabled(inventory::kTitle));
}

TEST_F(States, AnImageLinkIsOfferedWithAnImageOnly) {
  openShop();
  openPage();
  refreshCommandStates(t.shell);
  EXPECT_FALSE(page.window.isEnabled(inventory::kImageLink));
  t.project().root->image.assign("a.gif");
  refreshCommandStates(t.shell);
  EXPECT_TRUE(page.window.isEnabled(inventory::kImageLink));
}

TEST_F(States, ThePagesOfOtherTabsAreLeftAlone) {
  openPage();
  t.shell.pageLogic = traitsOf(Tab::Layout).makePage(t.shell);
  refreshCommandStates(t.shell);
  EXPECT_TRUE(page.window.isEnabled(inventory::kTitle));
}

TEST_F(States, WhatTheOtherTabsHaveIsGathered) {
  SchemeRecord style;
  SchemeRecord scheme;
  UserVariable variable;
  FreightRegion region;
  style.type = kSchemeOwn;
  t.config().currentStyle = &style;
  t.config().currentScheme = &scheme;
  t.project().currentVariable = &variable;
  t.project().currentRegion = &region;
  const CommandFacts facts = gatherFacts(t.shell);
  EXPECT_EQ(facts.styleType, kSchemeOwn);
  EXPECT_EQ(facts.schemeType, kSchemeShipped);
  EXPECT_TRUE(facts.variableCurrent && facts.regionCurrent);
  t.config().currentStyle = t.config().currentScheme = nullptr;
  t.project().currentVariable = nullptr;
  t.project().currentRegion = nullptr;
}

}  // namespace
}  // namespace varlo::test
