#include "core/program/view.h"

#include "core/store/store_node.h"

namespace varlo {

void View::insertTreeItems(std::span<StoreNode* const> nodes) {
  for (StoreNode* node : nodes) insertTreeItem(*node, node->prev);
}

}  // namespace varlo
