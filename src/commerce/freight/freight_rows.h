// What the Freight tab shows: a row for each region of the store, with the twelve cells of one delivery method.
#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <string_view>
#include <vector>

#include "core/store/store_project.h"
#include "platform/dialog.h"

namespace varlo {

// A cell of a freight table: how its column is headed, and the label beside its field.
struct FreightCellNames {
  std::string_view heading;
  std::string_view label;
};
inline constexpr std::array<FreightCellNames, kFreightCells> kFreightCellNames{{
    {"0.5", "0.5 "},
    {"1", "1 "},
    {"2", "2 "},
    {"3", "3 "},
    {"4", "4 "},
    {"5", "5 "},
    {"6", "6 "},
    {"7", "7 "},
    {"8", "8 "},
    {"9", "9 "},
    {"10", "10 "},
    {"11+ per/unit of weight", "11+ "},
}};

// Columns: the region, its cells, its tax.
inline constexpr int kCountryColumn = 0;
inline constexpr int kFirstCellColumn = 1;
inline constexpr int kTaxColumn = kFirstCellColumn + static_cast<int>(kFreightCells);
inline constexpr int kFreightColumns = kTaxColumn + 1;

// The columns' headings and widths.
[[nodiscard]] std::span<const ListColumn> FreightColumns();

// The table of the current method; null when that is none of the three.
[[nodiscard]] FreightMethod* CurrentTable(const StoreProject& project, const FreightRegion& region);

// Text of a cell of a region's row. A table with a rule has " - " in place of its twelve cells; what is absent
// shows as nothing.
[[nodiscard]] std::string_view FreightCellText(const StoreProject& project, const FreightRegion& region, int column);

// Whether the region is offered by the current method: a tick before its row, else a cross.
[[nodiscard]] bool IsOffered(const StoreProject& project, const FreightRegion& region);

// Offers the region by the current method, or no longer, as a double click on its row does.
void ToggleOffered(const StoreProject& project, const FreightRegion& region);

// The store's regions in their order.
[[nodiscard]] std::vector<FreightRegion*> StoreRegions(const StoreProject& project);

// Sorts the order in which rows are displayed, which holds their numbers, by a column. The store's own list keeps its
// order. Nothing for a column that is none.
// Deliberate: cells are compared as numbers with the first in single and the second in double precision, and an
// equal number is followed by no further key.
void SortFreightRows(const StoreProject& project, std::span<FreightRegion* const> rows, std::vector<int>& order,
                     int column);

// The first method with exactly this name, an absent one counting as empty; 0 when there is none.
[[nodiscard]] std::int32_t FreightMethodNamed(const StoreProject& project, std::string_view name);

}  // namespace varlo
