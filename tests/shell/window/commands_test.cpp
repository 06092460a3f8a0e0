#include "shell/window/commands.h"

#include <gtest/gtest.h>

#include "commerce/cards/card_page.h"
#include "commerce/tax/tax_options_dialog.h"
#include "commerce/wizard/wizard_shapes.h"
#include "core/store/freight_record.h"
#include "persist/dialogs/preferences_dialog.h"
#include "persist/dialogs/restore_dialog.h"
#include "persist/dialogs/save_as_dialog.h"
#include "platform/main_window.h"
#include "shell/tabs/inventory_page.h"
#include "shell/tree/node_selection.h"
#include "tests/support/page_stand_in.h"
#include "tests/support/test_shell.h"
#include "tests/support/tree.h"

namespace varlo::test {
namespace {

using testing::ElementsAre;
using testing::EndsWith;
using testing::IsEmpty;

const ShownBox kAskToSave{"The current project has changed.  Do you wish to save your changes?",
                          "Varlo PRO - Save Store Confirmation", Buttons::YesNo, Icon::Question};
constexpr const char* kOtherPath = "C:\\Varlo\\Projects\\Other\\Other.stp";
constexpr const char* kOtherText = "VERSION=107001\nNODE0=Books\n#BRANCH\nNODE1=Atlas\n#EOB\n";

class Commands : public testing::Test {
 protected:
  TestShell t;
  PageStandIn page;

