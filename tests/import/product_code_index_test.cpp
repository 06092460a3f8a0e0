#include "import/product_code_index.h"

#include <random>
#include <string>

#include <gtest/gtest.h>

#include "tests/support/test_program.h"
#include "tests/support/tree.h"

namespace varlo {
namespace {

using namespace test;

class ProductCodes : public testing::Test {
 protected:
  TestProgram t;
  StoreProject& project = t.project();
  StoreNode* home = AddCategory(project, "Home");

  StoreNode* add(const char* code, StoreNode* parent) {
    StoreNode* node = AddProduct(project, code, parent);
    node->productCode.assign(code);
    return node;
  }
  StoreNode* found(std::string_view code) { return ProductCodeIndex(project.root).find(code); }
};

// What comes first, told once more.
StoreNode* firstInOrder(StoreNode* node, std::string_view code) {
  if (node == nullptr) return nullptr;
  StoreNode* below = firstInOrder(node->child, code);
  if (below != nullptr) return below;
  if (node->productCode.isSet() && node->productCode.view() == code) return node;
  return firstInOrder(node->next, code);
}

TEST_F(ProductCodes, AnEmptyTreeHasNone) { EXPECT_EQ(ProductCodeIndex(nullptr).find("a"), nullptr); }

TEST_F(ProductCodes, TheCodeMustBeExactlyEqual) {
  StoreNode* ball = add("B1", home);
  EXPECT_EQ(found("B1"), ball);
  for (const char* other : {"b1", "B", "B11", "B1 ", " B1", ""}) EXPECT_EQ(found(other), nullptr) << other;
}

TEST_F(ProductCodes, ANodeComesBehindAllThatIsBelowIt) {
  home->productCode.assign("X");
  StoreNode* toys = AddCategory(project, "Toys", home);
  toys->productCode.assign("X");
  StoreNode* ball = add("X", toys);
  EXPECT_EQ(found("X"), ball);
  ball->productCode.release();
  EXPECT_EQ(found("X"), toys);
  toys->productCode.release();
  EXPECT_EQ(found("X"), home);
}

TEST_F(ProductCodes, ANodeComesInFrontOfItsNextAndAllBelowThat) {
  StoreNode* ball = add("X", home);
  add("X", AddCategory(project, "Toys", home));
  EXPECT_EQ(found("X"), ball);
}

TEST_F(ProductCodes, ChainsBelowProductsCount) {
  StoreNode* ball = add("X", home);
  StoreNode* chained = project.nodes.allocate();
  chained->kind = NodeKind::Product;
  chained->productCode.assign("X");
  chained->prev = ball;
  chained->parent = home;
  ball->child = chained;
  EXPECT_EQ(found("X"), chained);
}

TEST_F(ProductCodes, RandomTreesAgreeWithTheOrderAsItIsTold) {
  std::mt19937 random(1);
  std::vector<StoreNode*> nodes{home};
  for (int i = 0; i < 600; ++i) {
    StoreNode* parent = nodes[random() % nodes.size()];
    StoreNode* node = AddNode(project, NodeKind::Category, "n", random() % 30 == 0 ? nullptr : parent);
    if (random() % 4 != 0) node->productCode.assign(std::string_view(std::to_string(random() % 150)));
    nodes.push_back(node);
  }
  ProductCodeIndex codes(project.root);
  for (int code = 0; code < 160; ++code) {
    const std::string text = std::to_string(code);
    EXPECT_EQ(codes.find(text), firstInOrder(project.root, text)) << code;
  }
}

TEST_F(ProductCodes, ATreeOfAnyDepthIsSearched) {
  StoreNode* parent = home;
  for (int i = 0; i < 200000; ++i) parent = AddCategory(project, "deep", parent);
  parent->productCode.assign("bottom");
  EXPECT_EQ(found("bottom"), parent);
}

}  // namespace
}  // namespace varlo
