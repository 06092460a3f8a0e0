// The rules that keep the tax values of the regions consistent with the store's tax settings.
#pragma once

#include <cstdint>
#include <string_view>

#include "core/store/freight_record.h"

namespace varlo {

// How tax is calculated; the numbers stand in project files.
inline constexpr std::int32_t kTaxByProduct = 0;
inline constexpr std::int32_t kTaxByRegion = 1;

// The value of a region that is taxed by the rates of its products.
inline constexpr std::string_view kTaxableRegion = "*";

// Removes every region value that does not fit: all of them when tax is off; under region based taxation
// the "*" marks, under product based taxation everything else. Nothing converts one into the other.
void NormalizeRegionTax(FreightRegion* regions, std::int32_t taxEnabled, std::int32_t taxOption);

}  // namespace varlo
