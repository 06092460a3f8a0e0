// What an order costs with delivery and tax, worked out from the store's freight tables: what the generated
// cart works out for a customer, to the cent and in the same words.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "commerce/freight/freight_tables.h"

namespace varlo {

// One item of an order. The values are texts, as the cart gets them from a page.
struct OrderLine {
  std::string code;
  std::string price;
  std::string quantity = "1";
  std::string weight = "0";
  std::string surcharge = "0";  // freight of this item alone, added for each piece
  std::string tax = "0";        // per cent; counts in regions that are taxed by product
};

// Amounts in cents. With a problem they mean nothing.
struct OrderCost {
  std::string problem;      // a sentence, or empty
  std::int64_t weight = 0;  // in ten thousandths
  std::int64_t goods = 0;
  std::int64_t freight = 0;
  std::int64_t goodsTax = 0;
  std::int64_t freightTax = 0;
  std::int64_t total = 0;
};

// The cost of an order that `delivery` takes to `region`. With a null delivery, as in a store without
// freight tables, the freight is the surcharges alone and there is no tax.
[[nodiscard]] OrderCost EvaluateOrder(const FreightDelivery* delivery, std::string_view region,
                                      std::span<const OrderLine> lines);

}  // namespace varlo
