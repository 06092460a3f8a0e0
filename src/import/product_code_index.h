// ProductCodeIndex: finds nodes by their product code. It is made when it is first asked, and holds as long as no
// node comes or goes and no code changes.
#pragma once

#include <string_view>
#include <vector>

namespace varlo {

struct StoreNode;

class ProductCodeIndex {
 public:
  // Of the tree that begins at `root`.
  explicit ProductCodeIndex(StoreNode* root) : root_(root) {}

  // The first node with exactly this code, of whatever kind, null when there is none. First is what comes first when
  // all below a node stands in front of it, chains below products too. A node without a code is never found.
  [[nodiscard]] StoreNode* find(std::string_view code);

 private:
  void build();

  StoreNode* root_;
  bool built_ = false;
  std::vector<StoreNode*> nodes_;  // by code; of equal ones the first comes first
};

}  // namespace varlo
