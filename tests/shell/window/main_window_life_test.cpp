#include "shell/window/main_window_life.h"

#include <gtest/gtest.h>

#include "core/program/messages.h"
#include "shell/tabs/inventory_page.h"
#include "shell/window/commands.h"
#include "shell/window/toolbar.h"
#include "tests/support/test_shell.h"

namespace varlo::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const ShownBox kAskToSave{"The current project has changed.  Do you wish to save your changes?",
                          "Varlo PRO - Save Store Confirmation", Buttons::YesNo, Icon::Question};

class WindowLife : public testing::Test {
 protected:
  TestShell t;

  void SetUp() override { t.config().orderServer.assign("orders.example"); }
  // What the window posted itself, behind what its page did.
  std::vector<Command> ownWork() {
    return {std::ranges::find(t.screen.posted, Command::RefillTree), t.screen.posted.end()};
  }
  bool shopIsUntouched() { return t.files.content(kShopPath) == kShopText; }
};

TEST_F(WindowLife, OpensTheNamedProjectUnderTheWaitCursor) {
  t.nameShop();
  t.open();
  ASSERT_NE(t.project().root, nullptr);
  EXPECT_EQ(t.project().root->title.view(), "Home");
  EXPECT_EQ(t.window.title(), "Varlo PRO - Shop");
  ASSERT_FALSE(t.screen.waitCursor.empty());
  EXPECT_TRUE(t.screen.waitCursor.front());
  EXPECT_FALSE(t.program.waitCursorShown);
  EXPECT_THAT(t.screen.tasks, ElementsAre(testing::HasSubstr("Loading store project. Please wait........")));
}

TEST_F(WindowLife, WithAServerAndAProjectPostsOnlyItsOwnWork) {
  t.nameShop();
  t.open();
  EXPECT_THAT(ownWork(), ElementsAre(Command::RefillTree, Command::ResizeMainWindow));
}

TEST_F(WindowLife, WithoutAProjectNewStoreFollowsTheWindowsOwnWork) {
  t.open();
  EXPECT_THAT(ownWork(), ElementsAre(Command::RefillTree, Command::ResizeMainWindow, Command::NewStore));
}

TEST_F(WindowLife, AFirstStartWithoutConfigAndServerRunsUpgradeThenTheWizard) {
  t.config().orderServer.release();
  t.open();
  EXPECT_THAT(ownWork(), ElementsAre(Command::RefillTree, Command::ResizeMainWindow, Command::Upgrade));
  EXPECT_EQ(t.config().firstRun, 1);
  t.screen.posted.clear();
  dispatchCommand(t.shell, Command::Upgrade);
  EXPECT_THAT(t.screen.posted, ElementsAre(Command::NewStore));
}

TEST_F(WindowLife, AConfigOnTheDiskMakesItNoFirstRun) {
  t.files.put("config.ini", "");
  t.open();
  EXPECT_EQ(t.config().firstRun, 0);
}

TEST_F(WindowLife, AProjectThatIsGoneIsToldAndTheWindowComesUpWithoutOne) {
  t.project().projectFile.assign(kShopPath);
  t.open();
  ASSERT_EQ(t.screen.boxes.size(), 1U);
  EXPECT_EQ(t.screen.boxes[0].text, FillMessage(message::kProjectReadError, kShopPath));
  EXPECT_EQ(t.screen.posted.back(), Command::NewStore);
  EXPECT_FALSE(t.window.entryEnabled(Command::NewCategory));
}

TEST_F(WindowLife, LabelsTheTabs) {
  t.open();
  EXPECT_THAT(t.window.tabs(),
              ElementsAre("Inventory", "Template", "Freight", "Order Form", "Confirmation", "Layout", "Variables"));
}

TEST_F(WindowLife, DividesTheStatusBarOtherwiseThanAResizeDoes) {
  t.open();
  EXPECT_THAT(t.window.statusParts(), ElementsAre(100, 940, -1));
  t.runPosted();
  EXPECT_THAT(t.window.statusParts(), ElementsAre(30, 900, -1));
}

TEST_F(WindowLife, TicksTheViewsThatAreShown) {
  t.config().viewFlags = kViewButtons;
  t.open();
  EXPECT_FALSE(t.window.entryChecked(Command::ToggleToolbar));
  EXPECT_TRUE(t.window.entryChecked(Command::ToggleButtons));
}

TEST_F(WindowLife, MakesTheToolbarTheColumnsAndTheInventoryPage) {
  t.nameShop();
  t.open();
  EXPECT_EQ(t.window.toolbar().size(), toolbarButtons().size());
  EXPECT_EQ(t.window.theList.columns.size(), 16U);
  EXPECT_EQ(t.window.pageId(), inventory::kWindow);
  EXPECT_EQ(t.shell.tabPage, t.window.page());
}

