// LevelRows: the listing rows of one sibling list, kept from page to page. Neighbouring pages show the
// same rows but for their own, so a page takes them over in a few pieces.
#pragma once

#include <cstddef>
#include <list>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "generator/items/listing.h"

namespace varlo {

struct StoreNode;

class LevelRows {
 public:
  // The rows of every indexed node from `head` on, none of them bold or with a place for $SUBINDEX.
  LevelRows(const ItemValues& values, const StoreNode* head);

  [[nodiscard]] const StoreNode* head() const { return head_; }
  [[nodiscard]] bool isEmpty() const { return nodes_.empty(); }
  // Whether the rows are more than a page can hold; they are not all there then.
  [[nodiscard]] bool isTooLong() const { return rows_.size() > kLongestText; }

  static constexpr std::size_t kNotThere = static_cast<std::size_t>(-1);
  // The number of a node among the rows, kNotThere when it has none.
  [[nodiscard]] std::size_t find(const StoreNode& node);

  // The rows in front of row `number`, those behind it, and the row itself.
  [[nodiscard]] std::string_view before(std::size_t number) const { return piece(0, number); }
  [[nodiscard]] std::string_view behind(std::size_t number) const { return piece(number + 1, nodes_.size()); }
  [[nodiscard]] std::string_view all() const { return rows_; }

 private:
  [[nodiscard]] std::string_view piece(std::size_t first, std::size_t behind) const {
    return std::string_view(rows_).substr(ends_[first], ends_[behind] - ends_[first]);
  }

  using Numbered = std::pair<const StoreNode*, std::size_t>;

  const StoreNode* head_;
  std::vector<const StoreNode*> nodes_;
  std::vector<Numbered> sorted_;      // by address
  std::vector<std::size_t> ends_{0};  // of the rows, with the start in front
  std::string rows_;
  std::size_t found_ = 0;  // the node found last; the next one is likely to be looked for next
};

// The rows of the lists used last.
class LevelRowsCache {
 public:
  explicit LevelRowsCache(const ItemValues& values) : values_(values) {}

  // The rows of the list that starts at `head`; valid while no more than three other lists are asked for.
  LevelRows& of(const StoreNode* head);

 private:
  static constexpr std::size_t kKept = 4;
  const ItemValues& values_;
  std::list<LevelRows> kept_;  // the one used last in front
};

}  // namespace varlo
