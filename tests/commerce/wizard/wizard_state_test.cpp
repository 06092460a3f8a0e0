#include "commerce/wizard/wizard_state.h"

#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "persist/life/start_up.h"
#include "tests/support/project_text.h"

namespace varlo {
namespace {

using namespace test;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class WizardStartTest : public testing::Test {
 protected:
  TestProgram t;
  StoreProject& project = t.project();
  WizardState state;

  void start(WizardMode mode = WizardMode::Methods) { WizardStart(t.program, state, mode); }
  void nameMethods(const char* first, const char* second, const char* third) {
    project.methodName = {Text(first), Text(second), Text(third)};
  }
  std::vector<std::string> names() {
    std::vector<std::string> names;
    for (const Text& name : state.workMethodName) names.emplace_back(name.view());
    return names;
  }
};

TEST_F(WizardStartTest, EachModeHasItsFirstPage) {
  const std::pair<WizardMode, WizardPage> pages[] = {{WizardMode::NewStore, WizardPage::Welcome},
                                                     {WizardMode::Freight, WizardPage::FreightStart},
                                                     {WizardMode::Regions, WizardPage::Regions},
                                                     {WizardMode::Methods, WizardPage::Methods},
                                                     {WizardMode::Tax, WizardPage::TaxEnable}};
  for (const auto& [mode, page] : pages) {
    start(mode);
    EXPECT_EQ(state.mode, mode);
    EXPECT_EQ(state.page, page);
  }
}

TEST_F(WizardStartTest, ANewStoreOffersToSaveATitledOne) {
  LoadCurrent(t, "STITLE=Old\nNODE0=Home\n");
  project.dirty = 1;
  start(WizardMode::NewStore);
  ASSERT_THAT(t.screen.boxes, SizeIs(1));
  EXPECT_EQ(t.screen.boxes[0].title, "Varlo PRO - Save Store Confirmation");
  EXPECT_EQ(project.dirty, 1) << "the answer was No";
}

TEST_F(WizardStartTest, WithoutATitleNothingIsOfferedNorInTheOtherModes) {
  project.dirty = 1;
  start(WizardMode::NewStore);
  project.storeTitle.assign("Old");
  for (const WizardMode mode : {WizardMode::Freight, WizardMode::Regions, WizardMode::Methods, WizardMode::Tax}) {
    start(mode);
  }
  EXPECT_THAT(t.screen.boxes, IsEmpty());
}

TEST_F(WizardStartTest, AFreshProgramWithoutNamedMethodsShowsTheThreeDefaults) {
  StartUp(t.program);
  start();
  EXPECT_THAT(names(),
              ElementsAre("Economy Air (2-3 Weeks)", "Express Courier (1-3 Days)", "Surface Mail (3-6 Weeks)"));
}

TEST_F(WizardStartTest, TheNamesOfTheStoreAreLoaded) {
  const std::string longName(300, 'n');
  nameMethods("Air", longName.c_str(), "Sea");
  start();
  EXPECT_THAT(names(), ElementsAre("Air", longName, "Sea"));
}

TEST_F(WizardStartTest, WhereOnlyTheSecondMethodHasNoNameItsDefaultTakesTheFirstPlace) {
  nameMethods("Air", nullptr, "Sea");
  start();
  EXPECT_THAT(names(), ElementsAre("Express Courier (1-3 Days)", "", "Sea"));
  state.workMethodName = {};
  nameMethods("", "", "");
  start();
  EXPECT_THAT(names(), ElementsAre("Express Courier (1-3 Days)", "", "Surface Mail (3-6 Weeks)"));
}

TEST_F(WizardStartTest, NamesThatWereTypedStayForTheNextRun) {
  nameMethods("Air", "Road", "Sea");
  state.workMethodName = {Text("Mine"), Text(""), Text()};
  start();
  EXPECT_THAT(names(), ElementsAre("Mine", "", ""));
}

TEST_F(WizardStartTest, AnEmptiedFirstNameIsLoadedAnew) {
  nameMethods("Air", "Road", "Sea");
  state.workMethodName = {Text(""), Text("Mine"), Text("Mine")};
  start();
  EXPECT_THAT(names(), ElementsAre("Air", "Road", "Sea"));
}

TEST_F(WizardStartTest, MessagesHaveDefaults) {
  start();
  EXPECT_EQ(state.workOrderMessage.view(),
            "This form is running on an Varlo Secure Server.<br>\r\nAll information will be encrypted before "
            "transmission.");
  EXPECT_EQ(state.workConfirmMessage.view(), "Thank you for your order.");
  state.workOrderMessage.assign("mine");
  state.workConfirmMessage.assign("");
  start();
  EXPECT_EQ(state.workOrderMessage.view(), "mine");
  EXPECT_EQ(state.workConfirmMessage.view(), "Thank you for your order.");
}

TEST_F(WizardStartTest, TheTaxValuesStartWithNoTaxAndRegionBased) {
  start();
  EXPECT_EQ(state.workTaxEnabled, 0);
  EXPECT_EQ(state.workTaxOption, kTaxByRegion);
  EXPECT_TRUE(state.workFreightTaxRate.isNull());
}

TEST_F(WizardStartTest, TheTaxValuesOfTheStoreAreLoadedWithItsFreightRate) {
  project.tax = {1, kTaxByProduct, Text("7.5")};
  start();
  EXPECT_EQ(state.workTaxEnabled, 1);
  EXPECT_EQ(state.workTaxOption, kTaxByProduct);
  EXPECT_EQ(state.workFreightTaxRate.view(), "7.5");
}

TEST_F(WizardStartTest, AStoreWithTaxButWithoutAFreightRateDoesNotLoadItsSwitches) {
  for (const char* rate : {static_cast<const char*>(nullptr), ""}) {
    project.tax = {1, kTaxByProduct, Text(rate)};
    start();
    EXPECT_EQ(state.workTaxEnabled, 0);
    EXPECT_EQ(state.workTaxOption, kTaxByRegion);
  }
}

TEST_F(WizardStartTest, ARateOfAnEarlierRunKeepsTheTaxValuesThatStand) {
  project.tax = {1, kTaxByProduct, Text("7.5")};
  state.workFreightTaxRate.assign("3");
  start();
  EXPECT_EQ(state.workTaxEnabled, 0);
  EXPECT_EQ(state.workFreightTaxRate.view(), "3");
}

TEST_F(WizardStartTest, AnEmptiedRateCountsAsAbsentSoTheSwitchesAreLoadedAgain) {
  project.tax = {1, kTaxByProduct, Text("7.5")};
  state.workFreightTaxRate.assign("");
  start();
  EXPECT_EQ(state.workTaxEnabled, 1);
  EXPECT_EQ(state.workFreightTaxRate.view(), "7.5");
}

}  // namespace
}  // namespace varlo
