#include "generator/template/level_rows.h"

#include <gtest/gtest.h>

#include "generator/items/item_values.h"
#include "tests/support/test_shop.h"

namespace varlo {
namespace {

using namespace test;

struct LevelRowsTest : testing::Test {
  TestShop t;
  ItemValues values{t.generator};

  std::string rowOf(const StoreNode& node) {
    std::string row;
    NodeRow(row, values, node, false);
    return row;
  }
};

TEST_F(LevelRowsTest, HoldsTheRowsOfEveryIndexedNode) {
  AddProduct(t.project(), "Car", t.home)->status = -2;
  StoreNode* doll = AddProduct(t.project(), "Doll", t.home);
  doll->status = -1;
  LevelRows rows(values, t.ball);
  EXPECT_EQ(rows.all(), rowOf(*t.ball) + rowOf(*doll));
  EXPECT_EQ(rows.find(*t.ball), 0U);
  EXPECT_EQ(rows.find(*doll), 1U);
  EXPECT_EQ(rows.find(*t.ball->next), LevelRows::kNotThere);
  EXPECT_EQ(rows.find(*t.home), LevelRows::kNotThere);
  EXPECT_EQ(rows.before(1), rowOf(*t.ball));
  EXPECT_EQ(rows.behind(0), rowOf(*doll));
  EXPECT_EQ(rows.before(0), "");
  EXPECT_EQ(rows.behind(1), "");
  EXPECT_FALSE(rows.isEmpty());
}

TEST_F(LevelRowsTest, StartsWhereItIsTold) {
  StoreNode* car = AddProduct(t.project(), "Car", t.home);
  EXPECT_EQ(LevelRows(values, car).all(), rowOf(*car));
  EXPECT_EQ(LevelRows(values, car).find(*t.ball), LevelRows::kNotThere);
}

TEST_F(LevelRowsTest, FindsNodesInAnyOrder) {
  std::vector<StoreNode*> nodes{t.ball};
  for (int i = 0; i < 100; ++i) nodes.push_back(AddProduct(t.project(), "x", t.home));
  LevelRows rows(values, t.ball);
  for (std::size_t i = 0; i < nodes.size(); ++i) {
    EXPECT_EQ(rows.find(*nodes[i]), i);
    EXPECT_EQ(rows.find(*nodes[(i * 37) % nodes.size()]), (i * 37) % nodes.size());
  }
}

TEST_F(LevelRowsTest, ALevelOfDisabledNodesIsEmpty) {
  t.ball->status = -2;
  LevelRows rows(values, t.ball);
  EXPECT_TRUE(rows.isEmpty());
  EXPECT_EQ(rows.all(), "");
}

TEST_F(LevelRowsTest, TheCacheKeepsTheListsUsedLast) {
  LevelRowsCache cache(values);
  std::vector<StoreNode*> heads;
  for (int i = 0; i < 6; ++i) {
    StoreNode* parent = AddCategory(t.project(), "c", t.home);
    heads.push_back(AddProduct(t.project(), std::to_string(i).c_str(), parent));
  }
  LevelRows* first = &cache.of(heads[0]);
  for (int i = 1; i < 4; ++i)
    EXPECT_EQ(cache.of(heads[static_cast<std::size_t>(i)]).head(), heads[static_cast<std::size_t>(i)]);
  EXPECT_EQ(&cache.of(heads[0]), first) << "three others later it is still there";
  for (StoreNode* head : heads) EXPECT_EQ(cache.of(head).all(), rowOf(*head));
  for (StoreNode* head : heads) EXPECT_EQ(cache.of(head).all(), rowOf(*head));
}

}  // namespace
}  // namespace varlo
