#include "commerce/freight/freight_rows.h"

#include <numeric>
#include <random>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/freight.h"
#include "tests/support/test_program.h"

namespace varlo {
namespace {

using namespace test;
using testing::ElementsAre;

class FreightRows : public testing::Test {
 protected:
  TestProgram t;
  StoreProject& project = t.project();

  // A region with a cost in its third cell by the first method.
  FreightRegion* costing(const char* name, const char* cost) {
    FreightRegion* region = AddRegion(project, name);
    Serve(region, 0, {{2, cost}});
    return region;
  }
  std::vector<std::string> sortedBy(int column) {
    const std::vector<FreightRegion*> rows = StoreRegions(project);
    std::vector<int> order(rows.size());
    std::iota(order.begin(), order.end(), 0);
    SortFreightRows(project, rows, order, column);
    std::vector<std::string> names;
    for (const int row : order) names.emplace_back(rows[static_cast<std::size_t>(row)]->name.view());
    return names;
  }
  std::string row(const FreightRegion* region) {
    std::string text;
    for (int column = 0; column < kFreightColumns; ++column) {
      text.append(FreightCellText(project, *region, column)).append("|");
    }
    return text;
  }
};

TEST_F(FreightRows, HaveFourteenColumns) {
  std::vector<std::string> headings;
  for (const ListColumn& column : FreightColumns()) headings.emplace_back(column.heading);
  EXPECT_THAT(headings, ElementsAre("Country", "0.5", "1", "2", "3", "4", "5", "6", "7", "8", "9", "10",
                                    "11+ per/unit of weight", "Tax"));
}

TEST_F(FreightRows, ShowNameCellsOfTheCurrentMethodAndTax) {
  FreightRegion* au = AddRegion(project, "Australia");
  Serve(au, 0, {{0, "5"}, {11, "2.5"}});
  Serve(au, 2, {{1, "7"}});
  au->regionValue.assign("10%");
  EXPECT_EQ(row(au), "Australia|5|||||||||||2.5|10%|");
  project.currentMethod = 2;
  EXPECT_EQ(row(au), "Australia||7|||||||||||10%|");
}

TEST_F(FreightRows, ATableWithARuleShowsADashInTwelveColumns) {
  FreightRegion* au = costing("Australia", "5");
  au->method[0]->rule.assign("5<=100v");
  EXPECT_EQ(row(au), "Australia| - | - | - | - | - | - | - | - | - | - | - | - ||");
}

TEST_F(FreightRows, AnEmptyRuleIsNone) {
  FreightRegion* au = costing("Australia", "5");
  au->method[0]->rule.assign("");
  EXPECT_EQ(row(au), "Australia|||5|||||||||||");
}

TEST_F(FreightRows, DeletingARuleBringsTheCellsBack) {
  FreightRegion* au = costing("Australia", "5");
  au->method[0]->rule.assign("5<=100v");
  au->method[0]->rule.release();
  EXPECT_EQ(row(au), "Australia|||5|||||||||||");
}

TEST_F(FreightRows, TextsOfEveryLengthShowWhole) {
  for (const std::size_t size : {20U, 21U, 300U, 5000U}) {
    const std::string text(size, 'x');
    FreightRegion* region = costing(text.c_str(), text.c_str());
    region->regionValue.assign(std::string_view(text));
    EXPECT_EQ(FreightCellText(project, *region, kCountryColumn), text);
    EXPECT_EQ(FreightCellText(project, *region, 3), text);
    EXPECT_EQ(FreightCellText(project, *region, kTaxColumn), text);
  }
}

TEST_F(FreightRows, AColumnOrAMethodThatIsNoneShowsNothing) {
  FreightRegion* au = costing("Australia", "5");
  EXPECT_EQ(FreightCellText(project, *au, -1), "");
  EXPECT_EQ(FreightCellText(project, *au, kFreightColumns), "");
  for (const int method : {-1, 3}) {
    project.currentMethod = method;
    EXPECT_EQ(FreightCellText(project, *au, 3), "");
    EXPECT_FALSE(IsOffered(project, *au));
    ToggleOffered(project, *au);
  }
  project.currentMethod = 0;
  EXPECT_TRUE(IsOffered(project, *au));
}

TEST_F(FreightRows, ATickOrACrossStandsForEachMethodByItself) {
  FreightRegion* au = AddRegion(project, "Australia");
  Serve(au, 1);
  EXPECT_FALSE(IsOffered(project, *au));
  project.currentMethod = 1;
  EXPECT_TRUE(IsOffered(project, *au));
  ToggleOffered(project, *au);
  EXPECT_FALSE(IsOffered(project, *au));
  ToggleOffered(project, *au);
  EXPECT_TRUE(IsOffered(project, *au));
  EXPECT_EQ(au->method[0]->active, 0);
}

TEST_F(FreightRows, SortingByACellPutsTenBeforeNine) {
  costing("nine", "9");
  costing("ten", "10");
  EXPECT_THAT(sortedBy(3), ElementsAre("ten", "nine"));
}

TEST_F(FreightRows, AnEmptyOrAbsentCellCountsAsZero) {
  costing("empty", "");
  costing("less", "-1");
  AddRegion(project, "absent");
  costing("words", "free");
  costing("more", "0.5");
  EXPECT_THAT(sortedBy(3), ElementsAre("more", "empty", "absent", "words", "less"));
}

TEST_F(FreightRows, EqualNumbersHaveNoFurtherKey) {
  for (const char* name : {"c", "a", "b"}) costing(name, "5");
  EXPECT_THAT(sortedBy(3), ElementsAre("c", "a", "b"));
}

TEST_F(FreightRows, OneValueIsHeldInSinglePrecision) {
  for (const char* name : {"a", "b"}) costing(name, "0.7");  // less in single precision: equal rows change places
  EXPECT_THAT(sortedBy(3), ElementsAre("b", "a"));
  for (const FreightRegion* region : StoreRegions(project)) region->method[0]->value[2].assign("0.3");
  EXPECT_THAT(sortedBy(3), ElementsAre("a", "b"));
}

TEST_F(FreightRows, NumbersBeyondSinglePrecisionSortAsInfinite) {
  costing("less", "-1e200");
  costing("one", "1");
  costing("more", "1e200");
  costing("most", "1e999");
  EXPECT_THAT(sortedBy(3), ElementsAre("more", "most", "one", "less"));
}

TEST_F(FreightRows, SortingByNameIgnoresCase) {
  for (const char* name : {"austria", "Belgium", "Australia"}) AddRegion(project, name);
  EXPECT_THAT(sortedBy(kCountryColumn), ElementsAre("Australia", "austria", "Belgium"));
}

TEST_F(FreightRows, SortingByTaxIsByTextThenByName) {
  const std::pair<const char*, const char*> taxes[] = {{"b", "9"}, {"a", "9"}, {"c", "10"}, {"d", "A"}, {"e", "a"}};
  for (const auto& [name, tax] : taxes) AddRegion(project, name)->regionValue.assign(tax);
  AddRegion(project, "none");
  EXPECT_THAT(sortedBy(kTaxColumn), ElementsAre("none", "c", "a", "b", "d", "e"));
}

TEST_F(FreightRows, SortingLeavesTheStoresOwnOrder) {
  FreightRegion* nine = costing("nine", "9");
  costing("ten", "10");
  sortedBy(3);
  EXPECT_EQ(project.regions, nine);
  EXPECT_THAT(sortedBy(kFreightColumns), ElementsAre("nine", "ten"));
  EXPECT_THAT(sortedBy(-1), ElementsAre("nine", "ten"));
}

TEST_F(FreightRows, ASortOfOddValuesEndsAndKeepsEveryRow) {
  std::mt19937 random(7);
  const char* values[] = {"0.7", "0.3", "0.1", "1e39", "-1e39", "", "x", "16777217", "16777216", "0.70000001"};
  for (int i = 0; i < 250; ++i) {
    costing(std::to_string(i).c_str(), values[random() % std::size(values)]);
  }
  std::vector<std::string> names = sortedBy(3);
  std::sort(names.begin(), names.end());
  std::vector<std::string> expected = sortedBy(-1);
  std::sort(expected.begin(), expected.end());
  EXPECT_EQ(names, expected);
}

TEST_F(FreightRows, AMethodIsFoundByItsExactName) {
  project.methodName = {Text("Air"), Text("air"), Text("Air")};
  EXPECT_EQ(FreightMethodNamed(project, "air"), 1);
  EXPECT_EQ(FreightMethodNamed(project, "Air"), 0);
  EXPECT_EQ(FreightMethodNamed(project, "Sea"), 0);
  EXPECT_EQ(FreightMethodNamed(project, ""), 0);
  project.methodName[2].release();
  EXPECT_EQ(FreightMethodNamed(project, ""), 2);
}

}  // namespace
}  // namespace varlo
