// StoreTreeCheck: walks every link of the tree and states what must hold. Tests of the tree end with
// it.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace varlo {

struct StoreProject;

struct StoreTreeReport {
  std::vector<std::string> faults;  // broken rules, in words
  std::size_t nodes = 0;            // in the tree, chains included
  // Links that some commands leave on purpose: they are told apart, not faults.
  std::size_t strangePrev = 0;    // prev is not the node that the item hangs behind or below
  std::size_t strangeParent = 0;  // parent is not the category, shelf or list that holds the item
  std::size_t misplaced = 0;      // not a product, below a shelf, a list or a product
  std::size_t inFront = 0;  // in front of the root, which was moved down past them, or below those; not in the tree
};

// Checks the tree of `project`, and what stands in front of its root. Rules: every node is reached once, lives and
// belongs to the pool; the root has no parent, and no prev but one that leads back to it; prev and parent name
// records of the pool or nothing; parent never names a product; only items that a command made, or that a merge
// brought in, have strange links; the project's references name records that live; the clipboard's node is linked
// nowhere.
[[nodiscard]] StoreTreeReport StoreTreeCheck(const StoreProject& project);

}  // namespace varlo
