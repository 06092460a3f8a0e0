// The rows of a page's navigation, as plain table markup.
#pragma once

#include <string>
#include <string_view>

#include "generator/items/replace.h"

namespace varlo {

class ItemValues;
struct StoreNode;

// What a row is made of. An absent text counts as empty.
struct RowParts {
  Value image;            // base name of a picture, or HTML, which holds a ">"
  Value link;             // address of the row's anchor
  Value name;             // text of the anchor
  bool subindex = false;  // a place for $SUBINDEX under the name
  bool bold = false;
};

inline constexpr std::string_view kSubindexKey = "$SUBINDEX";

// Appends one table row.
void ListingRow(std::string& text, const RowParts& parts);

// The same row with a link that opens another browser page.
void OutsideRow(std::string& text, const RowParts& parts);

// Slots of the bullets.
inline constexpr std::size_t kBulletCategory = 24;
inline constexpr std::size_t kBulletOther = 25;
inline constexpr std::size_t kBulletOpen = 26;
inline constexpr std::size_t kBulletParent = 27;

// The base name in a bullet's slot; absent without a scheme or a value.
[[nodiscard]] Value BulletName(const ItemValues& values, std::size_t slot);

// Whether a child stands in $INDEX and $SUBINDEX, and in the product tables.
// Deliberate: the two tests differ, and a status of -1, which only a file can bring, passes both: such a
// node is listed without having a page.
[[nodiscard]] bool IsIndexed(const StoreNode& node);
[[nodiscard]] bool IsInProductTables(const StoreNode& node);

// Appends the row of a node that is not the page's own; with a place for $SUBINDEX on demand.
void NodeRow(std::string& text, const ItemValues& values, const StoreNode& node, bool subindex);

// Appends the row of the page's own node.
void OwnRow(std::string& text, const ItemValues& values, const StoreNode& node, bool subindex);

// The two product tables of a node's children: $PRODUCT2 and $PRODUCTS2 in two columns, $PRODUCT and
// $PRODUCTS in one. Longer than a page can be, they are not complete.
[[nodiscard]] std::string ProductTableTwo(const ItemValues& values, const StoreNode& node);
[[nodiscard]] std::string ProductTableOne(const ItemValues& values, const StoreNode& node);

}  // namespace varlo
