// $INDEX, $BACK, the letter page, the product variables and $SUBINDEX, on whole pages and both ways.
#include "generator/template/page_index.h"

#include <gtest/gtest.h>

#include "core/text/text_edit.h"
#include "tests/support/both_ways.h"

namespace varlo {
namespace {

using namespace test;
using testing::ElementsAre;
using testing::IsEmpty;

// The tree Home(Ball, Books(Novel, Poems(Odes)), Shelf(Pen), List(Nib)), Shop, Last; without row for the store
// directory unless a test asks for it.
class PageIndex : public testing::Test {
 protected:
  PageIndex() {
    t.config().directoryLink = 0;
    t.scheme().slot[24].assign("img\\f.gif");
    t.scheme().slot[25].assign("img\\g.gif");
    t.scheme().slot[26].assign("img\\o.gif");
    t.scheme().slot[27].assign("img\\a.gif");
    t.home->fileName.assign("x\\home.htm");
    t.ball->fileName.assign("ball.htm");
    books = add("Books", NodeKind::Category, t.home);
    novel = add("Novel", NodeKind::Product, books);
    poems = add("Poems", NodeKind::Category, books);
    odes = add("Odes", NodeKind::Product, poems);
    shelf = add("Shelf", NodeKind::Shelf, t.home);
    pen = add("Pen", NodeKind::Product, shelf);
    list = add("List", NodeKind::List, t.home);
    nib = add("Nib", NodeKind::Product, list);
    shop = add("Shop", NodeKind::Category, nullptr);
    last = add("Last", NodeKind::Product, nullptr);
  }
  StoreNode* add(const char* title, NodeKind kind, StoreNode* parent) {
    StoreNode* node = AddNode(t.project(), kind, title, parent);
    std::string file = std::string(title) + ".htm";
    TextLower(file);
    node->fileName.assign(std::string_view(file));
    return node;
  }
  static std::string row(const char* image, const std::string& file, const std::string& inner, bool place = false) {
    return std::string("<tr><td valign=top width=5%><img src=\"") + image + "\"></td><td><font size=-1><a href=\"" +
           file + "\">" + inner + "</a>" + (place ? "<br>{}" : "") + "</td></tr>\n";
  }
  static std::string parentRow(const std::string& file, const std::string& title) {
    return row("a.gif", file, title);
  }
  static std::string folder(const char* file, const char* title, bool place = false) {
    return row("f.gif", file, title, place);
  }
  static std::string item(const char* file, const char* title) { return row("g.gif", file, title); }
  static std::string own(const char* file, const char* title, bool place = false) {
    return row("o.gif", file, std::string("<b>") + title + "</b>", place);
  }
  // The expanded $INDEX of a page, with "{" and "}" around what came of $SUBINDEX in it.
  static std::string table(const std::string& rows, const std::string& subindex = "") {
    std::string text = "<table width=100%>" + rows + "</table>\n";
    for (std::size_t at = 0; (at = text.find("{}")) != std::string::npos;) text.replace(at, 2, subindex);
    return text;
  }
  static std::string sub(const std::string& rows) { return "<table cellspacing=0>" + rows + "</table>"; }

  Filled fill(std::string_view text, StoreNode* node) {
    const Filled filled = BothWays(t).page(text, *node);
    EXPECT_TRUE(filled.quick);
    return filled;
  }
  std::string index(StoreNode* node) { return fill("$INDEX", node).text; }

