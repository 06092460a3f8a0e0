#include "generator/template/level_rows.h"

#include <algorithm>
#include <functional>

#include "core/store/store_node.h"
#include "generator/items/item_values.h"

namespace varlo {
namespace {

bool addressBefore(const std::pair<const StoreNode*, std::size_t>& left,
                   const std::pair<const StoreNode*, std::size_t>& right) {
  return std::less<>()(left.first, right.first);
}

}  // namespace

LevelRows::LevelRows(const ItemValues& values, const StoreNode* head) : head_(head) {
  for (const StoreNode* node = head; node != nullptr && !isTooLong(); node = node->next) {
    if (!IsIndexed(*node)) continue;
    NodeRow(rows_, values, *node, false);
    sorted_.emplace_back(node, nodes_.size());
    nodes_.push_back(node);
    ends_.push_back(rows_.size());
  }
  std::sort(sorted_.begin(), sorted_.end(), addressBefore);
}

std::size_t LevelRows::find(const StoreNode& node) {
  for (std::size_t next = found_; next < std::min(found_ + 2, nodes_.size()); ++next) {
    if (nodes_[next] == &node) return found_ = next;
  }
  const auto at = std::lower_bound(sorted_.begin(), sorted_.end(), Numbered(&node, 0), addressBefore);
  return at == sorted_.end() || at->first != &node ? kNotThere : found_ = at->second;
}

LevelRows& LevelRowsCache::of(const StoreNode* head) {
  const auto at = std::find_if(kept_.begin(), kept_.end(), [head](const LevelRows& r) { return r.head() == head; });
  if (at != kept_.end()) {
    kept_.splice(kept_.begin(), kept_, at);
  } else {
    if (kept_.size() == kKept) kept_.pop_back();
    kept_.emplace_front(values_, head);
  }
  return kept_.front();
}

}  // namespace varlo
