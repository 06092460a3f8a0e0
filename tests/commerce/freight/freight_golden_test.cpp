// The engine's evaluation against the tables that were worked out by hand. The script of the generated cart
// is held against the same files (tests/cart).
#include <gtest/gtest.h>

#include <fstream>
#include <regex>

#include "commerce/freight/exact_amount.h"
#include "commerce/freight/freight_evaluation.h"

namespace varlo {
namespace {

struct GoldenOrder {
  std::string to;  // "METHOD to REGION", or "no delivery"
  std::vector<OrderLine> lines;
  std::string expected;  // the amounts as they are written, or a problem
};

struct GoldenTable {
  std::string expression;
  std::string problemCount = "0";
  std::vector<std::string> problems;
  std::vector<GoldenOrder> orders;
};

OrderLine readItem(const std::string& text) {
  static const std::regex form(
      R"((\S+) (\S+) x (\S+?)(?:, weight ([^,]+))?(?:, surcharge ([^,]+))?(?:, tax ([^,]+))?)");
  std::smatch part;
  EXPECT_TRUE(std::regex_match(text, part, form)) << text;
  const auto given = [&](std::size_t i) { return part[i].matched ? part[i].str() : std::string("0"); };
  return {part[1], part[2], part[3], given(4), given(5), given(6)};
}

void readLine(GoldenTable& table, const std::string& key, const std::string& value) {
  if (key == "expression") {
    table.expression = value;
  } else if (key == "problems") {
    table.problemCount = value;
  } else if (key == "table problem") {
    table.problems.push_back(value);
  } else if (key == "order") {
    table.orders.push_back({value, {}, {}});
  } else {
    ASSERT_FALSE(table.orders.empty()) << "a line stands before its order";
    if (key == "item") {
      table.orders.back().lines.push_back(readItem(value));
    } else {
      ASSERT_TRUE(key == "pays" || key == "problem") << key;
      table.orders.back().expected = value;
    }
  }
}

GoldenTable readTable(const std::string& name) {
  GoldenTable table;
  std::ifstream file(std::string(VARLO_GOLDEN_DIR) + "/" + name, std::ios::binary);
  EXPECT_TRUE(file.is_open()) << name;
  for (std::string line; std::getline(file, line);) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    if (line.empty() || line[0] == '#') continue;
    const std::size_t colon = line.find(": ");
    EXPECT_NE(colon, line.npos) << line;
    if (colon == line.npos) continue;
    readLine(table, line.substr(0, colon), line.substr(colon + 2));
  }
  return table;
}

std::string outcome(const FreightTables& tables, const GoldenOrder& order) {
  const std::size_t to = order.to.rfind(" to ");
  const FreightDelivery* delivery = nullptr;
  std::string region;
  if (order.to != "no delivery") {
    delivery = tables.deliveryNamed(order.to.substr(0, to));
    EXPECT_NE(delivery, nullptr) << order.to;
    region = order.to.substr(to + 4);
  }
  const OrderCost cost = EvaluateOrder(delivery, region, order.lines);
  if (!cost.problem.empty()) return cost.problem;
  return MoneyToText(cost.goods) + " + " + MoneyToText(cost.freight) + " + " + MoneyToText(cost.goodsTax) + " + " +
         MoneyToText(cost.freightTax) + " = " + MoneyToText(cost.total);
}

class FreightGoldenTest : public testing::TestWithParam<const char*> {};

TEST_P(FreightGoldenTest, GivesTheAmountsThatWereWorkedOutByHand) {
  const GoldenTable table = readTable(GetParam());
  const FreightTables tables = ParseFreightExpression(table.expression);
  EXPECT_EQ(std::to_string(tables.problems.size()), table.problemCount);
  EXPECT_EQ(tables.problems, table.problems);
  ASSERT_GE(table.orders.size(), 8u);
  for (std::size_t i = 0; i < table.orders.size(); ++i) {
    ASSERT_FALSE(table.orders[i].expected.empty());
    EXPECT_EQ(outcome(tables, table.orders[i]), table.orders[i].expected)
        << "order " << i + 1 << ", " << table.orders[i].to;
  }
}

INSTANTIATE_TEST_SUITE_P(, FreightGoldenTest,
                         testing::Values("bands_and_gaps.txt", "units_above_ten.txt", "price_per_order_and_item.txt",
                                         "rules.txt", "taxes.txt", "problems.txt"),
                         [](const auto& table) {
                           const std::string name = table.param;
                           return name.substr(0, name.find('.'));
                         });

}  // namespace
}  // namespace varlo
