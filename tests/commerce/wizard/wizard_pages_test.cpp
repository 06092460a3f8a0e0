#include "commerce/wizard/wizard_pages.h"

#include <map>
#include <set>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "commerce/cards/accepted_cards.h"
#include "commerce/freight/freight_rows.h"
#include "commerce/freight/region_lists.h"
#include "commerce/wizard/wizard_end.h"
#include "core/program/scheme.h"
#include "tests/support/freight.h"
#include "tests/support/test_program.h"

namespace varlo {
namespace {

using namespace test;
using testing::ElementsAre;

constexpr std::array<const char*, kWizardPages + 2> kNames{
    "Welcome",        "Folder",   "Title",      "Layout",      "Cards", "Order",     "Confirmation",
    "FreightStart",   "Methods",  "Regions",    "Calculation", "Price", "TaxEnable", "TaxMethod",
    "TaxableRegions", "TaxRates", "FreightTax", "Finish",      "Ended", "Cancelled"};

std::string nameOf(WizardPage page) { return kNames[static_cast<std::size_t>(page)]; }

// What the user chooses on the pages where the way forks.
struct Choices {
  WizardMode mode = WizardMode::NewStore;
  FreightCalculation calculation = FreightCalculation::ByWeight;
  std::int32_t taxEnabled = 0;
  std::int32_t taxOption = 0;
};

// The same ways told once more, by whole paths.
std::string pathOf(const Choices& choices) {
  std::string freight = " Methods Regions Calculation";
  if (choices.calculation == FreightCalculation::PerOrder) freight += " Price";
  std::string tax = " TaxEnable";
  if (choices.taxEnabled == 1) {
    tax += choices.taxOption == 1 ? " TaxMethod TaxRates FreightTax" : " TaxMethod TaxableRegions FreightTax";
  }
  switch (choices.mode) {
    case WizardMode::NewStore:
      return " Welcome Folder Title Layout Cards Order Confirmation" + freight + tax + " Finish Ended";
    case WizardMode::Freight:
      return " FreightStart" + freight + " Ended";
    case WizardMode::Regions:
      return " Regions Ended";
    case WizardMode::Methods:
      return " Methods Ended";
    case WizardMode::Tax:
      return tax + " Ended";
  }
  return {};
}

// The way back from a page ends where this says.
const std::map<WizardMode, std::set<std::string>> kNoWayBack{
    {WizardMode::NewStore, {"Welcome"}}, {WizardMode::Freight, {"FreightStart", "Methods"}},
    {WizardMode::Regions, {"Regions"}},  {WizardMode::Methods, {"Methods"}},
    {WizardMode::Tax, {"TaxEnable"}},
};

std::vector<std::string> wordsOf(const std::string& text) {
  std::vector<std::string> words;
  for (std::size_t at = 1; at < text.size();) {
    const std::size_t end = std::min(text.find(' ', at), text.size());
    words.push_back(text.substr(at, end - at));
    at = end + 1;
  }
  return words;
}

class WizardPages : public testing::Test {
 protected:
  TestProgram t;
  StoreProject& project = t.project();
  WizardState state;

