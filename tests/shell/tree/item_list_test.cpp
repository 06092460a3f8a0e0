#include "shell/tree/item_list.h"

#include <gtest/gtest.h>

#include "tests/support/shown_store.h"

namespace varlo::test {
namespace {

TEST(ItemList, HasSixteenColumnsWithHeadingsAndWidths) {
  const std::pair<std::string_view, int> kExpected[] = {
      {"Product", 140}, {"Price", 40},    {"Tax", 40},        {"Freight", 40},     {"Weight", 40}, {"Code", 80},
      {"Filename", 80}, {"Template", 80}, {"Image URL", 120}, {"Image Link", 120}, {"F1", 40},     {"F2", 40},
      {"F3", 40},       {"F4", 40},       {"F5", 40},         {"F6", 40}};
  const auto columns = itemListColumns();
  ASSERT_EQ(columns.size(), std::size(kExpected));
  for (std::size_t i = 0; i < columns.size(); ++i) {
    EXPECT_EQ(columns[i].heading, kExpected[i].first);
    EXPECT_EQ(columns[i].width, kExpected[i].second);
  }
}

TEST(ItemList, CellsShowTheFieldsOfTheirNode) {
  StoreNode node;
  node.title.assign("<i>Ball</i>");
  node.cost.assign("1");
  node.tax.assign("2");
  node.freight.assign("3");
  node.weight.assign("4");
  node.productCode.assign("5");
  node.fileName.assign("6");
  node.templateName.assign("7");
  node.image.assign("8");
  node.imageLink.assign("9");
  const char* kFields[] = {"10", "11", "12", "13", "14", "15"};
  for (std::size_t i = 0; i < node.field.size(); ++i) node.field[i].assign(kFields[i]);
  EXPECT_EQ(cellText(node, 0), "Ball");
  for (int column = 1; column < 16; ++column) EXPECT_EQ(cellText(node, column), std::to_string(column));
  EXPECT_EQ(cellText(node, 16), "");
  EXPECT_EQ(cellText(node, -1), "");
  StoreNode bare;
  for (int column = 0; column < 16; ++column) EXPECT_EQ(cellText(bare, column), "");
}

TEST(ItemList, ShowsTheChildrenInTheirOrderWithoutPaintingEach) {
  ShownStore t;
  StoreNode* home = t.category("Home");
  StoreNode* toys = t.category("Toys", home);
  t.product("Inner", toys);
  t.product("Ball", home);
  t.show(home);
  EXPECT_EQ(t.rows(), "Toys Ball");
  EXPECT_EQ(t.list().paintedAppends, 0);
  EXPECT_FALSE(t.list().paintingIsHeld());
  loadItemList(t.shell, toys);
  EXPECT_EQ(t.rows(), "Inner");
}

TEST(ItemList, IsEmptyForNothingAndForAProductWithAChain) {
  ShownStore t;
  StoreNode* home = t.category("Home");
  StoreNode* ball = t.product("Ball", home);
  ball->child = t.project().nodes.allocate();
  t.show(home);
  loadItemList(t.shell, ball);
  EXPECT_EQ(t.list().count(), 0);
  loadItemList(t.shell, home);
  loadItemList(t.shell, nullptr);
  EXPECT_EQ(t.list().count(), 0);
}

TEST(ItemList, StaysAsItIsWhileFrozen) {
  ShownStore t;
  StoreNode* home = t.category("Home");
  t.product("Ball", home);
  t.show(home);
  t.shell.listFrozen = true;
  loadItemList(t.shell, nullptr);
  EXPECT_EQ(t.rows(), "Ball");
}

struct SortStore : ShownStore {
  StoreNode* home = category("Home");
  StoreNode* priced(const char* title, const char* cost) {
    StoreNode* made = product(title, home);
    made->cost.assign(cost);
    return made;
  }
};

TEST(ItemList, SortingOnPriceDescendingAsTextPutsNineAboveTen) {
  SortStore t;
  t.priced("A", "10.00");
  t.priced("B", "9.95");
  t.priced("C", "100");
  t.show(t.home);
  t.logic.columnClicked(1);
  EXPECT_EQ(t.rows(), "B C A");
  EXPECT_EQ(TreeText(t.project()), "Home(A,B,C)");  // the store's order is the tree's
}

TEST(ItemList, SortsWithoutRegardToCaseAndEqualValuesByTitleAscending) {
  SortStore t;
  t.priced("b", "x");
  t.priced("C", "X");
  t.priced("A", "x");
  t.priced("D", nullptr);
  t.show(t.home);
  t.logic.columnClicked(1);
  EXPECT_EQ(t.rows(), "A b C D");  // what has no price comes last
  t.logic.columnClicked(0);
  EXPECT_EQ(t.rows(), "A b C D");
}

TEST(ItemList, EachColumnSortsInItsDirection) {
  for (int column = 0; column < 16; ++column) {
    ShownStore t;
    StoreNode* home = t.category("Home");
    // Equal titles but for the first column, so that the column decides.
    for (const char* value : {"2", "1", "3"}) {
      StoreNode* made = t.product(column == 0 ? value : "P", home);
      Text* const texts[] = {&made->title,    &made->cost,        &made->tax,      &made->freight,
                             &made->weight,   &made->productCode, &made->fileName, &made->templateName,
                             &made->image,    &made->imageLink,   &made->field[0], &made->field[1],
                             &made->field[2], &made->field[3],    &made->field[4], &made->field[5]};
      texts[column]->assign(value);
    }
    t.show(home);
    t.logic.columnClicked(column);
    const bool descending = column >= 1 && column <= 4;
    const auto expected =
        descending ? std::vector<std::string>{"3", "2", "1"} : std::vector<std::string>{"1", "2", "3"};
    EXPECT_EQ(t.list().cells(column), expected) << column;
  }
}

TEST(ItemList, EqualFilenamesKeepTheirOrderWhereOtherColumnsAskTheTitle) {
  ShownStore t;
  StoreNode* home = t.category("Home");
  t.product("B", home);
  t.product("A", home);
  t.show(home);
  t.logic.columnClicked(6);
  EXPECT_EQ(t.rows(), "B A");
  t.logic.columnClicked(5);
  EXPECT_EQ(t.rows(), "A B");
}

TEST(ItemList, LettersBeyondAsciiSortByTheirBytes) {
  ShownStore t;
  StoreNode* home = t.category("Home");
  t.product("\xE4", home);
  t.product("z", home);
  t.product("za", home);
  t.show(home);
  t.logic.columnClicked(0);
  EXPECT_THAT(t.list().cells(0), testing::ElementsAre("z", "za", "\xE4"));
  t.logic.columnClicked(16);
  t.logic.columnClicked(-1);
  EXPECT_THAT(t.list().cells(0), testing::ElementsAre("z", "za", "\xE4"));
}

TEST(ItemList, SelectsAllRows) {
  ShownStore t;
  StoreNode* home = t.category("Home");
  t.product("A", home);
  t.product("B", home);
  t.show(home);
  selectAllRows(t.shell);
  EXPECT_THAT(t.list().selectedRows(), testing::ElementsAre(0, 1));
  EXPECT_FALSE(t.list().paintingIsHeld());
  EXPECT_EQ(t.project().currentNode, home);
}

TEST(ItemList, RowsOutsideItHaveNoNode) {
  ShownStore t;
  StoreNode* home = t.category("Home");
  StoreNode* ball = t.product("Ball", home);
  t.show(home);
  EXPECT_EQ(nodeOfRow(t.shell, 0), ball);
  EXPECT_EQ(nodeOfRow(t.shell, 1), nullptr);
  EXPECT_EQ(nodeOfRow(t.shell, kNoRow), nullptr);
}

TEST(ItemList, NothingHappensWithoutAWindow) {
  ShownStore t;
  t.shell.mainWindow = nullptr;
  loadItemList(t.shell, t.category("Home"));
  sortItemList(t.shell, 0);
  selectAllRows(t.shell);
  EXPECT_EQ(nodeOfRow(t.shell, 0), nullptr);
}

}  // namespace
}  // namespace varlo::test
