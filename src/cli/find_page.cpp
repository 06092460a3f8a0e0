#include "cli/find_page.h"

#include "core/tree/store_tree.h"

namespace varlo {

StoreNode* FindPage(StoreNode* root, std::string_view fileName) {
  TreeWalk walk(root);
  for (auto step = walk.advance(); step != TreeWalk::Step::Done; step = walk.advance()) {
    if (step == TreeWalk::Step::Node && walk.node()->fileName.isSet() && walk.node()->fileName.view() == fileName) {
      return walk.node();
    }
  }
  return nullptr;
}

}  // namespace varlo
