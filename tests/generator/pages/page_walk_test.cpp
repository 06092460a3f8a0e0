#include "generator/pages/page_walk.h"

#include <gtest/gtest.h>

#include "tests/support/test_shop.h"

namespace varlo {
namespace {

using namespace test;
using testing::ElementsAre;
using testing::IsEmpty;

// The tree Home(Ball), and what a test adds. Every page shows its title.
class PageWalkTest : public testing::Test {
 protected:
  PageWalkTest() {
    for (const char* file : {"category.htm", "product.htm"}) {
      t.files.put(std::string("C:\\Varlo\\Projects\\Shop\\template\\") + file, "$TITLE");
    }
    for (const char* file : {"shelf.htm", "list.htm"}) {
      t.files.put(std::string("C:\\Varlo\\Projects\\Shop\\template\\") + file, "<SHELF>[$TITLE]</SHELF>");
    }
    t.home->fileName.assign("Home");
    t.ball->fileName.assign("Ball");
  }
  StoreNode* add(const char* name, StoreNode* parent, NodeKind kind = NodeKind::Product, int status = 0) {
    StoreNode* node = AddNode(t.project(), kind, name, parent);
    node->fileName.assign(name);
    node->productCode.assign("c");
    node->status = status;
    return node;
  }
  // Builds the store; the pages in their order.
  std::vector<std::string> pages(int result = 1) {
    t.window.labels.clear();
    t.window.lines.clear();
    t.generator.log.errorCount = 0;
    EXPECT_EQ(BuildSiblings(t.generator, t.project().root), result);
    return t.window.labels;
  }
  static std::string duplicate(const std::string& name) {
    return "error: " + name + ": duplicate file name in project";
  }

