#include "import/import_products.h"

#include <gmock/gmock.h>

#include "core/tree/node_commands.h"
#include "import/product_code_index.h"
#include "tests/import/test_sheet.h"
#include "tests/support/test_program.h"
#include "tests/support/tree.h"

namespace varlo {
namespace {

using namespace test;
using testing::ElementsAre;
using testing::IsEmpty;

class ImportedProducts : public testing::Test {
 protected:
  TestProgram t;
  StoreProject& project = t.project();
  StoreNode* home = AddCategory(project, "Home");

  int import(const ImportSheet& sheet) { return ImportProducts(t.program, sheet, AllRows(sheet)); }
  int update(const ImportSheet& sheet) { return UpdateProducts(t.program, sheet, AllRows(sheet)); }

  // Imports one row and gives the product.
  StoreNode& imported(const ImportSheet& sheet) {
    EXPECT_EQ(import(sheet), 1);
    return *project.currentNode;
  }
};

// ApplyRowFields.

TEST_F(ImportedProducts, EveryFieldReachesItsText) {
  ImportSheet sheet;
  std::string row;
  for (ImportFieldNumber number = 1; number <= kImportFields; ++number) {
    sheet.columnField[number - std::size_t{1}] = number;
    row += std::to_string(number * 11) + (number < kImportFields ? "," : "");
  }
  StoreNode node;
  ApplyRowFields(sheet, node, row);
  for (ImportFieldNumber number = 1; number <= kImportFields; ++number) {
    EXPECT_EQ(TextOf(node, ImportFieldOf(number).text).view(), std::to_string(number * 11));
  }
}

TEST_F(ImportedProducts, ColumnsThatCarryNothingLeaveTheirTextsAlone) {
  StoreNode node;
  node.title.assign("Ball");
  node.cost.assign("5");
  ApplyRowFields(SheetOf({"", "cost", ""}, {}), node, "Car,6,7");
  EXPECT_STREQ(node.title.get(), "Ball");
  EXPECT_STREQ(node.cost.get(), "6");
}

TEST_F(ImportedProducts, AnEmptyTextReplacesTheOldValue) {
  StoreNode node;
  node.title.assign("Ball");
  node.weight.assign("5");
  ApplyRowFields(SheetOf({"title", "weight"}, {}), node, ",");
  EXPECT_STREQ(node.title.get(), "");
  EXPECT_STREQ(node.weight.get(), "");
}

TEST_F(ImportedProducts, AColumnThatTheRowDoesNotHaveIsEmpty) {
  StoreNode node;
  node.cost.assign("5");
  ApplyRowFields(SheetOf({"title", "", "cost"}, {}), node, "Ball");
  EXPECT_STREQ(node.cost.get(), "");
}

TEST_F(ImportedProducts, ADecimalCommaInACostBecomesADotWhenItIsTheDecimalPoint) {
  StoreNode node;
  ImportSheet sheet = SheetOf({"cost", "weight", "field1", "title"}, {});
  sheet.dialect.fieldDelimiter = ';';
  ApplyRowFields(sheet, node, "1,50;0,7;2,5 m;1,5");
  EXPECT_STREQ(node.cost.get(), "1,50");
  sheet.dialect.decimalPoint = ",";
  ApplyRowFields(sheet, node, "$ 1,50;0,7;2,5 m;1,5");
  EXPECT_STREQ(node.cost.get(), "1.50");
  EXPECT_STREQ(node.weight.get(), "0.7");
  EXPECT_STREQ(node.field[0].get(), "2.5 m");
  EXPECT_STREQ(node.title.get(), "1,5");
}

TEST_F(ImportedProducts, AColumnBehindTheTwentySixthTakesNoEffect) {
  ImportSheet sheet = SheetOf({}, {});
  sheet.columnField[25] = 1;
  StoreNode node;
  ApplyRowFields(sheet, node, std::string(25, ',') + "the last," + "one more");
  EXPECT_STREQ(node.title.get(), "the last");
}

// ImportProduct.

TEST_F(ImportedProducts, ThreeRowsIntoAnEmptyCategoryStandInTheOrderOfTheFile) {
  StoreNode* toys = AddCategory(project, "Toys", home);
  Select(project, toys);
  EXPECT_EQ(import(SheetOf({"title"}, {"Ball", "Car", "Doll"})), 3);
  EXPECT_EQ(TreeText(project), "Home(Toys(Ball,Car,Doll))");
  EXPECT_STREQ(project.currentNode->title.get(), "Doll");
  EXPECT_EQ(project.treeNode, toys);
  EXPECT_EQ(project.dirty, 1);
  ExpectSoundTree(project);
}

TEST_F(ImportedProducts, WithoutACurrentNodeOrATreeNodeNothingHappens) {
  project.treeNode = home;
  EXPECT_EQ(import(SheetOf({"title"}, {"Ball"})), 0);
  project.currentNode = home;
  project.treeNode = nullptr;
  EXPECT_EQ(import(SheetOf({"title"}, {"Ball"})), 0);
  EXPECT_EQ(TreeText(project), "Home");
  EXPECT_EQ(t.config().uid, 0);
  EXPECT_EQ(project.dirty, 0);
  EXPECT_THAT(t.view.calls, IsEmpty());
}

TEST_F(ImportedProducts, ARowWithoutATitleGivesAProductWithoutOne) {
  Select(project, home);
  StoreNode& made = imported(SheetOf({"cost"}, {"5"}));
  EXPECT_TRUE(made.title.isNull());
  EXPECT_EQ(made.kind, NodeKind::Product);
}

TEST_F(ImportedProducts, TheNumberIsDrawnFromTheInstallationsCounter) {
  t.config().uid = 41;
  Select(project, home);
  StoreNode& made = imported(SheetOf({"title"}, {"Ball"}));
  EXPECT_EQ(made.id, 42);
  EXPECT_EQ(t.config().uid, 42);
  EXPECT_STREQ(made.productCode.get(), "42");
  EXPECT_STREQ(made.fileName.get(), "42.htm");
}

TEST_F(ImportedProducts, WhatTheRowTellsIsKept) {
  Select(project, home);
  home->label[0].assign("Size");
  StoreNode& made =
      imported(SheetOf({"title", "code", "filename", "template", "label1"}, {"Ball,B1,ball.htm,own.htm,Colour"}));
  EXPECT_STREQ(made.productCode.get(), "B1");
  EXPECT_STREQ(made.fileName.get(), "ball.htm");
  EXPECT_STREQ(made.templateName.get(), "own.htm");
  EXPECT_STREQ(made.label[0].get(), "Colour");
}

TEST_F(ImportedProducts, AnEmptyCellGetsTheDefault) {
  Select(project, home);
  home->label[0].assign("Size");
  StoreNode& made = imported(SheetOf({"title", "code", "filename", "template", "label1"}, {"Ball,,,,"}));
  EXPECT_STREQ(made.productCode.get(), "1");
  EXPECT_STREQ(made.fileName.get(), "1.htm");
  EXPECT_STREQ(made.templateName.get(), "product.htm");
  EXPECT_STREQ(made.label[0].get(), "Size");
}

TEST_F(ImportedProducts, LabelsAreThoseOfTheCurrentNodeAndValuesAreNot) {
  Select(project, home);
  home->label[3].assign("Colour");
  home->field[3].assign("red");
  StoreNode& made = imported(SheetOf({"title"}, {"Ball"}));
  EXPECT_STREQ(made.label[3].get(), "Colour");
  EXPECT_TRUE(made.field[3].isNull());
  EXPECT_TRUE(made.label[0].isNull());
}

TEST_F(ImportedProducts, LabelsOfARowGoOnToTheNextRow) {
  Select(project, home);
  import(SheetOf({"title", "label1"}, {"Ball,Size", "Car,"}));
  EXPECT_STREQ(project.currentNode->title.get(), "Car");
  EXPECT_STREQ(project.currentNode->label[0].get(), "Size");
}

TEST_F(ImportedProducts, TheTemplateComesFromTheFirstChildElseFromTheCurrentNode) {
  home->templateName.assign("own.htm");
  Select(project, home);
  StoreNode& first = imported(SheetOf({"title"}, {"Ball"}));
  EXPECT_STREQ(first.templateName.get(), "own.htm");
  first.templateName.assign("child.htm");
  Select(project, home);
  EXPECT_STREQ(imported(SheetOf({"title"}, {"Car"})).templateName.get(), "child.htm");
  first.templateName.assign("");
  Select(project, home);
  EXPECT_STREQ(imported(SheetOf({"title"}, {"Doll"})).templateName.get(), "own.htm");
}

TEST_F(ImportedProducts, WithoutATemplateOrWithThatOfCategoriesItIsTheProducts) {
  home->templateName.assign("CATEGORY.htm");
  Select(project, home);
  EXPECT_STREQ(imported(SheetOf({"title"}, {"Ball"})).templateName.get(), "product.htm");
  Select(project, home);
  EXPECT_STREQ(imported(SheetOf({"template"}, {"Category.HTM"})).templateName.get(), "product.htm");
}

TEST_F(ImportedProducts, BesideAnItemOfAShelfTheTemplateIsTheShelfsAndThereIsNoFileName) {
  StoreNode* shelf = AddNode(project, NodeKind::Shelf, "Shelf", home);
  StoreNode* ball = AddProduct(project, "Ball", shelf);
  ball->templateName.assign("own.htm");
  project.treeNode = shelf;
  project.currentNode = ball;
  StoreNode& made = imported(SheetOf({"title"}, {"Car"}));
  EXPECT_STREQ(made.templateName.get(), "shelf.htm");
  EXPECT_TRUE(made.fileName.isNull());
  StoreNode& told = imported(SheetOf({"template", "filename"}, {"t.htm,f.htm"}));
  EXPECT_STREQ(told.templateName.get(), "t.htm");
  EXPECT_STREQ(told.fileName.get(), "f.htm");
}

TEST_F(ImportedProducts, OnAShelfOnlyTheFirstRowOfABatchHasAFileName) {
  StoreNode* shelf = AddNode(project, NodeKind::Shelf, "Shelf", home);
  Select(project, shelf);
  EXPECT_EQ(import(SheetOf({"title"}, {"Ball", "Car"})), 2);
  EXPECT_STREQ(shelf->child->fileName.get(), "1.htm");
  EXPECT_TRUE(project.currentNode->fileName.isNull());
  EXPECT_STREQ(project.currentNode->templateName.get(), "shelf.htm");
}

TEST_F(ImportedProducts, BesideAnItemOfAListThereIsAFileName) {
  StoreNode* list = AddNode(project, NodeKind::List, "List", home);
  project.treeNode = list;
  project.currentNode = AddProduct(project, "Ball", list);
  StoreNode& made = imported(SheetOf({"title"}, {"Car"}));
  EXPECT_STREQ(made.fileName.get(), "1.htm");
  EXPECT_STREQ(made.templateName.get(), "product.htm");
}

TEST_F(ImportedProducts, TheFirstChildHasTheTreeNodeAsPrev) {
  StoreNode* toys = AddCategory(project, "Toys", home);
  project.treeNode = home;
  project.currentNode = toys;
  StoreNode& made = imported(SheetOf({"title"}, {"Ball"}));
  EXPECT_EQ(toys->child, &made);
  EXPECT_EQ(made.prev, home);
  EXPECT_EQ(made.parent, home);
  ExpectSoundTree(project);
}

TEST_F(ImportedProducts, WithChildrenTheProductGoesBehindTheLast) {
  AddProduct(project, "Ball", home);
  StoreNode* car = AddProduct(project, "Car", home);
  Select(project, home);
  StoreNode& made = imported(SheetOf({"title"}, {"Doll"}));
  EXPECT_EQ(TreeText(project), "Home(Ball,Car,Doll)");
  EXPECT_EQ(made.prev, car);
  EXPECT_EQ(made.parent, home);
  ExpectPlainTree(project);
}

TEST_F(ImportedProducts, AtTheLastProductTheRowsFollowIt) {
  StoreNode* ball = AddProduct(project, "Ball", home);
  project.treeNode = home;
  project.currentNode = ball;
  EXPECT_EQ(import(SheetOf({"title"}, {"Car", "Doll"})), 2);
  EXPECT_EQ(TreeText(project), "Home(Ball,Car,Doll)");
  EXPECT_EQ(ball->next->prev, home);
  EXPECT_EQ(project.currentNode->prev, home);
  ExpectSoundTree(project);
}

TEST_F(ImportedProducts, AtAProductInTheMiddleTheSiblingsBehindItDropOutOfTheList) {
  StoreNode* ball = AddProduct(project, "Ball", home);
  StoreNode* car = AddProduct(project, "Car", home);
  StoreNode* books = AddCategory(project, "Books", home);
  AddProduct(project, "Novel", books);
  Select(project, ball);
  EXPECT_EQ(import(SheetOf({"title"}, {"Doll", "Kite"})), 2);
  EXPECT_EQ(TreeText(project), "Home(Ball,Doll,Kite)");
  EXPECT_FALSE(car->released);
  ExpectSoundTree(project);
}

TEST_F(ImportedProducts, WhatDropsOutIsShownNoMore) {
  StoreNode* ball = AddProduct(project, "Ball", home);
  AddProduct(project, "Car", home);
  AddCategory(project, "Books", home);
  Select(project, ball);
  import(SheetOf({"title"}, {"Doll", "Kite"}));
  EXPECT_THAT(t.view.calls, ElementsAre("removeTreeItem Car", "removeTreeItem Books", "loadForm", "loadItemList Home",
                                        "insertTreeItem Doll behind Ball", "insertTreeItem Kite behind Ball",
                                        "refreshCommandStates"));
}

TEST_F(ImportedProducts, WhatDroppedOutCanBePutBackWithoutLosingAnythingElse) {
  StoreNode* ball = AddProduct(project, "Ball", home);
  StoreNode* car = AddProduct(project, "Car", home);
  StoreNode* top = AddProduct(project, "Top", home);
  Select(project, ball);
  import(SheetOf({"title"}, {"Doll"}));
  EXPECT_EQ(StoreNodeInsert(t.program, top, home), 1);
  EXPECT_EQ(StoreNodeInsert(t.program, car, home), 1);
  EXPECT_EQ(TreeText(project), "Home(Ball,Doll,Top,Car)");
  ExpectSoundTree(project);
  StoreNodeDelete(t.program, ball->next);
  EXPECT_EQ(TreeText(project), "Home(Ball,Top,Car)");
  ExpectSoundTree(project);
}

TEST_F(ImportedProducts, AtAProductWithAChainTheRowsGoToTheHeadOfTheChain) {
  StoreNode* ball = AddProduct(project, "Ball", home);
  StoreNode* other = AddProduct(project, "Other", home);
  Select(project, ball);
  CopyNode(t.program);
  PasteNode(t.program);
  StoreNode* chained = ball->child;
  Select(project, ball);
  EXPECT_EQ(import(SheetOf({"title"}, {"Car", "Doll"})), 2);
  EXPECT_EQ(TreeText(project), "Home(Ball[Car[Doll[Ball]]],Other)");
  EXPECT_EQ(chained->prev, project.currentNode);
  EXPECT_EQ(ball->child->prev, ball);
  EXPECT_EQ(project.currentNode->parent, home);
  EXPECT_EQ(ball->next, other);
  ExpectPlainTree(project);
}

TEST_F(ImportedProducts, WithAProductInTheTreeTheParentIsItsParent) {
  StoreNode* ball = AddProduct(project, "Ball", home);
  Select(project, ball);
  StoreNode& made = imported(SheetOf({"title"}, {"Car"}));
  EXPECT_EQ(made.parent, home);
  EXPECT_EQ(made.prev, ball);
  ExpectPlainTree(project);
}

TEST_F(ImportedProducts, WithoutAParentTheRowsAreLinkedButNotCountedShownOrMarked) {
  StoreNode* loose = AddProduct(project, "Loose");
  Select(project, loose);
  EXPECT_EQ(import(SheetOf({"title"}, {"Ball", "Car"})), 0);
  EXPECT_EQ(TreeText(project), "Home,Loose,Ball,Car");
  EXPECT_STREQ(project.currentNode->title.get(), "Car");
  EXPECT_EQ(project.dirty, 0);
  EXPECT_THAT(t.view.calls, IsEmpty());
  ExpectSoundTree(project);
}

TEST_F(ImportedProducts, ASecondImportMakesThemAgain) {
  Select(project, home);
  const ImportSheet sheet = SheetOf({"title", "code"}, {"Ball,B1"});
  import(sheet);
  import(sheet);
  EXPECT_EQ(TreeText(project), "Home(Ball,Ball)");
  EXPECT_STREQ(project.currentNode->productCode.get(), "B1");
}

TEST_F(ImportedProducts, AFileNameOfTheRowIsTakenTwice) {
  Select(project, home);
  import(SheetOf({"filename"}, {"a.htm", "a.htm"}));
  EXPECT_STREQ(home->child->fileName.get(), "a.htm");
  EXPECT_STREQ(home->child->next->fileName.get(), "a.htm");
}

TEST_F(ImportedProducts, OnlyTheGivenRowsAreImportedInTheirOrder) {
  Select(project, home);
  const ImportSheet sheet = SheetOf({"title"}, {"Ball", "Car", "Doll"});
  const std::size_t rows[] = {0, 2};
  EXPECT_EQ(ImportProducts(t.program, sheet, rows), 2);
  EXPECT_EQ(TreeText(project), "Home(Ball,Doll)");
}

TEST_F(ImportedProducts, TheViewIsToldOnceForAllRows) {
  Select(project, home);
  import(SheetOf({"title"}, {"Ball", "Car"}));
  EXPECT_THAT(t.view.calls, ElementsAre("loadForm", "loadItemList Home", "insertTreeItem Ball behind Home",
                                        "insertTreeItem Car behind Home", "refreshCommandStates"));
}

// Update.

class UpdatedProducts : public ImportedProducts {
 protected:
  StoreNode* ball = AddProduct(project, "Ball", home);
  StoreNode* car = AddProduct(project, "Car", home);

