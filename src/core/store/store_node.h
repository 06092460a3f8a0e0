// StoreNode: one item of the store tree, with its constructor, copy and release. Moving nodes about
// in the tree is in store_tree.h, where nodes come from is in node_pool.h.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "core/text/text.h"

namespace varlo {

// The numbers stand in project files, as the digit of NODE0= to NODE3=.
enum class NodeKind : std::int32_t {
  Category = 0,  // a page that lists what lies below it
  Product = 1,   // an item for sale; a leaf
  Shelf = 2,     // one page that shows the products below it
  List = 3,      // as a shelf, in lines
};

// The numbers stand in project files. A file can carry -1, which the program never makes: such a node
// is listed and gets no page.
inline constexpr std::int32_t kStatusEnabled = 0;
inline constexpr std::int32_t kStatusDisabled = -2;

struct StoreNode {
  StoreNode* next = nullptr;    // next sibling
  StoreNode* prev = nullptr;    // previous sibling; in the first of a child list, the node above
  StoreNode* parent = nullptr;  // owning category, shelf or list; null at top level; never a product
  StoreNode* child = nullptr;   // first node of the child list

  Text title;
  Text displayTitle;  // plain text of the title, rebuilt whenever it is shown
  Text pageTitle;
  Text cost;
  Text image;
  Text imageLink;
  Text body;  // CR LF line ends
  Text metaDescription;
  Text fileName;
  Text templateName;  // absent or empty: the default of the kind
  Text productCode;
  Text freight;
  Text weight;
  Text tax;
  std::array<Text, 6> field;
  std::array<Text, 6> label;
  Text metaKeywords;

  std::int8_t modified = 0;
  bool released = false;       // given back; the pool keeps the record until the project closes
  std::uint32_t treeItem = 0;  // item in the tree control, 0 when not shown
  std::int32_t status = kStatusEnabled;
  std::int32_t id = 0;  // drawn from uid in this run; 0 in a node read from a file
  NodeKind kind = NodeKind::Category;
  std::uint32_t dragMark = 0;    // marked while a selection of rows is dragged
  std::uint32_t buildStamp = 0;  // build pass in which the node last appeared in a listing
};

// What a kind stands for in templates and in the shell.
struct NodeKindTraits {
  std::string_view defaultTemplate;
  std::string_view newTitle;
};

// The traits of `kind`.
[[nodiscard]] const NodeKindTraits& TraitsOf(NodeKind kind);

// A shelf or a list: what holds products only, and shows them on its own page.
[[nodiscard]] inline bool IsShelfOrList(const StoreNode& node) {
  return node.kind == NodeKind::Shelf || node.kind == NodeKind::List;
}
[[nodiscard]] inline bool IsProduct(const StoreNode& node) { return node.kind == NodeKind::Product; }

// Releases every text of the record and zeroes it, links included.
void StoreNodeInit(StoreNode& node);

// Replaces the texts of `destination` by copies of those of `source`, and copies modified, status, id,
// kind and dragMark. Links, treeItem and buildStamp of the destination stay. A null source zeroes it.
void StoreNodeCopy(StoreNode& destination, const StoreNode* source);

}  // namespace varlo