  TestShop t;
};

TEST_F(PageWalkTest, NothingToWalkIsAWholeWalk) { EXPECT_EQ(BuildSiblings(t.generator, nullptr), 1); }

TEST_F(PageWalkTest, ChildrenAreBuiltBeforeTheirParent) {
  StoreNode* books = add("Books", t.home, NodeKind::Category);
  add("Novel", books);
  StoreNode* poems = add("Poems", books, NodeKind::Category);
  add("Odes", poems);
  add("Pen", t.home);
  add("Shop", nullptr, NodeKind::Category);
  add("Last", nullptr);
  EXPECT_THAT(pages(), ElementsAre("Ball", "Novel", "Odes", "Poems", "Books", "Pen", "Home", "Shop", "Last"));
}

TEST_F(PageWalkTest, TheWalkGoesOnFromTheNodeThatItIsGiven) {
  StoreNode* shop = add("Shop", nullptr, NodeKind::Category);
  add("Cap", shop);
  add("Last", nullptr);
  EXPECT_EQ(BuildSiblings(t.generator, shop), 1);
  EXPECT_THAT(t.window.labels, ElementsAre("Cap", "Shop", "Last"));
}

TEST_F(PageWalkTest, ANodeBelowEnabledHasNoPageAndItsBranchIsNotWalked) {
  for (const int status : {-1, -2, -3}) {
    t.home->status = status;
    EXPECT_THAT(pages(), IsEmpty());
  }
  t.home->status = 1;
  t.ball->status = -1;
  EXPECT_THAT(pages(), ElementsAre("Home"));
}

TEST_F(PageWalkTest, WhatHangsBelowAProductIsNotWalked) {
  StoreNode* below = t.project().nodes.allocate();
  below->kind = NodeKind::Product;
  below->fileName.assign("Below");
  below->prev = t.ball;
  t.ball->child = below;
  EXPECT_THAT(pages(), ElementsAre("Ball", "Home"));
}

TEST_F(PageWalkTest, ItemsOfShelvesAndListsAreReachedButHaveNoPage) {
  StoreNode* shelf = add("Shelf", t.home, NodeKind::Shelf);
  add("Pen", shelf);
  add("Ink", shelf, NodeKind::Product, -2);
  StoreNode* list = add("List", t.home, NodeKind::List);
  add("Nib", list);
  EXPECT_THAT(pages(), ElementsAre("Ball", "Shelf", "List", "Home"));
  EXPECT_EQ(t.window.progress, 4);
  EXPECT_EQ(t.site("Shelf"), "[Pen][Ink]") << "a disabled one is shown all the same";
  EXPECT_EQ(t.site("List"), "[Nib]");
}

TEST_F(PageWalkTest, TheWalkStopsWhenTheUserWantsTo) {
  t.generator.log.stopRequested = true;
  EXPECT_THAT(pages(0), IsEmpty());
}

TEST_F(PageWalkTest, AStopInTheMiddleLeavesTheRestOut) {
  struct Stopping : RecordingBuildWindow {
    BuildLog* log = nullptr;
    std::string at;
    void showLabel(std::string_view label) override {
      RecordingBuildWindow::showLabel(label);
      if (label == at) log->stopRequested = true;
    }
  } window;
  add("Cap", t.home);
  add("Last", nullptr);
  window.log = &t.generator.log;
  window.at = "Ball";
  t.generator.log.buildWindow = &window;
  EXPECT_EQ(BuildSiblings(t.generator, t.project().root), 0);
  EXPECT_THAT(window.labels, ElementsAre("Ball")) << "neither its sibling nor its parent follow";
  EXPECT_EQ(t.site("Ball"), "Ball") << "the page in hand is finished";
}

TEST_F(PageWalkTest, AFailedPageDoesNotStopTheWalk) {
  t.project().webDir.assign("C:\\Nowhere");
  EXPECT_THAT(pages(), ElementsAre("Ball", "Home"));
  EXPECT_EQ(t.screen.boxes.size(), 2U);
}

// Duplicates.

TEST_F(PageWalkTest, ANameMetAgainAmongNeighboursIsAnErrorAndThePageBuiltAllTheSame) {
  add("Cap", t.home);
  StoreNode* second = add("CAP", t.home);
  second->title.assign("second");
  EXPECT_THAT(pages(), ElementsAre("Ball", "Cap", "CAP", "Home"));
  EXPECT_THAT(t.window.lines, ElementsAre(duplicate("CAP"))) << "names are looked up without regard to case";
  EXPECT_EQ(t.generator.log.errorCount, 1);
  EXPECT_EQ(t.site("Cap"), "second") << "the later page replaces the earlier one";
}

TEST_F(PageWalkTest, ANameOnceMoreIsAnErrorOnceMore) {
  add("Ball", t.home);
  add("Ball", t.home);
  pages();
  EXPECT_THAT(t.window.lines, ElementsAre(duplicate("Ball"), duplicate("Ball")));
}

TEST_F(PageWalkTest, TheNamesAreForgottenAtEachDescent) {
  StoreNode* books = add("Books", t.home, NodeKind::Category);
  add("Novel", books);
  add("Ball", t.home);
  pages();
  EXPECT_THAT(t.window.lines, IsEmpty()) << "the walk went down between the two";
}

TEST_F(PageWalkTest, NamesTakenBelowStillCountBehindTheirParent) {
  StoreNode* books = add("Books", t.home, NodeKind::Category);
  add("Novel", books);
  add("Novel", t.home);
  add("Books", t.home);
  pages();
  EXPECT_THAT(t.window.lines, ElementsAre(duplicate("Novel"), duplicate("Books")));
}

TEST_F(PageWalkTest, AnEmptyCategoryIsNoDescent) {
  add("Ball", t.home, NodeKind::Category);
  pages();
  EXPECT_THAT(t.window.lines, ElementsAre(duplicate("Ball")));
}

TEST_F(PageWalkTest, ADisabledNodeIsNotLookedUp) {
  add("Ball", t.home, NodeKind::Product, -1);
  pages();
  EXPECT_THAT(t.window.lines, IsEmpty());
}

TEST_F(PageWalkTest, AnItemOfAShelfIsLookedUpButNeverEntered) {
  for (const NodeKind kind : {NodeKind::Shelf, NodeKind::List}) {
    StoreNode* shelf = add("Shelf", t.home, kind);
    add("Pen", shelf);
    add("Pen", shelf);
    add("Pen", t.home);
    add("Pen", t.home);
    pages();
    EXPECT_THAT(t.window.lines, ElementsAre(duplicate("Pen"))) << "the two pages, not the items";
    t.ball->next = nullptr;
  }
}

TEST_F(PageWalkTest, AnItemOfAShelfThatHasANameOfTheSameDescentIsAnError) {
  StoreNode* shelf = add("Shelf", t.home, NodeKind::Shelf);
  StoreNode* inner = add("Inner", shelf, NodeKind::Category);
  add("Deep", inner);
  add("Deep", shelf);
  pages();
  EXPECT_THAT(t.window.lines, ElementsAre(duplicate("Deep")));
}

TEST_F(PageWalkTest, ANodeWithoutAFileNameIsNeitherLookedUpNorEntered) {
  add("Cap", t.home)->fileName.release();
  add("Cup", t.home)->fileName.assign("");
  pages();
  EXPECT_THAT(t.window.lines, IsEmpty());
}

// Shapes.

TEST_F(PageWalkTest, AHundredThousandLevelsAreWalked) {
  StoreNode* parent = t.home;
  for (int i = 0; i < 100000; ++i) {
    StoreNode* node = t.project().nodes.allocate();
    node->kind = NodeKind::Category;
    node->parent = node->prev = parent;
    node->status = i + 1 < 100000 ? 0 : -2;
    if (parent == t.home) {
      t.ball->next = node;
      node->prev = t.ball;
    } else {
      parent->child = node;
    }
    parent = node;
  }
  t.project().webDir.assign("C:\\Nowhere");  // pages of no name, which cannot be written
  EXPECT_EQ(BuildSiblings(t.generator, t.project().root), 1);
  EXPECT_EQ(t.generator.pageCounter, 100001U);
}

TEST_F(PageWalkTest, AVeryWideLevelIsWalked) {
  StoreNode* tail = t.ball;
  for (int i = 0; i < 20000; ++i) {
    StoreNode* node = t.project().nodes.allocate();
    node->kind = NodeKind::Product;
    node->parent = t.home;
    node->prev = tail;
    node->fileName.assign(std::string_view("w" + std::to_string(i)));
    tail = tail->next = node;
  }
  EXPECT_EQ(pages().size(), 20002U);
  EXPECT_EQ(t.generator.log.errorCount, 0);
}

TEST_F(PageWalkTest, ThePageCounterNeverGoesBack) {
  pages();
  pages();
  EXPECT_EQ(t.generator.pageCounter, 4U);
}

}  // namespace
}  // namespace varlo
