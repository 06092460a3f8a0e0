#include "core/store/node_text.h"

#include <algorithm>
#include <set>
#include <string>

#include <gtest/gtest.h>

namespace varlo {
namespace {

TEST(NodeText, NamesEachTextOfTheRecordOnce) {
  StoreNode node;
  std::set<const Text*> texts;
  std::set<std::string_view> names;
  for (const NodeText text : kAllNodeTexts) {
    texts.insert(&TextOf(node, text));
    names.insert(NameOf(text));
  }
  EXPECT_EQ(kNodeTexts, 26U);
  EXPECT_EQ(texts.size(), kNodeTexts);
  EXPECT_EQ(names.size(), kNodeTexts);
  EXPECT_FALSE(texts.contains(&node.displayTitle));
}

TEST(NodeText, LeadsToTheMemberOfItsName) {
  StoreNode node;
  TextOf(node, NodeText::Title).assign("title");
  TextOf(node, NodeText::Body).assign("body");
  TextOf(node, NodeText::MetaKeywords).assign("keywords");
  TextOf(node, NodeText::Field1).assign("first value");
  TextOf(node, NodeText::Field6).assign("last value");
  TextOf(node, NodeText::Label2).assign("second label");
  EXPECT_STREQ(node.title.get(), "title");
  EXPECT_STREQ(node.body.get(), "body");
  EXPECT_STREQ(node.metaKeywords.get(), "keywords");
  EXPECT_STREQ(node.field[0].get(), "first value");
  EXPECT_STREQ(node.field[5].get(), "last value");
  EXPECT_STREQ(node.label[1].get(), "second label");
}

TEST(NodeText, ReadsFromANodeThatMayNotBeChanged) {
  StoreNode node;
  node.tax.assign("12.5");
  const StoreNode& shown = node;
  EXPECT_STREQ(TextOf(shown, NodeText::Tax).get(), "12.5");
  EXPECT_TRUE(TextOf(shown, NodeText::Freight).isNull());
}

TEST(NodeText, CountsTheOptionTextsFromZero) {
  EXPECT_EQ(NodeField(0), NodeText::Field1);
  EXPECT_EQ(NodeField(5), NodeText::Field6);
  EXPECT_EQ(NodeLabel(0), NodeText::Label1);
  EXPECT_EQ(NodeLabel(5), NodeText::Label6);
  EXPECT_EQ(NameOf(NodeField(2)), "field3");
  EXPECT_EQ(NameOf(NodeLabel(3)), "label4");
}

TEST(NodeText, TellsTheOptionTextsApart) {
  EXPECT_EQ(std::ranges::count_if(kAllNodeTexts, IsOption), 12);
  EXPECT_FALSE(IsOption(NodeText::Tax));
  EXPECT_TRUE(IsOption(NodeText::Field1));
  EXPECT_TRUE(IsOption(NodeText::Label6));
  EXPECT_FALSE(IsOption(NodeText::MetaKeywords));
}

}  // namespace
}  // namespace varlo
