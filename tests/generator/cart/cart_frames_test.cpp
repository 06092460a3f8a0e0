#include "generator/cart/cart_frames.h"

#include <string>

#include <gtest/gtest.h>

#include "generator/items/frame_script.h"
#include "generator/items/replace.h"
#include "tests/support/freight.h"
#include "tests/support/test_shop.h"

namespace varlo {
namespace {

using namespace test;
using testing::ElementsAre;
using testing::IsEmpty;

class CartFrames : public testing::Test {
 protected:
  TestShop t;

  void putTrolley(std::string_view text) { t.files.put("C:\\Varlo\\template\\trolley.dat", text); }
  void putRegister(std::string_view text) { t.files.put("C:\\Varlo\\template\\register.dat", text); }
  // The register frame made of a template of this text.
  std::string registerOf(std::string_view text) {
    putRegister(text);
    t.program.slots[kSlotRegister].release();
    EXPECT_EQ(WriteRegister(t.generator), 1);
    return t.site("register.html");
  }
  void failToCreate() {
    t.files.shallFail = [](const std::string& operation) { return operation.starts_with("create"); };
  }
};

// The frame loader.

TEST_F(CartFrames, AFrameLoaderFramesAPageAndBothCartFrames) {
  EXPECT_EQ(WriteFrameLoader(t.generator, "1.htm", "index.html"), 1);
  EXPECT_EQ(t.site("index.html"),
            "<HEAD>\n<TITLE>Toys</TITLE>\n<FRAMESET COLS=\"*,208\" BORDER=0 FRAMEBORDER=NO FRAMESPACING=0><FRAME "
            "SRC=\"1.htm\" NAME=\"shopmain\" MARGINWIDTH=2><FRAMESET ROWS=\"*,110\"><FRAME SRC=\"trolley.html\" "
            "NAME=\"shoptrolley\" MARGINWIDTH=13 MARGINHEIGHT=5><FRAME SRC=\"register.html\" NAME=\"shopregister\" "
            "MARGINWIDTH=13 MARGINHEIGHT=5></FRAMESET></FRAMESET>");
  EXPECT_THAT(t.window.labels, ElementsAre("index.html"));
}

TEST_F(CartFrames, AnAbsentStoreTitleIsNamedAndAnEmptyOneIsNot) {
  t.project().storeTitle.release();
  WriteFrameLoader(t.generator, "1.htm", "index.html");
  EXPECT_NE(t.site("index.html").find("<TITLE>No Title</TITLE>"), std::string::npos);
  t.project().storeTitle.assign("");
  WriteFrameLoader(t.generator, "1.htm", "index.html");
  EXPECT_NE(t.site("index.html").find("<TITLE></TITLE>"), std::string::npos);
}

TEST_F(CartFrames, TheFrameLoaderIsOnePieceThatIsCutAt3095Bytes) {
  const std::string title(3080, 't');
  t.project().storeTitle.assign(std::string_view(title));
  WriteFrameLoader(t.generator, "1.htm", "index.html");
  EXPECT_EQ(t.site("index.html"), "<HEAD>\n<TITLE>" + title + "<");
}

TEST_F(CartFrames, AFrameLoaderThatCannotBeCreatedIsLoggedCountedAndTold) {
  failToCreate();
  EXPECT_EQ(WriteFrameLoader(t.generator, "1.htm", "ftmp.htm"), 0);
  EXPECT_THAT(t.window.lines, ElementsAre("error: ftmp.htm: unable to create frame loader page 'C:\\Web\\ftmp.htm'"));
  EXPECT_EQ(t.generator.log.errorCount, 1);
  EXPECT_THAT(t.screen.boxes, ElementsAre(ShownBox{"ERROR S102: Unable to open HTML output file", "Error"}));
}

TEST_F(CartFrames, WithoutAWindowTheErrorOfAFrameLoaderStillCounts) {
  t.generator.log.buildWindow = nullptr;
  failToCreate();
  WriteFrameLoader(t.generator, "1.htm", "ftmp.htm");
  EXPECT_EQ(t.generator.log.errorCount, 1);
  EXPECT_THAT(t.window.lines, IsEmpty());
  EXPECT_THAT(t.window.labels, IsEmpty());
}

TEST_F(CartFrames, LoaderAndPageScriptGiveTheSameFramesAndOnlyTheScriptPassesTheSearchOn) {
  WriteFrameLoader(t.generator, "1.htm", "index.html");
  const std::string loader = t.site("index.html");
  for (const char* shared :
       {"COLS=\"*,208\"", "ROWS=\"*,110\"", "NAME=\"shopmain\"", "NAME=\"shoptrolley\"", "NAME=\"shopregister\""}) {
    EXPECT_NE(loader.find(shared), std::string::npos) << shared;
    EXPECT_NE(kFrameScript.find(shared), std::string_view::npos) << shared;
  }
  EXPECT_NE(kFrameScript.find("location.search"), std::string_view::npos);
  EXPECT_NE(kFrameScript.find("location + '?x\""), std::string_view::npos);
  EXPECT_EQ(loader.find("location"), std::string::npos);
  EXPECT_EQ(loader.find("?x"), std::string::npos);
}

// The trolley.

TEST_F(CartFrames, TheTrolleyGetsTheCartsColoursAndNothingElse) {
  putTrolley("; kept\r\n$BGCOLOR $USER $VERSION $CURRENCY $FREIGHT\n");
  t.scheme().slot[0].assign("WHITE");
  EXPECT_EQ(WriteTrolley(t.generator), 1);
  EXPECT_EQ(t.site("trolley.html"), "; kept\r\nWHITE $USER $VERSION $CURRENCY $FREIGHT\n");
  EXPECT_THAT(t.window.labels, ElementsAre("trolley.html"));
}

TEST_F(CartFrames, ACartTemplateIsReadOnceARun) {
  putTrolley("first");
  WriteTrolley(t.generator);
  putTrolley("second");
  WriteTrolley(t.generator);
  EXPECT_EQ(t.site("trolley.html"), "first");
  EXPECT_STREQ(t.program.slots[3].text(), "first");
  putRegister("register");
  WriteRegister(t.generator);
  EXPECT_STREQ(t.program.slots[4].text(), "register");
}

TEST_F(CartFrames, AMissingCartTemplateGivesAnEmptyFileWithoutAMessage) {
  EXPECT_EQ(WriteTrolley(t.generator), 1);
  EXPECT_EQ(WriteRegister(t.generator), 1);
  EXPECT_EQ(t.site("trolley.html"), "");
  EXPECT_EQ(t.site("register.html"), "");
  EXPECT_THAT(t.screen.boxes, IsEmpty());
  EXPECT_THAT(t.window.lines, IsEmpty());
}

TEST_F(CartFrames, ATemplateThatWasMissingIsTriedAgain) {
  WriteTrolley(t.generator);
  putTrolley("");
  WriteTrolley(t.generator);
  putTrolley("here");
  WriteTrolley(t.generator);
  EXPECT_EQ(t.site("trolley.html"), "here");
}

TEST_F(CartFrames, ACartFileThatCannotBeCreatedIsToldAndNotCounted) {
  failToCreate();
  EXPECT_EQ(WriteTrolley(t.generator), 0);
  EXPECT_EQ(WriteRegister(t.generator), 0);
  const ShownBox box{"ERROR R106: Unable to open HTML output file", "Error"};
  EXPECT_THAT(t.screen.boxes, ElementsAre(box, box));
  EXPECT_EQ(t.generator.log.errorCount, 0);
}

TEST_F(CartFrames, WithoutAWebDirectoryTheyGoBelowTheProject) {
  t.project().webDir.release();
  WriteTrolley(t.generator);
  EXPECT_TRUE(t.files.content("C:\\Varlo\\Projects\\Shop\\web\\trolley.html").has_value());
}

// The register.

TEST_F(CartFrames, OnlyTheFirstHeadingHasItsSingleQuotesDoubled) {
  t.scheme().slot[11].assign("<IMG SRC='h2.gif'>");
  t.scheme().slot[12].assign("<IMG SRC='h3.gif'>");
  EXPECT_EQ(registerOf("$HEADING2 $HEADING3 $HEADING2"),
            "<IMG SRC=\"h2.gif\"> <IMG SRC='h3.gif'> <IMG SRC=\"h2.gif\">");
}

TEST_F(CartFrames, AbsentHeadingsAndColoursOfListAndFrameAreRemoved) {
  EXPECT_EQ(registerOf("[$HEADING2$HEADING3$LISTCOLOR$FRAMECOLOR]"), "[]");
}

TEST_F(CartFrames, ListAndFrameColoursAreReplacedEverywhere) {
  t.scheme().slot[18].assign("L");
  t.scheme().slot[19].assign("F");
  EXPECT_EQ(registerOf("$LISTCOLOR$LISTCOLOR$FRAMECOLOR$FRAMECOLOR"), "LLFF");
}

TEST_F(CartFrames, TheServerGoesIntoEveryPlace) {
  EXPECT_EQ(registerOf("$VARLO_SERVER,$VARLO_SERVER"), "http://orders.example,http://orders.example");
  EXPECT_EQ(t.generator.log.errorCount, 0);
}

TEST_F(CartFrames, WithoutAServerAnErrorCountsOnceAndTheAddressIsEmpty) {
  t.config().orderServer.assign("");
  EXPECT_EQ(registerOf("[$VARLO_SERVER,$VARLO_SERVER]"), "[,]");
  EXPECT_THAT(t.window.lines, ElementsAre("error: register.html: Varlo Server not defined in preferences!"));
  EXPECT_EQ(t.generator.log.errorCount, 1);
}

TEST_F(CartFrames, WithoutAServerATemplateThatDoesNotAskForItIsFine) {
  t.config().orderServer.release();
  registerOf("no address");
  EXPECT_EQ(t.generator.log.errorCount, 0);
}

TEST_F(CartFrames, OnlyTheFirstFreightPlaceIsFilled) {
  t.project().methodName[0].assign("Air");
  Serve(AddRegion(t.project(), "AU"), 0, {{0, "5"}});
  EXPECT_EQ(registerOf("'$FREIGHT' '$FREIGHT'"), "'Air(AU(5<=0.5k););' '$FREIGHT'");
}

TEST_F(CartFrames, WithoutAnActiveFreightTableThePlaceIsRemoved) {
  AddRegion(t.project(), "AU");
  EXPECT_EQ(registerOf("'$FREIGHT'"), "''");
}

TEST_F(CartFrames, TheFormsGoIntoTheFirstPlaceForEach) {
  t.project().orderTemplate.assign("<form>$MESSAGE</form>");
  t.project().orderMessage.assign("\"Hello\"");
  t.project().confirmTemplate.assign("<p>$CONFIRM</p>");
  t.project().confirmMessage.assign("Thanks");
  EXPECT_EQ(registerOf("f=\"$FORM\" c=\"$CONFIRM\" $FORM $CONFIRM"),
            "f=\"<form>%22Hello%22</form>\" c=\"<p>Thanks</p>\" $FORM $CONFIRM");
}

// The register's own place for the confirmation page stands behind the form, whose texts may name it too.
TEST_F(CartFrames, AConfirmKeyInTheOrderFormIsTakenForTheRegistersOwn) {
  t.project().orderTemplate.assign("a $CONFIRM");
  t.project().confirmTemplate.assign("page");
  EXPECT_EQ(registerOf("[$FORM][$CONFIRM]"), "[a page][$CONFIRM]");
}

TEST_F(CartFrames, AServerKeyInTheOrderFormStaysAndItsColoursDoNot) {
  t.project().orderTemplate.assign("$VARLO_SERVER $BGCOLOR");
  t.scheme().slot[0].assign("cart");
  t.scheme().slot[13].assign("form");
  EXPECT_EQ(registerOf("$FORM $BGCOLOR"), "$VARLO_SERVER form cart");
}

TEST_F(CartFrames, AnUnsetFormColourIsLeftToTheCart) {
  t.project().orderTemplate.assign("$BGCOLOR $FORMCOLOR");
  t.scheme().slot[0].assign("cart");
  EXPECT_EQ(registerOf("$FORM"), "cart $FORMCOLOR");
}

TEST_F(CartFrames, AccountVersionAndCurrencyReachTheForms) {
  t.project().orderTemplate.assign("$USER $VERSION $CURRENCY");
  t.project().currency.assign("EUR");
  EXPECT_EQ(registerOf("$FORM|$USER $VERSION $CURRENCY"), "shop-12 1.07 EUR|shop-12 1.07 EUR");
}

TEST_F(CartFrames, AQuoteInTheAccountIsNotEncoded) {
  t.project().orderTemplate.assign("\"$USER\"");
  t.config().accountId.assign("a\"b");
  EXPECT_EQ(registerOf("$FORM"), "%22a\"b%22");
}

TEST_F(CartFrames, AccountAndVersionAreReplacedFourTimesAndCurrencyEverywhere) {
  t.project().currency.release();
  EXPECT_EQ(registerOf("$USER$USER$USER$USER$USER|$VERSION$VERSION$VERSION$VERSION$VERSION|"
                       "$CURRENCY$CURRENCY$CURRENCY$CURRENCY$CURRENCY"),
            "shop-12shop-12shop-12shop-12$USER|1.071.071.071.07$VERSION|");
}

TEST_F(CartFrames, AValueThatHoldsItsOwnKeyStaysAndCountsAnError) {
  t.project().currency.assign("$CURRENCY");
  EXPECT_EQ(registerOf("[$CURRENCY]"), "[$CURRENCY]");
  EXPECT_THAT(t.window.lines, ElementsAre("error: register.html: endless replacement of '$CURRENCY'"));
  EXPECT_EQ(t.generator.log.errorCount, 1);
}

TEST_F(CartFrames, AHeadingThatHoldsItsOwnKeyStaysAndCountsAnError) {
  t.scheme().slot[11].assign("x$HEADING2");
  EXPECT_EQ(registerOf("[$HEADING2]"), "[$HEADING2]");
  EXPECT_THAT(t.window.lines, ElementsAre("error: register.html: endless replacement of '$HEADING2'"));
}

TEST_F(CartFrames, TheFormTemplatesAreCutAtTheWorkingCapacity) {
  t.project().orderTemplate.assign(std::string_view(std::string(25000, 'o')));
  t.project().confirmTemplate.assign(std::string_view(std::string(25000, 'c')));
  EXPECT_EQ(registerOf("$FORM|$CONFIRM"), std::string(20000, 'o') + "|" + std::string(20000, 'c'));
}

TEST_F(CartFrames, CapacityThatFreightGainedMovesTheCutOfTheForms) {
  t.project().orderTemplate.assign(std::string_view(std::string(40000, 'o')));
  Serve(AddRegion(t.project(), std::string(19000, 'a').c_str()), 0, {{0, "1"}});
  Serve(AddRegion(t.project(), "B"), 0, {{0, "2"}});
  EXPECT_EQ(registerOf("$FORM").size(), 32000U);
}

TEST_F(CartFrames, CapacityThatTheCardsGainedMovesTheCutOfTheConfirmation) {
  t.accept("Visa");
  t.project().orderTemplate.assign(std::string_view("$ACCEPTED_CARDS" + std::string(19000, 'o')));
  t.project().confirmTemplate.assign(std::string_view(std::string(40000, 'c')));
  const std::size_t cards =
      std::string_view("<SELECT NAME=\"CardType\">\n<OPTION VALUE=\"Visa\">Visa\n</SELECT>").size();
  EXPECT_EQ(registerOf("$CONFIRM").size(), 20000 + cards + 2000 + 10000);
}

TEST_F(CartFrames, AWholeRegisterMayPass100000Bytes) {
  t.project().orderTemplate.assign(std::string_view(std::string(20000, '"')));
  t.project().confirmTemplate.assign(std::string_view(std::string(20000, '"')));
  EXPECT_EQ(registerOf("$FORM$CONFIRM" + std::string(50000, '\n')).size(), 2 * 60000U + 50000);
}

TEST_F(CartFrames, AFormThatIsTooLongForTheRegisterLeavesItsPlaceAndCountsAnError) {
  const std::string message(kLongestText, 'm');
  t.project().orderTemplate.assign("$MESSAGE");
  t.project().orderMessage.assign(std::string_view(message));
  EXPECT_EQ(registerOf("[$FORM]"), "[$FORM]");
  EXPECT_THAT(t.window.lines, ElementsAre("error: register.html: endless replacement of '$FORM'"));
  EXPECT_EQ(t.generator.log.errorCount, 1);
}

TEST_F(CartFrames, TheRegisterShowsItsNameOnTheLabel) {
  registerOf("x");
  EXPECT_THAT(t.window.labels, ElementsAre("register.html"));
}

}  // namespace
}  // namespace varlo
