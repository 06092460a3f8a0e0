#include "commerce/freight/freight_expression.h"

#include <random>
#include <string>

#include <gtest/gtest.h>

#include "core/text/working_text.h"
#include "tests/support/freight.h"
#include "tests/support/test_program.h"

namespace varlo {
namespace {

using namespace test;

class FreightExpression : public testing::Test {
 protected:
  TestProgram t;
  StoreProject& project = t.project();

  void SetUp() override {
    project.methodName[0].assign("Air");
    project.methodName[1].assign("Sea");
    project.methodName[2].assign("Road");
  }
  std::string build() {
    WorkingText expression;
    BuildFreightExpression(project, expression);
    return expression.text;
  }
};

TEST_F(FreightExpression, OneCellGivesOneBand) {
  Serve(AddRegion(project, "AU"), 0, {{0, "5"}});
  EXPECT_EQ(build(), "Air(AU(5<=0.5k););");
}

TEST_F(FreightExpression, AnEmptyTableCostsNothing) {
  Serve(AddRegion(project, "AU"), 0);
  EXPECT_EQ(build(), "Air(AU(0<=0.5k););");
}

TEST_F(FreightExpression, EveryCellIsABandOfItsIndex) {
  Serve(AddRegion(project, "AU"), 0,
        {{0, "a"},
         {1, "b"},
         {2, "c"},
         {3, "d"},
         {4, "e"},
         {5, "f"},
         {6, "g"},
         {7, "h"},
         {8, "i"},
         {9, "j"},
         {10, "k"},
         {11, "l"}});
  EXPECT_EQ(build(), "Air(AU(a<=0.5k,b<=1k,c<=2k,d<=3k,e<=4k,f<=5k,g<=6k,h<=7k,i<=8k,j<=9k,k<=10k,k+lk>10k););");
}

TEST_F(FreightExpression, AnEmptyCellBetweenOthersIsSimplyMissing) {
  Serve(AddRegion(project, "AU"), 0, {{0, "1"}, {4, "4"}, {5, ""}, {6, "6"}});
  EXPECT_EQ(build(), "Air(AU(1<=0.5k,4<=4k,6<=6k););");
}

TEST_F(FreightExpression, TheLastBandStartsFromTheCellFor10AlsoWhenThatIsEmpty) {
  Serve(AddRegion(project, "AU"), 0, {{11, "5"}});
  EXPECT_EQ(build(), "Air(AU(0<=0.5k,+5k>10k););");
}

TEST_F(FreightExpression, CellsGoOutAsTyped) {
  Serve(AddRegion(project, "AU"), 0, {{0, "a 5,(%"}});
  EXPECT_EQ(build(), "Air(AU(a 5,(%<=0.5k););");
}

TEST_F(FreightExpression, WithoutAServedRegionItIsEmpty) {
  AddRegion(project, "AU");
  EXPECT_EQ(build(), "");
  Serve(project.regions, 0);
  project.regions->method[0]->active = 0;
  EXPECT_EQ(build(), "");
}

TEST_F(FreightExpression, WithoutARegionItIsEmpty) { EXPECT_EQ(build(), ""); }

TEST_F(FreightExpression, ARegionOfTheSecondMethodAloneStandsThereAlone) {
  Serve(AddRegion(project, "AU"), 1, {{0, "5"}});
  EXPECT_EQ(build(), "Sea(AU(5<=0.5k););");
}

TEST_F(FreightExpression, MethodsStandOneBehindAnother) {
  FreightRegion* au = AddRegion(project, "AU");
  Serve(au, 0, {{0, "5"}});
  Serve(au, 2, {{0, "1"}});
  Serve(AddRegion(project, "NZ"), 2, {{0, "2"}});
  EXPECT_EQ(build(), "Air(AU(5<=0.5k););Road(AU(1<=0.5k);NZ(2<=0.5k););");
}

TEST_F(FreightExpression, AMethodWithoutANameIsWrittenWithAnEmptyOne) {
  project.methodName[0].release();
  Serve(AddRegion(project, "AU"), 0, {{0, "5"}});
  EXPECT_EQ(build(), "(AU(5<=0.5k););");
}

TEST_F(FreightExpression, TheNameIsEncodedForAnAddress) {
  project.methodName[0].assign("Economy Air (2-3 Weeks)*._\x05\xE9");
  Serve(AddRegion(project, "AU"), 0, {{0, "5"}});
  EXPECT_EQ(build(), "Economy+Air+%282-3+Weeks%29*._%05%E9(AU(5<=0.5k););");
}

// Merging.

TEST_F(FreightExpression, EqualTablesShareAGroupAtThePlaceOfTheFirst) {
  Serve(AddRegion(project, "AU"), 0, {{0, "5"}, {11, "2"}});
  Serve(AddRegion(project, "US"), 0, {{0, "9"}});
  Serve(AddRegion(project, "NZ"), 0, {{0, "5"}, {11, "2"}});
  Serve(AddRegion(project, "CA"), 0, {{0, "9"}});
  EXPECT_EQ(build(), "Air(AU,NZ(5<=0.5k,+2k>10k);US,CA(9<=0.5k););");
}

TEST_F(FreightExpression, AnAbsentCellEqualsAnEmptyOne) {
  Serve(AddRegion(project, "AU"), 0, {{0, "5"}, {3, ""}});
  FreightRegion* nz = AddRegion(project, "NZ");
  Serve(nz, 0, {{0, "5"}});
  nz->regionValue.assign("");
  nz->method[0]->rule.assign("");
  EXPECT_EQ(build(), "Air(AU,NZ(5<=0.5k););");
}

TEST_F(FreightExpression, TextsAreComparedExactly) {
  Serve(AddRegion(project, "AU"), 0, {{0, "5"}});
  Serve(AddRegion(project, "NZ"), 0, {{0, "5 "}});
  Serve(AddRegion(project, "US"), 0, {{0, "a"}});
  Serve(AddRegion(project, "UK"), 0, {{0, "A"}});
  EXPECT_EQ(build(), "Air(AU(5<=0.5k);NZ(5 <=0.5k);US(a<=0.5k);UK(A<=0.5k););");
}

TEST_F(FreightExpression, TheSameTextInAnotherCellIsAnotherTable) {
  Serve(AddRegion(project, "AU"), 0, {{0, "5"}, {1, "6"}});
  Serve(AddRegion(project, "NZ"), 0, {{0, "5"}, {2, "6"}});
  EXPECT_EQ(build(), "Air(AU(5<=0.5k,6<=1k);NZ(5<=0.5k,6<=2k););");
}

TEST_F(FreightExpression, AnotherTaxKeepsRegionsApartAndAnEqualOneJoinsThem) {
  for (const char* code : {"AU", "NZ", "US"}) {
    FreightRegion* region = AddRegion(project, code);
    Serve(region, 0, {{0, "5"}});
    region->regionValue.assign(*code == 'N' ? "15" : "10");
  }
  EXPECT_EQ(build(), "Air(AU,US(10%,5<=0.5k);NZ(15%,5<=0.5k););");
}

TEST_F(FreightExpression, AnotherRuleKeepsRegionsApart) {
  for (const char* code : {"AU", "NZ", "US"}) {
    FreightRegion* region = AddRegion(project, code);
    Serve(region, 0);
    region->method[0]->rule.assign(*code == 'N' ? "2k>0k" : "1k>0k");
  }
  EXPECT_EQ(build(), "Air(AU,US(1k>0k);NZ(2k>0k););");
}

TEST_F(FreightExpression, UnequalCellsKeepRegionsWithTheSameRuleApart) {
  for (const char* code : {"AU", "NZ"}) {
    FreightRegion* region = AddRegion(project, code);
    Serve(region, 0, {{3, code}});
    region->method[0]->rule.assign("1k>0k");
  }
  EXPECT_EQ(build(), "Air(AU(1k>0k);NZ(1k>0k););");
}

TEST_F(FreightExpression, ARegionThatIsNotServedJoinsNoGroup) {
  Serve(AddRegion(project, "AU"), 0, {{0, "5"}});
  FreightRegion* nz = AddRegion(project, "NZ");
  Serve(nz, 0, {{0, "5"}});
  nz->method[0]->active = 0;
  Serve(nz, 1, {{0, "5"}});
  EXPECT_EQ(build(), "Air(AU(5<=0.5k););Sea(NZ(5<=0.5k););");
}

TEST_F(FreightExpression, MergesAgainInEachMethod) {
  for (const char* code : {"AU", "NZ"}) {
    FreightRegion* region = AddRegion(project, code);
    Serve(region, 0, {{0, "5"}});
    Serve(region, 1, {{0, "1"}});
  }
  EXPECT_EQ(build(), "Air(AU,NZ(5<=0.5k););Sea(AU,NZ(1<=0.5k););");
}

// Tax.

TEST_F(FreightExpression, ATaxableRegionIsMarkedInFrontOfItsBands) {
  FreightRegion* uk = AddRegion(project, "UK");
  Serve(uk, 0, {{0, "20"}});
  uk->regionValue.assign("*");
  EXPECT_EQ(build(), "Air(UK(*%,20<=0.5k););");
}

TEST_F(FreightExpression, ATaxWithAndWithoutPercentSignComesOutTheSame) {
  FreightRegion* au = AddRegion(project, "AU");
  Serve(au, 0, {{0, "5"}});
  for (const char* tax : {"10%", "10", "%10", "1%0"}) {
    au->regionValue.assign(tax);
    EXPECT_EQ(build(), "Air(AU(10%,5<=0.5k););") << tax;
  }
  au->regionValue.assign("10%%");
  EXPECT_EQ(build(), "Air(AU(10%%,5<=0.5k););") << "only the first sign goes";
}

TEST_F(FreightExpression, TheFreightTaxStandsInEveryGroupBehindTheRegionTax) {
  project.tax.freightTaxRate.assign("2%");
  FreightRegion* au = AddRegion(project, "AU");
  Serve(au, 0, {{0, "5"}, {1, "7"}, {2, "9"}, {10, "30"}, {11, "5"}});
  au->regionValue.assign("10");
  FreightRegion* nz = AddRegion(project, "NZ");
  FreightRecordCopy(nz->method[0], au->method[0]);
  nz->regionValue.assign("10");
  Serve(AddRegion(project, "US"), 0, {{0, "12"}});
  FreightRegion* uk = AddRegion(project, "UK");
  Serve(uk, 1, {{0, "20"}});
  uk->regionValue.assign("*");
  EXPECT_EQ(build(),
            "Air(AU,NZ(10%,2f,5<=0.5k,7<=1k,9<=2k,30<=10k,30+5k>10k);US(2f,12<=0.5k););Sea(UK(*%,2f,20<=0.5k););");
}

// Rules and the capacity.

TEST_F(FreightExpression, ARuleStandsInPlaceOfTheCellsWhichStay) {
  FreightRegion* au = AddRegion(project, "AU");
  Serve(au, 0, {{0, "5"}});
  au->method[0]->rule.assign("5<=3k,1k>3k");
  EXPECT_EQ(build(), "Air(AU(5<=3k,1k>3k););");
  au->method[0]->rule.release();
  EXPECT_EQ(build(), "Air(AU(5<=0.5k););");
}

TEST_F(FreightExpression, ARuleIsCutAt4048Bytes) {
  FreightRegion* au = AddRegion(project, "AU");
  Serve(au, 0);
  au->method[0]->rule.assign(std::string_view(std::string(4048, 'r') + "lost"));
  EXPECT_EQ(build(), "Air(AU(" + std::string(4048, 'r') + "););");
}

// "Air(" and "AU(" and the region's code make the text as long as wanted in front of the rule.
TEST_F(FreightExpression, ARuleThatReachesTheCapacityIsLeftOutAndSoAreTheBands) {
  FreightRegion* au = AddRegion(project, "AU");
  Serve(au, 0, {{0, "5"}});
  au->method[0]->rule.assign("12345");
  const std::size_t before = std::string_view("Air((").size();
  const std::string fits(kWorkingCapacity - before - 5 - 1, 'c');
  au->code.assign(std::string_view(fits));
  EXPECT_EQ(build(), "Air(" + fits + "(12345););");
  const std::string reaches = fits + "c";
  au->code.assign(std::string_view(reaches));
  EXPECT_EQ(build(), "Air(" + reaches + "(););");
}

TEST_F(FreightExpression, RoomIsMadeInFrontOfAGroupAndNotForTheRegionsThatJoinIt) {
  FreightRegion* au = AddRegion(project, "AU");
  Serve(au, 0);
  au->method[0]->rule.assign("rule");
  // Regions that join raise the text far beyond the capacity, so the rule of their group finds no room.
  for (int i = 0; i < 50; ++i) {
    FreightRegion* joining = AddRegion(project, std::string(1000, 'c').c_str());
    Serve(joining, 0);
    joining->method[0]->rule.assign("rule");
  }
  FreightRegion* nz = AddRegion(project, "NZ");
  Serve(nz, 0);
  nz->method[0]->rule.assign("other");
  WorkingText expression;
  BuildFreightExpression(project, expression);
  EXPECT_EQ(expression.text.substr(expression.text.size() - 13), "ccc();NZ(););")
      << "one step of growth is less than what the joined codes took";
  EXPECT_EQ(expression.capacity, kWorkingCapacity + kFreightGroupRoom + kWorkingGrowth);
}

TEST_F(FreightExpression, TheCapacityGrowsByTheNeedAnd10000InFrontOfTheGroupThatPassesIt) {
  WorkingText expression;
  Serve(AddRegion(project, std::string(17900, 'a').c_str()), 0, {{0, "1"}});
  Serve(AddRegion(project, std::string(80, 'b').c_str()), 0, {{0, "2"}});
  BuildFreightExpression(project, expression);
  EXPECT_EQ(expression.capacity, kWorkingCapacity);
  Serve(AddRegion(project, "C"), 0, {{0, "3"}});
  BuildFreightExpression(project, expression);
  EXPECT_EQ(expression.capacity, 32000U);
}

TEST_F(FreightExpression, ManyRegionsWithTheirOwnTablesAreGroupedOnce) {
  for (int i = 0; i < 20000; ++i) {
    const std::string number = std::to_string(i % 10000);
    Serve(AddRegion(project, number.c_str()), 0, {{0, number.c_str()}});
  }
  const std::string text = build();
  EXPECT_EQ(text.substr(0, 31), "Air(0,0(0<=0.5k);1,1(1<=0.5k);2");
  EXPECT_TRUE(text.ends_with(";9999,9999(9999<=0.5k););"));
}

TEST_F(FreightExpression, WhatTheTextHeldBeforeIsGone) {
  WorkingText expression{.text = "heading"};
  BuildFreightExpression(project, expression);
  EXPECT_EQ(expression.text, "");
}

// The steps as they are told, one region after another and each compared with all behind it.
class PlainExpression {
 public:
  explicit PlainExpression(StoreProject& project) : project_(project) {}

