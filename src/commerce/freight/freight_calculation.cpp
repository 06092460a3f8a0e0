#include "commerce/freight/freight_calculation.h"

#include "core/store/store_project.h"

namespace varlo {
namespace {

Text firstCell(FreightCalculation method, std::string_view price) {
  switch (method) {
    case FreightCalculation::PerOrder:
      return Text(price);
    case FreightCalculation::PerItem:
    case FreightCalculation::NoCharge:
      return "0";
    case FreightCalculation::ByWeight:
      break;
  }
  return {};
}

}  // namespace

void ApplyFreightCalculationMethod(StoreProject& project, FreightCalculation method, std::string_view price) {
  const auto slot = static_cast<std::size_t>(project.currentMethod);
  if (slot >= kFreightMethods) return;
  const Text first = firstCell(method, price);
  for (FreightRegion* region = project.regions; region != nullptr; region = region->next) {
    FreightMethod& table = *region->method[slot];
    for (Text& cell : table.value) cell.release();
    table.rule.release();
    table.value[0] = first;
  }
}

}  // namespace varlo
