#include "commerce/tax/tax_rows.h"

#include <numeric>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "commerce/freight/freight_rows.h"
#include "tests/support/freight.h"
#include "tests/support/test_program.h"

namespace varlo {
namespace {

using namespace test;
using testing::ElementsAre;

class TaxRows : public testing::Test {
 protected:
  TestProgram t;
  StoreProject& project = t.project();

  FreightRegion* taxed(const char* name, const char* value) {
    FreightRegion* region = AddRegion(project, name);
    region->regionValue.assign(value);
    return region;
  }
  std::vector<std::string> sortedBy(int column) {
    const std::vector<FreightRegion*> rows = StoreRegions(project);
    std::vector<int> order(rows.size());
    std::iota(order.begin(), order.end(), 0);
    SortTaxRows(rows, order, column);
    std::vector<std::string> names;
    for (const int row : order) names.emplace_back(rows[static_cast<std::size_t>(row)]->name.view());
    return names;
  }
};

TEST_F(TaxRows, ARegionWithAValueIsTaxed) {
  EXPECT_FALSE(IsTaxed(*taxed("absent", nullptr)));
  EXPECT_FALSE(IsTaxed(*taxed("empty", "")));
  EXPECT_TRUE(IsTaxed(*taxed("mark", "*")));
  EXPECT_TRUE(IsTaxed(*taxed("rate", "0")));
}

TEST_F(TaxRows, TheTickWritesAMarkOrTakesTheValueAway) {
  FreightRegion* au = taxed("AU", "10");
  SetTaxable(*au, true);
  EXPECT_EQ(au->regionValue.view(), "*");
  SetTaxable(*au, false);
  EXPECT_TRUE(au->regionValue.isNull());
}

TEST_F(TaxRows, ADoubleClickTakesAnyValueAwayAndMarksARegionWithoutOne) {
  for (const char* value : {"*", "10", "17.5 per cent"}) {
    FreightRegion* region = taxed("AU", value);
    ToggleTaxable(*region);
    EXPECT_TRUE(region->regionValue.isNull()) << value;
    ToggleTaxable(*region);
    EXPECT_EQ(region->regionValue.view(), "*") << value;
  }
  FreightRegion* empty = taxed("NZ", "");
  ToggleTaxable(*empty);
  EXPECT_EQ(empty->regionValue.view(), "*");
}

TEST_F(TaxRows, NamesSortByTheirBytes) {
  for (const char* name : {"b", "a", "B", "\xC9", "A"}) taxed(name, nullptr);
  EXPECT_THAT(sortedBy(kTaxRegionColumn), ElementsAre("A", "B", "a", "b", "\xC9"));
}

TEST_F(TaxRows, ValuesSortAsWholeNumbersTheGreaterFirstThenByName) {
  taxed("none", nullptr);
  taxed("nine", "9.9");
  taxed("z", "10");
  taxed("mark", "*");
  taxed("ten", "10.5%");
  taxed("less", "-5");
  EXPECT_THAT(sortedBy(kTaxValueColumn), ElementsAre("ten", "z", "nine", "mark", "none", "less"));
}

TEST_F(TaxRows, AnotherColumnSortsNothing) {
  for (const char* name : {"b", "a"}) taxed(name, nullptr);
  EXPECT_THAT(sortedBy(2), ElementsAre("b", "a"));
  EXPECT_THAT(sortedBy(-1), ElementsAre("b", "a"));
}

}  // namespace
}  // namespace varlo
