#include "commerce/tax/tax_rows.h"

#include "commerce/tax/tax_settings.h"
#include "core/store/merge_sort.h"
#include "core/text/number_text.h"

namespace varlo {
namespace {

int compareNames(const FreightRegion& left, const FreightRegion& right) {
  return left.name.view().compare(right.name.view());
}

int compareValues(const FreightRegion& left, const FreightRegion& right) {
  const std::int32_t leftValue = LeadingInt(left.regionValue.view());
  const std::int32_t rightValue = LeadingInt(right.regionValue.view());
  if (leftValue != rightValue) return leftValue > rightValue ? -1 : 1;
  return compareNames(left, right);
}

}  // namespace

bool IsTaxed(const FreightRegion& region) { return region.regionValue.isSet(); }

void SetTaxable(FreightRegion& region, bool taxable) {
  region.regionValue.release();
  if (taxable) region.regionValue.assign(kTaxableRegion);
}

void ToggleTaxable(FreightRegion& region) { SetTaxable(region, !IsTaxed(region)); }

void SortTaxRows(std::span<FreightRegion* const> rows, std::vector<int>& order, int column) {
  if (column != kTaxRegionColumn && column != kTaxValueColumn) return;
  const auto compare = column == kTaxRegionColumn ? compareNames : compareValues;
  MergeSort(order, [&](int left, int right) {
    return compare(*rows[static_cast<std::size_t>(left)], *rows[static_cast<std::size_t>(right)]);
  });
}

}  // namespace varlo