  void start(const Choices& choices) {
    WizardStart(t.program, state, choices.mode);
    state.workCalcMethod = choices.calculation;
    state.workTaxEnabled = choices.taxEnabled;
    state.workTaxOption = choices.taxOption;
  }
  void expectPath(const Choices& choices);
};

void WizardPages::expectPath(const Choices& choices) {
  const std::vector<std::string> path = wordsOf(pathOf(choices));
  start(choices);
  for (std::size_t i = 0; i < path.size(); ++i) {
    ASSERT_EQ(nameOf(state.page), path[i]) << pathOf(choices);
    if (!IsOnPage(state)) break;
    const WizardPage page = state.page;
    const bool canGoBack = kNoWayBack.at(choices.mode).count(path[i]) == 0;
    EXPECT_EQ(IsBackEnabled(state), canGoBack) << path[i];
    WizardBack(state);
    EXPECT_EQ(nameOf(state.page), canGoBack ? path[i - 1] : path[i]);
    WizardCancel(t.program, state);
    EXPECT_EQ(nameOf(state.page), "Cancelled");
    state.page = page;
    WizardNext(t.program, state);
  }
  EXPECT_EQ(nameOf(state.page), "Ended");
}

TEST_F(WizardPages, EveryWayThroughThePagesIsTheOneThatIsTold) {
  for (int mode = 0; mode < 5; ++mode) {
    for (int calculation = 0; calculation < 4; ++calculation) {
      for (const int taxEnabled : {0, 1}) {
        for (const int taxOption : {0, 1}) {
          expectPath(
              {static_cast<WizardMode>(mode), static_cast<FreightCalculation>(calculation), taxEnabled, taxOption});
        }
      }
    }
  }
}

TEST_F(WizardPages, ThePathsMeetEveryPage) {
  std::set<std::string> met;
  for (int i = 0; i < 5 * 4 * 2 * 2; ++i) {
    const Choices choices{static_cast<WizardMode>(i % 5), static_cast<FreightCalculation>(i / 5 % 4), i / 20 % 2,
                          i / 40};
    for (const std::string& page : wordsOf(pathOf(choices))) met.insert(page);
  }
  EXPECT_EQ(met.size(), kWizardPages + 1) << "all pages, and the end";
}

TEST_F(WizardPages, GoingBackFromFinishAfterChoosingNoTaxLandsOnTaxEnable) {
  start({});
  state.page = WizardPage::Finish;
  WizardBack(state);
  EXPECT_EQ(state.page, WizardPage::TaxEnable);
}

TEST_F(WizardPages, InTheFreightModeTheTaxPagesAreNeverShown) {
  for (int calculation = 0; calculation < 4; ++calculation) {
    const Choices choices{WizardMode::Freight, static_cast<FreightCalculation>(calculation), 1, 1};
    EXPECT_EQ(pathOf(choices).find("Tax"), std::string::npos);
    expectPath(choices);
  }
}

TEST_F(WizardPages, ARunThatIsOverGoesNowhere) {
  for (const WizardPage page : {WizardPage::Ended, WizardPage::Cancelled}) {
    state.page = page;
    WizardNext(t.program, state);
    WizardBack(state);
    EXPECT_EQ(state.page, page);
    EXPECT_FALSE(IsBackEnabled(state));
    EXPECT_FALSE(IsNextEnabled(state, project, "text"));
  }
}

TEST_F(WizardPages, FolderTitleAndPriceNeedText) {
  for (const WizardPage page : {WizardPage::Folder, WizardPage::Title, WizardPage::Price}) {
    state.page = page;
    EXPECT_FALSE(IsNextEnabled(state, project, "")) << nameOf(page);
    EXPECT_TRUE(IsNextEnabled(state, project, " ")) << nameOf(page);
    EXPECT_TRUE(IsNextEnabled(state, project, std::string(300, 'x'))) << nameOf(page);
  }
}

TEST_F(WizardPages, WithSetPricePerOrderAndNoPriceNextStaysDisabledOnThePricePage) {
  start({.mode = WizardMode::Freight, .calculation = FreightCalculation::PerOrder});
  for (int i = 0; i < 4; ++i) WizardNext(t.program, state);
  ASSERT_EQ(state.page, WizardPage::Price);
  EXPECT_FALSE(IsNextEnabled(state, project, state.workPrice.view()));
}

TEST_F(WizardPages, WithNoCardsAcceptedTheWizardCanNotGoPastTheirPage) {
  state.page = WizardPage::Cards;
  EXPECT_FALSE(IsNextEnabled(state, project, ""));
  CardAcceptTyped(t.program, "House card");
  EXPECT_TRUE(IsNextEnabled(state, project, ""));
}

TEST_F(WizardPages, TheRegionsPageNeedsARegionInEveryMode) {
  state.page = WizardPage::Regions;
  for (const WizardMode mode : {WizardMode::NewStore, WizardMode::Freight, WizardMode::Regions}) {
    state.mode = mode;
    EXPECT_FALSE(IsNextEnabled(state, project, ""));
    RegionTakeTyped(t.program, "Mars");
    EXPECT_TRUE(IsNextEnabled(state, project, ""));
    RegionsRemove(t.program, StoreRegions(project));
  }
}

TEST_F(WizardPages, OnlyTheLoneRegionsDialogLooksOnce) {
  for (int mode = 0; mode < 5; ++mode) {
    state.mode = static_cast<WizardMode>(mode);
    EXPECT_EQ(IsNextRechecked(state), state.mode != WizardMode::Regions);
  }
}

TEST_F(WizardPages, EveryOtherPageCanBeLeftForwardsAtOnce) {
  const std::set<WizardPage> withRule{WizardPage::Folder, WizardPage::Title, WizardPage::Price, WizardPage::Cards,
                                      WizardPage::Regions};
  for (std::size_t i = 0; i < kWizardPages; ++i) {
    state.page = static_cast<WizardPage>(i);
    EXPECT_EQ(IsNextEnabled(state, project, ""), withRule.count(state.page) == 0) << nameOf(state.page);
  }
}

TEST_F(WizardPages, HelpHeadingsKeepTheirSpelling) {
  EXPECT_EQ(RowOf(WizardPage::FreightStart).heading, "Frieght Wizard");
  EXPECT_EQ(RowOf(WizardPage::Regions).heading, "Countries");
  EXPECT_EQ(RowOf(WizardPage::Finish).heading, "Finished");
  for (std::size_t i = 0; i < kWizardPages; ++i) EXPECT_FALSE(RowOf(static_cast<WizardPage>(i)).heading.empty());
}

TEST_F(WizardPages, LeavingTheLayoutPageForwardsSetsTheSchemeAtOnce) {
  Scheme scheme;
  t.config().currentScheme = &scheme;
  state.page = WizardPage::Layout;
  WizardBack(state);
  EXPECT_EQ(project.projectScheme, nullptr);
  WizardNext(t.program, state);
  ASSERT_EQ(state.page, WizardPage::Layout);
  EXPECT_EQ(project.projectScheme, nullptr);
  WizardNext(t.program, state);
  WizardCancel(t.program, state);
  EXPECT_EQ(project.projectScheme, &scheme) << "it stays when the run is cancelled";
  t.config().currentScheme = project.projectScheme = nullptr;
}

TEST_F(WizardPages, TheTaxListsLoseWhatDoesNotFitAsTheyOpen) {
  AddRegion(project, "A")->regionValue.assign("*");
  AddRegion(project, "B")->regionValue.assign("10");
  state.workTaxEnabled = 1;
  state.workTaxOption = kTaxByProduct;
  state.page = WizardPage::TaxMethod;
  WizardOpenPage(t.program, state);
  EXPECT_EQ(project.regions->next->regionValue.view(), "10");
  state.page = WizardPage::TaxableRegions;
  WizardOpenPage(t.program, state);
  EXPECT_EQ(project.regions->regionValue.view(), "*");
  EXPECT_TRUE(project.regions->next->regionValue.isNull());
  WizardCancel(t.program, state);
  EXPECT_TRUE(project.regions->next->regionValue.isNull()) << "it stays when the run is cancelled";
  state.workTaxOption = kTaxByRegion;
  state.page = WizardPage::TaxRates;
  WizardOpenPage(t.program, state);
  EXPECT_TRUE(project.regions->regionValue.isNull());
}

TEST(FilteredFolderName, AFolderNameTypedWithAColonLosesThatCharacterAtOnce) {
  EXPECT_EQ(FilteredFolderName("C:shop"), "Cshop");
}

TEST(FilteredFolderName, LosesSlashesCommasAndColons) {
  EXPECT_EQ(FilteredFolderName("/a\\b,c;d:e"), "abcde");
  EXPECT_EQ(FilteredFolderName("My Shop_v1.2 (\xE9)"), "My Shop_v1.2 (\xE9)");
  EXPECT_EQ(FilteredFolderName(";;"), "");
  EXPECT_EQ(FilteredFolderName(""), "");
}

}  // namespace
}  // namespace varlo
