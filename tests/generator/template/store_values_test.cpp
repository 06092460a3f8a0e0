#include "generator/template/store_values.h"

#include <gtest/gtest.h>

#include "core/store/user_variable.h"
#include "generator/items/item_values.h"
#include "generator/template/fill_plan.h"
#include "tests/support/test_shop.h"

namespace varlo {
namespace {

using namespace test;

class StoreValues : public testing::Test {
 protected:
  TestShop t;

  void SetUp() override {
    t.project().projectScheme->slot[4].assign("WHITE");
    t.project().projectScheme->slot[5].release();
    t.project().projectScheme->slot[10].assign("<img src=h1.gif>");
    t.project().projectScheme->slot[24].assign("img\\f.gif");
    UserVariable* note = UserVariableInit(nullptr);
    note->name.assign("$NOTE");
    note->value.assign("a note");
    UserVariableAppend(t.project(), note);
  }
  // The text with the values of the store in it.
  std::string prepare(std::string_view text, bool isBlock = false) {
    const FillPlan plan(t.project().variables);
    ItemValues values(t.generator);
    const std::unique_ptr<PreparedText> prepared = PrepareForStore(plan, values, text, isBlock);
    EXPECT_TRUE(prepared->quick);
    return prepared->text;
  }
};

TEST_F(StoreValues, WhatIsTheSameOnEveryPageIsFilledIn) {
  EXPECT_EQ(prepare("$BGCOLOR $STORETITLE $NOTE $VERSION $HOMELINK $USER."), "WHITE Toys a note 1.07 1.htm shop-12.");
}

TEST_F(StoreValues, AHomePageWithANameOfAnyLengthIsFilledIn) {
  for (std::size_t length = 1; length <= 300; ++length) {
    const std::string name(length, 'h');
    t.home->fileName.assign(std::string_view(name));
    ASSERT_EQ(prepare("<a href=\"$HOMELINK\">$HOMELINK</a>."), "<a href=\"" + name + "\">" + name + "</a>.");
  }
}

TEST_F(StoreValues, WhatBelongsToAnItemStays) {
  EXPECT_EQ(prepare("$TITLE $CODE $INDEX $ADD $VARLO_SERVER $UPDATED."),
            "$TITLE $CODE $INDEX $ADD $VARLO_SERVER $UPDATED.");
}

TEST_F(StoreValues, AbsentValuesStayAndEmptyOnesGo) {
  t.project().storeTitle.release();
  EXPECT_EQ(prepare("[$TEXT_COLOR][$STORETITLE]."), "[$TEXT_COLOR][].");
}

TEST_F(StoreValues, ValuesThatCouldDisturbALaterStepStayOut) {
  EXPECT_EQ(prepare("$HEADING $CURRENCY $BULLET_F."), "$HEADING $CURRENCY $BULLET_F.");
}

TEST_F(StoreValues, AnEmptyTagAwareValueIsLeftToThePage) {
  t.home->fileName.assign("");
  EXPECT_EQ(prepare("<a href=\"$HOMELINK\">$NOTE</a>."), "<a href=\"$HOMELINK\">a note</a>.");
}

TEST_F(StoreValues, ValuesThatMakeAKeyTogetherWithTheTextStayOut) {
  t.project().variables->value.assign("COST");
  EXPECT_EQ(prepare("$$NOTE."), "$$NOTE.");
}

TEST_F(StoreValues, MoreThanAStepTakesLeavesTheTextAsItIs) {
  EXPECT_EQ(prepare("$USER$USER$USER$USER$USER."), "$USER$USER$USER$USER$USER.");
  EXPECT_EQ(prepare("$USER$USER$USER$USER."), "shop-12shop-12shop-12shop-12.");
}

TEST_F(StoreValues, APageFillsTheTitleOfTheStoreTwiceAsOftenAsABlock) {
  const std::string five = "$STORETITLE,$STORETITLE,$STORETITLE,$STORETITLE,$STORETITLE.";
  EXPECT_EQ(prepare(five), "Toys,Toys,Toys,Toys,Toys.");
  EXPECT_EQ(prepare(five, true), five);
}

TEST_F(StoreValues, AVariableWithTheNameOfAnEarlyTextWaitsForThatText) {
  t.project().variables->name.assign("$BODY");
  EXPECT_EQ(prepare("$BODY."), "$BODY.");
}

}  // namespace
}  // namespace varlo
