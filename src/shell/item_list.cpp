#include "shell/item_list.h"

#include <algorithm>
#include <array>

#include "core/store/store_node.h"
#include "core/text/text_edit.h"
#include "generator/items/html_text.h"
#include "shell/guards.h"
#include "shell/shell.h"

namespace varlo {
namespace {

using TextOf = const Text& (*)(const StoreNode&);

template <Text StoreNode::*Member>
const Text& textOf(const StoreNode& node) {
  return node.*Member;
}
template <std::size_t Number>
const Text& fieldOf(const StoreNode& node) {
  return node.field[Number];
}

enum class Order { Ascending, Descending };

struct ItemColumn {
  std::string_view heading;
  int width;
  TextOf text;
  Order order = Order::Ascending;
  bool thenByTitle = true;
};

constexpr std::array<ItemColumn, 16> kColumns{{
    {"Product", 140, textOf<&StoreNode::title>},  // shown by its display title
    {"Price", 40, textOf<&StoreNode::cost>, Order::Descending},
    {"Tax", 40, textOf<&StoreNode::tax>, Order::Descending},
    {"Freight", 40, textOf<&StoreNode::freight>, Order::Descending},
    {"Weight", 40, textOf<&StoreNode::weight>, Order::Descending},
    {"Code", 80, textOf<&StoreNode::productCode>},
    {"Filename", 80, textOf<&StoreNode::fileName>, Order::Ascending, false},
    {"Template", 80, textOf<&StoreNode::templateName>},
    {"Image URL", 120, textOf<&StoreNode::image>},
    {"Image Link", 120, textOf<&StoreNode::imageLink>},
    {"F1", 40, fieldOf<0>},
    {"F2", 40, fieldOf<1>},
    {"F3", 40, fieldOf<2>},
    {"F4", 40, fieldOf<3>},
    {"F5", 40, fieldOf<4>},
    {"F6", 40, fieldOf<5>},
}};

bool isColumn(int column) { return column >= 0 && column < static_cast<int>(kColumns.size()); }

int compareNoCase(std::string_view left, std::string_view right) {
  const std::size_t shared = std::min(left.size(), right.size());
  for (std::size_t i = 0; i < shared; ++i) {
    const int difference =
        static_cast<unsigned char>(LowerChar(left[i])) - static_cast<unsigned char>(LowerChar(right[i]));
    if (difference != 0) return difference;
  }
  return static_cast<int>(left.size() > right.size()) - static_cast<int>(left.size() < right.size());
}

// Deliberate: numbers are compared as text too, so that 10 comes before 9.
int compareBy(const ItemColumn& column, const StoreNode& left, const StoreNode& right) {
  const int difference = compareNoCase(column.text(left).view(), column.text(right).view());
  if (difference != 0) return column.order == Order::Ascending ? difference : -difference;
  return column.thenByTitle ? compareNoCase(left.title.view(), right.title.view()) : 0;
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
  return column == 0 ? displayTitle(&node) : kColumns[static_cast<std::size_t>(column)].text(node).view();
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
