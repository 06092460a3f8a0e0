// Finding a node by the file name of its page.
#pragma once

#include <string_view>

namespace varlo {

struct StoreNode;

// The first node with this file name in the order of the tree; null when there is none.
[[nodiscard]] StoreNode* FindPage(StoreNode* root, std::string_view fileName);

}  // namespace varlo