  void SetUp() override {
    ball->productCode.assign("B1");
    ball->cost.assign("5");
    car->productCode.assign("C1");
    car->cost.assign("9");
    Select(project, home);
  }
};

TEST_F(UpdatedProducts, AProductIsFoundByItsCode) {
  EXPECT_EQ(update(SheetOf({"cost", "code"}, {"10,C1", "6,B1"})), 2);
  EXPECT_STREQ(ball->cost.get(), "6");
  EXPECT_STREQ(car->cost.get(), "10");
  EXPECT_STREQ(ball->title.get(), "Ball");
  EXPECT_EQ(TreeText(project), "Home(Ball,Car)");
}

TEST_F(UpdatedProducts, AnUpdateDoesNotMarkTheProjectAsChanged) {
  update(SheetOf({"cost", "code"}, {"10,C1"}));
  EXPECT_EQ(project.dirty, 0);
  project.dirty = 1;
  update(SheetOf({"cost", "code"}, {"10,C1"}));
  EXPECT_EQ(project.dirty, 1);
}

TEST_F(UpdatedProducts, ARowWithAnUnknownCodeIsNotCountedAndNotTold) {
  EXPECT_EQ(update(SheetOf({"cost", "code"}, {"10,c1", "10,C1 ", "10,", "10"})), 0);
  EXPECT_STREQ(car->cost.get(), "9");
  EXPECT_THAT(t.screen.boxes, IsEmpty());
}

TEST_F(UpdatedProducts, ANodeWithoutACodeNeverMatches) {
  ball->productCode.release();
  car->productCode.assign("");
  EXPECT_EQ(update(SheetOf({"code", "cost"}, {",10"})), 0);
  EXPECT_STREQ(car->cost.get(), "9");
}

TEST_F(UpdatedProducts, OfTwoRowsWithTheSameCodeTheLaterWins) {
  EXPECT_EQ(update(SheetOf({"code", "cost"}, {"B1,6", "B1,7"})), 2);
  EXPECT_STREQ(ball->cost.get(), "7");
}

TEST_F(UpdatedProducts, NodesOfEveryKindCount) {
  home->productCode.assign("H");
  EXPECT_EQ(update(SheetOf({"code", "title"}, {"H,House"})), 1);
  EXPECT_STREQ(home->title.get(), "House");
}

TEST_F(UpdatedProducts, WithoutAColumnOfCodesTheErrorComesOnceForEachRow) {
  EXPECT_EQ(update(SheetOf({"title"}, {"A", "B"})), 0);
  const ShownBox box{"An update operation requires a Product Code field to be defined.", "Error"};
  EXPECT_THAT(t.screen.boxes, ElementsAre(box, box));
}

TEST_F(UpdatedProducts, WithNothingCurrentNothingHappensAndNothingIsTold) {
  project.currentNode = nullptr;
  EXPECT_EQ(update(SheetOf({"title"}, {"A"})), 0);
  EXPECT_EQ(update(SheetOf({"code", "title"}, {"B1,A"})), 0);
  Select(project, home);
  project.treeNode = nullptr;
  EXPECT_EQ(update(SheetOf({"code", "title"}, {"B1,A"})), 0);
  EXPECT_THAT(t.screen.boxes, IsEmpty());
  EXPECT_STREQ(ball->title.get(), "Ball");
}

TEST_F(UpdatedProducts, TheLastOfTwoColumnsOfCodesIsTheOneToFindBy) {
  EXPECT_EQ(update(SheetOf({"code", "code", "cost"}, {"C1,B1,6"})), 1);
  EXPECT_STREQ(ball->cost.get(), "6");
  EXPECT_STREQ(ball->productCode.get(), "B1");
  EXPECT_EQ(update(SheetOf({"code", "code", "cost"}, {"X,B1,7", "Y,B1,8"})), 2);
  EXPECT_STREQ(ball->cost.get(), "8");
}

TEST_F(UpdatedProducts, AnEmptyCellEmptiesTheText) {
  EXPECT_EQ(update(SheetOf({"code", "cost"}, {"B1,"})), 1);
  EXPECT_STREQ(ball->cost.get(), "");
}

TEST_F(UpdatedProducts, AnUpdateNeitherMovesTheCurrentNodeNorTellsTheView) {
  update(SheetOf({"code", "cost"}, {"B1,6"}));
  EXPECT_EQ(project.currentNode, home);
  EXPECT_THAT(t.view.calls, IsEmpty());
  EXPECT_EQ(t.config().uid, 0);
}

}  // namespace
}  // namespace varlo
