#include "commerce/freight/freight_calculation.h"

#include <gtest/gtest.h>

#include "tests/support/freight.h"
#include "tests/support/test_program.h"

namespace varlo {
namespace {

using namespace test;

class FreightCalculations : public testing::Test {
 protected:
  TestProgram t;
  StoreProject& project = t.project();
  FreightRegion* au = AddRegion(project, "AU");
  FreightRegion* nz = AddRegion(project, "NZ");

  void SetUp() override {
    for (FreightRegion* region : {au, nz}) {
      for (std::size_t slot = 0; slot < kFreightMethods; ++slot) {
        Serve(region, slot, {{0, "5"}, {1, "6"}, {11, "7"}});
        region->method[slot]->rule.assign("rule");
      }
    }
    nz->method[0]->active = 0;
  }
  // The filled cells of a table, and its rule.
  static std::string show(const FreightMethod& table) {
    std::string text;
    for (const Text& cell : table.value) text += cell.isNull() ? "-" : cell.orEmpty();
    return text + " " + (table.rule.isNull() ? "no rule" : table.rule.orEmpty());
  }
};

TEST_F(FreightCalculations, ByWeightClearsAllCellsOfTheCurrentMethodAndItsRule) {
  ApplyFreightCalculationMethod(project, FreightCalculation::ByWeight, "9");
  EXPECT_EQ(show(*au->method[0]), "------------ no rule");
  EXPECT_EQ(show(*nz->method[0]), "------------ no rule");
}

TEST_F(FreightCalculations, PerItemAndNoChargeGiveTheSameTable) {
  ApplyFreightCalculationMethod(project, FreightCalculation::PerItem, "9");
  EXPECT_EQ(show(*au->method[0]), "0----------- no rule");
  project.currentMethod = 1;
  ApplyFreightCalculationMethod(project, FreightCalculation::NoCharge, "9");
  EXPECT_EQ(show(*au->method[1]), "0----------- no rule");
}

TEST_F(FreightCalculations, PerOrderPutsThePriceAsTypedIntoTheFirstCell) {
  ApplyFreightCalculationMethod(project, FreightCalculation::PerOrder, "9.50 flat");
  EXPECT_EQ(show(*au->method[0]), "9.50 flat----------- no rule");
  EXPECT_EQ(show(*nz->method[0]), "9.50 flat----------- no rule");
}

TEST_F(FreightCalculations, OnlyTheTablesOfTheCurrentMethodChange) {
  project.currentMethod = 2;
  ApplyFreightCalculationMethod(project, FreightCalculation::PerOrder, "9");
  EXPECT_EQ(show(*au->method[0]), "56---------7 rule");
  EXPECT_EQ(show(*au->method[1]), "56---------7 rule");
  EXPECT_EQ(show(*au->method[2]), "9----------- no rule");
}

TEST_F(FreightCalculations, WhichRegionsAreServedStaysAsItWas) {
  ApplyFreightCalculationMethod(project, FreightCalculation::PerItem, "");
  EXPECT_EQ(au->method[0]->active, 1);
  EXPECT_EQ(nz->method[0]->active, 0);
}

TEST_F(FreightCalculations, AMethodThatDoesNotExistChangesNothing) {
  project.currentMethod = 3;
  ApplyFreightCalculationMethod(project, FreightCalculation::ByWeight, "");
  project.currentMethod = -1;
  ApplyFreightCalculationMethod(project, FreightCalculation::ByWeight, "");
  EXPECT_EQ(show(*au->method[2]), "56---------7 rule");
}

TEST_F(FreightCalculations, TheWizardsTextsKeepTheirDoubleBlanksAndLineEnds) {
  EXPECT_EQ(kFreightCalculations[static_cast<std::size_t>(FreightCalculation::PerOrder)].label,
            "Set price per order");
  EXPECT_NE(kFreightCalculations[0].explanation.find("insurance.\r\n\r\n To use"), std::string_view::npos);
  EXPECT_NE(kFreightCalculations[3].explanation.find("charged.   This"), std::string_view::npos);
}

}  // namespace
}  // namespace varlo
