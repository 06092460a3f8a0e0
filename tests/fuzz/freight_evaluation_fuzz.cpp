// Reads any bytes as a freight expression and evaluates orders against what comes out. Sums must agree and
// stay within the limits, and a delivery that was read must be found again.
#include <cstdint>
#include <cstdlib>
#include <string_view>
#include <vector>

#include "commerce/freight/exact_amount.h"
#include "commerce/freight/freight_evaluation.h"

namespace {

using namespace varlo;

void require(bool holds) {
  if (!holds) std::abort();
}

void checkCost(const OrderCost& cost) {
  if (!cost.problem.empty()) return;
  for (const std::int64_t amount : {cost.goods, cost.freight, cost.goodsTax, cost.freightTax}) {
    require(amount >= 0 && amount <= kMostCents);
  }
  require(cost.total == cost.goods + cost.freight + cost.goodsTax + cost.freightTax);
  require(cost.total <= kMostCents);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  const FreightTables tables = ParseFreightExpression(text);
  const std::vector<std::vector<OrderLine>> orders = {
      {},
      {{"A", "19.95", "2", "0.7", "1.10", "10"}, {"B", "0.005", "9999", "3", "0", "7.75"}},
      {{"A", "999999999.99", "1", "99999.9999", "0", "1000"}},
  };
  const std::vector<std::string> regions = tables.regions();
  for (const FreightDelivery& delivery : tables.deliveries) {
    require(tables.deliveryNamed(delivery.name) != nullptr);
    for (std::size_t i = 0; i < regions.size() && i < 4; ++i) {
      for (const auto& lines : orders) checkCost(EvaluateOrder(&delivery, regions[i], lines));
    }
  }
  return 0;
}
