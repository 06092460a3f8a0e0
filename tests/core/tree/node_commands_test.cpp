#include "core/tree/node_commands.h"

#include <gtest/gtest.h>

#include "tests/support/test_program.h"
#include "tests/support/tree.h"

namespace varlo {
namespace {

using namespace test;

class NodeCommands : public testing::Test {
 protected:
  TestProgram t;
  StoreProject& project = t.project();
  StoreNode* home = AddCategory(project, "Home");

  StoreNode* newProduct() {
    EXPECT_EQ(NewProduct(t.program, "New Product"), 1);
    return project.currentNode;
  }
};

TEST_F(NodeCommands, TheFirstNodeOfAFreshInstallationIsNumberedOne) {
  Select(project, home);
  const StoreNode* made = newProduct();
  EXPECT_EQ(made->id, 1);
  EXPECT_EQ(t.config().uid, 1);
  EXPECT_STREQ(made->fileName.get(), "1.htm");
  EXPECT_STREQ(made->productCode.get(), "1");
  EXPECT_STREQ(made->title.get(), "New Product");
  EXPECT_EQ(made->kind, NodeKind::Product);
}

TEST_F(NodeCommands, ANewProductOnASelectedCategoryWithNoChildrenBecomesItsChild) {
  Select(project, home);
  const StoreNode* made = newProduct();
  EXPECT_EQ(home->child, made);
  EXPECT_EQ(made->prev, home);
  EXPECT_EQ(made->parent, home);
  ExpectPlainTree(project);
}

TEST_F(NodeCommands, InAnEmptyCategoryOfTheListPrevIsTheTreeSelectedNode) {
  StoreNode* toys = AddCategory(project, "Toys", home);
  project.treeNode = home;
  project.currentNode = toys;
  const StoreNode* made = newProduct();
  EXPECT_EQ(toys->child, made);
  EXPECT_EQ(made->prev, home);
  EXPECT_EQ(made->parent, home);
  ExpectSoundTree(project);
}

TEST_F(NodeCommands, WithChildrenANewProductGoesToTheEnd) {
  StoreNode* ball = AddProduct(project, "Ball", home);
  Select(project, home);
  const StoreNode* made = newProduct();
  EXPECT_EQ(ball->next, made);
  EXPECT_EQ(made->prev, ball);
  ExpectPlainTree(project);
}

TEST_F(NodeCommands, AtAProductANewOneGoesDirectlyBehindIt) {
  StoreNode* ball = AddProduct(project, "Ball", home);
  StoreNode* car = AddProduct(project, "Car", home);
  Select(project, ball);
  const StoreNode* made = newProduct();
  EXPECT_EQ(ball->next, made);
  EXPECT_EQ(made->next, car);
  EXPECT_EQ(car->prev, made);
  EXPECT_EQ(made->prev, ball);
  EXPECT_EQ(made->parent, home);
  ExpectPlainTree(project);
}

TEST_F(NodeCommands, AtAProductOfTheListPrevIsTheCategoryOfTheTree) {
  StoreNode* ball = AddProduct(project, "Ball", home);
  project.treeNode = home;
  project.currentNode = ball;
  const StoreNode* made = newProduct();
  EXPECT_EQ(made->prev, home);
  EXPECT_EQ(ball->next, made);
  ExpectSoundTree(project);
}

TEST_F(NodeCommands, AtAProductWithAChainANewOneBecomesTheHeadOfTheChain) {
  StoreNode* ball = AddProduct(project, "Ball", home);
  Select(project, ball);
  CopyNode(t.program);
  PasteNode(t.program);
  StoreNode* chained = ball->child;
  Select(project, ball);
  const StoreNode* made = newProduct();
  EXPECT_EQ(ball->child, made);
  EXPECT_EQ(made->child, chained);
  EXPECT_EQ(chained->prev, made);
  EXPECT_EQ(made->prev, ball);
  EXPECT_EQ(made->parent, home);
  ExpectPlainTree(project);
}

TEST_F(NodeCommands, OptionLabelsCarryOverAndValuesDoNot) {
  home->label[1].assign("Size");
  home->field[1].assign("L");
  Select(project, home);
  const StoreNode* made = newProduct();
  EXPECT_STREQ(made->label[1].get(), "Size");
  EXPECT_TRUE(made->field[1].isNull());
}

TEST_F(NodeCommands, ANullTitleIsEmpty) {
  Select(project, home);
  NewProduct(t.program, nullptr);
  EXPECT_STREQ(project.currentNode->title.get(), "");
}

TEST_F(NodeCommands, TheTemplateComesFromTheFirstChildElseFromTheNode) {
  home->templateName.assign("own.htm");
  Select(project, home);
  StoreNode* first = newProduct();
  EXPECT_STREQ(first->templateName.get(), "own.htm");
  first->templateName.assign("child.htm");
  Select(project, home);
  EXPECT_STREQ(newProduct()->templateName.get(), "child.htm");
}

TEST_F(NodeCommands, WithoutATemplateOrWithThatOfCategoriesItIsTheProducts) {
  Select(project, home);
  EXPECT_STREQ(newProduct()->templateName.get(), "product.htm");
  StoreNode* other = AddCategory(project, "Other");
  other->templateName.assign("CATEGORY.HTM");
  Select(project, other);
  EXPECT_STREQ(newProduct()->templateName.get(), "product.htm");
}

TEST_F(NodeCommands, AProductMadeAtAProductOfAListHasNoPage) {
  StoreNode* list = AddNode(project, NodeKind::List, "Lines", home);
  Select(project, list);
  StoreNode* first = newProduct();
  EXPECT_STREQ(first->fileName.get(), "1.htm");
  Select(project, first);
  const StoreNode* second = newProduct();
  EXPECT_TRUE(second->fileName.isNull());
  EXPECT_STREQ(second->templateName.get(), "list.htm");
  EXPECT_STREQ(second->productCode.get(), "2");
}

TEST_F(NodeCommands, AProductMadeAtAProductOfAShelfHasAPage) {
  StoreNode* shelf = AddNode(project, NodeKind::Shelf, "Rack", home);
  StoreNode* pen = AddProduct(project, "Pen", shelf);
  Select(project, pen);
  EXPECT_STREQ(newProduct()->fileName.get(), "1.htm");
}

TEST_F(NodeCommands, WithoutACurrentOrTreeNodeNothingHappens) {
  project.currentNode = home;
  project.treeNode = nullptr;
  EXPECT_EQ(NewProduct(t.program, "x"), 0);
  project.currentNode = nullptr;
  project.treeNode = home;
  EXPECT_EQ(NewProduct(t.program, "x"), 0);
  EXPECT_EQ(t.config().uid, 0);
  EXPECT_EQ(home->child, nullptr);
}

TEST_F(NodeCommands, ANewProductMarksTheProjectAndTellsTheWindow) {
  Select(project, home);
  newProduct();
  EXPECT_EQ(project.dirty, 1);
  EXPECT_THAT(t.view.calls, testing::ElementsAre("loadForm", "loadItemList Home", "refreshCommandStates",
                                                 "insertTreeItem New Product behind Home"));
}

TEST_F(NodeCommands, NewShelfListAndCategoryGoThroughInsert) {
  project.currentNode = home;
  EXPECT_EQ(NewNode(t.program, NodeKind::Category), 1);
  EXPECT_EQ(NewNode(t.program, NodeKind::Shelf), 1);
  EXPECT_EQ(NewNode(t.program, NodeKind::List), 1);
  EXPECT_EQ(TreeText(project), "Home(New Category,New Shelf,New List)");
  EXPECT_STREQ(home->child->next->next->fileName.get(), "3.htm");
  EXPECT_TRUE(home->child->templateName.isNull());
  EXPECT_EQ(project.dirty, 1);
  ExpectPlainTree(project);
}

TEST_F(NodeCommands, ARefusedNodeIsDroppedSilentlyButItsNumberIsUsed) {
  StoreNode* shelf = AddNode(project, NodeKind::Shelf, "Rack", home);
  project.currentNode = shelf;
  EXPECT_EQ(NewNode(t.program, NodeKind::Category), 0);
  EXPECT_EQ(t.config().uid, 1);
  EXPECT_EQ(project.dirty, 0);
  EXPECT_TRUE(t.screen.boxes.empty());
  EXPECT_EQ(TreeText(project), "Home(Rack)");
}

TEST_F(NodeCommands, NewCategoryWithATreeGoesBelowTheCurrentNode) {
  project.currentNode = home;
  NewCategoryCommand(t.program);
  EXPECT_EQ(TreeText(project), "Home(New Category)");
  EXPECT_TRUE(t.screen.posted.empty());
}

TEST(NewCategory, WithAnEmptyStoreIsPostedAndStartsTheTree) {
  TestProgram t;
  NewCategoryCommand(t.program);
  EXPECT_EQ(t.project().root, nullptr);
  ASSERT_EQ(t.screen.posted, std::vector{Command::TreeNewCategory});
  NewTopCategory(t.program);
  EXPECT_EQ(TreeText(t.project()), "New Category");
  EXPECT_EQ(t.project().currentNode, t.project().root);
  EXPECT_EQ(t.project().dirty, 1);
  ExpectPlainTree(t.project());
}

TEST_F(NodeCommands, TheSecondPathAppendsToTheTopLevelList) {
  NewTopCategory(t.program);
  EXPECT_EQ(TreeText(project), "Home,New Category");
  EXPECT_EQ(project.currentNode, home->next);
  EXPECT_EQ(home->next->prev, home);
  EXPECT_EQ(home->next->parent, nullptr);
  ExpectPlainTree(project);
}

TEST_F(NodeCommands, CopyTakesOneNodeWithoutItsChildren) {
  AddProduct(project, "Ball", home);
  home->treeItem = 3;
  project.currentNode = home;
  CopyNode(t.program);
  ASSERT_NE(project.clipboardNode, nullptr);
  EXPECT_STREQ(project.clipboardNode->title.get(), "Home");
  EXPECT_EQ(project.clipboardNode->child, nullptr);
  EXPECT_EQ(project.clipboardNode->treeItem, 0U);
  ExpectSoundTree(project);
}

TEST_F(NodeCommands, PasteKeepsNumberAndPageOfItsSource) {
  Select(project, home);
  const StoreNode* made = newProduct();
  CopyNode(t.program);
  Select(project, home);
  EXPECT_EQ(PasteNode(t.program), 1);
  EXPECT_EQ(project.currentNode->id, made->id);
  EXPECT_STREQ(project.currentNode->fileName.get(), made->fileName.get());
  EXPECT_EQ(TreeText(project), "Home(New Product,New Product)");
  ExpectPlainTree(project);
}

TEST_F(NodeCommands, PasteOfACategoryOntoAProductPlacesItBehindItsParentsLastChild) {
  StoreNode* toys = AddCategory(project, "Toys", home);
  StoreNode* ball = AddProduct(project, "Ball", toys);
  AddProduct(project, "Car", toys);
  project.currentNode = home;
  CopyNode(t.program);
  Select(project, ball);
  EXPECT_EQ(PasteNode(t.program), 1);
  EXPECT_EQ(TreeText(project), "Home(Toys(Ball,Car,Home))");
  ExpectPlainTree(project);
}

TEST_F(NodeCommands, ARefusedPasteMakesTheCopyCurrentThoughItIsLinkedNowhere) {
  StoreNode* shelf = AddNode(project, NodeKind::Shelf, "Rack", home);
  project.currentNode = home;
  CopyNode(t.program);
  Select(project, shelf);
  EXPECT_EQ(PasteNode(t.program), 0);
  EXPECT_EQ(TreeText(project), "Home(Rack)");
  EXPECT_STREQ(project.currentNode->title.get(), "Home");
  EXPECT_EQ(project.dirty, 1);
  // What is made in it hangs on it, and is not in the tree.
  newProduct();
  EXPECT_EQ(TreeText(project), "Home(Rack)");
  StoreNodeDelete(t.program, project.currentNode);
  ExpectSoundTree(project);
}

TEST_F(NodeCommands, PasteWithoutACopyDoesNothing) {
  project.currentNode = home;
  EXPECT_EQ(PasteNode(t.program), 0);
  EXPECT_EQ(project.dirty, 0);
}

TEST_F(NodeCommands, TheCounterWrapsInsteadOfOverflowing) {
  t.config().uid = 2147483647;
  Select(project, home);
  EXPECT_STREQ(newProduct()->fileName.get(), "-2147483648.htm");
}

}  // namespace
}  // namespace varlo
