#include <gtest/gtest.h>

#include "core/program/project_close.h"
#include "shell/tree/drag_drop.h"
#include "shell/tree/node_changes.h"
#include "tests/support/shown_store.h"

namespace varlo::test {
namespace {

// Home with Toys, which holds Ball, Car and Dice, Books, which holds Atlas, and the shelf Desk with Pen.
struct SmallStore : ShownStore {
  StoreNode* home = category("Home");
  StoreNode* toys = category("Toys", home);
  StoreNode* ball = product("Ball", toys);
  StoreNode* car = product("Car", toys);
  StoreNode* dice = product("Dice", toys);
  StoreNode* books = category("Books", home);
  StoreNode* atlas = product("Atlas", books);
  StoreNode* desk = node(NodeKind::Shelf, "Desk", home);
  StoreNode* pen = product("Pen", desk);
  SmallStore() { show(home); }
  ~SmallStore() {
    ExpectSoundTree(project());
    EXPECT_FALSE(shell.treeDragging || shell.listDragging || window.dragging());
    EXPECT_TRUE(project().dragNode == nullptr && project().dragList == nullptr);
    EXPECT_EQ(marked(), 0);
    EXPECT_EQ(tree().dropHighlight(), kNoTreeItem);
  }

  std::string text() { return TreeText(project()); }
  int marked() {
    int count = 0;
    for (std::size_t i = 0; i < project().nodes.size(); ++i) {
      const StoreNode& each = project().nodes.at(i);
      count += !each.released && each.dragMark != 0 ? 1 : 0;
    }
    return count;
  }
  // Selects rows of Toys and takes hold of the last of them.
  void dragRows(std::initializer_list<StoreNode*> nodes) {
    click(toys);
    for (const StoreNode* each : nodes) list().setSelected(rowOf(each), true);
    logic.listDragBegun(rowOf(*(nodes.end() - 1)));
  }
};

const char* const kUnchanged = "Home(Toys(Ball,Car,Dice),Books(Atlas),Desk(Pen))";

TEST(TreeDrag, BeginsOnAnyItemButTheRoot) {
  SmallStore t;
  t.logic.treeDragBegun(t.home->treeItem);
  EXPECT_FALSE(t.shell.treeDragging || t.window.dragging());
  t.logic.treeDragBegun(t.toys->treeItem);
  EXPECT_TRUE(t.shell.treeDragging && t.window.dragging());
  EXPECT_EQ(t.project().dragNode, t.toys);
  EXPECT_THAT(t.tree().calls, testing::ElementsAre("collapse Toys"));
  t.logic.dragReleased(ShownStore::kBeside);
}

TEST(TreeDrag, OfTheRootDoesNothing) {
  SmallStore t;
  t.dragTo(t.home, t.toys);
  EXPECT_EQ(t.text(), kUnchanged);
  EXPECT_EQ(t.project().currentNode, t.home);
}

TEST(TreeDrag, WithoutAPictureDoesNotBegin) {
  SmallStore t;
  t.window.refusesDrags = true;
  t.dragTo(t.toys, t.books);
  EXPECT_EQ(t.text(), kUnchanged);
}

TEST(TreeDrag, ToACategoryMovesTheBranchAndMakesTheTargetCurrent) {
  SmallStore t;
  t.shell.fromList = true;
  t.dragTo(t.books, t.toys);
  EXPECT_EQ(t.text(), "Home(Toys(Ball,Car,Dice,Books(Atlas)),Desk(Pen))");
  EXPECT_EQ(t.tree().shown(), "Home(Toys(Ball Car Dice Books(Atlas)) Desk(Pen))");
  EXPECT_EQ(t.project().currentNode, t.toys);
  EXPECT_EQ(t.project().treeNode, t.toys);
  EXPECT_EQ(t.tree().selected(), t.toys->treeItem);
  EXPECT_EQ(t.rows(), "Ball Car Dice Books");
  EXPECT_FALSE(t.shell.fromList);
  EXPECT_EQ(t.project().dirty, 0);
}

TEST(TreeDrag, OfTheSelectedItemStillEndsOnTheTarget) {
  SmallStore t;
  t.click(t.books);
  t.dragTo(t.books, t.toys);
  EXPECT_EQ(t.project().currentNode, t.toys);
  EXPECT_EQ(t.project().treeNode, t.toys);
  EXPECT_EQ(t.tree().selected(), t.toys->treeItem);
}

TEST(TreeDrag, OntoAProductGoesToItsParent) {
  SmallStore t;
  t.dragTo(t.ball, t.pen);
  EXPECT_EQ(t.text(), "Home(Toys(Car,Dice),Books(Atlas),Desk(Pen,Ball))");
  EXPECT_EQ(t.project().currentNode, t.desk);
}

TEST(TreeDrag, OntoAProductAtTheTopLevelMovesNothing) {
  SmallStore t;
  StoreNode* lamp = t.product("Lamp");
  t.show(t.home);
  t.dragTo(t.ball, lamp);
  EXPECT_EQ(t.text(), std::string(kUnchanged) + ",Lamp");
  EXPECT_EQ(t.project().currentNode, lamp);
}

TEST(TreeDrag, ShelvesAndListsTakeProductsOnly) {
  SmallStore t;
  t.dragTo(t.books, t.desk);
  t.dragTo(t.books, t.pen);
  EXPECT_EQ(t.text(), kUnchanged);
  EXPECT_EQ(t.tree().shown(), "Home(Toys(Ball Car Dice) Books(Atlas) Desk(Pen))");
  EXPECT_TRUE(t.screen.boxes.empty());
}

TEST(TreeDrag, OfTheLastChildOntoItsParentIsRefused) {
  SmallStore t;
  t.dragTo(t.dice, t.toys);
  EXPECT_EQ(t.text(), kUnchanged);
  t.dragTo(t.ball, t.toys);
  EXPECT_EQ(t.text(), "Home(Toys(Car,Dice,Ball),Books(Atlas),Desk(Pen))");
}

TEST(TreeDrag, OntoItselfMovesNothingAndMakesItCurrent) {
  SmallStore t;
  t.dragTo(t.toys, t.toys);
  EXPECT_EQ(t.text(), kUnchanged);
  EXPECT_EQ(t.project().currentNode, t.toys);
}

TEST(TreeDrag, OntoADescendantIsRefused) {
  SmallStore t;
  StoreNode* inner = t.category("Inner", t.toys);
  StoreNode* deep = t.product("Deep", inner);
  t.show(t.home);
  const std::string before = t.text();
  t.dragTo(t.toys, inner);
  EXPECT_EQ(t.text(), before);
  t.dragTo(t.toys, deep);
  EXPECT_EQ(t.text(), before);
}

TEST(TreeDrag, OntoAProductDirectlyBelowItselfIsRefused) {
  SmallStore t;
  t.dragTo(t.toys, t.ball);
  EXPECT_EQ(t.text(), kUnchanged);
  EXPECT_EQ(t.tree().shown(), "Home(Toys(Ball Car Dice) Books(Atlas) Desk(Pen))");
  EXPECT_EQ(t.project().currentNode, t.toys);
}

TEST(TreeDrag, ThatEndsBesideTheItemsChangesNothing) {
  SmallStore t;
  t.click(t.books);
  t.logic.treeDragBegun(t.toys->treeItem);
  t.logic.dragReleased(ShownStore::kBeside);
  EXPECT_EQ(t.text(), kUnchanged);
  EXPECT_EQ(t.project().currentNode, t.books);
}

TEST(Dragging, HighlightsTheItemUnderTheMouse) {
  SmallStore t;
  t.logic.treeDragBegun(t.toys->treeItem);
  t.logic.dragMoved(t.over(t.books));
  EXPECT_EQ(t.tree().dropHighlight(), t.books->treeItem);
  t.logic.dragMoved(t.over(t.desk));
  EXPECT_EQ(t.tree().dropHighlight(), t.desk->treeItem);
  t.logic.dragMoved(ShownStore::kBeside);
  EXPECT_EQ(t.tree().dropHighlight(), kNoTreeItem);
  EXPECT_EQ(t.window.dragPoints().size(), 3U);
  t.logic.dragReleased(ShownStore::kBeside);
}

TEST(Dragging, HighlightsOneRowAndLeavesTheTreesHighlightAlone) {
  SmallStore t;
  t.logic.treeDragBegun(t.toys->treeItem);
  t.logic.dragMoved(t.over(t.books));
  t.logic.dragMoved(t.overRow(0));
  EXPECT_THAT(t.list().selectedRows(), testing::ElementsAre(0));
  t.logic.dragMoved(t.overRow(2));
  EXPECT_THAT(t.list().selectedRows(), testing::ElementsAre(2));
  EXPECT_EQ(t.tree().dropHighlight(), t.books->treeItem);
  EXPECT_EQ(t.project().currentNode, t.home);
  t.logic.dragMoved(t.over(t.desk));
  EXPECT_TRUE(t.list().selectedRows().empty());
  EXPECT_EQ(t.window.dragPoints().size(), 4U);
  t.logic.dragReleased(ShownStore::kBeside);
}

TEST(Dragging, ATickDoesTheWorkOfAMoveAndScrollsBeyondTheEdges) {
  SmallStore t;
  t.logic.treeDragBegun(t.toys->treeItem);
  t.tree().calls.clear();
  t.window.mouse = t.over(t.books);
  t.logic.dragTicked();
  EXPECT_EQ(t.tree().dropHighlight(), t.books->treeItem);
  EXPECT_TRUE(t.tree().calls.empty());
  t.window.mouse = ShownStore::kBeside;
  t.tree().edge = Edge::Above;
  t.logic.dragTicked();
  t.logic.dragTicked();
  t.tree().edge = Edge::Below;
  t.logic.dragTicked();
  EXPECT_THAT(t.tree().calls, testing::ElementsAre("scroll up", "scroll up", "scroll down"));
  // Over a row the tree does not scroll.
  t.window.mouse = t.overRow(0);
  t.logic.dragTicked();
  EXPECT_EQ(t.tree().calls.size(), 3U);
  t.logic.dragReleased(ShownStore::kBeside);
}

TEST(Dragging, MovesTicksAndReleasesWithoutADragDoNothing) {
  SmallStore t;
  t.over(t.books);
  t.logic.dragMoved(ShownStore::kOnItem);
  t.logic.dragTicked();
  t.logic.dragReleased(ShownStore::kOnItem);
  EXPECT_TRUE(t.window.dragPoints().empty());
  EXPECT_EQ(t.project().currentNode, t.home);
}

TEST(Dragging, ASecondDragDoesNotBeginMeanwhile) {
  SmallStore t;
  t.logic.treeDragBegun(t.toys->treeItem);
  t.logic.treeDragBegun(t.books->treeItem);
  t.logic.listDragBegun(0);
  EXPECT_EQ(t.project().dragNode, t.toys);
  EXPECT_FALSE(t.shell.listDragging);
  t.logic.dragReleased(ShownStore::kBeside);
}

TEST(ListDrag, MarksTheSelectedRowsAndMovesThem) {
  SmallStore t;
  t.dragRows({t.ball, t.dice});
  EXPECT_TRUE(t.shell.listDragging);
  EXPECT_EQ(t.marked(), 2);
  EXPECT_EQ(t.project().dragList, t.ball);
  t.drop(t.desk);
  EXPECT_EQ(t.text(), "Home(Toys(Car),Books(Atlas),Desk(Pen,Ball,Dice))");
  EXPECT_EQ(t.tree().shown(), "Home(Toys(Car) Books(Atlas) Desk(Pen Ball Dice))");
  EXPECT_EQ(t.project().currentNode, t.desk);
  EXPECT_EQ(t.tree().selected(), t.desk->treeItem);
  EXPECT_EQ(t.rows(), "Pen Ball Dice");
  EXPECT_EQ(t.project().dirty, 0);
}

TEST(ListDrag, OntoAProductGoesToItsParent) {
  SmallStore t;
  t.dragRows({t.ball});
  t.drop(t.atlas);
  EXPECT_EQ(t.text(), "Home(Toys(Car,Dice),Books(Atlas,Ball),Desk(Pen))");
  EXPECT_EQ(t.project().treeNode, t.books);
}

TEST(ListDrag, OntoTheHolderOfTheRowsPutsThemLast) {
  SmallStore t;
  t.dragRows({t.ball, t.car});
  t.drop(t.toys);
  EXPECT_EQ(t.text(), "Home(Toys(Dice,Ball,Car),Books(Atlas),Desk(Pen))");
}

TEST(ListDrag, OfAllRowsOntoTheirHolderEndsAndKeepsThem) {
  SmallStore t;
  t.dragRows({t.ball, t.car, t.dice});
  t.drop(t.toys);
  ExpectPlainTree(t.project());
  EXPECT_EQ(StoreTreeCheck(t.project()).nodes, 9U);
}

TEST(ListDrag, OntoTheDraggedNodeItselfMovesNothing) {
  SmallStore t;
  t.click(t.home);
  t.list().setSelected(t.rowOf(t.toys), true);
  t.list().setSelected(t.rowOf(t.books), true);
  t.logic.listDragBegun(t.rowOf(t.books));
  t.drop(t.books);
  EXPECT_EQ(t.text(), kUnchanged);
}

TEST(ListDrag, OntoAnotherMarkedRowMovesTheRest) {
  SmallStore t;
  t.click(t.home);
  t.list().setSelected(t.rowOf(t.toys), true);
  t.list().setSelected(t.rowOf(t.books), true);
  t.logic.listDragBegun(t.rowOf(t.books));
  t.drop(t.toys);
  EXPECT_EQ(t.text(), "Home(Toys(Ball,Car,Dice,Books(Atlas)),Desk(Pen))");
}

TEST(ListDrag, ThatEndsOverTheItemListChangesNothingAndLeavesTheRowHighlight) {
  SmallStore t;
  t.dragRows({t.ball});
  t.logic.dragMoved(t.overRow(2));
  t.logic.dragReleased(ShownStore::kOnRow);
  EXPECT_EQ(t.text(), kUnchanged);
  EXPECT_EQ(t.project().currentNode, t.toys);
  EXPECT_TRUE(t.list().isSelected(2));
  t.window.clickRow(1);
  EXPECT_THAT(t.list().selectedRows(), testing::ElementsAre(1));
}

TEST(ListDrag, ThatStopsEarlyLeavesNoMarksForALaterOne) {
  SmallStore t;
  t.dragRows({t.ball, t.car});
  t.logic.dragReleased(ShownStore::kBeside);
  EXPECT_EQ(t.marked(), 0);
  t.click(t.home);
  t.dragRows({t.dice});
  t.drop(t.desk);
  EXPECT_EQ(t.text(), "Home(Toys(Ball,Car),Books(Atlas),Desk(Pen,Dice))");
}

TEST(ListDrag, MovesItsOwnRowsThoughACopyWasMarked) {
  SmallStore t;
  t.dragRows({t.ball});
  copyNode(t.shell);  // of Toys
  t.project().clipboardNode->dragMark = 1;
  t.logic.dragReleased(ShownStore::kBeside);
  t.click(t.home);
  pasteNode(t.shell);
  t.show(t.home);
  t.list().setSelected(t.rowOf(t.toys), true);
  t.logic.listDragBegun(t.rowOf(t.toys));
  t.drop(t.books);
  EXPECT_EQ(t.text(), "Home(Books(Atlas,Toys(Ball,Car,Dice)),Desk(Pen),Toys)");
}

TEST(ListDrag, WithoutATreeNodeOrAPictureDoesNotBegin) {
  SmallStore t;
  t.click(t.toys);
  t.list().setSelected(0, true);
  t.project().treeNode = nullptr;
  t.logic.listDragBegun(0);
  EXPECT_FALSE(t.shell.listDragging);
  EXPECT_EQ(t.marked(), 0);
  t.project().treeNode = t.toys;
  t.window.refusesDrags = true;
  t.logic.listDragBegun(0);
  EXPECT_FALSE(t.shell.listDragging);
  EXPECT_EQ(t.marked(), 0);
  t.logic.listDragBegun(kNoRow);
}

TEST(ListDrag, SurvivesTheDeletionOfWhatIsDragged) {
  SmallStore t;
  t.dragRows({t.ball, t.car});
  t.screen.answers = {Answer::Yes};
  deleteTreeNode(t.shell);  // of Toys
  EXPECT_EQ(t.project().dragList, nullptr);
  t.drop(t.desk);
  EXPECT_EQ(t.text(), "Home(Books(Atlas),Desk(Pen))");
}

TEST(TreeDrag, SurvivesTheDeletionOfWhatIsDraggedAndOfWhatIsUnderTheMouse) {
  SmallStore t;
  t.click(t.toys);
  t.logic.treeDragBegun(t.ball->treeItem);
  t.logic.dragMoved(t.over(t.car));
  t.screen.answers = {Answer::Yes};
  deleteTreeNode(t.shell);
  EXPECT_EQ(t.project().dragNode, nullptr);
  EXPECT_EQ(t.shell.dropHighlight, kNoTreeItem);
  EXPECT_EQ(t.tree().dropHighlight(), kNoTreeItem);
  t.drop(t.desk);
  EXPECT_EQ(t.text(), "Home(Books(Atlas),Desk(Pen))");
}

TEST(TreeDrag, SurvivesTheCloseOfTheProject) {
  SmallStore t;
  t.logic.treeDragBegun(t.ball->treeItem);
  t.logic.dragMoved(t.over(t.car));
  ProjectClose(t.program);
  t.logic.dragMoved(ShownStore::kBeside);
  t.logic.dragReleased(ShownStore::kBeside);
  EXPECT_EQ(t.project().currentNode, nullptr);
}

}  // namespace
}  // namespace varlo::test
