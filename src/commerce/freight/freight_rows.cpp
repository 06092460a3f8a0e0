#include "commerce/freight/freight_rows.h"

#include <algorithm>
#include <limits>

#include "core/store/merge_sort.h"
#include "core/text/number_text.h"
#include "core/text/text_search.h"

namespace varlo {
namespace {

constexpr std::string_view kRuleMark = " - ";
constexpr int kCountryWidth = 140;
constexpr int kCellWidth = 40;
constexpr int kLastCellWidth = 130;

constexpr bool isCellColumn(int column) { return column >= kFirstCellColumn && column < kTaxColumn; }

constexpr std::array<ListColumn, kFreightColumns> makeColumns() {
  std::array<ListColumn, kFreightColumns> columns{};
  columns[kCountryColumn] = {"Country", kCountryWidth};
  for (std::size_t i = 0; i < kFreightCells; ++i) {
    columns[i + kFirstCellColumn] = {kFreightCellNames[i].heading, kCellWidth};
  }
  columns[kTaxColumn - 1].width = kLastCellWidth;
  columns[kTaxColumn] = {"Tax", kCellWidth};
  return columns;
}
constexpr std::array<ListColumn, kFreightColumns> kColumns = makeColumns();

std::string_view cellOf(const FreightMethod* table, int column) {
  if (table == nullptr) return {};
  return table->value[static_cast<std::size_t>(column - kFirstCellColumn)].view();
}

// What does not fit counts as infinite; the language leaves open what a cast makes of it.
float inSinglePrecision(double number) {
  constexpr double kMost = std::numeric_limits<float>::max();
  if (number > kMost) return std::numeric_limits<float>::infinity();
  if (number < -kMost) return -std::numeric_limits<float>::infinity();
  return static_cast<float>(number);
}

// The greater number stands first.
int compareCells(std::string_view left, std::string_view right) {
  const float single = inSinglePrecision(LeadingDouble(left));
  const double other = LeadingDouble(right);
  return static_cast<int>(other > single) - static_cast<int>(single > other);
}

int compareNames(const FreightRegion& left, const FreightRegion& right) {
  return CompareNoCase(left.name.view(), right.name.view());
}

int compareTax(const FreightRegion& left, const FreightRegion& right) {
  const int difference = CompareNoCase(left.regionValue.view(), right.regionValue.view());
  return difference != 0 ? difference : compareNames(left, right);
}

}  // namespace

std::span<const ListColumn> FreightColumns() { return kColumns; }

FreightMethod* CurrentTable(const StoreProject& project, const FreightRegion& region) {
  const auto slot = static_cast<std::size_t>(project.currentMethod);
  return slot < kFreightMethods ? region.method[slot] : nullptr;
}

std::string_view FreightCellText(const StoreProject& project, const FreightRegion& region, int column) {
  if (column == kCountryColumn) return region.name.view();
  if (column == kTaxColumn) return region.regionValue.view();
  if (!isCellColumn(column)) return {};
  const FreightMethod* table = CurrentTable(project, region);
  return table != nullptr && table->rule.isSet() ? kRuleMark : cellOf(table, column);
}

bool IsOffered(const StoreProject& project, const FreightRegion& region) {
  const FreightMethod* table = CurrentTable(project, region);
  return table != nullptr && table->active != 0;
}

void ToggleOffered(const StoreProject& project, const FreightRegion& region) {
  FreightMethod* table = CurrentTable(project, region);
  if (table != nullptr) table->active = table->active == 0 ? 1 : 0;
}

std::vector<FreightRegion*> StoreRegions(const StoreProject& project) {
  std::vector<FreightRegion*> rows;
  for (FreightRegion* region = project.regions; region != nullptr; region = region->next) rows.push_back(region);
  return rows;
}

// Deliberate: a rule hides the cells of its table, but the rows are sorted by them all the same.
void SortFreightRows(const StoreProject& project, std::span<FreightRegion* const> rows, std::vector<int>& order,
                     int column) {
  const auto sortBy = [&](auto compare) {
    MergeSort(order, [&](int left, int right) {
      return compare(*rows[static_cast<std::size_t>(left)], *rows[static_cast<std::size_t>(right)]);
    });
  };
  if (column == kCountryColumn) sortBy(compareNames);
  if (column == kTaxColumn) sortBy(compareTax);
  if (!isCellColumn(column)) return;
  sortBy([&](const FreightRegion& left, const FreightRegion& right) {
    return compareCells(cellOf(CurrentTable(project, left), column), cellOf(CurrentTable(project, right), column));
  });
}

std::int32_t FreightMethodNamed(const StoreProject& project, std::string_view name) {
  const auto found = std::ranges::find(project.methodName, name, &Text::view);
  return found == project.methodName.end() ? 0 : static_cast<std::int32_t>(found - project.methodName.begin());
}

}  // namespace varlo
