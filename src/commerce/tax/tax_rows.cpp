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

void SortTaxRows(std::vector<FreightRegion*>& rows, int column) {
  if (column == kTaxRegionColumn) {
    MergeSort(rows, [](const auto* left, const auto* right) { return compareNames(*left, *right); });
  } else if (column == kTaxValueColumn) {
    MergeSort(rows, [](const auto* left, const auto* right) { return compareValues(*left, *right); });
  }
}

}  // namespace varlo
