#include "commerce/tax/tax_pages.h"

#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/item_images.h"
#include "tests/support/fake_window.h"
#include "tests/support/freight.h"
#include "tests/support/test_program.h"

namespace varlo {
namespace {

using namespace test;
using testing::ElementsAre;
using testing::IsEmpty;

// A window with nothing but one of the pages.
class TaxWindow : public DialogLogic {
 public:
  TaxWindow(Program& program, bool rates) : page(program), rates_(rates) {}
  [[nodiscard]] const DialogShape& shape() const override {
    static constexpr DialogShape kTaxable{.size = {480, 300}, .rows = taxable::kRows};
    static constexpr DialogShape kRates{.size = {480, 300}, .rows = tax_rates::kRows};
    return rates_ ? kRates : kTaxable;
  }
  void opened(Dialog& dialog) override { rates_ ? TaxRatesPageOpen(page, dialog) : TaxablePageOpen(page, dialog); }
  void notified(Dialog& dialog, const ControlEvent& event) override {
    rates_ ? TaxRatesPageControl(page, dialog, event) : TaxablePageControl(page, dialog, event);
  }
  std::string cellText(ControlId /*list*/, int row, int column) override { return TaxPageText(page, row, column); }
  int rowMark(ControlId /*list*/, int row) override { return TaxPageMark(page, row); }

  TaxPage page;

 private:
  bool rates_;
};

class TaxPages : public testing::Test {
 protected:
  TestProgram t;
  StoreProject& project = t.project();
  FreightRegion* be = taxed("Belgium", "*");
  FreightRegion* au = taxed("Australia", nullptr);
  FreightRegion* cl = taxed("Chile", "*");

