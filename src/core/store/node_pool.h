// Where the nodes of a project live. A command releases a node, but its record stays, empty, until the
// project closes: so a link that still names it, or a branch that was cut off, never dangles and never
// leaks.
#pragma once

#include <cstddef>
#include <memory>
#include <vector>

#include "core/store/store_node.h"

namespace varlo {

class NodePool {
 public:
  NodePool() = default;
  NodePool(const NodePool&) = delete;
  NodePool& operator=(const NodePool&) = delete;

  // A zeroed node. The pool owns it.
  [[nodiscard]] StoreNode* allocate();
  // Empties a node of this pool and marks it as released; its record is not used again.
  void release(StoreNode& node);
  // Destroys every node.
  void reset();

  // Nodes handed out since the last reset, the released ones included.
  [[nodiscard]] std::size_t size() const;
  // Each of these by its number, below size().
  [[nodiscard]] StoreNode& at(std::size_t number) { return chunks_[number / kChunkNodes][number % kChunkNodes]; }
  // Whether `node` is a record of this pool; for checks, it searches.
  [[nodiscard]] bool holds(const StoreNode* node) const;

 private:
  static constexpr std::size_t kChunkNodes = 256;
  using Chunk = std::unique_ptr<StoreNode[]>;
  std::vector<Chunk> chunks_;
  std::size_t used_ = kChunkNodes;  // in the last chunk
};

}  // namespace varlo
