#include "commerce/wizard/wizard_end.h"

#include <algorithm>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "commerce/cards/accepted_cards.h"
#include "commerce/freight/freight_expression.h"
#include "commerce/freight/freight_rows.h"
#include "commerce/freight/region_lists.h"
#include "commerce/wizard/wizard_state.h"
#include "core/program/scheme.h"
#include "core/store/card_entry.h"
#include "core/store/record.h"
#include "core/store/user_variable.h"
#include "core/text/working_text.h"
#include "tests/support/freight.h"
#include "tests/support/project_text.h"
#include "tests/support/tree.h"

namespace varlo {
namespace {

using namespace test;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

class WizardEndTest : public testing::Test {
 protected:
  TestProgram t;
  StoreProject& project = t.project();
  WizardState state;
  Scheme* meadow = nullptr;
  Scheme* gallery = nullptr;

  void SetUp() override {
    t.files.putFolder("Projects");
    t.files.put("template\\order.dat", "shipped order");
    t.files.put("template\\confirm.dat", "shipped confirm");
    meadow = addScheme("meadow");
    gallery = addScheme("gallery");
    state.workFolder.assign("Toys");
    state.workTitle.assign("The Toy Shop");
  }
  // A style with one scheme, whose set has a template that tells where it came from.
  Scheme* addScheme(const std::string& directory) {
    SchemeStyle* style = SchemeInit(nullptr);
    SchemeStyle*& head = t.config().schemeStyles;
    (head == nullptr ? head : RecordLast(head)->next) = style;
    style->schemes = SchemeInit(nullptr);
    style->schemes->prev = style;
    style->schemes->directory.assign(std::string_view(directory));
    t.files.put("template\\" + directory + "\\category.htm", directory);
    return style->schemes;
  }
  CardEntry* knownCard(const char* name) {
    CardEntry* card = CardEntryInit(nullptr);
    card->name.assign(name);
    RecordAppend(t.config().cardCatalogue, t.config().cardCatalogueTail, card);
    return card;
  }
  void end(WizardMode mode) {
    state.mode = mode;
    WizardEnd(t.program, state);
  }
  std::string inProject(const std::string& name) {
    return t.files.content("Projects\\Toys\\Template\\" + name).value_or("(none)");
  }
  std::string methodNames() {
    std::string text;
    for (const Text& name : project.methodName) text.append(name.view()).append("|");
    return text;
  }
  std::string expression() {
    WorkingText text;
    BuildFreightExpression(project, text);
    return text.text;
  }
};

using NewStore = WizardEndTest;

TEST_F(NewStore, IsADirectoryOnlyUntilItIsSaved) {
  end(WizardMode::NewStore);
  EXPECT_STREQ(project.projectFile.get(), "C:\\Varlo\\Projects\\Toys\\Toys.stp");
  EXPECT_EQ(project.storeTitle.view(), "The Toy Shop");
  EXPECT_EQ(TreeText(project), "The Toy Shop");
  EXPECT_EQ(project.dirty, 1);
  EXPECT_FALSE(t.files.content("Projects\\Toys\\Toys.stp").has_value());
  EXPECT_EQ(inProject("order.htm"), "shipped order");
  EXPECT_EQ(project.currency.view(), "$");
  EXPECT_EQ(project.root->templateName.view(), "category.htm");
  EXPECT_THAT(t.screen.boxes, IsEmpty());
  ExpectPlainTree(project);
}

TEST_F(NewStore, WithoutAChoiceTakesTheFirstSchemeOfTheFirstStyle) {
  end(WizardMode::NewStore);
  EXPECT_EQ(project.projectScheme, meadow);
  EXPECT_EQ(inProject("category.htm"), "meadow");
}

TEST_F(NewStore, TakesTheSchemeThatWasChosen) {
  t.config().currentStyle = gallery->prev;
  t.config().currentScheme = gallery;
  end(WizardMode::NewStore);
  EXPECT_EQ(project.projectScheme, gallery);
  EXPECT_EQ(inProject("category.htm"), "gallery");
}

// Making the project copies the current scheme's set first; there is none then.
TEST_F(NewStore, ACurrentSchemeThatIsGoneWhileTheProjectIsMadeCopiesNoSet) {
  t.config().currentScheme = gallery;
  end(WizardMode::NewStore);
  const auto copies = std::count_if(t.files.log.begin(), t.files.log.end(), [](const std::string& line) {
    return line.find("category.htm") != std::string::npos;
  });
  EXPECT_EQ(copies, 1);
  EXPECT_EQ(t.config().currentScheme, nullptr);
}

TEST_F(NewStore, WithoutAnyStyleThereIsAStoreAllTheSame) {
  SchemeListFree(t.program, t.config().schemeStyles);
  end(WizardMode::NewStore);
  EXPECT_EQ(project.projectScheme, nullptr);
  EXPECT_EQ(TreeText(project), "The Toy Shop");
}

TEST_F(NewStore, StartsWithTheRegionsAndCardsThatTheListsShowed) {
  LoadCurrent(t, "NODE0=Home\nSTITLE=Old\n$AU0,5,,,,,,,,,,,,10,|1\nCC=1:House\n");
  FreightRegion* au = project.regions;
  RegionTakeTyped(t.program, "Mars");
  project.currentRegion = project.regionsTail;
  project.currentCard = project.acceptedCards;
  end(WizardMode::NewStore);
  ASSERT_EQ(project.regions, au);
  EXPECT_EQ(project.regionsTail->name.view(), "Mars");
  EXPECT_EQ(project.acceptedCards->name.view(), "House");
  EXPECT_EQ(project.currentCard, nullptr);
}

TEST_F(NewStore, TheOldProjectIsClosed) {
  LoadCurrent(t, "NODE0=Home\nSTITLE=Old\nVAR=$OWN|1\nWEB=C:\\old\nTAXF=5\n");
  end(WizardMode::NewStore);
  EXPECT_EQ(TreeText(project), "The Toy Shop");
  EXPECT_TRUE(project.webDir.isNull());
  EXPECT_FALSE(project.tax.freightTaxRate.isSet());
  ASSERT_NE(project.variables, nullptr);
  EXPECT_EQ(project.variables->name.view(), "$COPYRIGHT");
  EXPECT_EQ(project.variables->value.view(),
            "Copyright \xA9"
            "2000");
}

TEST_F(NewStore, ClosingClearsTheMarksSoTheLeftListOffersAcceptedCardsAgain) {
  CardEntry* visa = knownCard("Visa");
  CardAccept(t.program, visa);
  end(WizardMode::NewStore);
  EXPECT_EQ(project.acceptedCards->name.view(), "Visa");
  EXPECT_EQ(visa->selected, 0);
}

TEST_F(NewStore, TypedMessagesAreTakenWhereThereIsNone) {
  state.workOrderMessage.assign("call us");
  state.workConfirmMessage.assign(std::string_view(std::string(300, 'm')));
  end(WizardMode::NewStore);
  EXPECT_EQ(project.orderMessage.view(), "call us");
  EXPECT_EQ(project.confirmMessage.view(), std::string(300, 'm'));
}

TEST_F(NewStore, ASecondOneInARunDropsTheTypedMessages) {
  state.workOrderMessage.assign("call us");
  end(WizardMode::NewStore);
  state.workOrderMessage.assign("write to us");
  state.workFolder.assign("Books");
  end(WizardMode::NewStore);
  EXPECT_EQ(project.orderMessage.view(), "call us");
}

TEST_F(NewStore, ANamedProjectThatExistsIsOpenedAndTheRestIsDoneToIt) {
  t.files.put("Projects\\Toys\\Toys.stp",
              "VERSION=107001\nNODE0=Home\n#BRANCH\nNODE1=Ball\nTEMP=special.htm\n#EOB\nSTITLE=Old Toys\n"
              "$NZ0,9,,,,,,,,,,,,,|1\nCC=1:Other\nOMESSAGE=old message\nCURR=EUR\n");
  RegionTakeTyped(t.program, "Mars");
  CardAcceptTyped(t.program, "House");
  state.workOrderMessage.assign("new message");
  state.workMethodName[0].assign("Rocket");
  end(WizardMode::NewStore);
  EXPECT_EQ(TreeText(project), "Home(Ball)");
  EXPECT_EQ(project.storeTitle.view(), "Old Toys");
  EXPECT_EQ(project.root->child->templateName.view(), "product.htm");
  EXPECT_EQ(project.orderMessage.view(), "old message");
  EXPECT_EQ(project.currency.view(), "EUR");
  EXPECT_EQ(methodNames(), "Rocket|||");
  ASSERT_EQ(StoreRegions(project).size(), 1U) << "its own regions go";
  EXPECT_EQ(project.regions->name.view(), "Mars");
  EXPECT_EQ(project.regionsTail, project.regions);
  EXPECT_EQ(project.currentRegion, nullptr);
  EXPECT_EQ(project.acceptedCards->name.view(), "House");
  EXPECT_EQ(project.acceptedCards->next, nullptr);
  EXPECT_EQ(project.dirty, 1);
}

TEST_F(NewStore, ARefusedNameGetsItsMessageAndTheRunGoesOnWithoutAProject) {
  state.workFolder.assign("a,b");
  RegionTakeTyped(t.program, "Mars");
  end(WizardMode::NewStore);
  ASSERT_EQ(t.screen.boxes.size(), 1U);
  EXPECT_EQ(t.screen.boxes[0].text,
            "Invalid Project Name.  The name must not include forward/back slash characters or commas.");
  EXPECT_TRUE(project.projectFile.isNull());
  EXPECT_EQ(project.root, nullptr);
  EXPECT_EQ(project.regions->name.view(), "Mars");
  EXPECT_EQ(project.dirty, 1);
}

TEST_F(NewStore, WithoutAFolderNameTheRunGoesOnWithoutAProject) {
  state.workFolder.release();
  end(WizardMode::NewStore);
  EXPECT_TRUE(project.projectFile.isNull());
  EXPECT_EQ(project.root, nullptr);
  EXPECT_EQ(project.dirty, 1);
}

TEST_F(NewStore, TheTreeIsShownAnewAndTheListsOfTheTabsAreFilled) {
  end(WizardMode::NewStore);
  for (const char* call : {"fillTree", "loadItemList The Toy Shop", "loadCardList", "loadFreightList", "loadForm",
                           "loadVariableList", "loadSchemeLists"}) {
    EXPECT_THAT(t.view.calls, Contains(call));
  }
  EXPECT_THAT(t.screen.posted, Contains(Command::ResizeMainWindow));
}

TEST_F(NewStore, RunningTheWizardTwiceShowsTheLastTitleAndFolderAgain) {
  end(WizardMode::NewStore);
  t.screen.answers = {Answer::No};
  WizardStart(t.program, state, WizardMode::NewStore);
  EXPECT_EQ(state.workFolder.view(), "Toys");
  EXPECT_EQ(state.workTitle.view(), "The Toy Shop");
}

using CalculationAtTheEnd = WizardEndTest;

TEST_F(CalculationAtTheEnd, IsCarriedOutInTheModesNewStoreAndFreight) {
  for (int mode = 0; mode < 5; ++mode) {
    RegionsRemove(t.program, StoreRegions(project));
    FreightRegion* region = AddRegion(project, "AU");
    Serve(region, 0, {{0, "5"}, {3, "6"}});
    state.workCalcMethod = FreightCalculation::PerOrder;
    state.workPrice.assign("9.50");
    state.workFolder.assign(std::string_view("Shop" + std::to_string(mode)));
    end(static_cast<WizardMode>(mode));
    const bool carriedOut = mode == 0 || mode == 1;
    EXPECT_EQ(project.regions->method[0]->value[0].view(), carriedOut ? "9.50" : "5") << mode;
    EXPECT_EQ(project.regions->method[0]->value[3].view(), carriedOut ? "" : "6") << mode;
  }
}

TEST_F(CalculationAtTheEnd, ReachesTheCartThroughTheExpression) {
  FreightRegion* region = AddRegion(project, "AU");
  Serve(region, 0, {{0, "5"}, {1, "7"}});
  const std::pair<FreightCalculation, const char*> expected[] = {
      {FreightCalculation::PerOrder, "Post(AU(9.50<=0.5k););"},
      {FreightCalculation::PerItem, "Post(AU(0<=0.5k););"},
      {FreightCalculation::NoCharge, "Post(AU(0<=0.5k););"},
      {FreightCalculation::ByWeight, "Post(AU(0<=0.5k););"},
  };
  state.workPrice.assign("9.50");
  for (const auto& [calculation, text] : expected) {
    state.workCalcMethod = calculation;
    state.workMethodName[0].assign("Post");
    end(WizardMode::Freight);
    EXPECT_EQ(expression(), text);
  }
}

using MethodsAtTheEnd = WizardEndTest;

TEST_F(MethodsAtTheEnd, TheNamesAreReplacedAndEveryTableIsLeftAlone) {
  project.methodName = {Text("Air"), Text("Road"), Text("Sea")};
  FreightRegion* region = AddRegion(project, "AU");
  Serve(region, 1, {{0, "5"}});
  state.workMethodName = {Text("Rocket"), Text(""), Text("Boat")};
  end(WizardMode::Methods);
  EXPECT_EQ(methodNames(), "Rocket||Boat|");
  EXPECT_EQ(region->method[1]->value[0].view(), "5");
  EXPECT_EQ(region->method[1]->active, 1);
  for (const Text& name : state.workMethodName) EXPECT_TRUE(name.isNull());
}

TEST_F(MethodsAtTheEnd, WithoutAFirstNameNoneIsTakenOver) {
  for (const char* first : {static_cast<const char*>(nullptr), ""}) {
    project.methodName = {Text("Air"), Text("Road"), Text("Sea")};
    state.workMethodName = {Text(first), Text("Car"), Text("Boat")};
    end(WizardMode::Methods);
    EXPECT_EQ(methodNames(), "Air|Road|Sea|");
    EXPECT_EQ(state.workMethodName[1].view(), "Car");
  }
}

using TaxAtTheEnd = WizardEndTest;

TEST_F(TaxAtTheEnd, IsCommittedInTheModesNewStoreAndTaxAndInNoOther) {
  for (int mode = 0; mode < 5; ++mode) {
    project.tax = {};
    state.workTaxEnabled = 1;
    state.workTaxOption = kTaxByRegion;
    state.workFreightTaxRate.assign("7.5%");
    state.workFolder.assign(std::string_view("Shop" + std::to_string(mode)));
    end(static_cast<WizardMode>(mode));
    const bool committed = mode == 0 || mode == 4;
    EXPECT_EQ(project.tax.taxEnabled, committed ? 1 : 0) << mode;
    EXPECT_EQ(project.tax.taxOption, committed ? kTaxByRegion : 0) << mode;
    EXPECT_EQ(project.tax.freightTaxRate.view(), committed ? "7.5%" : "") << mode;
  }
}

TEST_F(TaxAtTheEnd, AddingRegionsToAStoreWithoutAFreightRateRemovesEveryRegionsRate) {
  for (const WizardMode mode : {WizardMode::Regions, WizardMode::Methods, WizardMode::Freight}) {
    LoadCurrent(t, "TAXD=1\nTAXO=1\n$AU0,5,,,,,,,,,,,,10,|1\n");
    ASSERT_EQ(project.regions->regionValue.view(), "10");
    WizardStart(t.program, state, mode);
    WizardEnd(t.program, state);
    EXPECT_TRUE(project.regions->regionValue.isNull());
    EXPECT_EQ(project.tax.taxEnabled, 1);
  }
}

TEST_F(TaxAtTheEnd, ChangingTheMethodRemovesTheValuesOfTheOther) {
  FreightRegion* region = AddRegion(project, "AU");
  region->regionValue.assign("10");
  state.workTaxEnabled = 1;
  state.workTaxOption = kTaxByProduct;
  end(WizardMode::Tax);
  EXPECT_TRUE(region->regionValue.isNull());
  region->regionValue.assign("*");
  state.workTaxOption = kTaxByRegion;
  end(WizardMode::Tax);
  EXPECT_TRUE(region->regionValue.isNull());
}

TEST_F(TaxAtTheEnd, WithNoTaxAllRegionValuesAreGoneAndTheFreightRateStaysAsTyped) {
  FreightRegion* region = AddRegion(project, "AU");
  region->regionValue.assign("10");
  state.workTaxEnabled = 0;
  state.workFreightTaxRate.assign("7.5");
  end(WizardMode::Tax);
  EXPECT_TRUE(region->regionValue.isNull());
  EXPECT_EQ(project.tax.freightTaxRate.view(), "7.5");
}

TEST_F(TaxAtTheEnd, AnEmptyRateWritesNoLineAndARegionWithoutValueAnEmptyField) {
  AddRegion(project, "AU");
  state.workTaxEnabled = 1;
  end(WizardMode::Tax);
  const std::string saved = SaveText(t);
  EXPECT_EQ(saved.find("TAXF="), std::string::npos);
  EXPECT_NE(saved.find("TAXD=1"), std::string::npos);
  EXPECT_NE(saved.find("$AU0,,,,,,,,,,,,,,|0"), std::string::npos);
}

using EndOfEveryRun = WizardEndTest;

TEST_F(EndOfEveryRun, MarksTheProjectAndShowsItsForm) {
  for (int mode = 1; mode < 5; ++mode) {
    t.view.calls.clear();
    project.dirty = 0;
    end(static_cast<WizardMode>(mode));
    EXPECT_EQ(project.dirty, 1);
    EXPECT_THAT(t.view.calls, Contains("loadFreightList"));
    EXPECT_THAT(t.view.calls, Contains("loadForm"));
    EXPECT_THAT(t.view.calls, Contains("loadSchemeLists"));
    EXPECT_THAT(t.view.calls, Not(Contains("clearTree")));
    EXPECT_EQ(project.currency.view(), "$");
  }
}

TEST_F(EndOfEveryRun, AVariableOfTheStoreKeepsItFromGettingOne) {
  LoadCurrent(t, "VAR=$OWN|1\n");
  t.view.calls.clear();
  end(WizardMode::Tax);
  EXPECT_EQ(project.variables->name.view(), "$OWN");
  EXPECT_EQ(project.variables->next, nullptr);
  EXPECT_THAT(t.view.calls, Not(Contains("loadVariableList")));
}

TEST_F(EndOfEveryRun, ACurrencyStays) {
  project.currency.assign("EUR");
  end(WizardMode::Tax);
  EXPECT_EQ(project.currency.view(), "EUR");
}

using Cancelled = WizardEndTest;

TEST_F(Cancelled, SkipsAllButTheVariableAndTheLayout) {
  FreightRegion* region = AddRegion(project, "AU");
  region->regionValue.assign("10");
  Serve(region, 0, {{3, "6"}});
  state.workMethodName[0].assign("Rocket");
  state.workFreightTaxRate.assign("5");
  t.view.calls.clear();
  WizardCancel(t.program, state);
  EXPECT_EQ(state.page, WizardPage::Cancelled);
  EXPECT_EQ(region->regionValue.view(), "10");
  EXPECT_EQ(region->method[0]->value[3].view(), "6");
  EXPECT_EQ(methodNames(), "|||");
  EXPECT_TRUE(project.tax.freightTaxRate.isNull());
  EXPECT_TRUE(project.currency.isNull());
  EXPECT_TRUE(project.projectFile.isNull());
  EXPECT_EQ(project.dirty, 0);
  EXPECT_EQ(project.variables->name.view(), "$COPYRIGHT");
  EXPECT_THAT(t.view.calls, ElementsAre("loadVariableList", "loadSchemeLists"));
  EXPECT_THAT(t.screen.posted, ElementsAre(Command::ResizeMainWindow));
}

TEST_F(Cancelled, TheWorkingValuesStayForTheNextRun) {
  state.workPrice.assign("9.50");
  state.workMethodName[0].assign("Rocket");
  WizardCancel(t.program, state);
  EXPECT_EQ(state.workFolder.view(), "Toys");
  EXPECT_EQ(state.workPrice.view(), "9.50");
  EXPECT_EQ(state.workMethodName[0].view(), "Rocket");
}

TEST_F(Cancelled, ANewStoreRunAfterMovingRegionsLeavesThemMovedInTheOpenProject) {
  LoadCurrent(t, "NODE0=Home\nSTITLE=Old\n$AU0,5,,,,,,,,,,,,10,|1\n");
  WizardStart(t.program, state, WizardMode::NewStore);
  RegionTakeTyped(t.program, "Mars");
  WizardCancel(t.program, state);
  EXPECT_EQ(project.storeTitle.view(), "Old");
  EXPECT_EQ(StoreRegions(project).size(), 2U);
}

}  // namespace
}  // namespace varlo
