#include "shell/command_states.h"

#include <vector>

#include <gtest/gtest.h>

#include "core/program/scheme.h"
#include "core/store/user_variable.h"
#include "platform/control_ids.h"
#include "tests/support/page_stand_in.h"
#include "tests/support/test_shell.h"
#include "tests/support/tree.h"

namespace varlo::test {
namespace {

using Kind = NodeKind;

// The rules told once more, each as what must hold for one thing to be usable.
namespace oracle {

bool paste(const CommandFacts& f) {
  switch (f.focus) {
    case FocusPlace::Tree:
    case FocusPlace::ItemList:
      return f.nodeCopied;
    case FocusPlace::RichEdit:
      return f.textToPaste;
    case FocusPlace::RegionList:
      return f.tab == Tab::Freight && f.regionCopied;
    case FocusPlace::VariableList:
      return f.tab == Tab::Variables && f.variableCopied;
    case FocusPlace::StyleList:
    case FocusPlace::SchemeList:
      return f.tab == Tab::Layout && f.styleCopied && f.styleType && *f.styleType != 0;
    case FocusPlace::Elsewhere:
      return false;
  }
  return false;
}

bool remove(const CommandFacts& f) {
  switch (f.focus) {
    case FocusPlace::Tree:
    case FocusPlace::ItemList:
      return f.node.has_value();
    case FocusPlace::RichEdit:
      return f.textSelected;
    case FocusPlace::RegionList:
      return f.tab == Tab::Freight && f.regionCurrent;
    case FocusPlace::VariableList:
      return f.tab == Tab::Variables && f.variableCurrent;
    case FocusPlace::StyleList:
      return f.tab == Tab::Layout && (!f.styleType || *f.styleType == 1);
    case FocusPlace::SchemeList:
      return f.tab == Tab::Layout && (!f.schemeType || *f.schemeType == 1);
    case FocusPlace::Elsewhere:
      return false;
  }
  return false;
}

bool copy(const CommandFacts& f) {
  if (f.tab == Tab::Layout && f.focus == FocusPlace::SchemeList) return true;
  if (f.tab == Tab::Layout && f.focus == FocusPlace::StyleList) return false;
  return remove(f);
}

bool selectAll(const CommandFacts& f) {
  for (const FocusPlace place : {FocusPlace::ItemList, FocusPlace::RichEdit, FocusPlace::RegionList}) {
    if (f.focus == place) return true;
  }
  return false;
}

CommandStates states(const CommandFacts& f) {
  const bool nodeIsHolder = f.node == Kind::Shelf || f.node == Kind::List;
  const bool parentIsHolder = f.parent == Kind::Shelf || f.parent == Kind::List;
  const bool store = f.projectOpen && f.treeFilled;
  const bool ready = store && f.node;
  CommandStates s;
  s.entries.save = f.dirty && f.projectOpen;
  s.entries.needProject = f.projectOpen;
  s.entries.needTree = f.treeFilled;
  s.entries.copy = copy(f);
  s.entries.paste = paste(f);
  s.entries.remove = remove(f);
  s.entries.find = f.focus == FocusPlace::RichEdit;
  s.entries.selectAll = selectAll(f);
  s.entries.preview = f.node.has_value();
  s.entries.build = store;
  s.buttons.preview = f.node.has_value();
  s.buttons.productAndBuild = f.projectOpen && f.node;
  s.buttons.holders = f.projectOpen && !(f.node && (nodeIsHolder || parentIsHolder));
  s.tools.save = f.dirty && store;
  s.tools.product = f.projectOpen && f.node;
  s.tools.holders = f.projectOpen && !(f.node && (nodeIsHolder || f.parent == Kind::Shelf));
  s.tools.buildAndPreview = store;
  s.page.fields = ready;
  s.page.ownPage = ready && !parentIsHolder;
  s.page.imageLink = ready && f.nodeHasImage;
  return s;
}

}  // namespace oracle

const std::vector<std::optional<Kind>> kKinds{std::nullopt, Kind::Category, Kind::Product, Kind::Shelf, Kind::List};
const std::vector<std::optional<std::int32_t>> kTypes{std::nullopt, 0, 1, 2};

// Everything about the project and its current node.
std::vector<CommandFacts> storeFacts() {
  std::vector<CommandFacts> all;
  for (int bits = 0; bits < 16; ++bits) {
    for (const auto node : kKinds) {
      for (const auto parent : kKinds) {
        if (!node && parent) continue;
        all.push_back({.projectOpen = (bits & 1) != 0,
                       .treeFilled = (bits & 2) != 0,
                       .dirty = (bits & 4) != 0,
                       .node = node,
                       .parent = parent,
                       .nodeHasImage = (bits & 8) != 0});
      }
    }
  }
  return all;
}

// Everything about tab, focus and what is selected, around the facts of a store.
template <typename Visit>
void forEachFocus(CommandFacts facts, Visit visit) {
  for (int tab = 0; tab < kTabs; ++tab) {
    facts.tab = static_cast<Tab>(tab);
    for (int place = 0; place <= static_cast<int>(FocusPlace::SchemeList); ++place) {
      facts.focus = static_cast<FocusPlace>(place);
      for (const auto styleType : kTypes) {
        facts.styleType = styleType;
        for (const auto schemeType : kTypes) {
          facts.schemeType = schemeType;
          for (int bits = 0; bits < 256; ++bits) {
            facts.nodeCopied = (bits & 1) != 0;
            facts.textSelected = (bits & 2) != 0;
            facts.textToPaste = (bits & 4) != 0;
            facts.regionCurrent = (bits & 8) != 0;
            facts.regionCopied = (bits & 16) != 0;
            facts.variableCurrent = (bits & 32) != 0;
            facts.variableCopied = (bits & 64) != 0;
            facts.styleCopied = (bits & 128) != 0;
            visit(facts);
          }
        }
      }
    }
  }
}

TEST(CommandStatesTable, EveryStoreInEveryPlaceOfTheFocus) {
  for (CommandFacts facts : storeFacts()) {
    for (int tab = 0; tab < kTabs; ++tab) {
      for (int place = 0; place <= static_cast<int>(FocusPlace::SchemeList); ++place) {
        facts.tab = static_cast<Tab>(tab);
        facts.focus = static_cast<FocusPlace>(place);
        ASSERT_EQ(commandStates(facts), oracle::states(facts)) << "tab " << tab << " focus " << place;
      }
    }
  }
}

TEST(CommandStatesTable, EveryPlaceOfTheFocusWithEverySelection) {
  for (const CommandFacts& store :
       {CommandFacts{}, CommandFacts{.projectOpen = true, .treeFilled = true, .node = Kind::Category}}) {
    int differing = 0;
    forEachFocus(store, [&](const CommandFacts& facts) {
      if (!(commandStates(facts) == oracle::states(facts))) ++differing;
    });
    EXPECT_EQ(differing, 0);
  }
}

const CommandFacts kOpenShop{.projectOpen = true, .treeFilled = true, .node = Kind::Category};

CommandFacts on(Tab tab, FocusPlace focus) {
  CommandFacts facts = kOpenShop;
  facts.tab = tab;
  facts.focus = focus;
  return facts;
}

TEST(CommandStates, SaveNeedsAChangedProjectThatIsOpen) {
  CommandFacts facts = kOpenShop;
  EXPECT_FALSE(commandStates(facts).entries.save);
  facts.dirty = true;
  EXPECT_TRUE(commandStates(facts).entries.save);
  facts.projectOpen = false;
  EXPECT_FALSE(commandStates(facts).entries.save);
}

TEST(CommandStates, OfTheToolbarSaveNeedsATreeAsWell) {
  const CommandFacts facts{.projectOpen = true, .dirty = true};
  EXPECT_TRUE(commandStates(facts).entries.save);
  EXPECT_FALSE(commandStates(facts).tools.save);
}

TEST(CommandStates, InAListTheButtonsOfferNoCategoryButTheToolbarDoes) {
  CommandFacts facts = kOpenShop;
  facts.node = Kind::Product;
  facts.parent = Kind::List;
  EXPECT_FALSE(commandStates(facts).buttons.holders);
  EXPECT_TRUE(commandStates(facts).tools.holders);
  facts.parent = Kind::Shelf;
  EXPECT_FALSE(commandStates(facts).tools.holders);
}

TEST(CommandStates, AProductOfAShelfHasNoFileNameOrTemplateOfItsOwn) {
  CommandFacts facts = kOpenShop;
  facts.node = Kind::Product;
  facts.parent = Kind::Shelf;
  EXPECT_TRUE(commandStates(facts).page.fields);
  EXPECT_FALSE(commandStates(facts).page.ownPage);
}

TEST(CommandStates, WithoutACurrentStyleNothingCanBePastedOnTheLayoutTab) {
  CommandFacts facts = on(Tab::Layout, FocusPlace::StyleList);
  facts.styleCopied = true;
  EXPECT_FALSE(commandStates(facts).entries.paste);
  facts.styleType = kSchemeShipped;
  EXPECT_FALSE(commandStates(facts).entries.paste);
  facts.styleType = kSchemeOwn;
  EXPECT_TRUE(commandStates(facts).entries.paste);
}

TEST(CommandStates, OnTheLayoutTabSchemesAreAlwaysCopiedAndStylesNever) {
  CommandFacts facts = on(Tab::Layout, FocusPlace::SchemeList);
  facts.styleType = facts.schemeType = kSchemeShipped;
  EXPECT_TRUE(commandStates(facts).entries.copy);
  EXPECT_FALSE(commandStates(facts).entries.remove);
  facts.focus = FocusPlace::StyleList;
  facts.styleType = kSchemeOwn;
  EXPECT_FALSE(commandStates(facts).entries.copy);
  EXPECT_TRUE(commandStates(facts).entries.remove);
}

TEST(CommandStates, AListOfAnotherTabGivesNothing) {
  CommandFacts facts = on(Tab::Variables, FocusPlace::RegionList);
  facts.regionCurrent = facts.regionCopied = true;
  EXPECT_FALSE(commandStates(facts).entries.paste);
  EXPECT_FALSE(commandStates(facts).entries.remove);
}

TEST(CommandStates, ATreeThatStayedBehindAFailedOpenCanBePreviewedButNotBuilt) {
  CommandFacts facts = kOpenShop;
  facts.projectOpen = false;
  EXPECT_TRUE(commandStates(facts).entries.preview);
  EXPECT_FALSE(commandStates(facts).entries.build);
  EXPECT_FALSE(commandStates(facts).page.fields);
}

class States : public testing::Test {
 protected:
  TestShell t;
  PageStandIn page;

