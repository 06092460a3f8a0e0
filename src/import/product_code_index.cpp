#include "import/product_code_index.h"

#include <algorithm>

#include "core/store/store_node.h"
#include "core/tree/store_tree.h"

namespace varlo {
namespace {

bool comesBefore(const StoreNode* node, std::string_view code) { return node->productCode.view() < code; }

}  // namespace

StoreNode* ProductCodeIndex::find(std::string_view code) {
  if (!built_) build();
  const auto found = std::lower_bound(nodes_.begin(), nodes_.end(), code, comesBefore);
  return found != nodes_.end() && (*found)->productCode.view() == code ? *found : nullptr;
}

void ProductCodeIndex::build() {
  TreeWalk walk(root_, true);
  for (auto step = walk.advance(); step != TreeWalk::Step::Done; step = walk.advance()) {
    StoreNode* node = walk.node();
    // A node with children has its turn when these had theirs.
    if (step == TreeWalk::Step::Node && node->child != nullptr) continue;
    if (node->productCode.isSet()) nodes_.push_back(node);
  }
  std::stable_sort(nodes_.begin(), nodes_.end(), [](const StoreNode* left, const StoreNode* right) {
    return comesBefore(left, right->productCode.view());
  });
  built_ = true;
}

}  // namespace varlo
