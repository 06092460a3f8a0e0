#include "shell/tree/tree_items.h"

#include <gtest/gtest.h>

#include "core/program/project_close.h"
#include "core/tree/node_commands.h"
#include "tests/support/shown_store.h"

namespace varlo::test {
namespace {

TEST(TreeItems, ShowTheWholeTreeWithChainsBelowProducts) {
  ShownStore t;
  StoreNode* home = t.category("Home");
  StoreNode* toys = t.category("Toys", home);
  StoreNode* ball = t.product("Ball", toys);
  StoreNode* chained = t.project().nodes.allocate();
  chained->kind = NodeKind::Product;
  chained->title.assign("Red");
  chained->prev = ball;
  ball->child = chained;
  t.category("Books", home);
  t.category("Second");
  t.show(home);
  EXPECT_EQ(t.tree().shown(), "Home(Toys(Ball(Red)) Books) Second");
}

TEST(TreeItems, OfferToExpandWhatHasChildrenAndIsNoProduct) {
  ShownStore t;
  StoreNode* home = t.category("Home");
  StoreNode* ball = t.product("Ball", home);
  StoreNode* empty = t.category("Empty", home);
  ball->child = t.project().nodes.allocate();
  t.show(home);
  EXPECT_TRUE(t.itemOf(home).hasChildren);
  EXPECT_FALSE(t.itemOf(ball).hasChildren);
  EXPECT_FALSE(t.itemOf(empty).hasChildren);
}

TEST(TreeItems, AreLabelledWithThePlainTextOfTheTitle) {
  ShownStore t;
  StoreNode* home = t.category("<b>Tom</b> &amp; Co");
  t.show(home);
  EXPECT_EQ(t.itemOf(home).label, "Tom & Co");
  home->title.assign("<img alt=\"Toys\">");
  refreshLabel(t.shell, *home);
  EXPECT_EQ(t.itemOf(home).label, "Toys");
}

TEST(TreeItems, HaveAnIconForEachKindEnabledAndDisabled) {
  const struct {
    NodeKind kind;
    int enabled;
    int disabled;
  } kExpected[] = {
      {NodeKind::Category, 10, 17}, {NodeKind::Product, 11, 19}, {NodeKind::Shelf, 20, 21}, {NodeKind::List, 23, 24}};
  for (const auto& expected : kExpected) {
    StoreNode node;
    node.kind = expected.kind;
    EXPECT_EQ(iconOf(node), expected.enabled);
    node.status = -1;
    EXPECT_EQ(iconOf(node), expected.enabled);
    node.status = kStatusDisabled;
    EXPECT_EQ(iconOf(node), expected.disabled);
  }
}

TEST(TreeItems, ThatTheControlRefusesAreToldAndLeftOutWithAllBelowThem) {
  ShownStore t;
  StoreNode* home = t.category("Home");
  t.category("Toys", home);
  t.tree().refuses = true;
  t.show(home);
  EXPECT_THAT(t.screen.boxes,
              testing::ElementsAre(ShownBox{"TVM_INSERTITEM failed", "Error", Buttons::Ok, Icon::None}));
  EXPECT_EQ(home->treeItem, kNoTreeItem);
  EXPECT_TRUE(t.tree().items().empty());
}

TEST(TreeItems, AreNotRefreshedWhereTheyAreNotShown) {
  ShownStore t;
  StoreNode* home = t.category("Home");
  refreshIcon(t.shell, *home);
  refreshLabel(t.shell, *home);
  refreshChildrenFlag(t.shell, *home);
  removeTreeItem(t.shell, *home);
  EXPECT_TRUE(t.tree().items().empty());
}

TEST(TreeItems, FillWithoutPaintingAndWithoutTellingOfSelections) {
  ShownStore t;
  StoreNode* home = t.category("Home");
  StoreNode* ball = t.product("Ball", home);
  t.show(home);
  t.project().currentNode = ball;
  t.shell.fromList = true;
  refillTree(t.shell);
  EXPECT_EQ(t.tree().paintedInserts, 0);
  EXPECT_FALSE(t.tree().paintingIsHeld());
  EXPECT_EQ(t.project().currentNode, ball);
  EXPECT_EQ(t.project().treeNode, home);
  EXPECT_EQ(t.tree().selected(), home->treeItem);
  EXPECT_FALSE(t.shell.notificationsMuted);
}

TEST(TreeItems, RefillLoadsTheItemListForTheCurrentNode) {
  ShownStore t;
  StoreNode* home = t.category("Home");
  t.product("Pen", t.category("Desk", home));
  t.show(home);
  t.project().currentNode = home->child;
  refillTree(t.shell);
  EXPECT_EQ(t.rows(), "Pen");
}

TEST(TreeItems, OfADeepTreeNeedNoDeepStack) {
  ShownStore t;
  StoreNode* home = t.category("Home");
  StoreNode* deepest = home;
  for (int i = 0; i < 30000; ++i) deepest = t.category("Deeper", deepest);
  t.show(home);
  EXPECT_EQ(t.tree().items().size(), 30001U);
  StoreNode* top = home->child;
  moveTreeItem(t.shell, *top);
  EXPECT_EQ(t.tree().items().size(), 30001U);
  removeTreeItem(t.shell, *top);
  EXPECT_EQ(t.tree().items().size(), 1U);
  EXPECT_EQ(deepest->treeItem, kNoTreeItem);
}

TEST(TreeItems, MoveWithTheirBranchToWhereTheNodeHangs) {
  ShownStore t;
  StoreNode* home = t.category("Home");
  StoreNode* toys = t.category("Toys", home);
  StoreNode* books = t.category("Books", home);
  t.product("Ball", toys);
  t.show(home);
  StoreNodeInsert(t.program, toys, books);
  EXPECT_EQ(t.tree().shown(), "Home(Books(Toys(Ball)))");
  EXPECT_TRUE(t.itemOf(books).hasChildren);
  StoreNodeInsert(t.program, books->child, home);
  EXPECT_EQ(t.tree().shown(), "Home(Books Toys(Ball))");
  EXPECT_FALSE(t.itemOf(books).hasChildren);
}

TEST(TreeItems, OfAChainThatIsPutBelowANewProductMoveWithIt) {
  ShownStore t;
  StoreNode* home = t.category("Home");
  StoreNode* ball = t.product("Ball", home);
  t.show(ball);
  StoreNode* pen = t.product("Pen", home);
  t.project().currentNode = pen;
  CopyNode(t.program);
  for (const char* expected : {"Home(Ball(Pen) Pen)", "Home(Ball(Pen(Pen)) Pen)"}) {
    t.show(ball);
    PasteNode(t.program);
    EXPECT_EQ(t.tree().shown(), expected);
  }
  t.show(ball);
  NewProduct(t.program, "New");
  EXPECT_EQ(t.tree().shown(), "Home(Ball(New(Pen(Pen))) Pen)");
}

TEST(TreeItems, OfAProductMadeInTheListStandBehindItsTrueNeighbour) {
  ShownStore t;
  StoreNode* home = t.category("Home");
  StoreNode* ball = t.product("Ball", home);
  t.product("Car", home);
  t.show(home);
  t.project().currentNode = ball;  // while the tree shows its category
  NewProduct(t.program, "New");
  EXPECT_EQ(ball->next->prev, home);
  EXPECT_EQ(t.tree().shown(), "Home(Ball New Car)");
}

TEST(TreeItems, OfAProductMadeBelowARowStandBelowThatRowsNode) {
  ShownStore t;
  StoreNode* home = t.category("Home");
  StoreNode* toys = t.category("Toys", home);
  t.show(home);
  t.project().currentNode = toys;
  NewProduct(t.program, "New");
  EXPECT_EQ(toys->child->parent, home);  // an odd link
  EXPECT_EQ(t.tree().shown(), "Home(Toys(New))");
  EXPECT_TRUE(t.itemOf(toys).hasChildren);
}

TEST(TreeItems, AreNotMadeForWhatHangsInNoShownBranch) {
  ShownStore t;
  StoreNode* home = t.category("Home");
  t.show(home);
  StoreNode* lost = t.project().nodes.allocate();
  StoreNode* below = t.category("Below", lost);
  moveTreeItem(t.shell, *below);
  moveTreeItem(t.shell, *lost);
  EXPECT_EQ(t.tree().shown(), "Home");
  EXPECT_EQ(parentItemOf(t.shell, *below), std::nullopt);
}

TEST(TreeItems, OfADeletedBranchAreForgottenByItsNodes) {
  ShownStore t;
  StoreNode* home = t.category("Home");
  StoreNode* toys = t.category("Toys", home);
  StoreNode* ball = t.product("Ball", toys);
  t.show(home);
  StoreNodeDelete(t.program, toys);
  EXPECT_EQ(ball->treeItem, kNoTreeItem);
  EXPECT_EQ(t.tree().shown(), "Home");
}

TEST(TreeItems, AndRowsAreGoneBeforeAProjectCloses) {
  ShownStore t;
  StoreNode* home = t.category("Home");
  t.product("Ball", home);
  t.show(home);
  t.tree().setDropHighlight(home->treeItem);
  t.shell.dropHighlight = home->treeItem;
  t.shell.dragRow = 0;
  t.shell.fromList = true;
  ProjectClose(t.program);
  EXPECT_TRUE(t.tree().items().empty());
  EXPECT_EQ(t.list().count(), 0);
  EXPECT_EQ(t.shell.dropHighlight, kNoTreeItem);
  EXPECT_EQ(t.tree().dropHighlight(), kNoTreeItem);
  EXPECT_EQ(t.shell.dragRow, kNoRow);
  EXPECT_FALSE(t.shell.fromList);
}

TEST(TreeItems, ClearingForgetsTheItemsOfNodesOutsideTheTree) {
  ShownStore t;
  StoreNode* home = t.category("Home");
  StoreNode* second = t.category("Second");
  t.show(home);
  StoreNodeSwapWithNext(t.project(), *home);  // the second node is not reached from the root now
  clearTree(t.shell);
  EXPECT_EQ(second->treeItem, kNoTreeItem);
}

TEST(TreeItems, NothingHappensWithoutAWindow) {
  ShownStore t;
  t.shell.mainWindow = nullptr;
  StoreNode* home = t.category("Home");
  refillTree(t.shell);
  moveTreeItem(t.shell, *home);
  removeTreeItem(t.shell, *home);
  EXPECT_EQ(home->treeItem, kNoTreeItem);
  EXPECT_EQ(nodeOfItem(t.shell, 1), nullptr);
}

// Products that were made one after the other, as an import makes them.
struct MadeInARow {
  ShownStore t;
  StoreNode* home = t.category("Home");
  std::vector<StoreNode*> made;

