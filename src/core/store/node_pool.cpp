#include "core/store/node_pool.h"

#include <algorithm>
#include <functional>

namespace varlo {

StoreNode* NodePool::allocate() {
  if (used_ == kChunkNodes) {
    chunks_.push_back(std::make_unique<StoreNode[]>(kChunkNodes));
    used_ = 0;
  }
  return &chunks_.back()[used_++];
}

void NodePool::release(StoreNode& node) {
  StoreNodeInit(node);
  node.released = true;
}

// Backwards: the texts go back in the reverse order of their making, so that the next project finds their
// places in the order of memory.
void NodePool::reset() {
  while (!chunks_.empty()) chunks_.pop_back();
  used_ = kChunkNodes;
}

std::size_t NodePool::size() const { return chunks_.empty() ? 0 : (chunks_.size() - 1) * kChunkNodes + used_; }

bool NodePool::holds(const StoreNode* node) const {
  const std::less<> before;
  return std::any_of(chunks_.begin(), chunks_.end(), [&](const Chunk& chunk) {
    const std::size_t used = &chunk == &chunks_.back() ? used_ : kChunkNodes;
    return !before(node, chunk.get()) && before(node, chunk.get() + used);
  });
}

}  // namespace varlo