  WorkingText run() {
    for (std::size_t slot = 0; slot < kFreightMethods; ++slot) {
      for (FreightRegion* region = project_.regions; region != nullptr; region = region->next)
        region->buildMerged = 0;
      named_ = false;
      for (FreightRegion* region = project_.regions; region != nullptr; region = region->next) {
        if (region->buildMerged == 0 && region->method[slot]->active != 0) group(region, slot);
      }
    }
    if (!out_.text.empty()) out_.text += ");";
    return out_;
  }

 private:
  static bool same(const Text& left, const Text& right) { return std::string(left.orEmpty()) == right.orEmpty(); }
  static bool joins(const FreightRegion* first, const FreightRegion* other, std::size_t slot) {
    if (other->buildMerged != 0 || other->method[slot]->active == 0) return false;
    for (std::size_t i = 0; i < kFreightCells; ++i) {
      if (!same(first->method[slot]->value[i], other->method[slot]->value[i])) return false;
    }
    return same(first->method[slot]->rule, other->method[slot]->rule) && same(first->regionValue, other->regionValue);
  }
  void rate(std::string value, const char* mark) {
    if (value.empty()) return;
    if (value.find('%') != std::string::npos) value.erase(value.find('%'), 1);
    out_.text += value + mark;
  }
  void group(FreightRegion* first, std::size_t slot) {
    if (out_.text.size() + 2000 > out_.capacity) out_.capacity += 12000;
    if (!named_) {
      if (!out_.text.empty()) out_.text += ");";
      out_.text += std::string(project_.methodName[slot].orEmpty()) + "(";
      named_ = true;
    }
    out_.text += first->code.orEmpty();
    first->buildMerged = 1;
    for (FreightRegion* other = first->next; other != nullptr; other = other->next) {
      if (!joins(first, other, slot)) continue;
      out_.text += std::string(",") + other->code.orEmpty();
      other->buildMerged = 1;
    }
    out_.text += "(";
    rate(first->regionValue.orEmpty(), "%,");
    rate(project_.tax.freightTaxRate.orEmpty(), "f,");
    charges(*first->method[slot]);
    out_.text += ");";
  }
  void charges(const FreightMethod& table) {
    const std::string rule = std::string(table.rule.orEmpty()).substr(0, 4048);
    if (!rule.empty()) {
      if (out_.text.size() + rule.size() < out_.capacity) out_.text += rule;
      return;
    }
    const auto cell = [&table](std::size_t i) { return std::string(table.value[i].orEmpty()); };
    out_.text += (cell(0).empty() ? "0" : cell(0)) + "<=0.5k";
    for (std::size_t i = 1; i <= 10; ++i) {
      if (!cell(i).empty()) out_.text += "," + cell(i) + "<=" + std::to_string(i) + "k";
    }
    if (!cell(11).empty()) out_.text += "," + cell(10) + "+" + cell(11) + "k>10k";
  }

