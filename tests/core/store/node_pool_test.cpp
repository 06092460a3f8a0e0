#include "core/store/node_pool.h"

#include <gtest/gtest.h>

namespace varlo {
namespace {

TEST(NodePool, AReleasedRecordIsEmptyAndStaysReadable) {
  NodePool pool;
  StoreNode* node = pool.allocate();
  node->title.assign("Ball");
  pool.release(*node);
  EXPECT_TRUE(node->released);
  EXPECT_TRUE(node->title.isNull());
  EXPECT_TRUE(pool.holds(node));
  EXPECT_NE(pool.allocate(), node);
}

TEST(NodePool, GivesItsRecordsByNumberTheReleasedOnesIncluded) {
  NodePool pool;
  std::vector<StoreNode*> nodes;
  for (int i = 0; i < 600; ++i) nodes.push_back(pool.allocate());
  pool.release(*nodes[300]);
  for (std::size_t i = 0; i < nodes.size(); ++i) EXPECT_EQ(&pool.at(i), nodes[i]);
}

TEST(NodePool, HoldsItsOwnRecordsOnly) {
  NodePool pool;
  EXPECT_EQ(pool.size(), 0U);
  StoreNode foreign;
  for (int i = 0; i < 1000; ++i) EXPECT_TRUE(pool.holds(pool.allocate()));
  EXPECT_EQ(pool.size(), 1000U);
  EXPECT_FALSE(pool.holds(&foreign));
  pool.reset();
  EXPECT_EQ(pool.size(), 0U);
  EXPECT_FALSE(pool.holds(&foreign));
}

}  // namespace
}  // namespace varlo
