#include "shell/tabs/freight_page.h"

#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "commerce/freight/region_lists.h"
#include "commerce/freight/region_page.h"
#include "commerce/wizard/wizard_shapes.h"
#include "core/program/project_close.h"
#include "core/store/record.h"
#include "platform/item_images.h"
#include "shell/state/state_display.h"
#include "shell/tabs/tab_switch.h"
#include "shell/window/commands.h"
#include "tests/support/freight.h"
#include "tests/support/test_shell.h"
#include "tests/support/wizard_user.h"

namespace varlo {
namespace {

using namespace test;
using namespace freight;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

class FreightTab : public testing::Test {
 protected:
  TestShell t;
  StoreProject& project = t.project();
  FreightRegion* au = nullptr;
  FreightRegion* br = nullptr;
  FreightRegion* cl = nullptr;

  void SetUp() override {
    t.attach();
    project.projectFile.assign(kShopPath);
    project.methodName = {Text("Air"), Text(""), Text("Sea")};
    au = AddRegion(project, "Australia");
    br = AddRegion(project, "Brazil");
    cl = AddRegion(project, "Chile");
    Serve(au, 0, {{0, "9"}, {11, "2"}});
    Serve(br, 0, {{0, "10"}});
    Serve(br, 2, {{0, "7"}});
    br->regionValue.assign("17%");
    switchTab(t.shell, Tab::Freight);
    project.dirty = 0;
  }
  FakeWindow& page() { return *t.window.page(); }
  std::vector<std::string> names() {
    std::vector<std::string> names;
    for (const int row : page().displayOrder(kRegions)) names.push_back(page().cell(kRegions, row, 0));
    return names;
  }
  std::string cells() {
    std::string text;
    for (int i = 0; i < 12; ++i) text += page().text(kCell1 + i) + "|";
    return text + page().text(kRule);
  }
  // Chooses an entry of the popup menu on a row.
  void choose(int row, Command command) {
    t.screen.chosenFromMenus = {command};
    page().rightClickRow(kRegions, row);
  }
  void chooseMethod(std::size_t row) {
    page().pickComboRow(kMethod, row);
    page().deliverPosts();
  }
};

TEST_F(FreightTab, Opens) {
  EXPECT_EQ(page().describe(),
            "[]\n"
            "&Method: choice 'Air' \"Air\" 2 rows\n"
            "button '&Wizard'\n"
            "button 'Method&s'\n"
            "list 'Country' 3 rows\n"
            "text 'Region:'\n"
            "text 'Australia'\n"
            "0.5  edit \"9\"\n"
            "1  edit \"\"\n"
            "2  edit \"\"\n"
            "3  edit \"\"\n"
            "4  edit \"\"\n"
            "5  edit \"\"\n"
            "6  edit \"\"\n"
            "7  edit \"\"\n"
            "8  edit \"\"\n"
            "9  edit \"\"\n"
            "10  edit \"\"\n"
            "11+  edit \"2\"\n"
            "&Advanced Freight Rules: edit \"\"\n");
  EXPECT_EQ(page().columns(kRegions).size(), 14U);
  EXPECT_EQ(project.currentRegion, au);
  EXPECT_THAT(page().selectedRows(kRegions), ElementsAre(0));
}

TEST_F(FreightTab, OpeningItGoesBackToTheFirstMethod) {
  chooseMethod(1);
  EXPECT_EQ(project.currentMethod, 2);
  switchTab(t.shell, Tab::Layout);
  project.currentRegion = cl;
  switchTab(t.shell, Tab::Freight);
  EXPECT_EQ(project.currentMethod, 0);
  EXPECT_EQ(project.currentRegion, au);
  EXPECT_EQ(project.dirty, 0) << "filling the form is no change";
}

TEST_F(FreightTab, AMethodWithoutANameIsLeftOut) { EXPECT_THAT(page().rows(kMethod), ElementsAre("Air", "Sea")); }

TEST_F(FreightTab, AnotherMethodShowsItsTablesFromTheFirstRowOn) {
  page().pickRow(kRegions, 1);
  chooseMethod(1);
  EXPECT_EQ(project.currentMethod, 2);
  EXPECT_EQ(project.currentRegion, au);
  EXPECT_THAT(page().selectedRows(kRegions), ElementsAre(0));
  EXPECT_EQ(page().cell(kRegions, 1, 1), "7");
  EXPECT_EQ(page().mark(kRegions, 0), item_image::kCross);
  EXPECT_EQ(page().mark(kRegions, 1), item_image::kTick);
  EXPECT_EQ(cells(), "||||||||||||");
  EXPECT_EQ(project.dirty, 0);
}

TEST_F(FreightTab, MethodsOfOneNameAreTheFirstOfThem) {
  project.methodName = {Text("Sea"), Text("Air"), Text("Sea")};
  t.program.view.loadFreightList();
  chooseMethod(1);
  EXPECT_EQ(project.currentMethod, 1);
  chooseMethod(2);
  EXPECT_EQ(project.currentMethod, 0);
  EXPECT_EQ(page().text(kMethod), "Sea");
}

TEST_F(FreightTab, ASelectedRegionIsShownInTheForm) {
  page().pickRow(kRegions, 1);
  EXPECT_EQ(project.currentRegion, br);
  EXPECT_EQ(page().text(kRegionName), "Brazil");
  EXPECT_EQ(cells(), "10||||||||||||");
  page().goToRow(kRegions, 2);
  EXPECT_EQ(project.currentRegion, cl);
  page().pickRow(kRegions, kNoRow);
  EXPECT_EQ(project.currentRegion, cl);
  EXPECT_EQ(project.dirty, 0);
}

TEST_F(FreightTab, ACellKeepsDigitsAndPointsOnlyAndIsStoredAtOnce) {
  page().type(kCell1 + 3, "1x2.5");
  EXPECT_EQ(page().text(kCell1 + 3), "12.5");
  EXPECT_TRUE(page().caretAtEnd(kCell1 + 3));
  EXPECT_EQ(au->method[0]->value[3].view(), "12.5");
  EXPECT_GT(page().rowRepaints(kRegions, 0), 0);
  EXPECT_EQ(project.dirty, 1);
  EXPECT_TRUE(au->method[0]->value[4].isNull()) << "an empty field leaves an absent cell";
}

TEST_F(FreightTab, ARuleIsStoredAsItStandsAndHidesTheCells) {
  const std::string rule = "5<=100v, anything at all " + std::string(300, 'r');
  page().type(kRule, rule);
  EXPECT_EQ(au->method[0]->rule.view(), rule);
  for (int column = 1; column <= 12; ++column) EXPECT_EQ(page().cell(kRegions, 0, column), " - ");
  EXPECT_EQ(page().text(kCell1), "9") << "the fields keep the cells";
  page().type(kRule, "");
  EXPECT_EQ(page().cell(kRegions, 0, 1), "9");
}

TEST_F(FreightTab, WithNoRegionsItShowsEmptyFields) {
  RegionsRemove(t.program, std::vector{au, br, cl});
  EXPECT_EQ(page().rowCount(kRegions), 0);
  EXPECT_EQ(page().text(kRegionName), "");
  EXPECT_EQ(cells(), "||||||||||||");
  page().type(kCell1, "5");
  EXPECT_EQ(project.currentRegion, nullptr);
}

TEST_F(FreightTab, ADoubleClickTogglesTheOfferAndMarksNothing) {
  page().doubleClickRow(kRegions, 1);
  EXPECT_EQ(br->method[0]->active, 0);
  EXPECT_EQ(br->method[2]->active, 1);
  EXPECT_EQ(page().mark(kRegions, 1), item_image::kCross);
  EXPECT_EQ(page().rowRepaints(kRegions, 1), 1);
  page().doubleClickRow(kRegions, 1);
  EXPECT_EQ(br->method[0]->active, 1);
  page().doubleClickRow(kRegions, kNoRow);
  EXPECT_EQ(project.dirty, 0);
}

TEST_F(FreightTab, AHeadingSortsWhatIsShownAndNothingElse) {
  page().clickHeading(kRegions, 1);
  EXPECT_THAT(names(), ElementsAre("Brazil", "Australia", "Chile")) << "10 stands before 9";
  EXPECT_EQ(project.regions, au);
  page().pickRow(kRegions, 1);
  EXPECT_EQ(project.currentRegion, br) << "a row keeps its number";
  page().clickHeading(kRegions, 13);
  EXPECT_THAT(names(), ElementsAre("Australia", "Chile", "Brazil"));
}

TEST_F(FreightTab, TheMenuHasNineEntriesAndNothingInItIsGrey) {
  page().rightClickRow(kRegions, 2);
  ASSERT_EQ(t.screen.menus.size(), 1U);
  std::vector<std::string> labels;
  for (const MenuEntry& entry : t.screen.menus[0]) {
    labels.push_back(entry.label);
    EXPECT_TRUE(entry.enabled);
  }
  EXPECT_THAT(labels, ElementsAre("Add/Remove &Regions", "&Copy", "&Paste", "&Clear", "&Import", "&Enable",
                                  "&Disable", "Delete", "Select &All"));
  EXPECT_EQ(project.currentRegion, cl) << "a click on a row first makes it current";
  page().rightClickRow(kRegions, kNoRow);
  EXPECT_EQ(t.screen.menus.size(), 2U);
  EXPECT_EQ(project.currentRegion, cl);
}

TEST_F(FreightTab, CopyAndPasteOnAllSelectedRows) {
  choose(0, Command::RegionCopy);
  page().pickRows(kRegions, {1, 2});
  choose(2, Command::RegionPaste);
  for (const FreightRegion* region : {br, cl}) EXPECT_EQ(region->method[0]->value[11].view(), "2");
  EXPECT_EQ(cells(), "9|||||||||||2|") << "the form is loaded anew";
  EXPECT_EQ(project.dirty, 1);
}

TEST_F(FreightTab, ClearEnableAndDisableOnAllSelectedRows) {
  page().pickRows(kRegions, {0, 1});
  choose(1, Command::RegionClear);
  EXPECT_EQ(page().cell(kRegions, 0, 1), "");
  EXPECT_EQ(page().mark(kRegions, 1), item_image::kCross);
  EXPECT_EQ(project.dirty, 1);
  project.dirty = 0;
  choose(1, Command::RegionEnable);
  EXPECT_EQ(au->method[0]->active + br->method[0]->active + cl->method[0]->active, 2);
  choose(0, Command::RegionDisable);
  EXPECT_EQ(au->method[0]->active + br->method[0]->active, 0);
  EXPECT_EQ(project.dirty, 0);
}

TEST_F(FreightTab, DeleteTakesAllSelectedRowsOut) {
  page().pickRows(kRegions, {0, 2});
  choose(0, Command::RegionDelete);
  EXPECT_THAT(names(), ElementsAre("Brazil"));
  EXPECT_EQ(project.currentRegion, br);
  EXPECT_THAT(page().selectedRows(kRegions), ElementsAre(0));
  EXPECT_EQ(page().text(kRegionName), "Brazil");
  EXPECT_EQ(project.dirty, 1);
  EXPECT_THAT(t.screen.boxes, IsEmpty());
}

TEST_F(FreightTab, SelectAllSelectsAllRows) {
  choose(0, Command::RegionSelectAll);
  EXPECT_THAT(page().selectedRows(kRegions), ElementsAre(0, 1, 2));
}

TEST_F(FreightTab, TheDeleteKeyAndCtrlAActAsTheEntries) {
  page().pressKey(kRegions, Key::A);
  EXPECT_THAT(page().selectedRows(kRegions), ElementsAre(0));
  page().pressKey(kRegions, Key::A, true);
  EXPECT_THAT(page().selectedRows(kRegions), ElementsAre(0, 1, 2));
  page().pressKey(kRegions, Key::Delete);
  EXPECT_EQ(project.regions, nullptr);
  EXPECT_EQ(page().rowCount(kRegions), 0);
}

TEST_F(FreightTab, ImportIsPostedAndThePageIsDrawnAnewInEitherCase) {
  choose(0, Command::RegionImport);
  EXPECT_THAT(t.screen.posted, Contains(Command::ImportFreight));
  au->name.assign("Austria");
  t.runPosted();
  EXPECT_EQ(t.screen.fileRequests.size(), 1U);
  EXPECT_THAT(names(), ElementsAre("Austria", "Brazil", "Chile")) << "the chooser was cancelled";
}

TEST_F(FreightTab, ImportFromAProjectWithTheSameRegionsKeepsTheTaxAndReplacesCellsAndRules) {
  br->method[0]->rule.assign("old rule");
  t.files.put("Projects\\Other\\Other.stp",
              "VERSION=107001\nFNAME=0,Rocket\n$Brazil0,1,,,,,,,,,,,,99,|"
              "1\nRULE=0,new rule\n");
  t.screen.files = {"C:\\Varlo\\Projects\\Other\\Other.stp"};
  dispatchCommand(t.shell, Command::ImportFreight);
  EXPECT_EQ(br->method[0]->value[0].view(), "1");
  EXPECT_EQ(br->method[0]->rule.view(), "new rule");
  EXPECT_EQ(br->regionValue.view(), "17%");
  EXPECT_EQ(au->method[0]->active, 0);
  EXPECT_THAT(page().rows(kMethod), Contains("Rocket"));
}

TEST_F(FreightTab, AddRemoveRegionsWizardAndMethodsOpenTheirDialogs) {
  choose(0, Command::RegionAddRemove);
  page().press(kWizard);
  page().press(kMethods);
  EXPECT_THAT(t.screen.dialogs,
              ElementsAre(wizard::kLoneRegions, wizard::kFirstWindow + static_cast<int>(WizardPage::FreightStart),
                          wizard::kLoneMethods));
}

TEST_F(FreightTab, TheMethodsDialogTakesAnEmptiedNameOutOfTheList) {
  PlayUser(t.screen, [](FakeWindow& window) {
    window.type(wizard::kMethod2, "Road");
    window.type(wizard::kMethod3, "");
    window.press(kOk);
  });
  page().press(kMethods);
  EXPECT_THAT(page().rows(kMethod), ElementsAre("Express Courier (1-3 Days)", "Road"));
  EXPECT_EQ(br->method[2]->value[0].view(), "7") << "the tables stay";
}

TEST_F(FreightTab, RegionsThatTheWizardMovesAreShownAtOnceEvenIfItIsCancelled) {
  PlayUser(t.screen, [&](FakeWindow& window) {
    window.pickRows(regions::kStore, {0, 1});
    window.press(regions::kRemove);
    EXPECT_THAT(names(), ElementsAre("Chile"));
    window.type(regions::kOther, "Mars");
    window.press(regions::kAddOther);
    window.press(kCancel);
  });
  choose(0, Command::RegionAddRemove);
  EXPECT_THAT(names(), ElementsAre("Chile", "Mars"));
  EXPECT_EQ(project.currentRegion->name.view(), "Chile");
}

TEST_F(FreightTab, ClosingTheProjectEmptiesThePage) {
  ProjectClose(t.program);
  EXPECT_EQ(page().rowCount(kRegions), 0);
  EXPECT_EQ(page().text(kRegionName), "");
}

TEST_F(FreightTab, TheEditMenuActsOnTheRegions) {
  t.window.focused = {Focus::Place::Page, kRegions};
  refreshCommandStates(t.shell);
  EXPECT_TRUE(t.window.entryEnabled(Command::Copy));
  EXPECT_TRUE(t.window.entryEnabled(Command::Delete));
  EXPECT_TRUE(t.window.entryEnabled(Command::SelectAll));
  EXPECT_FALSE(t.window.entryEnabled(Command::Paste)) << "no region is copied";
  dispatchCommand(t.shell, Command::Copy);
  refreshCommandStates(t.shell);
  EXPECT_TRUE(t.window.entryEnabled(Command::Paste));
  page().pickRow(kRegions, 2);
  dispatchCommand(t.shell, Command::Paste);
  EXPECT_EQ(cl->method[0]->value[0].view(), "9");
  dispatchCommand(t.shell, Command::SelectAll);
  EXPECT_THAT(page().selectedRows(kRegions), ElementsAre(0, 1, 2));
  dispatchCommand(t.shell, Command::Delete);
  EXPECT_EQ(project.regions, nullptr);
  refreshCommandStates(t.shell);
  EXPECT_FALSE(t.window.entryEnabled(Command::Delete));
}

TEST_F(FreightTab, InTheFieldsOfThePageTheEntriesAreGrey) {
  dispatchCommand(t.shell, Command::Copy);
  t.window.focused = {Focus::Place::Page, kCell1};
  refreshCommandStates(t.shell);
  for (const Command command : {Command::Copy, Command::Paste, Command::Delete, Command::SelectAll}) {
    EXPECT_FALSE(t.window.entryEnabled(command));
  }
}

TEST_F(FreightTab, RowsThatAreNoneHaveNoText) {
  EXPECT_EQ(page().cell(kRegions, 3, 0), "");
  EXPECT_EQ(page().cell(kRegions, -1, 0), "");
  EXPECT_EQ(page().mark(kRegions, 9), item_image::kCross);
}

}  // namespace
}  // namespace varlo
