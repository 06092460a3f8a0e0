// One page from its template to its file.
#include "generator/pages/page_builder.h"

#include <gtest/gtest.h>

#include "core/store/user_variable.h"
#include "generator/items/index_file.h"
#include "generator/pages/page_walk.h"
#include "tests/support/test_shop.h"

namespace varlo {
namespace {

using namespace test;
using testing::ElementsAre;
using testing::IsEmpty;

const std::string kTemplates = "C:\\Varlo\\Projects\\Shop\\template\\";

class PageBuilderTest : public testing::Test {
 protected:
  void put(const char* name, std::string_view text) { t.files.put(kTemplates + name, text); }
  // The page of the home node, of this kind, from a template of this text.
  std::string build(NodeKind kind, std::string_view text) {
    t.home->kind = kind;
    t.home->templateName.assign("t.htm");
    put("t.htm", text);
    EXPECT_EQ(BuildPage(t.generator, t.home), 1);
    return t.site("1.htm");
  }
  std::string shelf(std::string_view text) { return build(NodeKind::Shelf, text); }
  std::string category(std::string_view text) { return build(NodeKind::Category, text); }
  StoreNode* add(const char* title) {
    StoreNode* node = AddProduct(t.project(), title, t.home);
    node->productCode.assign("X");
    return node;
  }

