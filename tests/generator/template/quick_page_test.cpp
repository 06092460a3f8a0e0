// What the quick way takes on and what it refuses; that it gives the same text is tested with every page.
#include "generator/template/quick_page.h"

#include <random>

#include <gtest/gtest.h>

#include "core/store/user_variable.h"
#include "tests/support/both_ways.h"

namespace varlo {
namespace {

using namespace test;
using testing::ElementsAre;

struct QuickPageTest : testing::Test {
  TestShop t;
  bool isQuick(std::string_view text, StoreNode& node) { return BothWays(t).page(text, node).quick; }
};

TEST_F(QuickPageTest, TakesOnAnOrdinaryPage) {
  t.home->body.assign("Hello, 5 $ each");
  EXPECT_TRUE(
      isQuick("<title>$PAGETITLE</title><img src=\"$IMAGE\">$BODY$INDEX|$SUBINDEX|$PRODUCTS2 indexa.htm $BACK "
              "$BUY $VARLO_SERVER $URL $SHELF $UPDATED $NAME",
              *t.home));
}

TEST_F(QuickPageTest, RefusesWhatOnlyTheStepsCanTell) {
  EXPECT_FALSE(isQuick("plain $F1", *t.ball)) << "a tag without an end";
  EXPECT_FALSE(isQuick("x $LINK", *t.ball));
  EXPECT_FALSE(isQuick("$PRODUCT$SUBINDEX", *t.ball)) << "a key that may grow";
  t.ball->body.assign("see $TITLE");
  EXPECT_FALSE(isQuick("$BODY", *t.ball)) << "a value with a key";
  t.ball->body.assign("a$");
  EXPECT_FALSE(isQuick("$BODYCOST", *t.ball)) << "a joint that makes a key";
  t.home->title.assign("the $BACK");
  EXPECT_FALSE(isQuick("$INDEX", *t.ball)) << "a row with a key";
}

TEST_F(QuickPageTest, RefusesWithoutASchemeAndNothingHasHappened) {
  t.project().projectScheme = nullptr;
  EXPECT_FALSE(isQuick("$TITLE", *t.ball));
  EXPECT_EQ(t.screen.boxes.size(), 1U) << "of the steps";
}

TEST_F(QuickPageTest, ARefusedBlockLeavesTheResultAsItWas) {
  const FillPlan plan(nullptr);
  ItemValues values(t.generator);
  QuickPage quick(values);
  std::string result = "before ";
  t.ball->title.assign("$COST");
  EXPECT_FALSE(quick.appendItem(plan, PreparedText(plan, "$BUY $TITLE."), *t.ball, *t.home, result));
  EXPECT_EQ(result, "before ");
  EXPECT_EQ(t.generator.scratch, "");
  t.ball->title.assign("Ball");
  EXPECT_TRUE(quick.appendItem(plan, PreparedText(plan, "$TITLE."), *t.ball, *t.home, result));
  EXPECT_EQ(result, "before Ball.");
}

TEST_F(QuickPageTest, ABlockLeavesTheKeysOfPages) {
  const Filled filled = BothWays(t).item("$SHELF $INDEX $BACK indexa.htm $PRODUCT. $SUBINDEX $URL", *t.ball, *t.home);
  EXPECT_TRUE(filled.quick);
  EXPECT_EQ(filled.text, "$SHELF $INDEX $BACK indexa.htm $PRODUCT. $SUBINDEX $URL");
}

TEST_F(QuickPageTest, TheShelfGoesIntoItsFirstPlace) {
  const std::string shelf = "<p>items</p>";
  const Filled filled = BothWays(t).page("a $SHELF b $SHELF <i $F1>", *t.home, &shelf);
  EXPECT_TRUE(filled.quick);
  EXPECT_EQ(filled.text, "a <p>items</p> b $SHELF ");
  const std::string left = "$TITLE";
  EXPECT_EQ(BothWays(t).page("$SHELF", *t.home, &left).text, "Home") << "what a block left gets the page's value";
}

TEST_F(QuickPageTest, OneQuickPageServesManyPages) {
  const FillPlan plan(nullptr);
  ItemValues values(t.generator);
  QuickPage quick(values);
  const PreparedText text(plan, "$TITLE $INDEX|$SUBINDEX|$PRODUCT.");
  AddProduct(t.project(), "Car", t.home)->fileName.assign("3.htm");
  for (int round = 0; round < 2; ++round) {
    for (StoreNode* node : {t.home, t.ball, t.ball->next}) {
      ++t.generator.pageCounter;
      std::string expected(text.text);
      FillPlainPage(values, expected, *node, nullptr);
      std::string page = "old";
      EXPECT_TRUE(quick.fillPage(plan, text, *node, nullptr, page));
      EXPECT_EQ(page, expected);
    }
  }
}

// Templates and values at random, from pieces that meet in awkward ways.
TEST_F(QuickPageTest, IsTheSameAsTheStepsForPiecesAtRandom) {
  constexpr const char* kPieces[] = {
      "$TITLE",    "$COST",  "$CODE",     "$F1",       "$F2",        "$LINK",  "$IMAGE",
      "$BODY",     "$INDEX", "$SUBINDEX", "$PRODUCT",  "$PRODUCTS2", "$BACK",  "indexa.htm",
      "$URL",      "$BUY",   "$REMOVE",   "$KEYWORDS", "$UPDATED",   "$SHELF", "$MINE",
      "$HEADING2", "$",      "CO",        "ST",        "inde",       "xa.htm", "<",
      ">",         "<a ",    "\">",       " ",         ".",          "x",      "$VARLO_SERVER"};
  constexpr std::size_t kCount = std::size(kPieces);
  std::mt19937 random(11);
  const auto piecesOf = [&](std::size_t most, std::size_t from) {
    std::string text;
    for (std::size_t left = random() % (most + 1); left > 0; --left)
      text += kPieces[from + random() % (kCount - from)];
    return text;
  };
  UserVariableAppend(t.project(), UserVariableInit(nullptr));
  t.project().variables->name.assign("$MINE");
  int quick = 0;
  for (int i = 0; i < 6000; ++i) {
    const auto value = [&](Text& text) {
      const unsigned kind = random() % 4;
      text.release();
      if (kind == 1) text.assign("");
      if (kind == 2) text.assign(std::string_view(piecesOf(2, 22)));
      if (kind == 3) text.assign(std::string_view(piecesOf(2, 0)));
    };
    for (Text* text : {&t.ball->title, &t.ball->cost, &t.ball->productCode, &t.ball->field[0], &t.ball->field[1],
                       &t.ball->imageLink, &t.ball->body, &t.ball->metaKeywords, &t.home->title,
                       &t.project().variables->value, &t.scheme().slot[10], &t.config().orderServer}) {
      value(*text);
    }
    const std::string text = piecesOf(12, 0);
    const Filled filled = BothWays(t).page(text, i % 3 == 0 ? *t.home : *t.ball);
    if (filled.quick) ++quick;
    ASSERT_FALSE(HasFailure()) << text;
  }
  EXPECT_GT(quick, 400);
}

}  // namespace
}  // namespace varlo