  // Makes them while nothing is shown of it, and then shows them.
  void makeThree() {
    t.shell.mainWindow = nullptr;
    for (const char* title : {"A", "B", "C"}) {
      NewProduct(t.program, title);
      made.push_back(t.project().currentNode);
    }
    t.attach();
    insertTreeItems(t.shell, made);
  }
};

TEST(TreeItems, OfProductsMadeInARowStandBehindEachOther) {
  MadeInARow m;
  m.t.product("Old", m.home);
  m.t.show(m.home);
  m.makeThree();
  EXPECT_EQ(m.t.tree().shown(), "Home(Old A B C)");
  EXPECT_TRUE(m.t.itemOf(m.home).hasChildren);
}

TEST(TreeItems, OfProductsMadeBehindOneStandInFrontOfThoseThatFollow) {
  MadeInARow m;
  StoreNode* old = m.t.product("Old", m.home);
  m.t.product("Last", m.home);
  m.t.show(m.home);
  m.t.project().currentNode = old;
  m.makeThree();
  EXPECT_EQ(m.t.tree().shown(), "Home(Old A B C Last)");
}

TEST(TreeItems, OfProductsMadeInAChainStandBelowEachOther) {
  MadeInARow m;
  StoreNode* old = m.t.product("Old", m.home);
  StoreNode* chained = m.t.project().nodes.allocate();
  chained->kind = NodeKind::Product;
  chained->title.assign("Chained");
  chained->prev = old;
  chained->parent = m.home;
  old->child = chained;
  m.t.show(m.home);
  m.t.project().currentNode = old;
  m.makeThree();
  EXPECT_EQ(m.t.tree().shown(), "Home(Old(A(B(C(Chained)))))");
}

TEST(TreeItems, OfProductsWhoseHolderIsNotShownAreNotShown) {
  MadeInARow m;
  m.t.show(m.home);
  StoreNode* lost = m.t.project().nodes.allocate();
  m.t.project().currentNode = m.t.project().treeNode = lost;
  m.makeThree();
  EXPECT_EQ(m.t.tree().shown(), "Home");
}

TEST(TreeItems, OfTenThousandProductsComeAtOnce) {
  MadeInARow m;
  m.t.show(m.home);
  m.t.shell.mainWindow = nullptr;
  for (int i = 0; i < 10000; ++i) {
    // As an import links them: each behind the one before, with the category as prev.
    StoreNode* node = m.t.project().nodes.allocate();
    node->kind = NodeKind::Product;
    node->id = i + 1;
    node->parent = node->prev = m.home;
    (m.made.empty() ? m.home->child : m.made.back()->next) = node;
    m.made.push_back(node);
  }
  m.t.attach();
  insertTreeItems(m.t.shell, m.made);
  EXPECT_NE(m.made.back()->treeItem, kNoTreeItem);
  EXPECT_EQ(parentItemOf(m.t.shell, *m.made.back()), m.home->treeItem);
}

}  // namespace
}  // namespace varlo::test
