#include "commerce/freight/freight_tables.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace varlo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(FreightTables, AnEmptyExpressionHasNoDeliveriesAndNoProblems) {
  for (const char* text : {"", "  \r\n"}) {
    const FreightTables tables = ParseFreightExpression(text);
    EXPECT_THAT(tables.deliveries, IsEmpty());
    EXPECT_THAT(tables.problems, IsEmpty());
  }
}

TEST(FreightTables, ReadsMethodsGroupsAndRegions) {
  const FreightTables tables = ParseFreightExpression(
      "Economy+Air+%282-3+Weeks%29(AU,NZ(10%,2f,5<=0.5k,7<=1k);US(12<=0.5k););Express(UK(*%,20<=0.5k);AU(1););");
  EXPECT_THAT(tables.problems, IsEmpty());
  ASSERT_EQ(tables.deliveries.size(), 2u);
  const FreightDelivery* economy = tables.deliveryNamed("Economy Air (2-3 Weeks)");
  ASSERT_EQ(economy, &tables.deliveries[0]);
  ASSERT_EQ(economy->groups.size(), 2u);
  EXPECT_THAT(economy->groups[0].regions, ElementsAre("AU", "NZ"));
  EXPECT_EQ(economy->groups[0].goodsRate, 100'000);
  EXPECT_EQ(economy->groups[0].freightRate, 20'000);
  EXPECT_EQ(economy->groups[0].prices.size(), 2u);
  EXPECT_EQ(economy->groupOf("US"), &economy->groups[1]);
  EXPECT_EQ(economy->groupOf("us"), nullptr);
  EXPECT_TRUE(tables.deliveries[1].groups[0].taxedByProduct);
  EXPECT_THAT(tables.regions(), ElementsAre("AU", "NZ", "US", "UK"));
  EXPECT_EQ(tables.deliveryNamed("Slow"), nullptr);
}

TEST(FreightTables, AMethodMayHaveAnEmptyName) {
  const FreightTables tables = ParseFreightExpression("(AU(5<=0.5k););");
  EXPECT_THAT(tables.problems, IsEmpty());
  ASSERT_NE(tables.deliveryNamed(""), nullptr);
  EXPECT_NE(tables.deliveryNamed("")->groupOf("AU"), nullptr);
}

TEST(FreightTables, APercentSignWithoutHexDigitsStandsForItself) {
  EXPECT_EQ(ParseFreightExpression("50%+off%2(AU(5););").deliveries[0].name, "50% off%2");
}

TEST(FreightTables, AByteAbove127OfANameIsOfTheWindowsCharacterSet) {
  EXPECT_EQ(ParseFreightExpression("Caf%E9(AU(5););").deliveries[0].name, "Caf\xE9");
}

TEST(FreightTables, ABadGroupSpoilsOnlyItself) {
  const FreightTables tables = ParseFreightExpression("Post(AU(x);NZ(5););");
  EXPECT_THAT(tables.problems, ElementsAre("Delivery \"Post\" to AU: a number is missing before \"x\"."));
  EXPECT_FALSE(tables.deliveries[0].groupOf("AU")->problem.empty());
  EXPECT_TRUE(tables.deliveries[0].groupOf("NZ")->problem.empty());
}

TEST(FreightTables, WhatIsNoExpressionIsTold) {
  EXPECT_THAT(ParseFreightExpression("free delivery everywhere").problems,
              ElementsAre("The freight expression is not understood from \"free delivery everywhere\" on."));
  EXPECT_THAT(ParseFreightExpression("Post(AU5<=1k););").problems,
              ElementsAre("Delivery \"Post\": \"(\" is missing in \"AU5<=1k\"."));
}

TEST(FreightTables, AnExpressionThatIsCutAnywhereIsToldAndNeverRunsAway) {
  const std::string whole = "Post(AU,NZ(10%,2f,5<=0.5k,30+5k>10k);US(0>=100v,12););Air(UK(*%,20););";
  ASSERT_THAT(ParseFreightExpression(whole).problems, IsEmpty());
  const std::size_t firstMethod = whole.find("Air");
  for (std::size_t length = 1; length < whole.size(); ++length) {
    const FreightTables tables = ParseFreightExpression(whole.substr(0, length));
    EXPECT_EQ(tables.problems.empty(), length == firstMethod) << length;
  }
}

}  // namespace
}  // namespace varlo
