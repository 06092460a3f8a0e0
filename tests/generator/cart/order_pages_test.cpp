#include "generator/cart/order_pages.h"

#include <string>

#include <gtest/gtest.h>

#include "tests/support/test_shop.h"

namespace varlo {
namespace {

using namespace test;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kNoCardsLine = "warning: accepted credit cards list not defined";

class OrderPages : public testing::Test {
 protected:
  TestShop t;
  StoreProject& project = t.project();

  std::string orderText() {
    WorkingText working;
    BuildOrderText(t.generator, working);
    return working.text;
  }
  std::string confirmText() {
    WorkingText working;
    BuildConfirmText(t.generator, working);
    return working.text;
  }
  std::string orderPreview() {
    EXPECT_EQ(PreviewOrderForm(t.generator), 1);
    return t.site("preview.htm");
  }
  std::string confirmPreview() {
    EXPECT_EQ(PreviewConfirmation(t.generator), 1);
    return t.site("preview.htm");
  }
};

// The cards.

TEST_F(OrderPages, CardsStandInTheOrderOfTheListALineEach) {
  t.accept("Visa");
  t.accept("Diners");
  EXPECT_EQ(CardSelect(t.generator),
            "<SELECT NAME=\"CardType\">\n<OPTION VALUE=\"Visa\">Visa\n<OPTION VALUE=\"Diners\">Diners\n</SELECT>");
  EXPECT_EQ(t.generator.log.warningCount, 0);
}

TEST_F(OrderPages, TheCardsAreComposedInTheScratchText) {
  t.accept("Visa");
  EXPECT_EQ(CardSelect(t.generator), t.generator.scratch);
}

TEST_F(OrderPages, WithoutCardsTheListIsEmptyAndAWarningCounts) {
  EXPECT_EQ(CardSelect(t.generator), "<SELECT NAME=\"CardType\">\n</SELECT>");
  EXPECT_THAT(t.window.lines, ElementsAre(kNoCardsLine));
  EXPECT_EQ(t.generator.log.warningCount, 1);
}

TEST_F(OrderPages, ATemplateWithoutCardsNeverWarns) {
  project.orderTemplate.assign("no list");
  EXPECT_EQ(orderText(), "no list");
  orderPreview();
  EXPECT_EQ(t.generator.log.warningCount, 0);
  EXPECT_THAT(t.window.lines, IsEmpty());
}

TEST_F(OrderPages, OnlyTheFirstPlaceForCardsIsFilledAndItsQuotesAreEncoded) {
  t.accept("V\"");
  project.orderTemplate.assign("$ACCEPTED_CARDS $ACCEPTED_CARDS");
  EXPECT_EQ(orderText(), "<SELECT NAME=%22CardType%22>\n<OPTION VALUE=%22V%22%22>V%22\n</SELECT> $ACCEPTED_CARDS");
}

TEST_F(OrderPages, CardsMakeRoomForTheirLengthAnd2000Bytes) {
  t.accept(std::string(4000, 'v').c_str());
  project.orderTemplate.assign(std::string_view("$ACCEPTED_CARDS" + std::string(10000, 'o')));
  WorkingText working;
  BuildOrderText(t.generator, working);
  EXPECT_EQ(working.capacity, 20000 + t.generator.scratch.size() + 2000 + 10000);
}

TEST_F(OrderPages, CardsThatFitLeaveTheCapacity) {
  t.accept("Visa");
  project.orderTemplate.assign("$ACCEPTED_CARDS");
  WorkingText working;
  BuildOrderText(t.generator, working);
  EXPECT_EQ(working.capacity, 20000U);
}

// The embedded forms.

TEST_F(OrderPages, TheMessageGoesIntoTheFirstPlaceAndItsQuotesAreEncoded) {
  project.orderTemplate.assign("\"$MESSAGE\" $MESSAGE");
  project.orderMessage.assign("say \"hello\"");
  EXPECT_EQ(orderText(), "%22say %22hello%22%22 $MESSAGE");
  project.orderMessage.release();
  EXPECT_EQ(orderText(), "%22%22 $MESSAGE");
}

TEST_F(OrderPages, AQuoteInAColourIsNotEncoded) {
  project.orderTemplate.assign("\"$FORMCOLOR\"");
  t.scheme().slot[20].assign("\"red\"");
  EXPECT_EQ(orderText(), "%22\"red\"%22");
  project.confirmTemplate.assign("\"$BGCOLOR\"");
  t.scheme().slot[4].assign("\"red\"");
  EXPECT_EQ(confirmText(), "%22\"red\"%22");
}

TEST_F(OrderPages, AnAbsentTemplateGivesAnEmptyText) {
  EXPECT_EQ(orderText(), "");
  EXPECT_EQ(confirmText(), "");
}

TEST_F(OrderPages, TheTemplateIsCutAtTheCapacityBeforeTheMessageGoesIn) {
  project.orderTemplate.assign(std::string_view("$MESSAGE" + std::string(20000, 'o')));
  project.orderMessage.assign(std::string_view(std::string(1000, 'm')));
  EXPECT_EQ(orderText(), std::string(1000, 'm') + std::string(20000 - 8, 'o'));
}

TEST_F(OrderPages, TheConfirmationHoldsTheOwnersMessageOnce) {
  project.confirmTemplate.assign("<b>$CONFIRM</b> $CONFIRM");
  project.confirmMessage.assign("Thank \"you\"");
  EXPECT_EQ(confirmText(), "<b>Thank %22you%22</b> $CONFIRM");
}

TEST_F(OrderPages, AMessageMayHoldItsOwnKey) {
  project.orderTemplate.assign("$MESSAGE");
  project.orderMessage.assign("a $MESSAGE");
  EXPECT_EQ(orderText(), "a $MESSAGE");
}

TEST_F(OrderPages, AMessageMayBringThePlaceForTheCards) {
  t.accept("Visa");
  project.orderTemplate.assign("$MESSAGE");
  project.orderMessage.assign("$ACCEPTED_CARDS");
  EXPECT_TRUE(orderText().starts_with("<SELECT "));
}

// The previews.

TEST_F(OrderPages, ThePreviewKeepsQuotesAndReplacesWhatTheRegisterWould) {
  t.accept("Visa");
  project.orderTemplate.assign("\"$MESSAGE\" $ACCEPTED_CARDS $FORMCOLOR $USER $VERSION $CURRENCY$CURRENCY");
  project.orderMessage.assign("Hi");
  t.scheme().slot[20].assign("red");
  EXPECT_EQ(orderPreview(),
            "\"Hi\" <SELECT NAME=\"CardType\">\n<OPTION VALUE=\"Visa\">Visa\n</SELECT> red shop-12 1.07 $$");
}

TEST_F(OrderPages, ThePreviewOfTheConfirmationKnowsNoCurrency) {
  project.confirmTemplate.assign("\"$CONFIRM\" $BGCOLOR $USER $VERSION $CURRENCY $ACCEPTED_CARDS");
  project.confirmMessage.assign("Thanks");
  t.scheme().slot[4].assign("blue");
  EXPECT_EQ(confirmPreview(), "\"Thanks\" blue shop-12 1.07 $CURRENCY $ACCEPTED_CARDS");
  EXPECT_EQ(t.generator.log.warningCount, 0);
}

TEST_F(OrderPages, PreviewsReplaceAccountAndVersionFourTimes) {
  project.orderTemplate.assign("$USER$USER$USER$USER$USER $VERSION$VERSION$VERSION$VERSION$VERSION");
  project.confirmTemplate = project.orderTemplate;
  const std::string text = "shop-12shop-12shop-12shop-12$USER 1.071.071.071.07$VERSION";
  EXPECT_EQ(orderPreview(), text);
  EXPECT_EQ(confirmPreview(), text);
}

TEST_F(OrderPages, ThePreviewsOverwriteOneAnother) {
  project.orderTemplate.assign("order");
  project.confirmTemplate.assign("confirm");
  EXPECT_EQ(orderPreview(), "order");
  EXPECT_EQ(confirmPreview(), "confirm");
}

TEST_F(OrderPages, InAPreviewTheCartsColoursReachOnlyWhatSurvived) {
  project.orderTemplate.assign("$BGCOLOR $TEXT_COLOR");
  t.scheme().slot[13].assign("form");
  t.scheme().slot[0].assign("cart");
  t.scheme().slot[23].assign("cart text");
  EXPECT_EQ(orderPreview(), "form cart text");
}

TEST_F(OrderPages, PreviewsAreCutAt100000Bytes) {
  project.orderTemplate.assign(std::string_view(std::string(100001, 'o')));
  project.confirmTemplate.assign(std::string_view(std::string(100001, 'c')));
  EXPECT_EQ(orderPreview().size(), 100000U);
  EXPECT_EQ(confirmPreview().size(), 100000U);
}

TEST_F(OrderPages, WithoutASchemeAPreviewIsRefused) {
  project.projectScheme = nullptr;
  project.orderTemplate.assign("$ACCEPTED_CARDS");
  EXPECT_EQ(PreviewOrderForm(t.generator), 0);
  EXPECT_EQ(PreviewConfirmation(t.generator), 0);
  const ShownBox box{"No scheme defined for current store.", "Error"};
  EXPECT_THAT(t.screen.boxes, ElementsAre(box, box));
  EXPECT_EQ(t.site("preview.htm"), "(no file)");
  EXPECT_EQ(t.generator.log.warningCount, 1) << "the cards come before the scheme";
}

TEST_F(OrderPages, AWarningOfAPreviewCountsWithoutALog) {
  t.generator.log.buildWindow = nullptr;
  project.orderTemplate.assign("$ACCEPTED_CARDS");
  orderPreview();
  EXPECT_EQ(t.generator.log.warningCount, 1);
  EXPECT_THAT(t.window.lines, IsEmpty());
}

TEST_F(OrderPages, APreviewThatCannotBeCreatedIsTold) {
  t.files.shallFail = [](const std::string& operation) { return operation.starts_with("create"); };
  EXPECT_EQ(PreviewOrderForm(t.generator), 0);
  EXPECT_EQ(PreviewConfirmation(t.generator), 0);
  const ShownBox box{"ERROR R106: Unable to open HTML output file", "Error"};
  EXPECT_THAT(t.screen.boxes, ElementsAre(box, box));
}

TEST_F(OrderPages, APreviewIsShownFromBelowTheProjectWhereverItWasWritten) {
  project.orderTemplate.assign("order");
  PreviewOrderForm(t.generator);
  EXPECT_EQ(FormPreviewPath(project), "C:\\Varlo\\Projects\\Shop\\web\\preview.htm");
  EXPECT_FALSE(t.files.content(FormPreviewPath(project)).has_value());
  project.webDir.release();
  PreviewOrderForm(t.generator);
  EXPECT_EQ(t.files.content(FormPreviewPath(project)), "order");
}

TEST_F(OrderPages, AColourThatHoldsItsOwnKeyCountsAnErrorOfTheFile) {
  project.orderTemplate.assign("$FORMCOLOR");
  t.scheme().slot[20].assign("$FORMCOLOR");
  EXPECT_EQ(orderText(), "$FORMCOLOR");
  EXPECT_EQ(orderPreview(), "$FORMCOLOR");
  EXPECT_THAT(t.window.lines, ElementsAre("error: register.html: endless replacement of '$FORMCOLOR'",
                                          "error: preview.htm: endless replacement of '$FORMCOLOR'"));
}

}  // namespace
}  // namespace varlo
