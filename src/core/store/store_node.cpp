#include "core/store/store_node.h"

#include <cstddef>

namespace varlo {

const NodeKindTraits& TraitsOf(NodeKind kind) {
  static constexpr std::array<NodeKindTraits, 4> kTraits{{
      {"category.htm", "New Category"},
      {"product.htm", "New Product"},
      {"shelf.htm", "New Shelf"},
      {"list.htm", "New List"},
  }};
  return kTraits[static_cast<std::size_t>(kind)];
}

void StoreNodeInit(StoreNode& node) { node = StoreNode(); }

void StoreNodeCopy(StoreNode& destination, const StoreNode* source) {
  if (source == nullptr) {
    StoreNodeInit(destination);
    return;
  }
  StoreNode copy = *source;
  copy.next = destination.next;
  copy.prev = destination.prev;
  copy.parent = destination.parent;
  copy.child = destination.child;
  copy.treeItem = destination.treeItem;
  copy.buildStamp = destination.buildStamp;
  copy.released = destination.released;
  destination = std::move(copy);
}

}  // namespace varlo
