#include "generator/items/listing.h"

#include <gtest/gtest.h>

#include "generator/items/item_values.h"
#include "tests/support/test_shop.h"

namespace varlo {
namespace {

using namespace test;

std::string row(const RowParts& parts) {
  std::string text = "<";
  ListingRow(text, parts);
  EXPECT_EQ(text[0], '<') << "a row is appended";
  return text.substr(1);
}
std::string outside(const RowParts& parts) {
  std::string text;
  OutsideRow(text, parts);
  return text;
}

TEST(ListingRow, APictureALinkAndAName) {
  EXPECT_EQ(row({.image = "f.gif", .link = "1.htm", .name = "Books"}),
            "<tr><td valign=top width=5%><img src=\"f.gif\"></td><td><font size=-1><a "
            "href=\"1.htm\">Books</a></td></tr>\n");
}

TEST(ListingRow, ABoldRowWithAPlaceForTheSubindex) {
  EXPECT_EQ(row({.image = "o.gif", .link = "1.htm", .name = "Books", .subindex = true, .bold = true}),
            "<tr><td valign=top width=5%><img src=\"o.gif\"></td><td><font size=-1><a href=\"1.htm\"><b>Books</b></a>"
            "<br>$SUBINDEX</td></tr>\n");
}

TEST(ListingRow, AnythingMayBeAbsentOrEmpty) {
  const char* bare = "<tr><td valign=top width=5%></td><td><font size=-1><a href=\"\"></a></td></tr>\n";
  EXPECT_EQ(row({}), bare);
  EXPECT_EQ(row({.image = "", .link = "", .name = ""}), bare);
}

TEST(ListingRow, AnImageWithAGreaterSignIsHtml) {
  EXPECT_EQ(row({.image = "<img src=x.gif>", .link = "1", .name = "n"}),
            "<tr><td valign=top width=5%><img src=x.gif></td><td><font size=-1><a href=\"1\">n</a></td></tr>\n");
  EXPECT_EQ(row({.image = "b>", .link = "1", .name = "n"}),
            "<tr><td valign=top width=5%>b></td><td><font size=-1><a href=\"1\">n</a></td></tr>\n");
  EXPECT_EQ(row({.image = "<b", .link = "1", .name = "n"}),
            "<tr><td valign=top width=5%><img src=\"<b\"></td><td><font size=-1><a href=\"1\">n</a></td></tr>\n")
      << "the other sign does not count here";
}

TEST(ListingRow, AnOutsideRowOpensAnotherPage) {
  EXPECT_EQ(outside({.image = "a.gif", .link = "http://x", .name = "Other"}),
            "<tr><td valign=top width=5%><img src=\"a.gif\"></td><td><font size=-1><a href=\"http://x\" "
            "target=_blank>Other</a></td></tr>\n");
  EXPECT_EQ(outside({.image = "$LINK", .link = "l", .name = "$-B", .subindex = true, .bold = true}),
            "<tr><td valign=top width=5%><img src=\"l\"></td><td><font size=-1><a href=\"$LINK\" "
            "target=_blank><b></b>$-B</a><br>$SUBINDEX</td></tr>\n");
}

TEST(ListingRow, AKeyOfTheRowInsideAValueIsReplacedInItsTurn) {
  const auto inner = [](const RowParts& parts) {
    const std::string text = row(parts);
    return text.substr(28, text.size() - 28 - 11);
  };
  EXPECT_EQ(inner({.image = "i", .link = "l", .name = "$NAME"}),
            "<img src=\"i\"></td><td><font size=-1><a href=\"l\">$NAME</a>");
  EXPECT_EQ(inner({.image = "i", .link = "$NAME", .name = "n"}),
            "<img src=\"i\"></td><td><font size=-1><a href=\"n\">$NAME</a>");
  EXPECT_EQ(inner({.image = "$IMAGE", .link = "l", .name = "n"}),
            "<img src=\"$IMAGE\"></td><td><font size=-1><a href=\"l\">n</a>");
  EXPECT_EQ(inner({.image = "i", .link = "l", .name = "$+B", .bold = true}),
            "<img src=\"i\"></td><td><font size=-1><a href=\"l\"><b>$+B</b></a>");
  EXPECT_EQ(inner({.image = "i", .link = "$+B$-B", .name = "n", .bold = true}),
            "<img src=\"i\"></td><td><font size=-1><a href=\"<b></b>\">$+Bn$-B</a>");
  EXPECT_EQ(inner({.image = "i", .link = "l", .name = "5 $ each"}),
            "<img src=\"i\"></td><td><font size=-1><a href=\"l\">5 $ each</a>");
  EXPECT_EQ(inner({.image = "i", .link = "l", .name = "$-B", .bold = true}),
            "<img src=\"i\"></td><td><font size=-1><a href=\"l\"><b></b>$-B</a>");
}

// Rows of nodes, and the product tables.

class Listing : public testing::Test {
 protected:
  Listing() {
    t.scheme().slot[24].assign("img\\f.gif");
    t.scheme().slot[25].assign("img\\g.gif");
    t.scheme().slot[26].assign("img\\o.gif");
    t.ball->fileName.assign("a\\2.htm");
  }
  StoreNode* add(const char* title, NodeKind kind = NodeKind::Product, int status = 0) {
    StoreNode* node = AddNode(t.project(), kind, title, t.home);
    node->fileName.assign((std::string(title) + ".htm").c_str());
    node->status = status;
    return node;
  }
  std::string two() { return ProductTableTwo(values, *t.home); }
  std::string one() { return ProductTableOne(values, *t.home); }
  static std::string cell(const char* title, const char* file, const char* image = "g.gif") {
    return std::string("<img src=\"") + image + "\" align=top> <a href=\"" + file + "\">" + title + "</a><br>\n";
  }

