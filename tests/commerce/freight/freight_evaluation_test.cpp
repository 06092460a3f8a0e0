#include "commerce/freight/freight_evaluation.h"

#include <gtest/gtest.h>

namespace varlo {
namespace {

OrderCost evaluate(const char* expression, const std::vector<OrderLine>& lines) {
  const FreightTables tables = ParseFreightExpression(expression);
  EXPECT_EQ(tables.deliveries.size(), 1u);
  return EvaluateOrder(&tables.deliveries[0], "AU", lines);
}

TEST(FreightEvaluation, AnOrderWithoutItemsPaysTheFirstBand) {
  const OrderCost cost = evaluate("Post(AU(2f,5<=1k,7<=2k););", {});
  EXPECT_EQ(cost.problem, "");
  EXPECT_EQ(cost.freight, 500);
  EXPECT_EQ(cost.freightTax, 10);
  EXPECT_EQ(cost.total, 510);
}

TEST(FreightEvaluation, WeightIsToldInTenThousandths) {
  EXPECT_EQ(evaluate("Post(AU(5););", {{"A", "1", "3", "0.5"}}).weight, 15'000);
}

TEST(FreightEvaluation, UnitsThatOverflowAreTooLarge) {
  const OrderCost cost = evaluate("Post(AU(999999999+999999999k>0k););", {{"A", "1", "9999", "100000"}});
  EXPECT_EQ(cost.problem, "The amounts of this order are too large.");
}

TEST(FreightEvaluation, SurchargesThatOverflowAreTooLarge) {
  const std::vector<OrderLine> lines(3, {"A", "0", "9999", "0", "50000"});
  EXPECT_EQ(EvaluateOrder(nullptr, "", std::vector<OrderLine>(1, lines[0])).freight, 49'995'000'000);
  EXPECT_EQ(EvaluateOrder(nullptr, "", std::vector<OrderLine>(2, lines[0])).freight, 99'990'000'000);
  EXPECT_EQ(EvaluateOrder(nullptr, "", lines).problem, "The amounts of this order are too large.");
}

TEST(FreightEvaluation, TheLargestGoodsAtTheLargestRateStayExact) {
  // 90,909,090.90 goods and ten times that as tax: 999,999,999.90.
  const OrderCost cost = evaluate("Post(AU(1000%,0););", {{"A", "90909090.90"}});
  EXPECT_EQ(cost.problem, "");
  EXPECT_EQ(cost.goodsTax, 90'909'090'900);
  EXPECT_EQ(cost.total, 99'999'999'990);
  EXPECT_NE(evaluate("Post(AU(1000%,0););", {{"A", "90909091"}}).problem, "");
}

TEST(FreightEvaluation, ThePriceIsCheckedBeforeTheDelivery) {
  const FreightTables tables = ParseFreightExpression("Post(AU(5););");
  const std::vector<OrderLine> lines = {{"A", "x"}};
  EXPECT_EQ(EvaluateOrder(&tables.deliveries[0], "NZ", lines).problem,
            "The price \"x\" of item A is not a number with at most 9 digits and 4 decimals.");
}

}  // namespace
}  // namespace varlo