  void SetUp() override { t.attach(); }
  void openShop() {
    t.project().projectFile.assign(kShopPath);
    t.project().currentNode = t.project().treeNode = AddCategory(t.project(), "Home");
  }
  void openPage() { t.shell.tabPage = &page.window; }
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
  for (ControlId button = control::main::kPreview; button <= control::main::kBuild; ++button) {
    EXPECT_TRUE(t.window.frame().isEnabled(button)) << button;
  }
}

TEST_F(States, WithoutAShopButtonsAndToolsAreGrey) {
  refreshCommandStates(t.shell);
  for (ControlId button = control::main::kPreview; button <= control::main::kBuild; ++button) {
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
  focusOn(Focus::Place::Page, control::inventory::kDescription);
  refreshCommandStates(t.shell);
  EXPECT_TRUE(t.window.entryEnabled(Command::Find));
  EXPECT_TRUE(t.window.entryEnabled(Command::SelectAll));
  EXPECT_FALSE(t.window.entryEnabled(Command::Copy));
  EXPECT_FALSE(t.window.entryEnabled(Command::Paste));

  page.window.setText(control::inventory::kDescription, "Round");
  page.window.select(control::inventory::kDescription, 0, 2);
  t.clipboard.putText("and red");
  refreshCommandStates(t.shell);
  EXPECT_TRUE(t.window.entryEnabled(Command::Copy));
  EXPECT_TRUE(t.window.entryEnabled(Command::Delete));
  EXPECT_TRUE(t.window.entryEnabled(Command::Paste));
}

TEST_F(States, AnotherFieldOfThePageIsNoRichEdit) {
  openShop();
  openPage();
  focusOn(Focus::Place::Page, control::inventory::kTitle);
  EXPECT_EQ(gatherFacts(t.shell).focus, FocusPlace::Elsewhere);
  focusOn(Focus::Place::Page, control::inventory::kDescription);
  t.shell.currentTab = Tab::Freight;
  EXPECT_EQ(gatherFacts(t.shell).focus, FocusPlace::Elsewhere);
}

TEST_F(States, EveryFieldOfTheInventoryFormFollowsTheNode) {
  openPage();
  refreshCommandStates(t.shell);
  for (ControlId field = control::inventory::kTitle; field <= control::inventory::kDescription; ++field) {
    EXPECT_FALSE(page.window.isEnabled(field)) << field;
  }
  openShop();
  t.project().root->image.assign("a.gif");
  refreshCommandStates(t.shell);
  for (ControlId field = control::inventory::kTitle; field <= control::inventory::kDescription; ++field) {
    EXPECT_TRUE(page.window.isEnabled(field)) << field;
  }
}

TEST_F(States, FileNameAndTemplateOfAProductInAListAreGrey) {
  openShop();
  openPage();
  StoreNode* list = AddNode(t.project(), Kind::List, "Rows", t.project().root);
  t.project().currentNode = AddProduct(t.project(), "Ball", list);
  refreshCommandStates(t.shell);
  EXPECT_FALSE(page.window.isEnabled(control::inventory::kFileName));
  EXPECT_FALSE(page.window.isEnabled(control::inventory::kTemplate));
  EXPECT_TRUE(page.window.isEnabled(control::inventory::kTitle));
}

TEST_F(States, AnImageLinkIsOfferedWithAnImageOnly) {
  openShop();
  openPage();
  refreshCommandStates(t.shell);
  EXPECT_FALSE(page.window.isEnabled(control::inventory::kImageLink));
  t.project().root->image.assign("a.gif");
  refreshCommandStates(t.shell);
  EXPECT_TRUE(page.window.isEnabled(control::inventory::kImageLink));
}

TEST_F(States, ThePagesOfOtherTabsAreLeftAlone) {
  openPage();
  t.shell.currentTab = Tab::Layout;
  refreshCommandStates(t.shell);
  EXPECT_TRUE(page.window.isEnabled(control::inventory::kTitle));
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