  StoreProject& project_;
  WorkingText out_;
  bool named_ = false;
};

TEST_F(FreightExpression, AgreesWithThePlainStepsOnManyStores) {
  std::mt19937 random(20030201);
  const auto below = [&random](std::size_t count) { return static_cast<std::size_t>(random()) % count; };
  for (int store = 0; store < 300; ++store) {
    FreightRegionListFree(project.regions);
    project.regions = project.regionsTail = nullptr;
    project.tax.freightTaxRate.assign(below(2) == 0 ? "" : "7%");
    for (std::size_t i = below(60); i > 0; --i) {
      FreightRegion* region = AddRegion(project, ("R" + std::to_string(below(20))).c_str());
      if (below(3) == 0) region->regionValue.assign(below(2) == 0 ? "*" : "10%");
      for (FreightMethod* table : region->method) {
        table->active = below(4) != 0 ? 1 : 0;
        for (std::size_t cells = below(3); cells > 0; --cells) {
          table->value[below(kFreightCells)].assign(std::to_string(below(2)).c_str());
        }
        if (below(4) == 0) table->rule.assign(std::string_view(std::string(below(3) * 2300, 'r')));
      }
    }
    WorkingText expression;
    BuildFreightExpression(project, expression);
    const WorkingText plain = PlainExpression(project).run();
    ASSERT_EQ(expression.text, plain.text) << store;
    ASSERT_EQ(expression.capacity, plain.capacity) << store;
  }
}

}  // namespace
}  // namespace varlo
