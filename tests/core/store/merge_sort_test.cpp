#include "core/store/merge_sort.h"

#include <numeric>
#include <random>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace varlo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

int byValue(int left, int right) { return left - right; }

TEST(MergeSort, SortsListsOfEveryLength) {
  std::mt19937 random(1);
  for (std::size_t size = 0; size < 70; ++size) {
    std::vector<int> items(size);
    for (int& item : items) item = static_cast<int>(random() % 20);
    std::vector<int> expected = items;
    std::sort(expected.begin(), expected.end());
    MergeSort(items, byValue);
    EXPECT_EQ(items, expected) << size;
  }
}

TEST(MergeSort, EqualItemsKeepTheirPlaces) {
  std::vector<std::string> items{"b1", "a1", "b2", "a2", "a3"};
  MergeSort(items, [](const std::string& left, const std::string& right) { return left[0] - right[0]; });
  EXPECT_THAT(items, ElementsAre("a1", "a2", "a3", "b1", "b2"));
}

TEST(MergeSort, AnEmptyListStaysEmpty) {
  std::vector<int> items;
  MergeSort(items, byValue);
  EXPECT_THAT(items, IsEmpty());
}

TEST(MergeSort, EndsAndKeepsEveryItemWhateverTheComparisonSays) {
  std::mt19937 random(2);
  for (std::size_t size = 0; size < 300; ++size) {
    std::vector<int> items(size);
    std::iota(items.begin(), items.end(), 0);
    const std::vector<int> expected = items;
    MergeSort(items, [&](int, int) { return static_cast<int>(random() % 3) - 1; });
    std::sort(items.begin(), items.end());
    EXPECT_EQ(items, expected) << size;
    for (const int always : {-1, 1}) {
      MergeSort(items, [always](int, int) { return always; });
      std::sort(items.begin(), items.end());
      EXPECT_EQ(items, expected) << size;
    }
  }
}

}  // namespace
}  // namespace varlo
