#include "commerce/tax/tax_settings.h"

namespace varlo {

void NormalizeRegionTax(FreightRegion* regions, std::int32_t taxEnabled, std::int32_t taxOption) {
  for (FreightRegion* region = regions; region != nullptr; region = region->next) {
    const bool isMark = region->regionValue.view() == kTaxableRegion;
    const bool wrongMark = taxOption == kTaxByRegion && isMark;
    const bool wrongRate = taxOption == kTaxByProduct && !isMark;
    if (taxEnabled == 0 || wrongMark || wrongRate) region->regionValue.release();
  }
}

}  // namespace varlo
