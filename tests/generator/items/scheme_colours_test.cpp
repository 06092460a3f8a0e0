#include "generator/items/scheme_colours.h"

#include <gtest/gtest.h>

#include "tests/support/test_shop.h"

namespace varlo {
namespace {

using namespace test;

class SchemeColours : public testing::Test {
 protected:
  TestShop t;

  void SetUp() override {
    for (std::size_t i = 0; i < kSchemeSlots; ++i) t.scheme().slot[i].assign(("<" + std::to_string(i) + ">").c_str());
  }
};

constexpr std::string_view kAll =
    "$BGCOLOR $BG_COLOR $TEXT_COLOR $LINK_COLOR $VLINK_COLOR $ALINK_COLOR $FORMCOLOR $HEADINGCOLOR $HEADINGTEXTCOLOR";

TEST_F(SchemeColours, TheCartHasColoursOfItsOwn) {
  std::string text(kAll);
  ApplyCartColours(t.generator, text, "x");
  EXPECT_EQ(text, "<0> <0> <23> <1> <2> <3> $FORMCOLOR $HEADINGCOLOR $HEADINGTEXTCOLOR");
}

TEST_F(SchemeColours, SoHasTheOrderForm) {
  std::string text(kAll);
  ApplyOrderFormColours(t.generator, text, "x");
  EXPECT_EQ(text, "<13> <13> <14> <15> <16> <17> <20> <21> <22>");
}

TEST_F(SchemeColours, TheConfirmationPageFollowsTheStoresPages) {
  std::string text(kAll);
  ApplyConfirmationColours(t.generator, text, "x");
  EXPECT_EQ(text, "<4> <4> <5> <6> <7> <8> $FORMCOLOR $HEADINGCOLOR $HEADINGTEXTCOLOR");
}

TEST_F(SchemeColours, EveryOccurrenceIsReplaced) {
  std::string text("$BGCOLOR$BGCOLOR$BGCOLOR$BGCOLOR$BGCOLOR$BGCOLOR");
  ApplyCartColours(t.generator, text, "x");
  EXPECT_EQ(text, "<0><0><0><0><0><0>");
}

TEST_F(SchemeColours, AnUnsetSlotLeavesItsKeyAndAnEmptyOneRemovesIt) {
  t.scheme().slot[23].release();
  t.scheme().slot[1].assign("");
  std::string text("[$TEXT_COLOR] [$LINK_COLOR]");
  ApplyCartColours(t.generator, text, "x");
  EXPECT_EQ(text, "[$TEXT_COLOR] []");
}

TEST_F(SchemeColours, AValueIsUnderTheLaterSteps) {
  t.scheme().slot[0].assign("$LINK_COLOR");
  std::string text("$BGCOLOR");
  ApplyCartColours(t.generator, text, "x");
  EXPECT_EQ(text, "<1>");
}

TEST_F(SchemeColours, AColourThatHoldsItsOwnKeyStaysAndCountsAnError) {
  t.scheme().slot[0].assign("x$BGCOLOR");
  std::string text("[$BGCOLOR] [$LINK_COLOR]");
  ApplyCartColours(t.generator, text, "register.html");
  EXPECT_EQ(text, "[$BGCOLOR] [<1>]");
  EXPECT_THAT(t.window.lines, testing::ElementsAre("error: register.html: endless replacement of '$BGCOLOR'"));
  EXPECT_EQ(t.generator.log.errorCount, 1);
}

TEST_F(SchemeColours, WithoutASchemeEveryKeyStays) {
  t.project().projectScheme = nullptr;
  std::string text(kAll);
  ApplyCartColours(t.generator, text, "x");
  EXPECT_EQ(text, kAll);
}

}  // namespace
}  // namespace varlo
