// Regions in the lists of the tax pages: what a row shows, how it is changed, and in which order rows stand.
#pragma once

#include <span>
#include <vector>

#include "core/store/freight_record.h"

namespace varlo {

// Columns of these lists. That of the taxable regions has the first alone.
inline constexpr int kTaxRegionColumn = 0;
inline constexpr int kTaxValueColumn = 1;

// Whether the region has a tax value.
[[nodiscard]] bool IsTaxed(const FreightRegion& region);

// Marks the region as taxed by the rates of its products, or takes its value away.
void SetTaxable(FreightRegion& region, bool taxable);

// A region with a value gets none, one without becomes taxable. Deliberate: the list of rates shares this, so a
// double click there writes "*" where a rate belongs, until the edit field is stored over it.
void ToggleTaxable(FreightRegion& region);

// Sorts the order in which rows are displayed, which holds their numbers: by the bytes of the names, or by the values
// as whole numbers, the greater first, and then by the names. Nothing for another column.
void SortTaxRows(std::span<FreightRegion* const> rows, std::vector<int>& order, int column);

}  // namespace varlo
