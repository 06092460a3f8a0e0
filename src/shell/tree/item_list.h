// The item list: the children of the selected node in 16 columns.
#pragma once

#include <string_view>

#include "platform/main_window.h"

namespace varlo {

struct Shell;
struct StoreNode;

// The columns' headings and widths, in pixels of an ordinary screen.
[[nodiscard]] std::span<const ListColumn> itemListColumns();

// Shows the children of `holder`, none for null or a product. Nothing while the list is frozen.
void loadItemList(Shell& shell, StoreNode* holder);

// The node of a row; null for none.
[[nodiscard]] StoreNode* nodeOfRow(const Shell& shell, int row);

// Text of a cell.
[[nodiscard]] std::string_view cellText(StoreNode& node, int column);

// Sorts what is shown by a column; the store's order is the tree's.
void sortItemList(Shell& shell, int column);

void selectAllRows(Shell& shell);

}  // namespace varlo
