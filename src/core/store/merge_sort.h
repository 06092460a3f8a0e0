// A sort for comparisons that need not be an order in the strict sense.
#pragma once

#include <algorithm>
#include <cstddef>
#include <utility>
#include <vector>

namespace varlo {

// Sorts by `compare`, which gives less than, equal to or greater than 0; equal items keep their places. Whatever
// it says, even if it contradicts itself, the sort ends and every item is there once afterwards. The library's
// own sorts may run astray then.
template <typename Item, typename Compare>
void MergeSort(std::vector<Item>& items, Compare compare) {
  const std::size_t size = items.size();
  std::vector<Item> merged(size);
  for (std::size_t run = 1; run < size; run *= 2) {
    std::size_t at = 0;
    for (std::size_t start = 0; start < size; start += 2 * run) {
      std::size_t left = start;
      const std::size_t middle = std::min(start + run, size);
      std::size_t right = middle;
      const std::size_t end = std::min(middle + run, size);
      while (at < end) {
        const bool fromLeft = left < middle && (right == end || compare(items[left], items[right]) <= 0);
        merged[at++] = std::move(items[fromLeft ? left++ : right++]);
      }
    }
    items.swap(merged);
  }
}

}  // namespace varlo