  FreightRegion* taxed(const char* name, const char* value) {
    FreightRegion* region = AddRegion(project, name);
    region->regionValue.assign(value);
    return region;
  }
};

class TaxablePage : public TaxPages {
 protected:
  TaxWindow logic{t.program, false};
  FakeWindow window{logic};
  void SetUp() override { window.open(); }
};

TEST_F(TaxablePage, OpensOnTheFirstRegion) {
  EXPECT_THAT(window.headings(taxable::kRegions), ElementsAre("Region"));
  EXPECT_EQ(window.rowCount(taxable::kRegions), 3);
  EXPECT_TRUE(window.isChecked(taxable::kTaxable));
}

TEST_F(TaxablePage, TheCheckBoxShowsAndSetsTheSelectedRegion) {
  window.pickRow(taxable::kRegions, 1);
  EXPECT_FALSE(window.isChecked(taxable::kTaxable));
  window.press(taxable::kTaxable);
  EXPECT_EQ(au->regionValue.view(), "*");
  EXPECT_EQ(window.mark(taxable::kRegions, 1), item_image::kTickedBox);
  EXPECT_EQ(window.rowRepaints(taxable::kRegions, 1), 1);
  window.press(taxable::kTaxable);
  EXPECT_TRUE(au->regionValue.isNull());
  EXPECT_EQ(window.mark(taxable::kRegions, 1), item_image::kEmptyBox);
}

TEST_F(TaxablePage, ADoubleClickTogglesTheRegion) {
  window.doubleClickRow(taxable::kRegions, 2);
  EXPECT_TRUE(cl->regionValue.isNull());
  EXPECT_FALSE(window.isChecked(taxable::kTaxable));
  window.doubleClickRow(taxable::kRegions, 2);
  EXPECT_EQ(cl->regionValue.view(), "*");
  EXPECT_TRUE(window.isChecked(taxable::kTaxable));
  window.doubleClickRow(taxable::kRegions, kNoRow);
  EXPECT_EQ(cl->regionValue.view(), "*");
}

TEST_F(TaxablePage, WithoutASelectionTheCheckBoxIsGrey) {
  window.pickRow(taxable::kRegions, kNoRow);
  EXPECT_FALSE(window.isEnabled(taxable::kTaxable));
  EXPECT_EQ(be->regionValue.view(), "*");
}

TEST_F(TaxablePage, AClickOnTheHeadingSortsByName) {
  window.clickHeading(taxable::kRegions, 0);
  EXPECT_THAT(window.displayOrder(taxable::kRegions), ElementsAre(1, 0, 2));
  window.pickRow(taxable::kRegions, 1);
  window.press(taxable::kTaxable);
  EXPECT_EQ(au->regionValue.view(), "*") << "a row keeps its number";
}

TEST_F(TaxPages, AStoreWithoutRegionsShowsEmptyLists) {
  TestProgram empty;
  for (const bool rates : {false, true}) {
    TaxWindow logic(empty.program, rates);
    FakeWindow window(logic);
    window.open();
    EXPECT_FALSE(window.isEnabled(rates ? static_cast<ControlId>(tax_rates::kRate) : taxable::kTaxable));
    TaxRatesPageLeave(logic.page, window);
  }
}

class TaxRatesPage : public TaxPages {
 protected:
  TaxWindow logic{t.program, true};
  FakeWindow window{logic};
  void SetUp() override {
    be->regionValue.assign("21");
    cl->regionValue.assign("9.5%");
    window.open();
  }
  std::vector<std::string> column(int number) {
    std::vector<std::string> cells;
    for (int row = 0; row < 3; ++row) cells.push_back(window.cell(tax_rates::kRegions, row, number));
    return cells;
  }
};

TEST_F(TaxRatesPage, ShowsADashForARegionWithoutAValue) {
  EXPECT_THAT(window.headings(tax_rates::kRegions), ElementsAre("Region", "Tax"));
  EXPECT_THAT(column(0), ElementsAre("Belgium", "Australia", "Chile"));
  EXPECT_THAT(column(1), ElementsAre("21", "-", "9.5%"));
  EXPECT_EQ(window.text(tax_rates::kRate), "21");
}

TEST_F(TaxRatesPage, AnotherRowStoresTheRateOfTheOneBefore) {
  const std::string rate(300, '7');
  window.type(tax_rates::kRate, rate);
  EXPECT_EQ(be->regionValue.view(), "21") << "typing alone stores nothing";
  window.pickRow(tax_rates::kRegions, 1);
  EXPECT_EQ(be->regionValue.view(), rate);
  EXPECT_EQ(window.text(tax_rates::kRate), "");
  window.type(tax_rates::kRate, "ten per cent");
  TaxRatesPageLeave(logic.page, window);
  EXPECT_EQ(au->regionValue.view(), "ten per cent") << "rates are not validated";
}

TEST_F(TaxRatesPage, AnEmptyTextStaysAsAnEmptyValue) {
  window.type(tax_rates::kRate, "");
  window.pickRow(tax_rates::kRegions, 2);
  EXPECT_FALSE(be->regionValue.isNull());
  EXPECT_EQ(be->regionValue.view(), "");
  EXPECT_THAT(column(1), ElementsAre("-", "-", "9.5%"));
}

TEST_F(TaxRatesPage, ADoubleClickWritesAStarThatLastsUntilTheSelectionMoves) {
  window.doubleClickRow(tax_rates::kRegions, 1);
  EXPECT_EQ(au->regionValue.view(), "*");
  EXPECT_THAT(column(1), ElementsAre("21", "*", "9.5%"));
  window.pickRow(tax_rates::kRegions, 0);
  EXPECT_EQ(au->regionValue.view(), "");
  EXPECT_THAT(column(1), ElementsAre("21", "-", "9.5%"));
}

TEST_F(TaxRatesPage, ADoubleClickTakesARateAwayUntilThePageIsLeft) {
  window.doubleClickRow(tax_rates::kRegions, 2);
  EXPECT_TRUE(cl->regionValue.isNull());
  TaxRatesPageLeave(logic.page, window);
  EXPECT_EQ(cl->regionValue.view(), "9.5%");
}

TEST_F(TaxRatesPage, SortsByNameAndByValueTheGreaterFirst) {
  window.clickHeading(tax_rates::kRegions, 1);
  EXPECT_THAT(window.displayOrder(tax_rates::kRegions), ElementsAre(0, 2, 1));
  window.clickHeading(tax_rates::kRegions, 0);
  EXPECT_THAT(window.displayOrder(tax_rates::kRegions), ElementsAre(1, 0, 2));
}

TEST_F(TaxRatesPage, WithoutASelectionNothingIsStored) {
  window.pickRow(tax_rates::kRegions, kNoRow);
  EXPECT_FALSE(window.isEnabled(tax_rates::kRate));
  TaxRatesPageLeave(logic.page, window);
  EXPECT_EQ(be->regionValue.view(), "21");
}

}  // namespace
}  // namespace varlo
