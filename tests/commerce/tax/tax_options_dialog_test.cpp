#include "commerce/tax/tax_options_dialog.h"

#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "commerce/tax/tax_settings.h"
#include "tests/support/fake_window.h"
#include "tests/support/freight.h"
#include "tests/support/test_program.h"

namespace varlo {
namespace {

using namespace test;
using namespace tax_options;
using testing::Contains;
using testing::ElementsAre;
using testing::SizeIs;

class TaxOptions : public testing::Test {
 protected:
  TestProgram t;
  StoreProject& project = t.project();
  int wizards = 0;
  std::function<void()> inWizard;
  TaxOptionsDialog logic{t.program, [this] {
                           ++wizards;
                           if (inWizard) inWizard();
                         }};
  FakeWindow window{logic};

  void SetUp() override {
    AddRegion(project, "Australia")->regionValue.assign("10");
    AddRegion(project, "Brazil");
    project.tax = {1, kTaxByRegion, Text("7.5")};
    window.open();
  }
  std::string choice() {
    std::string text;
    for (const ControlId radio : {kNoTax, kByProduct, kByRegion}) text += window.isChecked(radio) ? "x" : "-";
    return text;
  }
};

TEST_F(TaxOptions, ShowsTheSettings) {
  EXPECT_EQ(window.describe(),
            "[Tax Options]\n"
            "list 'Region' 2 rows\n"
            "group 'Tax on Freight'\n"
            "edit \"7.5\"\n"
            "group 'Tax Calculation Method:'\n"
            "radio 'No Tax' [ ]\n"
            "radio 'Product Based' [ ]\n"
            "radio 'Region based:' [x]\n"
            "button '&OK' default focused\n"
            "button '&Edit'\n"
            "button '&Cancel'\n"
            "button '&Help'\n");
  EXPECT_THAT(window.headings(kRegions), ElementsAre("Region", "Tax"));
  EXPECT_EQ(window.cell(kRegions, 0, 0), "Australia");
  EXPECT_EQ(window.cell(kRegions, 0, 1), "10");
  EXPECT_EQ(window.cell(kRegions, 1, 1), "") << "nothing, where the wizard's page has a dash";
}

TEST_F(TaxOptions, TheChoiceFollowsTheSwitches) {
  const std::pair<TaxSettings, const char*> cases[] = {{{0, kTaxByRegion, {}}, "x--"},
                                                       {{0, kTaxByProduct, {}}, "x--"},
                                                       {{1, kTaxByProduct, {}}, "-x-"},
                                                       {{1, kTaxByRegion, {}}, "--x"},
                                                       {{-1, 7, {}}, "--x"}};
  for (const auto& [tax, expected] : cases) {
    project.tax = tax;
    window.press(kEdit);
    EXPECT_EQ(choice(), expected);
  }
}

TEST_F(TaxOptions, AClickOnAChoiceAsksAndChangesNothingByItself) {
  t.screen.answers = {Answer::No};
  window.press(kNoTax);
  ASSERT_THAT(t.screen.boxes, SizeIs(1));
  EXPECT_EQ(t.screen.boxes[0], (ShownBox{"Would you like to change the current tax settings?", "Confirmation",
                                         Buttons::YesNo, Icon::Question}));
  EXPECT_EQ(choice(), "--x");
  EXPECT_EQ(project.tax.taxEnabled, 1);
  EXPECT_EQ(wizards, 0);
}

TEST_F(TaxOptions, YesRunsTheTaxPagesAndShowsWhatTheyLeft) {
  t.screen.answers = {Answer::Yes};
  inWizard = [this] { project.tax = {1, kTaxByProduct, Text("3")}; };
  window.type(kFreightRate, "typed");
  window.press(kNoTax);
  EXPECT_EQ(wizards, 1);
  EXPECT_EQ(choice(), "-x-");
  EXPECT_EQ(window.text(kFreightRate), "3");
}

TEST_F(TaxOptions, WhileItAsksASecondQuestionDoesNotOpen) {
  t.screen.answers = {Answer::Yes};
  inWizard = [this] { window.press(kByProduct); };
  window.press(kNoTax);
  EXPECT_THAT(t.screen.boxes, SizeIs(1));
  inWizard = {};
  window.press(kByProduct);
  EXPECT_THAT(t.screen.boxes, SizeIs(2));
}

TEST_F(TaxOptions, EditRunsTheTaxPagesWithoutAQuestion) {
  inWizard = [this] { AddRegion(project, "Chile")->regionValue.assign("5"); };
  window.press(kEdit);
  EXPECT_THAT(t.screen.boxes, SizeIs(0));
  EXPECT_EQ(wizards, 1);
  EXPECT_EQ(window.rowCount(kRegions), 3);
}

TEST_F(TaxOptions, OkStoresTheRateEvenIfEmpty) {
  window.type(kFreightRate, "");
  window.press(kOk);
  EXPECT_FALSE(window.isOpen());
  EXPECT_FALSE(project.tax.freightTaxRate.isSet());
  EXPECT_EQ(project.dirty, 1);
}

TEST_F(TaxOptions, OkStoresTextsOfEveryLength) {
  window.type(kFreightRate, std::string(300, '7'));
  window.pressReturn();
  EXPECT_EQ(project.tax.freightTaxRate.view(), std::string(300, '7'));
}

TEST_F(TaxOptions, CancelKeepsTheRateAndWhatTheWizardDid) {
  inWizard = [this] { project.tax.taxOption = kTaxByProduct; };
  window.press(kEdit);
  window.type(kFreightRate, "typed");
  window.press(kCancel);
  EXPECT_FALSE(window.isOpen());
  EXPECT_EQ(project.tax.freightTaxRate.view(), "7.5");
  EXPECT_EQ(project.tax.taxOption, kTaxByProduct);
  EXPECT_EQ(project.dirty, 0);
}

TEST_F(TaxOptions, HelpShowsItsTopic) {
  window.press(kHelp);
  EXPECT_THAT(t.view.calls, Contains("openHelpPane " + std::to_string(kWindow)));
}

}  // namespace
}  // namespace varlo