  TestShop t;
  StoreNode *books, *novel, *poems, *odes, *shelf, *pen, *list, *nib, *shop, *last;
};

// Which lists $INDEX shows.

TEST_F(PageIndex, ATopLevelCategoryWithChildrenListsTheTopLevelAndItsChildrenBelowItself) {
  EXPECT_EQ(index(t.home),
            table(own("x/home.htm", "Home", true) + folder("shop.htm", "Shop") + item("last.htm", "Last"),
                  sub(item("ball.htm", "Ball") + folder("books.htm", "Books") + item("shelf.htm", "Shelf") +
                      item("list.htm", "List"))));
}

TEST_F(PageIndex, ACategoryWithChildrenListsItsSiblingsBelowItsParent) {
  EXPECT_EQ(index(books),
            table(parentRow("x\\home.htm", "Home") + item("ball.htm", "Ball") + own("books.htm", "Books", true) +
                      item("shelf.htm", "Shelf") + item("list.htm", "List"),
                  sub(item("novel.htm", "Novel") + folder("poems.htm", "Poems"))));
}

TEST_F(PageIndex, AProductListsTheLevelOfItsParentAndItsOwnBelowThat) {
  EXPECT_EQ(index(novel),
            table(parentRow("x\\home.htm", "Home") + item("ball.htm", "Ball") + folder("books.htm", "Books", true) +
                      item("shelf.htm", "Shelf") + item("list.htm", "List"),
                  sub(own("novel.htm", "Novel") + folder("poems.htm", "Poems"))));
}

TEST_F(PageIndex, AProductOfTheTopLevelListsItsSiblings) {
  EXPECT_EQ(index(last),
            table(row("f.gif", "x/home.htm", "Home") + folder("shop.htm", "Shop") + own("last.htm", "Last", true)));
}

TEST_F(PageIndex, AShelfIsTreatedAsIfItHadNoChildren) {
  EXPECT_EQ(index(shelf),
            table(row("f.gif", "x/home.htm", "Home", true) + folder("shop.htm", "Shop") + item("last.htm", "Last"),
                  sub(item("ball.htm", "Ball") + folder("books.htm", "Books") + own("shelf.htm", "Shelf") +
                      item("list.htm", "List"))));
}

TEST_F(PageIndex, AListWithChildrenOpensItselfButHasNoSubindex) {
  EXPECT_EQ(index(list),
            table(parentRow("x\\home.htm", "Home") + item("ball.htm", "Ball") + folder("books.htm", "Books") +
                  item("shelf.htm", "Shelf") + own("list.htm", "List", true)));
}

TEST_F(PageIndex, ACategoryWithoutChildrenStandsBelowItsParent) {
  poems->child = nullptr;
  EXPECT_EQ(index(poems),
            table(parentRow("x\\home.htm", "Home") + item("ball.htm", "Ball") + folder("books.htm", "Books", true) +
                      item("shelf.htm", "Shelf") + item("list.htm", "List"),
                  sub(item("novel.htm", "Novel") + own("poems.htm", "Poems"))));
}

TEST_F(PageIndex, AFirstTopLevelNodeThatIsNoCategoryListsNoSiblings) {
  for (const NodeKind kind : {NodeKind::Product, NodeKind::Shelf, NodeKind::List}) {
    t.home->kind = kind;
    EXPECT_EQ(index(t.home), table(""));
  }
}

TEST_F(PageIndex, AFirstNodeBelowTheTopThatIsNoCategoryListsItsSiblingsAllTheSame) {
  t.ball->kind = NodeKind::List;
  add("Cap", NodeKind::Product, t.ball);
  EXPECT_EQ(index(t.ball),
            table(parentRow("x\\home.htm", "Home") + own("ball.htm", "Ball", true) + folder("books.htm", "Books") +
                  item("shelf.htm", "Shelf") + item("list.htm", "List")));
}

TEST_F(PageIndex, TheStatusRulesNodesOutAtMinusTwoOnly) {
  t.ball->status = -1;
  books->status = -2;
  shelf->status = -3;
  EXPECT_EQ(index(t.home),
            table(own("x/home.htm", "Home", true) + folder("shop.htm", "Shop") + item("last.htm", "Last"),
                  sub(item("ball.htm", "Ball") + item("shelf.htm", "Shelf") + item("list.htm", "List"))));
  EXPECT_EQ(index(books), table(parentRow("x\\home.htm", "Home") + item("ball.htm", "Ball") +
                                item("shelf.htm", "Shelf") + item("list.htm", "List")))
      << "the page's own row as well, and with it the place for the subindex";
}

TEST_F(PageIndex, TheStoreDirectoryIsLinkedOnDemand) {
  t.config().directoryLink = 1;
  t.home->kind = NodeKind::Product;
  EXPECT_EQ(
      index(t.home),
      "<table width=100%><tr><td><br></td><td><br></td></tr><tr><tr><td valign=top width=5%><img src=\"a.gif\"></td>"
      "<td><font size=-1><a href=\"https://www.varlo.example/directory.htm\" target=_blank>Other Stores</a>"
      "</td></tr>\n</table>\n");
}

TEST_F(PageIndex, EveryIndexIsReplacedAndEverySubindex) {
  t.home->kind = NodeKind::Product;
  EXPECT_EQ(fill("$INDEX-$INDEX", t.home).text, table("") + "-" + table(""));
  t.home->kind = NodeKind::Category;
  const std::string expected = sub(folder("poems.htm", "Poems"));
  novel->status = -2;
  EXPECT_EQ(fill("$SUBINDEX-$SUBINDEX", books).text, expected + "-" + expected);
}

TEST_F(PageIndex, TheComposedIndexIsTheScratchText) {
  t.home->kind = NodeKind::Product;
  EXPECT_EQ(fill("$INDEX", t.home).scratch, table(""));
  EXPECT_EQ(fill("$BACK$SUBINDEX", t.home).scratch, "(scratch)") << "without it nothing is";
}

// $SUBINDEX.

TEST_F(PageIndex, WithoutAnIndexTheSubindexListsAllChildrenOfACategory) {
  EXPECT_EQ(fill("$SUBINDEX", books).text, sub(item("novel.htm", "Novel") + folder("poems.htm", "Poems")));
  EXPECT_EQ(fill("a$SUBINDEXb", novel).text, "ab") << "and nothing else";
  EXPECT_EQ(fill("a$SUBINDEXb", shelf).text, "ab");
  EXPECT_EQ(fill("a$SUBINDEXb", list).text, "ab");
  EXPECT_EQ(fill("a$SUBINDEXb", shop).text, "ab") << "there are no children";
}

TEST_F(PageIndex, ASubindexWithoutRowsIsEmpty) {
  novel->status = poems->status = -2;
  EXPECT_EQ(fill("a$SUBINDEXb", books).text, "ab");
}

TEST_F(PageIndex, ASubindexOutsideTheIndexGetsTheSameText) {
  const std::string rows = sub(own("novel.htm", "Novel") + folder("poems.htm", "Poems"));
  const Filled filled = fill("$SUBINDEX|$INDEX", novel);
  EXPECT_TRUE(filled.text.starts_with(rows + "|<table width=100%>"));
}

TEST_F(PageIndex, ANodeBesideItsParentHasAPlaceForTheSubindexAndSoHasTheParent) {
  shelf->parent = books;
  const Filled filled = BothWays(t).page("$INDEX", *shelf);
  EXPECT_FALSE(filled.quick);
  const std::string rows = sub(item("novel.htm", "Novel") + folder("poems.htm", "Poems"));
  EXPECT_EQ(filled.text,
            table(parentRow("x\\home.htm", "Home") + item("ball.htm", "Ball") + folder("books.htm", "Books", true) +
                      own("shelf.htm", "Shelf", true) + item("list.htm", "List"),
                  rows));
}

TEST_F(PageIndex, AnOddPreviousNodeListsFromWhereItIs) {
  books->prev = t.home;
  const Filled filled = BothWays(t).page("$INDEX", *books);
  const std::string rows = sub(item("novel.htm", "Novel") + folder("poems.htm", "Poems"));
  EXPECT_EQ(filled.text, table(parentRow("x\\home.htm", "Home") + own("books.htm", "Books", true) +
                                   item("shelf.htm", "Shelf") + item("list.htm", "List") + item("ball.htm", "Ball"),
                               rows))
      << "the others follow, once";
}

// $BACK.

TEST_F(PageIndex, TheBackLinkLeadsToThePreviousNode) {
  EXPECT_EQ(fill("$BACK", t.ball).text, "x/home.htm") << "on a first child that is the node above";
  EXPECT_EQ(fill("$BACK $BACK", books).text, "ball.htm ball.htm");
  EXPECT_TRUE(fill("$INDEX$BACK", books).text.ends_with("\nball.htm"));
  EXPECT_TRUE(fill("$INDEX$BACK", t.ball).text.ends_with("\nx/home.htm"));
}

TEST_F(PageIndex, AFirstTopLevelPagePointsBackAtItselfOnlyWhereItHasAnIndex) {
  EXPECT_EQ(fill("[$BACK]", t.home).text, "[]");
  EXPECT_TRUE(fill("$INDEX[$BACK]", t.home).text.ends_with("\n[x\\home.htm]")) << "as it stands";
}

TEST_F(PageIndex, ANodeWithoutAPreviousOneButWithAParentPointsToThatOnAPageWithAnIndex) {
  t.ball->prev = nullptr;
  EXPECT_TRUE(BothWays(t).page("$INDEX[$BACK]", *t.ball).text.ends_with("\n[x/home.htm]"));
  EXPECT_EQ(fill("[$BACK]", t.ball).text, "[]");
}

TEST_F(PageIndex, ABackLinkWithoutAFileNameStays) {
  t.home->fileName.release();
  EXPECT_EQ(fill("[$BACK]", t.ball).text, "[$BACK]");
  EXPECT_TRUE(fill("$INDEX[$BACK]", t.ball).text.ends_with("\n[$BACK]"));
  EXPECT_TRUE(fill("$INDEX[$BACK]", t.home).text.ends_with("\n[]")) << "the second replacement finds no node";
  t.home->fileName.assign("");
  EXPECT_EQ(fill("[$BACK]", t.ball).text, "[]");
}

TEST_F(PageIndex, ABackInATitleIsReplacedBehindTheIndex) {
  shop->title.assign("to $BACK");
  const Filled filled = BothWays(t).page("$INDEX", *last);
  EXPECT_NE(filled.text.find(">to shop.htm</a>"), std::string::npos) << filled.text;
}

// The letter page.

TEST_F(PageIndex, TheLetterPageIsThatOfTheTitle) {
  const auto letters = [&](const char* title) {
    t.home->title.assign(title);
    const Filled filled = BothWays(t).page("indexa.htm indexa.htm $INDEX", *t.home);
    return filled.text.substr(0, 21);
  };
  EXPECT_EQ(letters("Zoo"), "indexz.htm indexa.htm") << "the first only";
  EXPECT_EQ(letters("mouse"), "indexm.htm indexa.htm");
  EXPECT_EQ(letters("7 days"), "indexa.htm indexa.htm");
  EXPECT_EQ(letters("<b>x</b>"), "indexa.htm indexa.htm");
  EXPECT_EQ(letters("\xC4pfel"), "indexa.htm indexa.htm");
  EXPECT_EQ(letters(""), "indexa.htm indexa.htm");
}

TEST_F(PageIndex, WithoutAnIndexOrAnOwnRowThereIsNoLetter) {
  t.home->title.assign("Zoo");
  EXPECT_EQ(fill("indexa.htm", t.home).text, "indexa.htm");
  EXPECT_TRUE(fill("indexa.htm$INDEX", novel).text.starts_with("indexa.htm<")) << "its row is in the subindex";
  t.home->status = -2;
  EXPECT_TRUE(fill("indexa.htm$INDEX", t.home).text.starts_with("indexa.htm<"));
}

TEST_F(PageIndex, TheLetterIsSetByTheFurtherListAsWell) {
  t.ball->kind = NodeKind::List;
  t.ball->title.assign("Quills");
  add("Cap", NodeKind::Product, t.ball);
  EXPECT_TRUE(fill("indexa.htm$INDEX", t.ball).text.starts_with("indexq.htm<"));
}

TEST_F(PageIndex, OfATitleWithoutTextThereIsNoLetter) {
  StoreNode node;
  EXPECT_EQ(LetterOf(node), 0);
  node.title.assign("");
  EXPECT_EQ(LetterOf(node), 0);
  node.title.assign("[");
  EXPECT_EQ(LetterOf(node), 'a');
  EXPECT_EQ(LetterPage('q'), "indexq.htm");
}

// The product variables.

TEST_F(PageIndex, TheFourProductVariablesStandForTwoTables) {
  ItemValues values(t.generator);
  const std::string two = ProductTableTwo(values, *books);
  const std::string one = ProductTableOne(values, *books);
  EXPECT_EQ(fill("$PRODUCTS2|$PRODUCT2|$PRODUCTS|$PRODUCT|$PRODUCT3", books).text,
            two + "|" + two + "|" + one + "|" + one + "|" + one + "3");
  EXPECT_EQ(fill("$PRODUCT2 $PRODUCT2", books).scratch, one) << "the one-column table is composed last";
  EXPECT_EQ(fill("$PRODUC", books).scratch, "(scratch)");
}

TEST_F(PageIndex, AProductPageHasEmptyProductTables) {
  EXPECT_EQ(fill("$PRODUCT|$PRODUCT2|", novel).text,
            "<table></table>\n|<table width=100% border=0 cellspacing=1><tr><td valign=top><font size=-1></td></tr>"
            "</table>\n|");
}

TEST_F(PageIndex, AChildCanStandInTheIndexAndInTheProductTable) {
  const std::string text = fill("$INDEX$PRODUCT|$SUBINDEX", t.home).text;
  std::size_t count = 0;
  for (std::size_t at = text.find("ball.htm"); at != std::string::npos; at = text.find("ball.htm", at + 1)) ++count;
  EXPECT_EQ(count, 3U) << "below its parent's row, in the table, and in the second subindex";
}

TEST_F(PageIndex, OnlyTheFirstUrlGoes) { EXPECT_EQ(fill("a$URLb$URL", t.home).text, "ab$URL"); }

// Endless replacements.

TEST_F(PageIndex, ATitleThatHoldsAListingVariableIsEndless) {
  shop->title.assign("my $INDEX");
  Filled filled = BothWays(t).page("$INDEX", *last);
  EXPECT_EQ(filled.text, "$INDEX");
  EXPECT_THAT(filled.lines, ElementsAre("error: last.htm: endless replacement of '$INDEX'"));
  novel->title.assign("$PRODUCT");
  filled = BothWays(t).page("$PRODUCT2", *books);
  EXPECT_THAT(filled.lines, ElementsAre("error: books.htm: endless replacement of '$PRODUCT'"));
  novel->title.assign("$SUBINDEX");
  filled = BothWays(t).page("[$SUBINDEX]", *books);
  EXPECT_EQ(filled.text, "[$SUBINDEX]");
  EXPECT_THAT(filled.lines, ElementsAre("error: books.htm: endless replacement of '$SUBINDEX'"));
}

TEST_F(PageIndex, AFileNameThatHoldsBackIsEndless) {
  t.home->fileName.assign("$BACK");
  const Filled filled = BothWays(t).page("[$BACK]", *t.ball);
  EXPECT_EQ(filled.text, "[$BACK]");
  EXPECT_THAT(filled.lines, ElementsAre("error: ball.htm: endless replacement of '$BACK'"));
}

// A level of very many.

TEST_F(PageIndex, AVeryWideLevelIsListedWhole) {
  StoreNode* tail = last;
  for (int i = 0; i < 20000; ++i) {
    StoreNode* node = t.project().nodes.allocate();
    node->prev = tail;
    tail = tail->next = node;
  }
  EXPECT_GT(index(last).size(), 20000U * 80);
}

}  // namespace
}  // namespace varlo