TEST_F(WindowLife, AsksForTheHelpOfTheOpenTab) {
  t.nameShop();
  t.open();
  EXPECT_EQ(t.view.helps, std::vector{kHelpOfTab});
}

TEST_F(WindowLife, ThePostedWorkFillsTheTreeAndLaysOut) {
  t.nameShop();
  t.open();
  t.runPosted();
  EXPECT_EQ(t.window.theTree.shown(), "Home(Toys(Ball) Bats Rows)");
  EXPECT_GE(t.window.redraws(), 1);
  EXPECT_THAT(t.screen.boxes, IsEmpty());
}

TEST_F(WindowLife, QuitOfAnUnchangedProjectAsksNothing) {
  t.nameShop();
  t.open();
  dispatchCommand(t.shell, Command::Quit);
  EXPECT_TRUE(t.window.ended());
  EXPECT_THAT(t.screen.boxes, IsEmpty());
}

TEST_F(WindowLife, QuitWithNoExitsWithoutSavingAndWithoutASecondQuestion) {
  t.nameShop();
  t.open();
  SetDirty(t.program, 1);
  t.screen.answers = {Answer::No};
  dispatchCommand(t.shell, Command::Quit);
  EXPECT_TRUE(t.window.ended());
  t.logic.closing();
  EXPECT_THAT(t.screen.boxes, ElementsAre(kAskToSave));
  EXPECT_TRUE(shopIsUntouched());
  EXPECT_EQ(t.project().dirty, 0);
}

TEST_F(WindowLife, QuitWithYesMakesABackupAndSaves) {
  t.nameShop();
  t.open();
  t.project().root->title.assign("House");
  SetDirty(t.program, 1);
  t.screen.answers = {Answer::Yes};
  dispatchCommand(t.shell, Command::Quit);
  EXPECT_FALSE(shopIsUntouched());
  EXPECT_NE(t.files.content(kShopPath)->find("NODE0=House"), std::string::npos);
  const std::vector<std::string> names = t.files.names();
  EXPECT_TRUE(std::ranges::any_of(
      names, [](const std::string& name) { return name.find("\\Backup\\") != std::string::npos; }));
}

TEST_F(WindowLife, CloseBoxAndEscapeAreQuit) {
  t.open();
  t.logic.closeRequested();
  EXPECT_TRUE(t.window.ended());
}

TEST_F(WindowLife, AWindowThatIsDestroyedSomeOtherWayAsksAfterTheConfigurationIsWritten) {
  t.nameShop();
  t.open();
  SetDirty(t.program, 1);
  t.screen.answers = {Answer::Yes};
  t.files.log.clear();
  t.logic.closing();
  EXPECT_THAT(t.screen.boxes, ElementsAre(kAskToSave));
  const auto indexOf = [&](std::string_view what) {
    const auto found = std::ranges::find_if(
        t.files.log, [&](const std::string& line) { return line.find(what) != std::string::npos; });
    return found - t.files.log.begin();
  };
  EXPECT_LT(indexOf("config.ini"), indexOf("scheme.ini"));
  EXPECT_LT(indexOf("scheme.ini"), indexOf("Shop.stp"));
  EXPECT_LT(indexOf("Shop.stp"), static_cast<std::ptrdiff_t>(t.files.log.size()));
}

TEST_F(WindowLife, ClosingStopsABuildWritesTheConfigurationAndLetsGo) {
  t.nameShop();
  t.config().browser.assign("C:\\web.exe");
  t.config().proxy.assign("proxy");
  t.open();
  t.logic.closing();
  EXPECT_TRUE(t.shell.generator.log.stopRequested);
  ASSERT_TRUE(t.files.content("config.ini").has_value());
  EXPECT_NE(t.files.content("config.ini")->find(std::string("file=") + kShopPath), std::string::npos);
  EXPECT_TRUE(t.files.content("scheme.ini").has_value());
  EXPECT_TRUE(t.config().browser.isNull());
  EXPECT_TRUE(t.config().proxy.isNull());
  EXPECT_TRUE(t.config().orderServer.isNull());
  EXPECT_EQ(t.shell.tabPage, nullptr);
  EXPECT_EQ(t.shell.mainWindow, nullptr);
}

TEST_F(WindowLife, AfterClosingTheModelCanStillSpeak) {
  t.nameShop();
  t.open();
  t.logic.closing();
  SetDirty(t.program, 1);
  t.view.loadForm();
  t.view.loadItemList(t.project().root);
  EXPECT_EQ(t.shell.mainWindow, nullptr);
}

}  // namespace
}  // namespace varlo::test
