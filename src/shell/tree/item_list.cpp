#include "shell/tree/item_list.h"

#include <array>

#include "core/store/node_text.h"
#include "core/text/text_search.h"
#include "generator/items/html_text.h"
#include "shell/state/guards.h"
#include "shell/state/shell.h"

namespace varlo {
namespace {

enum class Order { Ascending, Descending };

struct ItemColumn {
  std::string_view heading;
  int width;
  NodeText text;
  Order order = Order::Ascending;
  bool thenByTitle = true;
};

constexpr std::array<ItemColumn, 16> kColumns{{
    {"Product", 140, NodeText::Title},  // shown by its display title
    {"Price", 40, NodeText::Cost, Order::Descending},
    {"Tax", 40, NodeText::Tax, Order::Descending},
    {"Freight", 40, NodeText::Freight, Order::Descending},
    {"Weight", 40, NodeText::Weight, Order::Descending},
    {"Code", 80, NodeText::ProductCode},
    {"Filename", 80, NodeText::FileName, Order::Ascending, false},
    {"Template", 80, NodeText::TemplateName},
    {"Image URL", 120, NodeText::Image},
    {"Image Link", 120, NodeText::ImageLink},
    {"F1", 40, NodeText::Field1},
    {"F2", 40, NodeText::Field2},
    {"F3", 40, NodeText::Field3},
    {"F4", 40, NodeText::Field4},
    {"F5", 40, NodeText::Field5},
    {"F6", 40, NodeText::Field6},
}};

bool isColumn(int column) { return column >= 0 && column < static_cast<int>(kColumns.size()); }

// Deliberate: numbers are compared as text too, so that 10 comes before 9.
int compareBy(const ItemColumn& column, const StoreNode& left, const StoreNode& right) {
  const int difference = CompareNoCase(TextOf(left, column.text).view(), TextOf(right, column.text).view());
  if (difference != 0) return column.order == Order::Ascending ? difference : -difference;
  return column.thenByTitle ? CompareNoCase(left.title.view(), right.title.view()) : 0;
}

}  // namespace

std::span<const ListColumn> itemListColumns() {
  static const auto columns = [] {
    std::array<ListColumn, kColumns.size()> made;
    for (std::size_t i = 0; i < made.size(); ++i) made[i] = {kColumns[i].heading, kColumns[i].width};
    return made;
  }();
  return columns;
}

void loadItemList(Shell& shell, StoreNode* holder) {
  if (shell.listFrozen || shell.mainWindow == nullptr) return;
  const Raised muted(shell.notificationsMuted);
  ListWindow& list = shell.mainWindow->list();
  const HeldPainting held(list);
  shell.dragRow = kNoRow;
  list.removeAll();
  if (holder == nullptr || holder->released || IsProduct(*holder)) return;
  for (StoreNode* node = holder->child; node != nullptr; node = node->next) list.append(node);
}

StoreNode* nodeOfRow(const Shell& shell, int row) {
  if (shell.mainWindow == nullptr || row < 0 || row >= shell.mainWindow->list().count()) return nullptr;
  return static_cast<StoreNode*>(shell.mainWindow->list().data(row));
}

std::string_view cellText(StoreNode& node, int column) {
  if (!isColumn(column)) return {};
  return column == 0 ? displayTitle(&node) : TextOf(node, kColumns[static_cast<std::size_t>(column)].text).view();
}

void sortItemList(Shell& shell, int column) {
  if (shell.mainWindow == nullptr || !isColumn(column)) return;
  shell.dragRow = kNoRow;
  shell.mainWindow->list().sort([&](ItemData left, ItemData right) {
    return compareBy(kColumns[static_cast<std::size_t>(column)], *static_cast<StoreNode*>(left),
                     *static_cast<StoreNode*>(right));
  });
}

void selectAllRows(Shell& shell) {
  if (shell.mainWindow == nullptr) return;
  ListWindow& list = shell.mainWindow->list();
  const HeldPainting held(list);
  for (int row = 0; row < list.count(); ++row) list.setSelected(row, true);
}

}  // namespace varlo
