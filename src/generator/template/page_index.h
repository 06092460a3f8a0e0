// The navigation of a page: $INDEX with its $BACK, and what $SUBINDEX and the product variables stand for.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "generator/items/listing.h"

namespace varlo {

struct Generator;

// Which list $INDEX shows, and where it opens.
struct IndexPlan {
  StoreNode* branch = nullptr;        // node whose row holds the place for $SUBINDEX; null: the page's own
  StoreNode* first = nullptr;         // first of the siblings at the open level
  const StoreNode* parent = nullptr;  // of the first; has a row on top
  bool listsSiblings = true;          // from `first` on
  StoreNode* further = nullptr;       // children of the node's parent, listed behind; null for none
};

[[nodiscard]] IndexPlan PlanIndex(StoreNode& node);

// What an $INDEX begins and ends with: its table, the row of the parent, the row of the store directory.
void BeginIndex(std::string& index, const ItemValues& values, const IndexPlan& plan);
void EndIndex(std::string& index, const ItemValues& values);

// The letter that the title stands for on an alphabetic page, 'a' for one without; 0 without a title.
[[nodiscard]] char LetterOf(const StoreNode& node);
[[nodiscard]] std::string LetterPage(char letter);

// The value of $BACK on a page that has $INDEX, and on one that has not or behind it. Absent leaves the
// key; `buffer` holds what has to be made.
[[nodiscard]] Value BackOfIndex(const StoreNode& node, std::string& buffer);
[[nodiscard]] Value BackOfPage(const StoreNode& node, std::string& buffer);

// The node whose children $SUBINDEX lists; null for none.
[[nodiscard]] const StoreNode* SubindexLevel(const StoreNode& node, const StoreNode* branch);

inline constexpr std::string_view kSubindexBegin = "<table cellspacing=0>";
inline constexpr std::string_view kSubindexEnd = "</table>";

// The steps of a page one by one. ExpandIndex gives the branch node and sets `letter`, to 0 for none.
StoreNode* ExpandIndex(const ItemValues& values, std::string& page, StoreNode& node, char& letter);
void BuildProductTables(const ItemValues& values, std::string& page, const StoreNode& node);
void BuildSubindex(const ItemValues& values, std::string& page, const StoreNode& node, const StoreNode* branch);

}  // namespace varlo
