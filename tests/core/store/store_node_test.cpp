#include "core/store/store_node.h"

#include <gtest/gtest.h>

namespace varlo {
namespace {

TEST(StoreNode, DefaultTemplatesGoByKind) {
  EXPECT_EQ(TraitsOf(NodeKind::Category).defaultTemplate, "category.htm");
  EXPECT_EQ(TraitsOf(NodeKind::Product).defaultTemplate, "product.htm");
  EXPECT_EQ(TraitsOf(NodeKind::Shelf).defaultTemplate, "shelf.htm");
  EXPECT_EQ(TraitsOf(NodeKind::List).defaultTemplate, "list.htm");
}

TEST(StoreNode, NewItemTextsGoByKind) {
  EXPECT_EQ(TraitsOf(NodeKind::Category).newTitle, "New Category");
  EXPECT_EQ(TraitsOf(NodeKind::Product).newTitle, "New Product");
  EXPECT_EQ(TraitsOf(NodeKind::Shelf).newTitle, "New Shelf");
  EXPECT_EQ(TraitsOf(NodeKind::List).newTitle, "New List");
}

TEST(StoreNodeInit, ReleasesTextsAndZeroesLinks) {
  StoreNode other;
  StoreNode node;
  node.title.assign("Ball");
  node.field[5].assign("x");
  node.next = node.prev = node.parent = node.child = &other;
  node.status = kStatusDisabled;
  node.kind = NodeKind::List;
  StoreNodeInit(node);
  EXPECT_TRUE(node.title.isNull());
  EXPECT_TRUE(node.field[5].isNull());
  EXPECT_EQ(node.next, nullptr);
  EXPECT_EQ(node.prev, nullptr);
  EXPECT_EQ(node.parent, nullptr);
  EXPECT_EQ(node.child, nullptr);
  EXPECT_EQ(node.status, kStatusEnabled);
  EXPECT_EQ(node.kind, NodeKind::Category);
}

TEST(StoreNodeCopy, CopiesTextsAndMarksButNoLinks) {
  StoreNode source;
  StoreNode neighbour;
  source.title.assign("Ball");
  source.displayTitle.assign("Ball");
  source.body.assign("");
  source.label[2].assign("Size");
  source.next = source.child = &neighbour;
  source.modified = 1;
  source.status = kStatusDisabled;
  source.id = 7;
  source.kind = NodeKind::Product;
  source.dragMark = 1;
  source.treeItem = 99;
  source.buildStamp = 5;

  StoreNode copy;
  StoreNodeCopy(copy, &source);
  EXPECT_STREQ(copy.title.get(), "Ball");
  EXPECT_STREQ(copy.displayTitle.get(), "Ball");
  EXPECT_STREQ(copy.body.get(), "");
  EXPECT_TRUE(copy.cost.isNull());
  EXPECT_STREQ(copy.label[2].get(), "Size");
  EXPECT_EQ(copy.next, nullptr);
  EXPECT_EQ(copy.child, nullptr);
  EXPECT_EQ(copy.modified, 1);
  EXPECT_EQ(copy.status, kStatusDisabled);
  EXPECT_EQ(copy.id, 7);
  EXPECT_EQ(copy.kind, NodeKind::Product);
  EXPECT_EQ(copy.dragMark, 1U);
  EXPECT_EQ(copy.treeItem, 0U);
  EXPECT_EQ(copy.buildStamp, 0U);
}

TEST(StoreNodeCopy, AnExistingDestinationKeepsItsLinksAndLosesItsTexts) {
  StoreNode source;
  StoreNode neighbour;
  StoreNode destination;
  destination.cost.assign("9.95");
  destination.prev = &neighbour;
  destination.treeItem = 4;
  StoreNodeCopy(destination, &source);
  EXPECT_TRUE(destination.cost.isNull());
  EXPECT_EQ(destination.prev, &neighbour);
  EXPECT_EQ(destination.treeItem, 4U);
}

TEST(StoreNodeCopy, ANullSourceZeroesTheRecord) {
  StoreNode neighbour;
  StoreNode destination;
  destination.title.assign("x");
  destination.prev = &neighbour;
  StoreNodeCopy(destination, nullptr);
  EXPECT_TRUE(destination.title.isNull());
  EXPECT_EQ(destination.prev, nullptr);
}

}  // namespace
}  // namespace varlo
