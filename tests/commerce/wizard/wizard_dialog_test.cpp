#include "commerce/wizard/wizard_dialog.h"

#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "commerce/cards/card_page.h"
#include "commerce/freight/freight_rows.h"
#include "commerce/freight/region_lists.h"
#include "commerce/freight/region_page.h"
#include "commerce/tax/tax_options_dialog.h"
#include "commerce/tax/tax_pages.h"
#include "core/program/scheme.h"
#include "core/store/card_entry.h"
#include "core/store/record.h"
#include "tests/support/freight.h"
#include "tests/support/project_text.h"
#include "tests/support/tree.h"
#include "tests/support/wizard_user.h"

namespace varlo {
namespace {

using namespace test;
using namespace wizard;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

class WizardWindow : public testing::Test {
 protected:
  TestProgram t;
  StoreProject& project = t.project();
  WizardState state;

  void SetUp() override {
    t.files.putFolder("Projects");
    t.files.put("template\\order.dat", "shipped order");
    t.files.put("template\\confirm.dat", "shipped confirm");
    SchemeStyle* style = t.config().schemeStyles = SchemeInit(nullptr);
    style->name.assign("Plain");
    style->schemes = SchemeInit(nullptr);
    style->schemes->name.assign("White");
    style->schemes->prev = style;
    for (const char* name : {"Visa", "JCB"}) {
      CardEntry* card = CardEntryInit(nullptr);
      card->name.assign(name);
      RecordAppend(t.config().cardCatalogue, t.config().cardCatalogueTail, card);
    }
    for (const char* name : {"Australia", "Brazil"}) {
      FreightRegion* region = FreightRegionMake();
      region->name.assign(name);
      region->code.assign(name);
      RecordAppend(t.config().regionCatalogue, t.config().regionCatalogueTail, region);
    }
  }
  void run(WizardMode mode, WizardUser user) {
    PlayUser(t.screen, std::move(user));
    RunWizard(t.program, state, mode);
  }
  // Runs the wizard as far as a page, and hands that over; then it is cancelled.
  void onPage(WizardPage page, const WizardUser& user) {
    state.page = page;
    WizardDialog logic(t.program, state);
    FakeWindow window(logic);
    window.open();
    user(window);
  }
  std::string page() const { return std::to_string(static_cast<int>(state.page)); }
};

TEST_F(WizardWindow, AWholeRunMakesAStoreOfWhatWasTyped) {
  run(WizardMode::NewStore, [&](FakeWindow& window) {
    EXPECT_EQ(window.focused(), kNext);
    EXPECT_FALSE(window.isEnabled(kBack));
    window.pressReturn();
    EXPECT_EQ(window.focused(), kFolder);
    EXPECT_FALSE(window.isEnabled(kNext));
    window.type(kFolder, "To:ys");
    window.pressReturn();
    EXPECT_EQ(window.focused(), kTitle);
    window.type(kTitle, "The Toy Shop");
    GoOn(window);
    window.pickRow(kStyles, 0);
    GoOn(window);
    EXPECT_FALSE(window.isEnabled(kNext)) << "no card is accepted";
    EXPECT_EQ(window.focused(), cards::kKnown);
    window.pickRow(cards::kKnown, 1);
    window.press(cards::kAdd);
    EXPECT_TRUE(window.isEnabled(kNext));
    GoOn(window);
    window.type(kOrderMessage, "call us");
    GoOn(window);
    window.type(kConfirmMessage, "thanks");
    GoOn(window);
    window.type(kMethod1, "Post");
    GoOn(window);
    EXPECT_FALSE(window.isEnabled(kNext)) << "no region is selected";
    EXPECT_EQ(window.focused(), regions::kOffered);
    window.pickRows(regions::kOffered, {0, 1});
    window.press(regions::kAdd);
    GoOn(window);
    window.press(kPerOrder);
    GoOn(window);
    EXPECT_FALSE(window.isEnabled(kNext)) << "no price is typed";
    EXPECT_EQ(window.focused(), kPrice);
    window.type(kPrice, "9.50");
    GoOn(window);
    window.press(kTaxOn);
    GoOn(window);
    window.press(kRegionTax);
    GoOn(window);
    window.type(tax_rates::kRate, "10");
    GoOn(window);
    window.type(kFreightRate, "5");
    GoOn(window);
    EXPECT_EQ(window.focused(), kNext);
    EXPECT_EQ(window.text(kNext), "&Finish");
    GoOn(window);
    EXPECT_FALSE(window.isOpen());
  });
  EXPECT_STREQ(project.projectFile.get(), "C:\\Varlo\\Projects\\Toys\\Toys.stp");
  EXPECT_EQ(TreeText(project), "The Toy Shop");
  EXPECT_EQ(project.acceptedCards->name.view(), "JCB");
  EXPECT_EQ(project.orderMessage.view(), "call us");
  EXPECT_EQ(project.confirmMessage.view(), "thanks");
  EXPECT_EQ(project.methodName[0].view(), "Post");
  EXPECT_EQ(FreightCellText(project, *project.regions, 1), "9.50");
  EXPECT_EQ(FreightCellText(project, *project.regions, kTaxColumn), "10");
  EXPECT_EQ(FreightCellText(project, *project.regions->next, kTaxColumn), "");
  EXPECT_EQ(project.tax.freightTaxRate.view(), "5");
  EXPECT_EQ(project.tax.taxEnabled, 1);
  EXPECT_EQ(project.projectScheme, t.config().schemeStyles->schemes);
  EXPECT_THAT(t.screen.boxes, IsEmpty());
}

TEST_F(WizardWindow, TheFolderFieldLosesWhatItMustNotHoldAndTheCaretGoesToTheEnd) {
  onPage(WizardPage::Folder, [&](FakeWindow& window) {
    window.type(kFolder, "a/b\\c,d;e:f");
    EXPECT_EQ(window.text(kFolder), "abcdef");
    EXPECT_TRUE(window.caretAtEnd(kFolder));
    window.type(kFolder, ":");
    EXPECT_EQ(window.text(kFolder), "");
    EXPECT_FALSE(window.isEnabled(kNext));
    window.type(kFolder, std::string(300, 'f'));
    EXPECT_TRUE(window.isEnabled(kNext));
  });
}

TEST_F(WizardWindow, NextAndBackKeepWhatWasTypedAndCancelDropsIt) {
  run(WizardMode::NewStore, [&](FakeWindow& window) {
    GoOn(window);
    window.type(kFolder, "Toys");
    GoBack(window);
    EXPECT_EQ(state.workFolder.view(), "Toys");
    GoOn(window);
    EXPECT_EQ(window.text(kFolder), "Toys");
    window.type(kFolder, "Books");
    window.press(kCancel);
  });
  EXPECT_EQ(state.workFolder.view(), "Toys");
  EXPECT_EQ(state.page, WizardPage::Cancelled);
  EXPECT_TRUE(project.projectFile.isNull());
}

TEST_F(WizardWindow, ADisabledNextOrBackDoesNothingByKeysEither) {
  run(WizardMode::NewStore, [&](FakeWindow& window) {
    window.press(kBack);
    EXPECT_EQ(state.page, WizardPage::Welcome);
    GoOn(window);
    window.pressReturn();
    EXPECT_EQ(state.page, WizardPage::Folder);
  });
}

TEST_F(WizardWindow, TheCloseBoxCancels) {
  project.methodName = {Text("Air"), Text("Road"), Text("Sea")};
  run(WizardMode::Freight, [&](FakeWindow& window) {
    GoOn(window);
    window.type(kMethod1, "typed");
    window.close();
    EXPECT_FALSE(window.isOpen());
  });
  EXPECT_EQ(state.page, WizardPage::Cancelled);
  EXPECT_EQ(state.workMethodName[0].view(), "Air");
}

TEST_F(WizardWindow, AWindowThatCanNotBeShownIsACancelledRun) {
  t.screen.onDialog = {};
  RunWizard(t.program, state, WizardMode::Tax);
  EXPECT_EQ(state.page, WizardPage::Cancelled);
  EXPECT_EQ(project.dirty, 0);
}

TEST_F(WizardWindow, HelpIsThatOfThePageAndOfEachField) {
  onPage(WizardPage::Title, [&](FakeWindow& window) {
    EXPECT_THAT(t.view.calls, Contains("showHelp " + std::to_string(kFirstWindow + 2)));
    EXPECT_THAT(t.view.calls, Contains("showHelp " + std::to_string(kTitle)));
    window.press(kHelp);
    EXPECT_THAT(t.view.calls, Contains("openHelpPane " + std::to_string(kFirstWindow + 2)));
  });
}

TEST_F(WizardWindow, TheExplanationFollowsTheRadioButton) {
  onPage(WizardPage::Calculation, [&](FakeWindow& window) {
    EXPECT_TRUE(window.isChecked(kByWeight));
    for (const ControlId radio : {kNoCharge, kPerItem, kByWeight, kPerOrder}) {
      window.press(radio);
      const auto number = static_cast<std::size_t>(radio - kByWeight);
      EXPECT_EQ(window.text(kExplanation), kFreightCalculations[number].explanation);
    }
    EXPECT_EQ(state.workCalcMethod, FreightCalculation::ByWeight) << "until Next or Back";
    GoOn(window);
    EXPECT_EQ(state.workCalcMethod, FreightCalculation::PerOrder);
    EXPECT_EQ(state.page, WizardPage::Price);
    GoBack(window);
    EXPECT_TRUE(window.isChecked(kPerOrder));
    EXPECT_EQ(window.text(kExplanation), kFreightCalculations[2].explanation);
  });
}

TEST_F(WizardWindow, ThePriceIsRecheckedOnEveryEdit) {
  state.workCalcMethod = FreightCalculation::PerOrder;
  onPage(WizardPage::Price, [&](FakeWindow& window) {
    EXPECT_FALSE(window.isEnabled(kNext));
    window.type(kPrice, "9 or so");
    EXPECT_TRUE(window.isEnabled(kNext));
    window.type(kPrice, "");
    EXPECT_FALSE(window.isEnabled(kNext));
  });
}

TEST_F(WizardWindow, CardsAndRegionsAreRecheckedAfterEachMove) {
  onPage(WizardPage::Cards, [&](FakeWindow& window) {
    window.pickRow(cards::kKnown, 0);
    window.press(cards::kAdd);
    EXPECT_TRUE(window.isEnabled(kNext));
    window.pickRow(cards::kAccepted, 0);
    window.press(cards::kRemove);
    EXPECT_FALSE(window.isEnabled(kNext));
    EXPECT_EQ(window.mark(cards::kKnown, 0), 3);
    EXPECT_EQ(window.cell(cards::kKnown, 0, 0), "Visa");
  });
  onPage(WizardPage::Regions, [&](FakeWindow& window) {
    window.type(regions::kOther, "Mars");
    window.press(regions::kAddOther);
    EXPECT_TRUE(window.isEnabled(kNext));
    window.pickRow(regions::kStore, 0);
    window.pressKey(regions::kStore, Key::Delete);
    EXPECT_FALSE(window.isEnabled(kNext));
    EXPECT_EQ(window.mark(regions::kOffered, 0), 4);
    EXPECT_EQ(window.cell(regions::kOffered, 0, 0), "Australia");
  });
}

TEST_F(WizardWindow, TheLoneRegionsDialogLooksAtItsRuleOnceAtOpening) {
  run(WizardMode::Regions, [&](FakeWindow& window) {
    EXPECT_EQ(window.title(), "Add/Remove Freight Regions");
    EXPECT_FALSE(window.isEnabled(kOk));
    EXPECT_EQ(window.focused(), regions::kOffered);
    window.type(regions::kOther, "Mars");
    window.press(regions::kAddOther);
    EXPECT_FALSE(window.isEnabled(kOk)) << "it stays grey";
    window.pressReturn();
    EXPECT_TRUE(window.isOpen());
    window.press(kCancel);
  });
  EXPECT_EQ(state.page, WizardPage::Cancelled);
  EXPECT_EQ(project.regions->name.view(), "Mars") << "what was moved stays";
  project.dirty = 0;
  run(WizardMode::Regions, [&](FakeWindow& window) {
    EXPECT_TRUE(window.isEnabled(kOk));
    EXPECT_EQ(window.focused(), kOk);
    window.pickRow(regions::kStore, 0);
    window.press(regions::kRemove);
    EXPECT_TRUE(window.isEnabled(kOk)) << "it stays live";
    window.press(kOk);
    EXPECT_FALSE(window.isOpen());
  });
  EXPECT_EQ(state.page, WizardPage::Ended);
  EXPECT_EQ(project.regions, nullptr);
  EXPECT_EQ(project.dirty, 1);
}

TEST_F(WizardWindow, TheLoneMethodsDialogReplacesTheNames) {
  project.methodName = {Text("Air"), Text("Road"), Text("Sea")};
  run(WizardMode::Methods, [&](FakeWindow& window) {
    EXPECT_EQ(window.title(), "Delivery Methods");
    EXPECT_EQ(window.text(kMethod2), "Road");
    window.type(kMethod2, "");
    window.type(kMethod3, std::string(300, 's'));
    window.pressReturn();
  });
  EXPECT_EQ(project.methodName[0].view(), "Air");
  EXPECT_EQ(project.methodName[1].view(), "");
  EXPECT_EQ(project.methodName[2].view(), std::string(300, 's'));
}

TEST_F(WizardWindow, TheTaxPagesMarkAndStoreTheRegions) {
  AddRegion(project, "Australia")->regionValue.assign("10");
  AddRegion(project, "Brazil");
  run(WizardMode::Tax, [&](FakeWindow& window) {
    EXPECT_FALSE(window.isEnabled(kBack));
    EXPECT_TRUE(window.isChecked(kTaxOff));
    window.press(kTaxOn);
    GoOn(window);
    EXPECT_TRUE(window.isChecked(kRegionTax)) << "region based is chosen beforehand";
    window.press(kProductTax);
    GoOn(window);
    EXPECT_TRUE(project.regions->regionValue.isNull()) << "a rate does not fit";
    window.pickRow(taxable::kRegions, 1);
    window.press(taxable::kTaxable);
    EXPECT_EQ(window.mark(taxable::kRegions, 1), 30);
    GoBack(window);
    EXPECT_TRUE(window.isChecked(kProductTax));
    GoOn(window, 2);
    window.type(kFreightRate, "");
    GoOn(window);
    EXPECT_FALSE(window.isOpen());
  });
  EXPECT_EQ(project.regions->next->regionValue.view(), "*");
  EXPECT_EQ(project.tax.taxEnabled, 1);
  EXPECT_EQ(project.tax.taxOption, kTaxByProduct);
}

TEST_F(WizardWindow, WithNoTaxTheTaxModeEndsAtOnce) {
  AddRegion(project, "Australia")->regionValue.assign("10");
  run(WizardMode::Tax, [&](FakeWindow& window) {
    GoOn(window);
    EXPECT_FALSE(window.isOpen());
  });
  EXPECT_TRUE(project.regions->regionValue.isNull());
}

TEST_F(WizardWindow, LeavingTheRatesByBackStoresTheFieldToo) {
  AddRegion(project, "Australia");
  state.workTaxEnabled = 1;
  onPage(WizardPage::TaxRates, [&](FakeWindow& window) {
    window.doubleClickRow(tax_rates::kRegions, 0);
    EXPECT_EQ(window.cell(tax_rates::kRegions, 0, 1), "*");
    window.type(tax_rates::kRate, "12");
    GoBack(window);
  });
  EXPECT_EQ(project.regions->regionValue.view(), "12");
}

TEST_F(WizardWindow, FromEveryPageThereIsAWayOut) {
  AddRegion(project, "Australia");
  for (std::size_t i = 0; i < kWizardPages; ++i) {
    onPage(static_cast<WizardPage>(i), [&](FakeWindow& window) {
      EXPECT_TRUE(window.isEnabled(kCancel)) << i;
      EXPECT_NE(window.focused(), 0) << i;
      EXPECT_TRUE(window.isEnabled(window.focused())) << i;
      window.press(kCancel);
      EXPECT_FALSE(window.isOpen()) << i;
    });
  }
}

TEST_F(WizardWindow, NoticesAfterTheEndOfARunReachNothing) {
  WizardStart(t.program, state, WizardMode::Tax);
  WizardDialog logic(t.program, state);
  FakeWindow window(logic);
  window.open();
  GoOn(window);
  ASSERT_EQ(state.page, WizardPage::Ended);
  logic.notified(window, {.control = kNext, .notice = Notice::Clicked});
  EXPECT_EQ(logic.cellText(taxable::kRegions, 0, 0), "");
  EXPECT_EQ(logic.rowMark(taxable::kRegions, 0), 0);
  EXPECT_EQ(state.page, WizardPage::Ended);
}

TEST_F(WizardWindow, TaxOptionsRunsTheTaxPagesAndShowsWhatTheyLeft) {
  AddRegion(project, "Australia");
  int depth = 0;
  t.screen.onDialog = [&](DialogLogic& logic) {
    FakeWindow window(logic);
    window.open();
    if (depth++ == 0) {
      window.press(tax_options::kEdit);
      EXPECT_TRUE(window.isChecked(tax_options::kByRegion));
      EXPECT_EQ(window.cell(tax_options::kRegions, 0, 1), "12");
      EXPECT_EQ(window.text(tax_options::kFreightRate), "3");
    } else {
      window.press(kTaxOn);
      GoOn(window, 2);
      window.type(tax_rates::kRate, "12");
      GoOn(window);
      window.type(kFreightRate, "3");
      GoOn(window);
    }
    return window.result();
  };
  ShowTaxOptions(t.program, state);
  EXPECT_EQ(depth, 2);
}

}  // namespace
}  // namespace varlo