  TestShop t;
};

// What gets no page.

TEST_F(PageBuilderTest, NoNodeIsNoPage) { EXPECT_EQ(BuildPage(t.generator, nullptr), 0); }

TEST_F(PageBuilderTest, AnItemOfAShelfOrAListHasNoPageNoLineAndNoProgress) {
  put("product.htm", "x");
  {
    IndexFile index(t.generator);
    for (const NodeKind kind : {NodeKind::Shelf, NodeKind::List}) {
      t.home->kind = kind;
      EXPECT_EQ(BuildPage(t.generator, t.ball), 0);
    }
  }
  EXPECT_EQ(t.site("2.htm"), "(no file)");
  EXPECT_EQ(t.window.progress, 0);
  EXPECT_THAT(t.window.labels, IsEmpty());
  EXPECT_EQ(t.generator.pageCounter, 0U);
  EXPECT_EQ(t.site("varlo.idx"), "; Varlo Index File\n; v1.07\n");
}

// Where a page goes.

TEST_F(PageBuilderTest, APageMayLieInAFolderBelowTheWebDirectory) {
  t.files.putFolder("C:\\Web\\toys\\red");
  put("category.htm", "home");
  for (const char* name : {"toys\\red\\1.htm", "toys/red/2.htm", "toys\\..\\toys\\3.htm"}) {
    t.home->fileName.assign(name);
    EXPECT_EQ(BuildPage(t.generator, t.home), 1) << name;
    EXPECT_EQ(t.site(name), "home");
  }
  EXPECT_EQ(t.site("toys\\3.htm"), "home");
  EXPECT_THAT(t.screen.boxes, IsEmpty());
}

TEST_F(PageBuilderTest, APageWhoseNameLeadsOutOfTheWebDirectoryCannotBeCreated) {
  put("category.htm", "home");
  t.files.putFolder("C:\\Web\\toys");
  const std::vector<std::string> before = t.files.names();
  t.home->modified = 1;
  for (const char* name : {"..\\out.htm", "../out.htm", "toys\\..\\..\\out.htm", "..\\Web\\back.htm", "\\out.htm",
                           "/out.htm", "C:\\out.htm", "C:out.htm", "\\\\server\\share\\out.htm", "1.htm:stream"}) {
    t.files.log.clear();
    t.screen.boxes.clear();
    t.home->fileName.assign(name);
    EXPECT_EQ(BuildPage(t.generator, t.home), 0) << name;
    ASSERT_EQ(t.screen.boxes.size(), 1U) << name;
    EXPECT_TRUE(t.screen.boxes[0].text.starts_with("ERROR R107: Unable to open HTML output file\r\n"));
    EXPECT_THAT(t.files.log, IsEmpty()) << name;
  }
  EXPECT_EQ(t.files.names(), before);
  EXPECT_THAT(t.window.lines, IsEmpty());
  EXPECT_EQ(t.generator.log.errorCount, 0) << "as for any page that cannot be created";
  EXPECT_EQ(t.home->modified, 1);
}

// What would grow without bounds.

// Some text of `count` times `part`.
std::string repeated(std::size_t count, std::string_view part) {
  std::string text;
  for (std::size_t i = 0; i < count; ++i) text += part;
  return text;
}
std::string endless(const char* key) {
  return std::string("error: 1.htm: endless replacement of '").append(key).append("'");
}

// An item with some thousand bytes of values, which make twenty million.
StoreNode* addLarge(TestShop& t) {
  StoreNode* node = AddProduct(t.project(), "large", t.home);
  node->cost.assign(std::string_view(repeated(100, "$CODE")));
  node->productCode.assign(std::string_view(repeated(100, "$TAX")));
  node->tax.assign(std::string_view(std::string(2000, 'x')));
  return node;
}

TEST_F(PageBuilderTest, ItemsThatAreTooLongForAPageLeaveTheShelfEmpty) {
  for (int i = 0; i < 4; ++i) addLarge(t);
  StoreNode* last = add("last");
  t.files.putFolder("C:\\Web\\img");
  t.files.put("C:\\a.gif", "picture");
  last->image.assign("C:\\a.gif");
  EXPECT_EQ(shelf("[<SHELF>$COST</SHELF>]"), "[$SHELF]");
  EXPECT_THAT(t.window.lines, ElementsAre(endless("$SHELF")));
  EXPECT_EQ(t.generator.log.errorCount, 1);
  EXPECT_EQ(t.site("img\\a.gif"), "picture") << "the pictures of all items are copied";
}

TEST_F(PageBuilderTest, AShelfThatIsTooLongForItsPageLeavesItsPlace) {
  for (int i = 0; i < 2; ++i) addLarge(t);
  const std::string body(30000000, 'b');
  t.home->body.assign(std::string_view(body));
  EXPECT_TRUE(shelf("$BODY<SHELF>$COST</SHELF>") == body + "$SHELF");
  EXPECT_THAT(t.window.lines, ElementsAre(endless("$SHELF")));
}

TEST_F(PageBuilderTest, AnEarlyTextThatIsTooLongStays) {
  const std::string body(40000000, 'b');
  t.home->body.assign(std::string_view(body));
  EXPECT_TRUE(category("$BODY$BODY") == body + "$BODY");
  EXPECT_THAT(t.window.lines, ElementsAre(endless("$BODY"), endless("$BODY"))) << "by the step of the pass as well";
  EXPECT_EQ(t.generator.log.errorCount, 2);
}

TEST_F(PageBuilderTest, AUserVariableThatGrowsTooLongIsStopped) {
  UserVariable* variable = UserVariableInit(nullptr);
  variable->name.assign("$GROW");
  variable->value.assign(std::string_view("$GROW" + std::string(10000000, 'g')));
  UserVariableAppend(t.project(), variable);
  const std::string page = category("[$GROW]");
  EXPECT_LE(page.size(), kLongestText);
  EXPECT_GT(page.size(), 60000000U);
  EXPECT_THAT(t.window.lines, ElementsAre(endless("$GROW")));
}

TEST_F(PageBuilderTest, StepsThatEachAddMuchEndWithALongPage) {
  const std::string text(20000000, 'x');
  for (Text& field : t.home->field) field.assign(std::string_view(text));
  EXPECT_TRUE(category("$F1,$F2,$F3,$F4,$F5,$F6") == text + "," + text + "," + text + ",$F4,$F5,$F6");
  EXPECT_THAT(t.window.lines, ElementsAre(endless("$F4"), endless("$F5"), endless("$F6")));
}

TEST_F(PageBuilderTest, ListingsThatAreTooLongForAPageLeaveTheirPlaces) {
  t.scheme().slot[25].assign(std::string_view("<b>" + std::string(10000000, 'b')));
  for (int i = 0; i < 8; ++i) add("item");
  const std::string listings = "$PRODUCTS2,$PRODUCT2,$PRODUCTS,$PRODUCT,$SUBINDEX";
  EXPECT_TRUE(category(listings) == listings);
  EXPECT_THAT(t.window.lines, ElementsAre(endless("$PRODUCTS2"), endless("$PRODUCT2"), endless("$PRODUCTS"),
                                          endless("$PRODUCT"), endless("$SUBINDEX")));
}

TEST_F(PageBuilderTest, AnIndexThatIsTooLongForAPageLeavesItsPlaceAndItsLetter) {
  t.scheme().slot[24].assign(std::string_view("<b>" + std::string(10000000, 'b')));
  for (int i = 0; i < 8; ++i) AddCategory(t.project(), "top");
  EXPECT_TRUE(category("[$INDEX]indexa.htm") == "[$INDEX]indexh.htm");
  EXPECT_THAT(t.window.lines, ElementsAre(endless("$INDEX")));
}

TEST_F(PageBuilderTest, ATemplateThatIsLongerThanAPageCannotBeOpened) {
  EXPECT_EQ(category("former"), "former");
  put("t.htm", std::string(kLongestText + 1, 'x'));
  EXPECT_EQ(BuildPage(t.generator, t.home), 1);
  EXPECT_EQ(t.site("1.htm"), "former");
  EXPECT_THAT(t.window.lines, ElementsAre("error: 1.htm: template too long: '" + kTemplates + "t.htm'"));
  EXPECT_EQ(t.generator.log.errorCount, 1);
}

// What is told.

TEST_F(PageBuilderTest, EachPageStepsTheProgressShowsItsNameAndCounts) {
  put("category.htm", "home");
  put("product.htm", "ball");
  {
    IndexFile index(t.generator);
    EXPECT_EQ(BuildPage(t.generator, t.ball), 1);
    EXPECT_EQ(BuildPage(t.generator, t.home), 1);
  }
  EXPECT_EQ(t.window.progress, 2);
  EXPECT_THAT(t.window.labels, ElementsAre("2.htm", "1.htm"));
  EXPECT_EQ(t.generator.pageCounter, 2U);
  EXPECT_EQ(t.site("1.htm"), "home");
  EXPECT_EQ(t.site("2.htm"), "ball");
  EXPECT_NE(t.site("varlo.idx").find("#PBall|"), std::string::npos);
  EXPECT_THAT(t.window.lines, IsEmpty());
}

TEST_F(PageBuilderTest, WithoutABuildWindowNothingIsToldAndTheCountersMove) {
  t.generator.log.buildWindow = nullptr;
  EXPECT_EQ(shelf("no block"), "no block");
  EXPECT_EQ(t.window.progress, 0);
  EXPECT_EQ(t.generator.log.errorCount, 1);
}

TEST_F(PageBuilderTest, AWrittenPageIsNoLongerModified) {
  t.home->modified = 1;
  category("x");
  EXPECT_EQ(t.home->modified, 0);
}

// Where it goes.

TEST_F(PageBuilderTest, APageThatCannotBeCreatedIsLostWithAMessageEachTime) {
  put("category.htm", "x<!--");
  t.project().webDir.assign("C:\\Nowhere");
  t.home->modified = 1;
  EXPECT_EQ(BuildPage(t.generator, t.home), 0);
  EXPECT_EQ(BuildPage(t.generator, t.home), 0);
  ASSERT_EQ(t.screen.boxes.size(), 2U);
  EXPECT_EQ(t.screen.boxes[0].text,
            "ERROR R107: Unable to open HTML output file\r\nNOTE: Usually caused by the Web Directory specified in "
            "Preferences not existing.");
  EXPECT_EQ(t.screen.boxes[0].title, "Error");
  EXPECT_EQ(t.home->modified, 1);
  EXPECT_EQ(t.generator.log.errorCount, 0);
  EXPECT_THAT(t.window.lines, IsEmpty());
}

TEST_F(PageBuilderTest, ANodeWithoutAFileNameWouldGoToTheWebDirectoryItself) {
  put("category.htm", "x");
  t.home->fileName.release();
  EXPECT_EQ(BuildPage(t.generator, t.home), 0);
  EXPECT_THAT(t.files.log, ElementsAre("create C:\\Web"));
  EXPECT_EQ(t.screen.boxes.size(), 1U);
}

TEST_F(PageBuilderTest, WithoutATemplateThePageIsMadeFromTheOneBefore) {
  EXPECT_EQ(BuildPage(t.generator, t.ball), 1);
  EXPECT_EQ(t.files.content("C:\\Web\\2.htm"), "") << "if there was none ever, from an empty text";
  category("former $TITLE");
  EXPECT_EQ(BuildPage(t.generator, t.ball), 1);
  EXPECT_EQ(t.site("2.htm"), "former Ball");
  EXPECT_THAT(t.window.lines, IsEmpty());
}

TEST_F(PageBuilderTest, AnOldPageIsReplacedAsAWhole) {
  t.files.put("C:\\Web\\1.htm", std::string(1000, 'o'));
  EXPECT_EQ(category("new"), "new");
  EXPECT_EQ(category(";nothing\n"), "new") << "a template without a line leaves the former text";
  EXPECT_EQ(t.files.openHandles(), 0U);
}

TEST_F(PageBuilderTest, WithoutASchemeThePageIsWrittenAllTheSame) {
  t.project().projectScheme = nullptr;
  EXPECT_EQ(category("$STORETITLE $TITLE $SUBINDEX"),
            "Toys $TITLE <table cellspacing=0><tr><td valign=top width=5%></td>"
            "<td><font size=-1><a href=\"2.htm\">Ball</a></td></tr>\n</table>");
  EXPECT_EQ(t.screen.boxes.size(), 1U);
  t.home->templateName.assign("s.htm");
  t.home->kind = NodeKind::Shelf;
  put("s.htm", "<SHELF>$TITLE</SHELF>");
  BuildPage(t.generator, t.home);
  EXPECT_EQ(t.site("1.htm"), "$TITLE");
  EXPECT_EQ(t.screen.boxes.size(), 3U) << "once for the item and once for the page";
}

// Shelf blocks.

TEST_F(PageBuilderTest, TheBlockComesOnceForEachChildWhateverItsStatus) {
  add("Car")->status = -2;
  add("Doll")->status = -1;
  const char* text = "a<SHELF>[$TITLE]</SHELF>b";
  EXPECT_EQ(shelf(text), "a[Ball][Car][Doll]b");
  EXPECT_EQ(build(NodeKind::List, text), "a[Ball][Car][Doll]b");
  EXPECT_EQ(category(text), "a[Home]b") << "elsewhere the marks just go";
  EXPECT_EQ(build(NodeKind::Product, text), "a[Home]b");
  EXPECT_THAT(t.window.lines, IsEmpty());
}

TEST_F(PageBuilderTest, AShelfWithoutChildrenHasNothingInThePlaceOfItsBlock) {
  t.home->child = nullptr;
  EXPECT_EQ(shelf("a<SHELF>$TITLE</SHELF>b"), "ab");
}

TEST_F(PageBuilderTest, AnEmptyBlockIsABlock) {
  EXPECT_EQ(shelf("a<shelf></shelf>b$SHELF"), "ab$SHELF");
  EXPECT_THAT(t.window.lines, IsEmpty());
}

TEST_F(PageBuilderTest, MissingMarksAreAnErrorAndThePageIsWrittenWithoutABlock) {
  for (const char* text : {"a$SHELF", "a<SHELF>$SHELF", "a</SHELF>$SHELF", "a</SHELF>$SHELF<SHELF>"}) {
    t.window.lines.clear();
    t.generator.log.errorCount = 0;
    EXPECT_EQ(shelf(text), "a$SHELF");
    EXPECT_THAT(t.window.lines, ElementsAre("error: 1.htm: Invalid or Missing <SHELF>..</SHELF> block."));
    EXPECT_EQ(t.generator.log.errorCount, 1);
  }
}

TEST_F(PageBuilderTest, OnlyTheFirstBlockIsRepeated) {
  add("Car");
  EXPECT_EQ(shelf("<SHELF>[$TITLE]</SHELF><Shelf>$TITLE</shelf>"), "[Ball][Car]Home");
}

TEST_F(PageBuilderTest, WhatABlockLeavesGetsTheValuesOfThePage) {
  t.home->pageTitle.assign("Page");
  t.ball->pageTitle.assign("Item");
  EXPECT_EQ(shelf("<SHELF>$PAGETITLE$PAGETITLE$PAGETITLE$PAGETITLE$PAGETITLE</SHELF>"), "ItemItemItemItemPage");
  t.ball->metaKeywords.release();
  t.home->metaKeywords.assign("words");
  EXPECT_EQ(shelf("<SHELF>$KEYWORDS</SHELF>"), "words");
}

TEST_F(PageBuilderTest, AnEarlyTextComesBeforeAUserVariableOfItsName) {
  UserVariable* variable = UserVariableInit(nullptr);
  variable->name.assign("$BODY");
  variable->value.assign("variable");
  UserVariableAppend(t.project(), variable);
  t.home->body.assign("body");
  EXPECT_EQ(category("$BODY $BODY $BODY $BODY $BODY"), "body body body body variable");
}

TEST_F(PageBuilderTest, ABlockHasNoEarlySteps) {
  add("Car");
  add("Doll");
  EXPECT_EQ(
      shelf("<SHELF>$STORETITLE,$STORETITLE,$STORETITLE,$STORETITLE,$STORETITLE,$STORETITLE;</SHELF>"),
      "Toys,Toys,Toys,Toys,Toys,Toys;Toys,Toys,Toys,Toys,Toys,Toys;Toys,Toys,Toys,Toys,$STORETITLE,$STORETITLE;")
      << "four in each block by its item, then four on the page";
}

TEST_F(PageBuilderTest, TheFirstShelfKeyOfThePageTakesTheBlocks) {
  t.home->body.assign("$SHELF!");
  EXPECT_EQ(shelf("$BODY<SHELF>[$TITLE]</SHELF>"), "[Ball]!$SHELF") << "the body is there before the block";
}

TEST_F(PageBuilderTest, AnItemOfAShelfIsReportedUnderThePageOfTheShelf) {
  t.ball->productCode.release();
  t.ball->image.assign("C:\\none.gif");
  shelf("<SHELF>$BUY</SHELF>");
  EXPECT_THAT(t.window.lines, ElementsAre("error: 1.htm: no product code",
                                          "warning: 1.htm: unable to read image file: 'C:\\none.gif'"));
}

TEST_F(PageBuilderTest, ABlockOf19999BytesIsTaken) {
  const std::string block = "[$TITLE]" + std::string(19991, 'x');
  EXPECT_EQ(shelf("<SHELF>" + block + "</SHELF>"), "[Ball]" + std::string(19991, 'x'));
  EXPECT_EQ(t.generator.scratch, block);
}

TEST_F(PageBuilderTest, ALongerBlockBecomesTheTextComposedLast) {
  const std::string tooLong = "a<SHELF>" + std::string(20000, 'x') + "</SHELF>b";
  EXPECT_EQ(shelf(tooLong), "ab") << "nothing was composed yet";
  t.generator.scratch = "[$TITLE]";
  EXPECT_EQ(shelf(tooLong), "a[Ball]b");
  EXPECT_EQ(t.generator.scratch, "[$TITLE]");
  EXPECT_THAT(t.window.lines, IsEmpty()) << "no message says so";
}

TEST_F(PageBuilderTest, TheTextComposedLastIsThatOfThePageBefore) {
  const std::string tooLong = "<SHELF>" + std::string(20000, 'x') + "</SHELF>";
  shelf("<SHELF>one $TITLE</SHELF>");
  EXPECT_EQ(shelf(tooLong), "one Ball") << "a block";
  t.config().directoryLink = 0;
  build(NodeKind::Product, "$INDEX$TITLE");
  EXPECT_EQ(shelf(tooLong), "<table width=100%></table>\n") << "an index";
  t.ball->status = -2;
  category("$PRODUCT2");
  EXPECT_EQ(shelf(tooLong), "<table></table>\n") << "a product table";
  category("$BUY");
  EXPECT_EQ(shelf(tooLong), "javascript:parent.shopregister.addItem('1.htm','','Home','0.00','',1,0,0,0)")
      << "a link";
  category("$REMOVE");
  EXPECT_TRUE(shelf(tooLong).starts_with("javascript:parent.shopregister.addItem('1.htm'")) << "with the other one";
}

// Comments.

TEST_F(PageBuilderTest, TheFirstPlusCommentIsContentAndAllOthersGo) {
  EXPECT_EQ(category("a<!--+ $TITLE +-->b<!--+ $TITLE +-->c<!-- d -->"), "a Home bc");
}

TEST_F(PageBuilderTest, ACommentFromAValueGoesAsWell) {
  t.home->body.assign("x<!-- y -->z");
  EXPECT_EQ(category("$BODY"), "xz");
}

TEST_F(PageBuilderTest, ACommentWithoutAnEndIsAnErrorAndStays) {
  EXPECT_EQ(category("a<!-- b -->c<!-- d"), "ac<!-- d");
  EXPECT_THAT(t.window.lines, ElementsAre("error: 1.htm: comment without an end"));
  EXPECT_EQ(t.generator.log.errorCount, 1);
}

TEST_F(PageBuilderTest, APageWithoutTextIsAnEmptyFile) {
  EXPECT_EQ(category("<!-- all of it -->"), "");
  EXPECT_EQ(t.files.content("C:\\Web\\1.htm"), "");
}

// Sizes.

TEST_F(PageBuilderTest, ALongPageGrows) {
  const std::string body(19000, 'b');
  t.home->body.assign(std::string_view(body));
  std::string text;
  std::string expected;
  for (int i = 0; i < 2000; ++i) text += std::string(60, 'x') + "\n";
  EXPECT_EQ(category(text + "$BODY $BODY $BODY $BODY"), text + body + " " + body + " " + body + " " + body);
}

TEST_F(PageBuilderTest, ManyUserVariablesAreNoTrouble) {
  for (int i = 0; i < 66000; ++i) {
    UserVariable* variable = UserVariableInit(nullptr);
    variable->name.assign(std::string_view("$V" + std::to_string(i) + "_"));
    variable->value.assign("v");
    UserVariableAppend(t.project(), variable);
  }
  EXPECT_EQ(category("$V0_ $V65999_ $TITLE"), "v v Home");
}

}  // namespace
}  // namespace varlo
