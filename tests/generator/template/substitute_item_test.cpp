// The pass over a text with the values of an item: what the table of steps does not tell.
#include "generator/template/substitute_item.h"

#include <gtest/gtest.h>

#include "core/store/user_variable.h"
#include "tests/support/both_ways.h"

namespace varlo {
namespace {

using namespace test;
using testing::ElementsAre;
using testing::IsEmpty;

class SubstituteItemTest : public testing::Test {
 protected:
  void addVariable(const char* name, const char* value) {
    UserVariable* variable = UserVariableInit(nullptr);
    variable->name.assign(name);
    variable->value.assign(value);
    UserVariableAppend(t.project(), variable);
  }
  // The text with the values of the product, on its own page and both ways.
  Filled fill(std::string_view text) { return BothWays(t).item(text, *t.ball, *t.ball); }
  Filled page(std::string_view text, StoreNode& node) { return BothWays(t).page(text, node); }

  TestShop t;
};

// The values.

TEST_F(SubstituteItemTest, TheMetaValuesLoseTheirTags) {
  t.ball->title.assign("<b>Red</b> ball");
  EXPECT_EQ(fill("$META_TITLE|$META_DESCRIPTION|$TITLE|$DESCRIPTION").text,
            "Red ball|Red ball|<b>Red</b> ball|<b>Red</b> ball");
  t.ball->metaDescription.assign("a <i title=\"x>y\">b</i> 1 < 2");
  EXPECT_EQ(fill("$META_DESCRIPTION").text, "a b 1 < 2");
}

TEST_F(SubstituteItemTest, TheTitlePassesOverAnEmptyPageTitle) {
  t.ball->pageTitle.assign("");
  EXPECT_EQ(fill("$TITLE|$META_TITLE|$PAGETITLE").text, "Ball|Ball|");
  t.ball->pageTitle.assign("Page");
  EXPECT_EQ(fill("$TITLE|$META_TITLE|$PAGETITLE").text, "Page|Page|Page");
  t.ball->pageTitle.release();
  t.ball->title.release();
  EXPECT_EQ(fill("$TITLE|$META_TITLE|$PAGETITLE").text, "||");
}

TEST_F(SubstituteItemTest, TheDescriptionTakesAPageTitleThatIsThereEvenIfEmpty) {
  EXPECT_EQ(fill("$DESCRIPTION").text, "Ball");
  t.ball->pageTitle.assign("");
  EXPECT_EQ(fill("$DESCRIPTION|$META_DESCRIPTION").text, "|");
  t.ball->pageTitle.assign("Page");
  EXPECT_EQ(fill("$DESCRIPTION").text, "Page");
  t.ball->metaDescription.assign("");
  EXPECT_EQ(fill("$DESCRIPTION").text, "Page") << "an empty description counts as none";
  t.ball->metaDescription.assign("Text");
  EXPECT_EQ(fill("$DESCRIPTION").text, "Text");
}

TEST_F(SubstituteItemTest, TheHomeValuesAreThoseOfTheFirstTopLevelNode) {
  t.home->fileName.assign("a\\b.htm");
  EXPECT_EQ(fill("$HOMELINK $HOMETITLE").text, "a/b.htm Home");
  t.project().root = nullptr;
  EXPECT_EQ(fill("<p>$HOMELINK</p>$HOMETITLE").text, "<p></p>") << "a store without nodes";
  t.project().root = t.home;
}

TEST_F(SubstituteItemTest, TheUserIsTheAccountCutBehindTheSecondCharacterAfterItsHyphen) {
  EXPECT_EQ(fill("$USER").text, "shop-12");
  t.config().accountId.assign("shop");
  EXPECT_EQ(fill("$USER").text, "shop");
}

TEST_F(SubstituteItemTest, TheYearOfTheBuildTimeHasTwoDigits) {
  EXPECT_EQ(fill("$UPDATED").text, "02/01/03 04:05:06") << "month first";
}

TEST_F(SubstituteItemTest, ButtonsAndBulletsGoByTheirBaseNames) {
  t.scheme().slot[28].assign("img\\add.gif");
  t.scheme().slot[24].assign("img\\f.gif");
  t.scheme().slot[25].assign("<b>x</b>");
  t.scheme().slot[26].assign("<img src=o.gif>");
  t.scheme().slot[27].assign("");
  const Filled filled = fill("$BUTTON_ADD|$BULLET_F|$BULLET_G|$BULLET_O|$BULLET_A");
  EXPECT_EQ(filled.text,
            "add.gif|<img src=\"f.gif\" align=top>|<img src=\"b>\" align=top>|<img src=o.gif>|"
            "<img src=\"\" align=top>")
      << "HTML with a slash loses what stands before its last";
}

TEST_F(SubstituteItemTest, PricesWithoutACost) {
  EXPECT_EQ(fill("[$PRICE][$COST]").text, "[0][]");
  t.ball->cost.assign("");
  EXPECT_EQ(fill("[$PRICE][$COST]").text, "[0][]") << "an empty cost is none";
  EXPECT_EQ(fill("$BUY").text, "javascript:parent.shopregister.addItem('2.htm','B1','Ball','0.00','',1,0,0,0)");
  t.ball->cost.assign("5.50");
  EXPECT_EQ(fill("[$PRICE][$COST]").text, "[5.50][5.50]");
}

// The links of the cart.

TEST_F(SubstituteItemTest, TheAddLinkNamesEverythingInItsOrder) {
  t.ball->cost.assign("1.50");
  t.ball->image.assign("C:\\Pics\\Ball.GIF");
  t.ball->weight.assign("2");
  t.ball->freight.assign("3");
  t.ball->tax.assign("10%%");
  const char* link = "javascript:parent.shopregister.addItem('2.htm','B1','Ball','1.50','img/ball.gif',1,2,3,10%)";
  EXPECT_EQ(fill("$ADD").text, link) << "only the first per cent sign is taken out of the tax";
  EXPECT_EQ(fill("$BUY").text, link);
  EXPECT_EQ(fill("$BUY").scratch, link);
}

TEST_F(SubstituteItemTest, TheAddLinkHasWordsForWhatIsAbsentOrEmpty) {
  const char* bare = "javascript:parent.shopregister.addItem('','','','0.00','',1,0,0,0)";
  for (Text* text : {&t.ball->fileName, &t.ball->productCode, &t.ball->title, &t.ball->cost, &t.ball->image,
                     &t.ball->weight, &t.ball->freight, &t.ball->tax}) {
    text->release();
  }
  EXPECT_EQ(fill("$ADD").text, bare);
  EXPECT_EQ(fill("$REMOVE").text, "javascript:parent.shopregister.removeItem('')");
  for (Text* text : {&t.ball->fileName, &t.ball->productCode, &t.ball->title, &t.ball->cost, &t.ball->image,
                     &t.ball->weight, &t.ball->freight, &t.ball->tax}) {
    text->assign("");
  }
  EXPECT_EQ(fill("$ADD").text, bare);
  t.ball->tax.assign("%");
  EXPECT_EQ(fill("$ADD").text, "javascript:parent.shopregister.addItem('','','','0.00','',1,0,0,)");
}

TEST_F(SubstituteItemTest, AnItemOnAShelfNamesTheShelfAndOneOnAListItself) {
  t.home->kind = NodeKind::Shelf;
  EXPECT_TRUE(fill("$BUY").text.starts_with("javascript:parent.shopregister.addItem('1.htm',"));
  t.home->kind = NodeKind::List;
  EXPECT_TRUE(fill("$BUY").text.starts_with("javascript:parent.shopregister.addItem('2.htm',"));
}

TEST_F(SubstituteItemTest, AProductWithoutACodeIsReportedWithThePageWhereACartLinkIs) {
  for (const char* code : {static_cast<const char*>(nullptr), ""}) {
    t.ball->productCode.assign(code);
    for (const char* text : {"$BUY", "$ADD", "$REMOVE", "$REMOVE $BUY $ADD $ADD"}) {
      const Filled filled = BothWays(t).item(text, *t.ball, *t.home);
      EXPECT_THAT(filled.lines, ElementsAre("error: 1.htm: no product code")) << text;
      EXPECT_EQ(filled.errors, 1);
      EXPECT_TRUE(filled.quick);
    }
  }
  EXPECT_THAT(fill("$CODE $PRICE $TITLE").lines, IsEmpty()) << "without such a link nothing is";
}

TEST_F(SubstituteItemTest, OnlyProductsNeedACode) {
  t.ball->productCode.release();
  for (const NodeKind kind : {NodeKind::Category, NodeKind::Shelf, NodeKind::List}) {
    t.ball->kind = kind;
    EXPECT_THAT(fill("$BUY").lines, IsEmpty());
  }
}

TEST_F(SubstituteItemTest, ACartLinkThatAUserVariableTookIsNone) {
  addVariable("$BUY", "mine");
  addVariable("$TAX", "none");
  t.ball->productCode.release();
  t.ball->tax.assign("10");
  const Filled filled = fill("$BUY $TAX");
  EXPECT_EQ(filled.text, "mine none") << "user variables come first";
  EXPECT_THAT(filled.lines, IsEmpty());
  EXPECT_EQ(filled.scratch, "(scratch)") << "no link was composed";
}

// The address of the server.

TEST_F(SubstituteItemTest, AnEmptyServerIsAnErrorWhereItsKeyOccurs) {
  t.config().orderServer.assign("");
  const Filled filled = fill("a$VARLO_SERVER$VARLO_SERVER");
  EXPECT_EQ(filled.text, "a");
  EXPECT_THAT(filled.lines, ElementsAre("error: Varlo Server must be defined in preferences!")) << "once for a text";
  EXPECT_EQ(filled.errors, 1);
  EXPECT_THAT(fill("a").lines, IsEmpty());
}

TEST_F(SubstituteItemTest, TheMissingCodeIsReportedBeforeTheMissingServer) {
  t.config().orderServer.release();
  t.ball->productCode.release();
  EXPECT_THAT(fill("$VARLO_SERVER $BUY").lines,
              ElementsAre("error: 2.htm: no product code", "error: Varlo Server must be defined in preferences!"));
}

// User variables.

TEST_F(SubstituteItemTest, AUserVariableThatHoldsABuiltInOneExpands) {
  addVariable("$COPYRIGHT", "(c) $STORETITLE");
  EXPECT_EQ(fill("$COPYRIGHT").text, "(c) Toys");
}

TEST_F(SubstituteItemTest, ABodyThatHoldsAUserVariableExpandsOnAPageOnly) {
  addVariable("$COPYRIGHT", "(c)");
  t.ball->body.assign("by us $COPYRIGHT");
  EXPECT_EQ(page("$BODY", *t.ball).text, "by us (c)");
  EXPECT_EQ(fill("$BODY").text, "by us $COPYRIGHT");
}

TEST_F(SubstituteItemTest, UserVariablesRunInTheirOrder) {
  addVariable("$ONE", "$TWO");
  addVariable("$TWO", "$ONE");
  EXPECT_EQ(fill("$ONE $TWO").text, "$ONE $ONE");
}

TEST_F(SubstituteItemTest, AUserVariableWithItsOwnNameGrowsForAHundredAndOneRounds) {
  addVariable("$A9", "$A9.");
  EXPECT_EQ(fill("$A9").text, "$A9" + std::string(101, '.'));
}

TEST_F(SubstituteItemTest, AnIllegalVariableIsAppliedAllTheSameAndAnEmptyNameIsNot) {
  addVariable("", "x");
  addVariable("$TITLE", "mine");
  addVariable("word", "text");
  EXPECT_EQ(fill("$TITLE word").text, "mine text") << "a name needs no dollar sign";
}

TEST_F(SubstituteItemTest, ALongerUserVariableIsEatenByAShorterOneInFrontOfIt) {
  addVariable("$AB", "x");
  addVariable("$ABC", "y");
  EXPECT_EQ(fill("$ABC $AB").text, "xC x");
}

// Names that share a front.

TEST_F(SubstituteItemTest, ALongerNameIsDoneBeforeAShorterOne) {
  t.scheme().slot[6].assign("BLUE");
  t.scheme().slot[7].assign("RED");
  t.scheme().slot[8].assign("GREEN");
  t.scheme().slot[19].assign("GREY");
  t.ball->imageLink.assign("http://x/");
  EXPECT_EQ(fill("$LINK_COLOR $LINK $VLINK_COLOR $ALINK_COLOR $FRAMECOLOR").text, "BLUE http://x/ RED GREEN GREY");
  EXPECT_EQ(fill("$_VERSION $VERSION $_PRODUCT").text, "1.07 1.07 Varlo PRO");
}

TEST_F(SubstituteItemTest, OnAPageTheSecondHeadingIsTheFirstAndATwo) {
  t.scheme().slot[10].assign("<h1>");
  t.scheme().slot[11].assign("never");
  EXPECT_EQ(fill("$HEADING2").text, "<h1>2");
}

TEST_F(SubstituteItemTest, VariablesOfTheCartAndOfRowsStay) {
  const char* text = "$LISTCOLOR $FORMCOLOR $HEADINGTEXTCOLOR $CONFIRM $MESSAGE $ACCEPTED_CARDS $NAME $+B $-B $FORM";
  t.scheme().slot[10].assign("H");
  EXPECT_EQ(page(text, *t.ball).text,
            "$LISTCOLOR $FORMCOLOR HTEXTCOLOR $CONFIRM $MESSAGE $ACCEPTED_CARDS $NAME $+B $-B $FORM");
}

// Pictures and links.

TEST_F(SubstituteItemTest, AnEmptyPictureTakesItsTagAway) {
  EXPECT_EQ(fill("a<img src=\"$IMAGE\" alt=\"x\">b").text, "ab");
  EXPECT_EQ(fill("<a href=\"$LINK\">x</a>").text, "x</a>");
  EXPECT_EQ(fill("</b>$IMAGE.<br>").text, "</b>.<br>");
}

TEST_F(SubstituteItemTest, ALinkIsRewrittenToThePicturesUnlessItIsOutside) {
  t.ball->imageLink.assign("C:/Docs/Big Page.HTM");
  t.ball->image.assign("//other/A.gif");
  EXPECT_EQ(fill("$LINK $IMAGE").text, "img/big page.htm //other/A.gif");
  t.config().lowerCaseLinks = 0;
  EXPECT_EQ(fill("$LINK").text, "img/Big Page.HTM");
}

TEST_F(SubstituteItemTest, FieldsAndLabelsAreNotRewritten) {
  t.ball->field[0].assign("A\\b");
  t.ball->label[5].assign("C/d");
  EXPECT_EQ(fill("$F1 $FIELD1 $LABEL6").text, "A\\b A\\b C/d");
}

// What never ends.

TEST_F(SubstituteItemTest, AnEndlessReplacementIsReportedWithThePageAndTheTextStays) {
  t.ball->productCode.assign("x$CODE");
  const Filled filled = BothWays(t).item("<p>$CODE $PRICE</p>", *t.ball, *t.home);
  EXPECT_EQ(filled.text, "<p>$CODE 0</p>") << "the steps behind it go on";
  EXPECT_THAT(filled.lines, ElementsAre("error: 1.htm: endless replacement of '$CODE'"));
  EXPECT_EQ(filled.errors, 1);
}

TEST_F(SubstituteItemTest, ATagAwareVariableWithoutAnEndOfItsTagIsEndless) {
  const Filled filled = fill("plain $F1 and $PRICE");
  EXPECT_EQ(filled.text, "plain $F1 and 0");
  EXPECT_THAT(filled.lines, ElementsAre("error: 2.htm: endless replacement of '$F1'"));
  EXPECT_THAT(fill("<b>$F1</b>").lines, IsEmpty());
}

TEST_F(SubstituteItemTest, ATagAwareVariableBehindATagIsEndlessWithoutABracketBehindIt) {
  for (const char* text : {"<b>$F1", "<b>$F1 and $TITLE", "<p>x</p>$F1$F1"}) {
    const Filled filled = fill(text);
    EXPECT_THAT(filled.lines, ElementsAre("error: 2.htm: endless replacement of '$F1'")) << text;
    EXPECT_EQ(filled.errors, 1);
    EXPECT_NE(filled.text.find("$F1"), std::string::npos) << "it stays";
  }
  EXPECT_EQ(fill("<b>$F1 and $TITLE").text, "<b>$F1 and Ball") << "the steps behind it go on";
}

TEST_F(SubstituteItemTest, ABracketBehindATagAwareVariableMayComeWithAValue) {
  t.ball->body.assign("<i>body</i>");
  const Filled filled = fill("<b>$F1 $BODY");
  EXPECT_EQ(filled.text, "<b> <i>body</i>");
  EXPECT_TRUE(filled.quick);
  t.ball->title.assign("title>");
  EXPECT_THAT(fill("<b>$F1 $TITLE").lines, ElementsAre("error: 2.htm: endless replacement of '$F1'"))
      << "but not with one whose step comes later";
}

TEST_F(SubstituteItemTest, ATitleOrABodyMayQuoteItsOwnName) {
  t.ball->title.assign("my $TITLE");
  const Filled filled = fill("$TITLE");
  EXPECT_EQ(filled.text, "my my my my $TITLE");
  EXPECT_THAT(filled.lines, IsEmpty());
}

TEST_F(SubstituteItemTest, ValuesThatMultiplyEndAsAnEndlessReplacement) {
  const auto repeated = [](int times, const char* key) {
    std::string text;
    for (int i = 0; i < times; ++i) text += key;
    return text;
  };
  t.ball->cost.assign(std::string_view(repeated(100, "$CODE")));
  t.ball->productCode.assign(std::string_view(repeated(1000, "$TAX")));
  t.ball->tax.assign(std::string_view(repeated(1000, "x")));
  const Filled filled = fill("$COST");
  EXPECT_THAT(filled.lines, ElementsAre("error: 2.htm: endless replacement of '$TAX'"));
  EXPECT_EQ(filled.text, repeated(100000, "$TAX"));
}

// Without a scheme.

TEST_F(SubstituteItemTest, WithoutASchemeThePassEndsBehindTheEarlySteps) {
  t.project().projectScheme = nullptr;
  addVariable("$MINE", "v");
  std::string text = "$MINE $STORETITLE $UPDATED $HEADING $TITLE $BUY";
  EXPECT_EQ(SubstituteItem(t.generator, text, *t.ball, *t.ball), 0);
  EXPECT_EQ(text, "v Toys 02/01/03 04:05:06 $HEADING $TITLE $BUY");
  ASSERT_EQ(t.screen.boxes.size(), 1U);
  EXPECT_EQ(t.screen.boxes[0].text, "No scheme defined for current store.");
  EXPECT_EQ(t.screen.boxes[0].title, "Error");
  EXPECT_EQ(t.generator.log.errorCount, 0);
}

TEST_F(SubstituteItemTest, WithASchemeThePassIsComplete) {
  std::string text = "$TITLE";
  EXPECT_EQ(SubstituteItem(t.generator, text, *t.ball, *t.ball), 1);
  EXPECT_EQ(text, "Ball");
}

// One value inside another, by the order of a page.

TEST_F(SubstituteItemTest, OnAPageTheEarlyTextsComeBeforeTheUserVariables) {
  addVariable("$ONE", "$BODY$KEYWORDS");
  t.ball->body.assign("b");
  t.ball->metaKeywords.assign("k");
  EXPECT_EQ(page("$ONE", *t.ball).text, "bk") << "the pass over the page takes them";
  t.project().storeTitle.assign("$PAGETITLE $BODY");
  t.ball->pageTitle.assign("P");
  EXPECT_EQ(page("$STORETITLE", *t.ball).text, "P b");
  t.ball->body.assign("$STORETITLE");
  t.project().storeTitle.assign("S");
  EXPECT_EQ(page("$BODY", *t.ball).text, "S") << "by the step of the pass";
}

TEST_F(SubstituteItemTest, ALineOfAMessageIsNotCut) {
  const std::string name(5000, 'n');
  t.ball->fileName.assign(std::string_view(name));
  t.ball->productCode.release();
  EXPECT_THAT(fill("$BUY").lines, ElementsAre("error: " + name + ": no product code"));
}

}  // namespace
}  // namespace varlo