  // The window stands with the shop open, tree and list filled.
  void openShop() {
    t.config().orderServer.assign("orders.example");
    t.nameShop();
    t.open();
    t.runPosted();
  }
  void putOther() { t.files.put(kOtherPath, kOtherText); }
  void run(Command command) { dispatchCommand(t.shell, command); }
  StoreNode* root() { return t.project().root; }
  StoreNode* ball() { return root()->child->child; }
  std::string fileRequest() {
    if (t.screen.fileRequests.size() != 1) return "(none)";
    const FileChooserRequest& request = t.screen.fileRequests[0];
    return request.folder + "|" + std::string(request.title) + "|" + std::string(request.filter) +
           (request.mustExist ? "|exists" : "");
  }
};

TEST_F(Commands, OnesThatAreNotKnownDoNothing) {
  t.attach();
  for (const Command command :
       {Command::None, Command::Import, Command::Find, Command::About, Command::Help, static_cast<Command>(12345)}) {
    run(command);
  }
  EXPECT_THAT(t.screen.boxes, IsEmpty());
  EXPECT_THAT(t.screen.dialogs, IsEmpty());
  EXPECT_THAT(t.screen.posted, IsEmpty());
}

// Every command, whether there is one by its number or not.
template <typename Visit>
void forEachCommand(const Visit& visit) {
  for (int number = static_cast<int>(Command::NewStore); number <= static_cast<int>(Command::ResizeMainWindow);
       ++number) {
    visit(static_cast<Command>(number));
  }
}

TEST_F(Commands, ThatChangeTheStoreDoNotRunWhileABoxOfOneWaits) {
  openShop();
  putOther();
  selectCurrent(t.shell, root()->child);
  run(Command::TreeCopy);
  const std::string before = TreeText(t.project());
  StoreNode* const current = t.project().currentNode;
  SetDirty(t.program, 1);
  t.screen.answers = {Answer::No};
  int waits = 0;
  t.screen.whileWaiting = [&] {
    ++waits;
    t.screen.files = {kOtherPath};
    forEachCommand([&](Command command) { t.logic.command(command); });
    EXPECT_EQ(TreeText(t.project()), before);
    EXPECT_EQ(t.project().currentNode, current);
    EXPECT_EQ(t.project().dirty, 1);
    EXPECT_FALSE(t.window.ended());
  };
  run(Command::TreeDelete);
  EXPECT_EQ(waits, 1);
  EXPECT_EQ(t.screen.boxes.size(), 1U);
  EXPECT_THAT(t.screen.fileRequests, IsEmpty());
  EXPECT_THAT(t.screen.dialogs, IsEmpty());
  EXPECT_EQ(TreeText(t.project()), before);
}

TEST_F(Commands, ThatChangeTheStoreDoNotRunWhileAChooserWaits) {
  openShop();
  putOther();
  t.screen.whileWaiting = [&] {
    EXPECT_EQ(t.screen.fileRequests.size(), 1U);
    for (const Command command : {Command::OpenStore, Command::Merge, Command::ImportFreight, Command::Quit}) {
      t.logic.command(command);
    }
    t.logic.closeRequested();
    EXPECT_FALSE(t.window.ended());
  };
  t.screen.files = {kOtherPath};
  run(Command::OpenStore);
  EXPECT_EQ(TreeText(t.project()), "Books(Atlas)");
  EXPECT_EQ(t.screen.fileRequests.size(), 1U);
}

TEST_F(Commands, ThatChangeTheStoreDoNotRunWhileABrowserIsSpokenTo) {
  openShop();
  t.config().browser.assign("C:\\web.exe");
  t.browsers.conversations = {"web/WWW_Activate", "web/WWW_OpenURL"};
  t.project().webDir.assign("C:\\Varlo\\Web");
  t.project().projectScheme = t.config().currentStyle = t.config().schemeStyles;
  t.browsers.whileWaiting = [&] { t.logic.command(Command::NewCategory); };
  const std::string before = TreeText(t.project());
  run(Command::PreviewPage);
  EXPECT_EQ(TreeText(t.project()), before);
}

TEST_F(Commands, ThatAreHarmlessRunWhileABoxWaits) {
  openShop();
  SetDirty(t.program, 1);
  t.screen.whileWaiting = [&] { t.logic.command(Command::ToggleToolbar); };
  run(Command::Quit);
  EXPECT_EQ(t.config().viewFlags, kViewButtons);
}

TEST_F(Commands, RunAgainWhenTheOneBeforeHasEnded) {
  openShop();
  selectCurrent(t.shell, root()->child);
  t.screen.whileWaiting = [&] { t.logic.command(Command::NewProduct); };
  run(Command::TreeDelete);
  EXPECT_EQ(TreeText(t.project()), "Home(Toys(Ball),Bats,Rows)");
  run(Command::NewProduct);
  EXPECT_EQ(TreeText(t.project()), "Home(Toys(Ball,New Product),Bats,Rows)");
}

TEST_F(Commands, OpenOffersToSaveAfterTheChoiceAndShowsTheOtherProject) {
  openShop();
  putOther();
  SetDirty(t.program, 1);
  t.screen.files = {kOtherPath};
  run(Command::OpenStore);
  EXPECT_EQ(fileRequest(), "C:\\Varlo\\Projects|Open Project|Store Project (*.stp)$*.stp$$|exists");
  EXPECT_THAT(t.screen.boxes, ElementsAre(kAskToSave));
  EXPECT_EQ(t.window.theTree.shown(), "Books(Atlas)");
  EXPECT_EQ(t.window.title(), "Varlo PRO - Other");
  EXPECT_EQ(t.window.page()->text(inventory::kTitle), "Books");
}

TEST_F(Commands, OpenThatIsCancelledChangesNothing) {
  openShop();
  SetDirty(t.program, 1);
  run(Command::OpenStore);
  EXPECT_THAT(t.screen.boxes, IsEmpty());
  EXPECT_EQ(t.window.theTree.shown(), "Home(Toys(Ball) Bats Rows)");
  EXPECT_EQ(t.project().dirty, 1);
}

TEST_F(Commands, OpenThatFailsLeavesTheShellUsableWithoutAProject) {
  openShop();
  t.screen.files = {"C:\\Varlo\\Projects\\Gone\\Gone.stp"};
  run(Command::OpenStore);
  EXPECT_EQ(t.screen.boxes.size(), 2U);
  EXPECT_FALSE(t.project().projectFile.isSet());
  EXPECT_FALSE(t.window.entryEnabled(Command::SaveAs));
  EXPECT_FALSE(t.window.entryEnabled(Command::NewCategory));
}

TEST_F(Commands, SaveMakesABackupWritesProjectAndSettingsAndTurnsGrey) {
  openShop();
  root()->title.assign("House");
  SetDirty(t.program, 1);
  EXPECT_TRUE(t.window.entryEnabled(Command::Save));
  run(Command::Save);
  EXPECT_NE(t.files.content(kShopPath)->find("NODE0=House"), std::string::npos);
  EXPECT_TRUE(t.files.content("config.ini").has_value());
  EXPECT_TRUE(t.files.content("scheme.ini").has_value());
  EXPECT_EQ(t.project().dirty, 0);
  EXPECT_FALSE(t.window.entryEnabled(Command::Save));
  EXPECT_TRUE(std::ranges::any_of(
      t.files.names(), [](const std::string& name) { return name.find("\\Backup\\") != std::string::npos; }));
}

TEST_F(Commands, SaveWithoutAProjectWritesTheSettingsOnly) {
  t.attach();
  run(Command::Save);
  EXPECT_THAT(t.files.names(), ElementsAre(EndsWith("config.ini"), EndsWith("scheme.ini")));
}

TEST_F(Commands, TheModalDialogsAreRun) {
  t.attach();
  run(Command::SaveAs);
  run(Command::RestoreBackup);
  run(Command::Preferences);
  EXPECT_THAT(t.screen.dialogs, ElementsAre(save_as::kWindow, restore::kWindow, preferences::kWindow));
}

TEST_F(Commands, ADialogWorksOnTheProgram) {
  t.attach();
  t.config().orderServer.assign("orders.example");
  std::string shown;
  t.screen.onDialog = [&](DialogLogic& logic) {
    FakeWindow window(logic);
    window.open();
    shown = window.text(preferences::kServer);
    return 0;
  };
  run(Command::Preferences);
  EXPECT_EQ(shown, "orders.example");
}

TEST_F(Commands, MergeAddsTheOtherTreeAndShowsIt) {
  openShop();
  putOther();
  t.project().currentNode = t.project().treeNode = root()->child;
  t.screen.files = {kOtherPath};
  run(Command::Merge);
  EXPECT_EQ(fileRequest(), "C:\\Varlo\\Projects|Import from Project|Store Project (*.stp)$*.stp$$|exists");
  EXPECT_EQ(t.window.theTree.shown(), "Home(Toys(Ball) Bats Rows Books(Atlas))");
  EXPECT_EQ(t.window.theTree.labelOf(t.window.theTree.selected()), "Toys");
  EXPECT_EQ(t.window.page()->text(inventory::kTitle), "Toys");
  EXPECT_THAT(t.window.theList.cells(0), ElementsAre("Ball"));
  EXPECT_EQ(t.project().dirty, 1);
}

TEST_F(Commands, MergeThatIsCancelledChangesNothing) {
  openShop();
  run(Command::Merge);
  EXPECT_EQ(t.project().dirty, 0);
  EXPECT_EQ(t.window.theTree.shown(), "Home(Toys(Ball) Bats Rows)");
}

TEST_F(Commands, MergeOfAProjectThatIsGoneIsToldAndChangesNothing) {
  openShop();
  t.screen.files = {kOtherPath};
  run(Command::Merge);
  EXPECT_THAT(t.screen.boxes,
              ElementsAre(ShownBox{std::string("S105: Unable to read project file '") + kOtherPath + "'", "Error"}));
  EXPECT_EQ(t.project().dirty, 0);
}

TEST_F(Commands, NewStoreRegionsCardsAndTaxOpenTheirWindows) {
  t.attach();
  for (const Command command :
       {Command::NewStore, Command::FreightRegions, Command::CreditCards, Command::TaxOptions}) {
    run(command);
  }
  EXPECT_THAT(t.screen.dialogs,
              ElementsAre(wizard::kFirstWindow, wizard::kLoneRegions, cards::kWindow, tax_options::kWindow));
  EXPECT_EQ(t.shell.wizard.page, WizardPage::Cancelled);
  EXPECT_THAT(t.screen.boxes, IsEmpty());
}

TEST_F(Commands, NewStoreOffersToSaveTheTitledOneThatItReplaces) {
  openShop();
  t.project().storeTitle.assign("Old");
  SetDirty(t.program, 1);
  run(Command::NewStore);
  ASSERT_EQ(t.screen.boxes.size(), 1U);
  EXPECT_EQ(t.screen.boxes[0].title, "Varlo PRO - Save Store Confirmation");
}

TEST_F(Commands, ImportFreightTablesTakesThemFromTheOtherProject) {
  openShop();
  t.files.put(kOtherPath, std::string(kOtherText) + "FNAME=1,By Camel\n");
  t.screen.files = {kOtherPath};
  run(Command::ImportFreight);
  EXPECT_EQ(fileRequest(), "C:\\Varlo\\Projects|Import from Project|Store Project (*.stp)$*.stp$$|exists");
  EXPECT_TRUE(
      std::ranges::any_of(t.project().methodName, [](const Text& name) { return name.view() == "By Camel"; }));
  EXPECT_EQ(t.project().dirty, 1);
}

TEST_F(Commands, TogglingTheToolbarTurnsItsBitLaysOutAndTicks) {
  t.attach();
  page.openIn(t.shell);
  run(Command::ToggleToolbar);
  EXPECT_EQ(t.config().viewFlags, kViewButtons);
  EXPECT_FALSE(t.window.frame().isShown(main_window::kToolbar));
  EXPECT_FALSE(t.window.entryChecked(Command::ToggleToolbar));
  run(Command::ToggleToolbar);
  EXPECT_EQ(t.config().viewFlags, kViewToolbar | kViewButtons);
  EXPECT_TRUE(t.window.frame().isShown(main_window::kToolbar));
  EXPECT_TRUE(t.window.entryChecked(Command::ToggleToolbar));
}

TEST_F(Commands, TogglingTheButtonsTurnsTheirBitLaysOutAndTicks) {
  t.attach();
  page.openIn(t.shell);
  run(Command::ToggleButtons);
  EXPECT_EQ(t.config().viewFlags, kViewToolbar);
  EXPECT_FALSE(t.window.frame().isShown(main_window::kBuild));
  run(Command::ToggleButtons);
  EXPECT_TRUE(t.window.frame().isShown(main_window::kBuild));
  EXPECT_TRUE(t.window.entryChecked(Command::ToggleButtons));
}

TEST_F(Commands, FaqAndManualAreOnTheProductsSite) {
  t.config().browser.assign("C:\\web.exe");
  run(Command::Faq);
  ASSERT_FALSE(t.browsers.calls.empty());
  EXPECT_EQ(t.browsers.calls.back(), "start C:\\web.exe | https://www.varlo.example/faq/varlo.faq");
  run(Command::Manual);
  EXPECT_EQ(t.browsers.calls.back(), "start C:\\web.exe | https://www.varlo.example/varlo/manual.htm");
}

TEST_F(Commands, NewCategoryWithATreeCountsAsAHitAndMakesOneBelowTheCurrentNode) {
  openShop();
  t.shell.hitItem = false;
  run(Command::NewCategory);
  EXPECT_TRUE(t.shell.hitItem);
  EXPECT_EQ(t.window.theTree.shown(), "Home(Toys(Ball) Bats Rows New Category)");
  EXPECT_EQ(t.project().dirty, 1);
}

TEST_F(Commands, NewCategoryWithoutATreeIsPostedAndStartsIt) {
  t.attach();
  t.shell.hitItem = true;
  run(Command::NewCategory);
  EXPECT_FALSE(t.shell.hitItem);
  EXPECT_THAT(t.screen.posted, ElementsAre(Command::TreeNewCategory));
  t.runPosted();
  EXPECT_EQ(t.window.theTree.shown(), "New Category");
}

TEST_F(Commands, NewCategoryOfTheTreesMenuGoesByWhatWasHit) {
  openShop();
  t.shell.hitItem = true;
  run(Command::TreeNewCategory);
  EXPECT_EQ(t.window.theTree.shown(), "Home(Toys(Ball) Bats Rows New Category)");
  t.shell.hitItem = false;
  run(Command::TreeNewCategory);
  EXPECT_EQ(t.window.theTree.shown(), "Home(Toys(Ball) Bats Rows New Category) New Category");
}

TEST_F(Commands, NewProductShelfAndListAreMadeAtTheCurrentNode) {
  openShop();
  for (const Command command : {Command::NewProduct, Command::NewShelf, Command::NewList}) {
    selectCurrent(t.shell, root()->child);
    run(command);
  }
  EXPECT_EQ(t.window.theTree.shown(), "Home(Toys(Ball New Product New Shelf New List) Bats Rows)");
}

TEST_F(Commands, DisablingANodeLeavesSaveGrey) {
  openShop();
  run(Command::Disable);
  EXPECT_EQ(root()->status, kStatusDisabled);
  EXPECT_EQ(t.project().dirty, 0);
  EXPECT_FALSE(t.window.entryEnabled(Command::Save));
  run(Command::Enable);
  EXPECT_EQ(root()->status, kStatusEnabled);
  EXPECT_FALSE(t.window.entryEnabled(Command::Save));
}

TEST_F(Commands, DisableAndEnableGoToTheRowsWhenTheNodeCameFromTheList) {
  openShop();
  selectCurrent(t.shell, root());
  t.window.clickRow(0);
  t.window.controlClickRow(1);
  ASSERT_TRUE(t.shell.fromList);
  StoreNode* toys = root()->child;
  run(Command::Disable);
  EXPECT_EQ(toys->status, kStatusDisabled);
  EXPECT_EQ(toys->next->status, kStatusDisabled);
  EXPECT_EQ(toys->next->next->status, kStatusEnabled);
  EXPECT_EQ(root()->status, kStatusEnabled);
  run(Command::Enable);
  EXPECT_EQ(toys->status, kStatusEnabled);
  EXPECT_EQ(toys->next->status, kStatusEnabled);
}

TEST_F(Commands, TheTreesOwnDisableTakesTheNodeEvenFromTheList) {
  openShop();
  selectCurrent(t.shell, root());
  t.window.clickRow(0);
  t.window.theList.setSelected(1, true);
  StoreNode* current = t.project().currentNode;
  run(Command::TreeDisable);
  EXPECT_EQ(current->status, kStatusDisabled);
  EXPECT_EQ(root()->child->next->status, kStatusEnabled);
  run(Command::TreeEnable);
  EXPECT_EQ(current->status, kStatusEnabled);
}

TEST_F(Commands, CopyAndPasteOfTreeAndListMakeANode) {
  openShop();
  selectCurrent(t.shell, ball());
  run(Command::TreeCopy);
  run(Command::TreePaste);
  selectCurrent(t.shell, ball());
  run(Command::ListCopy);
  run(Command::ListPaste);
  EXPECT_EQ(t.project().dirty, 1);
  ExpectSoundTree(t.project());
}

TEST_F(Commands, DeleteOfTheTreeTakesItsNode) {
  openShop();
  selectCurrent(t.shell, ball());
  run(Command::TreeDelete);
  EXPECT_EQ(t.window.theTree.shown(), "Home(Toys Bats Rows)");
}

TEST_F(Commands, SelectAllOfTheListSelectsEveryRow) {
  openShop();
  selectCurrent(t.shell, root());
  run(Command::ListSelectAll);
  EXPECT_THAT(t.window.theList.selectedRows(), ElementsAre(0, 1, 2));
}

TEST_F(Commands, RefillTreeFillsTreeAndListAnew) {
  openShop();
  root()->title.assign("House");
  run(Command::RefillTree);
  EXPECT_EQ(t.window.theTree.shown(), "House(Toys(Ball) Bats Rows)");
}

TEST_F(Commands, ResizeOfTheWindowIsACommandAsWell) {
  t.attach();
  page.openIn(t.shell);
  run(Command::ResizeMainWindow);
  EXPECT_EQ(t.window.redraws(), 1);
}

TEST_F(Commands, PreviewWithoutAServerIsTold) {
  t.attach();
  t.project().currentNode = AddCategory(t.project(), "Home");
  run(Command::PreviewPage);
  ASSERT_EQ(t.screen.boxes.size(), 1U);
  EXPECT_EQ(t.screen.boxes[0].title, "Configuration Error");
}

}  // namespace
}  // namespace varlo::test
