#include "shell/state/command_states.h"

#include <vector>

#include <gtest/gtest.h>

#include "core/program/scheme.h"
#include "core/store/user_variable.h"
#include "platform/main_window.h"
#include "shell/tabs/inventory_page.h"
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
  s.entries.free = s.tools.free = true;
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

TEST(CommandStatesTable, WhileSomethingIsAtWorkEntriesAndToolsAreOffAndTheRestIsAsEver) {
  for (CommandFacts facts : storeFacts()) {
    facts.atWork = true;
    CommandStates expected = oracle::states(facts);
    expected.entries = {};
    expected.tools = {};
    ASSERT_EQ(commandStates(facts), expected);
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

}  // namespace
}  // namespace varlo::test