  TestShop t;
  ItemValues values{t.generator};
};

const std::string kTwoBegin = "<table width=100% border=0 cellspacing=1><tr><td valign=top><font size=-1>";
const std::string kTwoColumn = "</td><td valign=top><font size=-1>";
const std::string kTwoEnd = "</td></tr></table>\n";

TEST_F(Listing, NodeRowsTakeTheBulletOfTheirKindAndForwardSlashes) {
  std::string text;
  NodeRow(text, values, *t.ball, false);
  EXPECT_EQ(text,
            "<tr><td valign=top width=5%><img src=\"g.gif\"></td><td><font size=-1><a href=\"a/2.htm\">Ball</a>"
            "</td></tr>\n");
  for (const auto& [kind, bullet] :
       {std::pair{NodeKind::Category, "f.gif"}, {NodeKind::Shelf, "g.gif"}, {NodeKind::List, "g.gif"}}) {
    t.ball->kind = kind;
    text.clear();
    NodeRow(text, values, *t.ball, true);
    EXPECT_EQ(text, std::string("<tr><td valign=top width=5%><img src=\"") + bullet +
                        "\"></td><td><font size=-1><a href=\"a/2.htm\">Ball</a><br>$SUBINDEX</td></tr>\n");
  }
  text.clear();
  OwnRow(text, values, *t.ball, true);
  EXPECT_EQ(text,
            "<tr><td valign=top width=5%><img src=\"o.gif\"></td><td><font size=-1><a href=\"a/2.htm\"><b>Ball"
            "</b></a><br>$SUBINDEX</td></tr>\n");
}

TEST_F(Listing, ABulletIsAbsentWithoutASlotOrAScheme) {
  EXPECT_EQ(BulletName(values, 24), Value("f.gif"));
  EXPECT_EQ(BulletName(values, 27), Value());
  t.scheme().slot[27].assign("");
  EXPECT_EQ(BulletName(values, 27), Value(""));
  t.project().projectScheme = nullptr;
  EXPECT_EQ(BulletName(values, 24), Value());
}

TEST_F(Listing, WithoutChildrenTheTablesAreEmptyButThere) {
  t.home->child = nullptr;
  EXPECT_EQ(two(), kTwoBegin + kTwoEnd);
  EXPECT_EQ(one(), "<table></table>\n");
}

TEST_F(Listing, TheFirstColumnTakesTheLargerHalf) {
  add("b");
  EXPECT_EQ(two(), kTwoBegin + cell("Ball", "a/2.htm") + kTwoColumn + cell("b", "b.htm") + kTwoEnd);
  add("c", NodeKind::Category);
  EXPECT_EQ(two(), kTwoBegin + cell("Ball", "a/2.htm") + cell("b", "b.htm") + kTwoColumn +
                       cell("c", "c.htm", "f.gif") + kTwoEnd);
}

TEST_F(Listing, OneChildLeavesTheSecondColumnOut) { EXPECT_EQ(two(), kTwoBegin + cell("Ball", "a/2.htm") + kTwoEnd); }

TEST_F(Listing, DisabledChildrenCountForTheMiddleOnly) {
  t.ball->status = -2;
  add("b", NodeKind::Product, -2);
  add("c");
  add("d");
  EXPECT_EQ(two(), kTwoBegin + cell("c", "c.htm") + cell("d", "d.htm") + kTwoEnd) << "the second column stays empty";
  add("e");
  EXPECT_EQ(two(), kTwoBegin + cell("c", "c.htm") + cell("d", "d.htm") + cell("e", "e.htm") + kTwoEnd);
  add("f");
  EXPECT_EQ(two(), kTwoBegin + cell("c", "c.htm") + cell("d", "d.htm") + cell("e", "e.htm") + kTwoColumn +
                       cell("f", "f.htm") + kTwoEnd);
}

TEST_F(Listing, TheTwoTestsOfTheStatusDiffer) {
  struct {
    int status;
    bool indexed;
    bool inTables;
  } const kCases[] = {{0, true, true}, {1, true, true}, {-1, true, true}, {-2, false, false}, {-3, true, false}};
  for (const auto& c : kCases) {
    t.ball->status = c.status;
    EXPECT_EQ(IsIndexed(*t.ball), c.indexed) << c.status;
    EXPECT_EQ(IsInProductTables(*t.ball), c.inTables) << c.status;
    EXPECT_EQ(one() != "<table></table>\n", c.inTables) << c.status;
    EXPECT_EQ(two() != kTwoBegin + kTwoEnd, c.inTables) << c.status;
  }
}

TEST_F(Listing, TheOneColumnTableIsMadeOfRows) {
  add("c", NodeKind::Category, -1);
  EXPECT_EQ(one(),
            "<table><tr><td valign=top width=5%><img src=\"g.gif\"></td><td><font size=-1><a href=\"a/2.htm\">"
            "Ball</a></td></tr>\n<tr><td valign=top width=5%><img src=\"f.gif\"></td><td><font size=-1>"
            "<a href=\"c.htm\">c</a></td></tr>\n</table>\n");
}

TEST_F(Listing, ABulletWithOnlyOneOfTheBracketsDiffersBetweenTheTables) {
  t.scheme().slot[25].assign("x>");
  EXPECT_NE(two().find("<img src=\"x>\" align=top> <a"), std::string::npos);
  EXPECT_NE(one().find("width=5%>x></td>"), std::string::npos);
  t.scheme().slot[25].assign("<x");
  EXPECT_NE(two().find("size=-1><x <a"), std::string::npos);
  EXPECT_NE(one().find("<img src=\"<x\">"), std::string::npos);
}

TEST_F(Listing, AnAbsentBulletLeavesItsPlaceEmptyAndAnEmptyOneIsAPictureInTheFirstTable) {
  t.scheme().slot[25].release();
  EXPECT_EQ(two(), kTwoBegin + " <a href=\"a/2.htm\">Ball</a><br>\n" + kTwoEnd);
  EXPECT_NE(one().find("width=5%></td>"), std::string::npos);
  t.scheme().slot[25].assign("");
  EXPECT_EQ(two(), kTwoBegin + "<img src=\"\" align=top> <a href=\"a/2.htm\">Ball</a><br>\n" + kTwoEnd);
  EXPECT_NE(one().find("width=5%></td>"), std::string::npos);
}

TEST_F(Listing, ANodeWithoutTextsHasAnAnchorWithoutText) {
  t.ball->title.release();
  t.ball->fileName.release();
  EXPECT_EQ(two(), kTwoBegin + "<img src=\"g.gif\" align=top> <a href=\"\"></a><br>\n" + kTwoEnd);
  EXPECT_NE(one().find("<a href=\"\"></a></td>"), std::string::npos);
}

}  // namespace
}  // namespace varlo
