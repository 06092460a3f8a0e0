// The four ways to calculate freight that the wizard offers. None is stored: what stays of the choice are
// the tables that it leaves behind.
#pragma once

#include <array>
#include <string_view>

namespace varlo {

struct StoreProject;

// How freight is calculated; the numbers are positions in the wizard's list.
enum class FreightCalculation {
  ByWeight = 0,
  PerItem = 1,
  PerOrder = 2,
  NoCharge = 3,
};

struct FreightCalculationTexts {
  std::string_view label;
  std::string_view explanation;
};

// What the wizard shows for each, by number.
inline constexpr std::array<FreightCalculationTexts, 4> kFreightCalculations{{
    {"Weight based calculation",
     "The freight cost is calculated based on the destination, and the total weight of an order. Each item may also "
     "have an additional surcharge for packaging or insurance.\r\n\r\n To use this method, you will need to assign a "
     "unit of weight to every product in your store."},
    {"Set price per Item",
     "Each item will have a set deliver cost regardless of region. The total is derived by adding the cost to ship "
     "all individual items in the order."},
    {"Set price per order", "Each order will have a set delivery cost based on the region."},
    {"No additional delivery charge",
     "No additional delivery fee will be charged.   This method is ideal for stores where the cost of freight is "
     "already factored into the purchase price."},
}};

// Fills the table of the current method in every region of the store: all cells and the rule go, and cell 0
// becomes the price for a set price per order, "0" per item and without charge. Which regions are served
// stays as it is.
void ApplyFreightCalculationMethod(StoreProject& project, FreightCalculation method, std::string_view price);

}  // namespace varlo
