#include "generator/template/prepared_text.h"

#include <gmock/gmock.h>

#include "core/store/user_variable.h"
#include "generator/template/fill_plan.h"
#include "tests/support/test_shop.h"

namespace varlo {
namespace {

using namespace test;
using testing::ElementsAre;

// The text with its places in brackets behind a "|", and the keys that can take each.
std::vector<std::string> uses(const FillPlan& plan, std::string_view text) {
  std::vector<std::string> uses;
  const PreparedText prepared(plan, text);
  for (const PreparedText::Use& use : prepared.uses) {
    std::string line = plan.steps()[use.step].key;
    for (std::uint32_t i = 0; i < use.count; ++i) {
      line += " " + std::to_string(prepared.begins[prepared.places[use.first + i]]);
    }
    uses.push_back(line);
  }
  return uses;
}
bool isQuick(const FillPlan& plan, std::string_view text) { return PreparedText(plan, text).quick; }

TEST(PreparedText, FindsThePlacesOfEachStepInTheOrderOfTheSteps) {
  const FillPlan plan(nullptr);
  EXPECT_THAT(uses(plan, "a$TITLE b$COST c$TITLE"), ElementsAre("$COST 9", "$TITLE 1 16"));
  EXPECT_THAT(uses(plan, "$BODY."), ElementsAre("$BODY 0", "$BODY 0")) << "early, and by the pass";
  EXPECT_THAT(uses(plan, "no keys, $ 5 $NAME"), ElementsAre());
  EXPECT_THAT(uses(plan, ""), ElementsAre());
}

TEST(PreparedText, APlaceCanSuitSeveralKeys) {
  const FillPlan plan(nullptr);
  EXPECT_THAT(uses(plan, "$PRODUCTS2."), ElementsAre("$PRODUCTS2 0", "$PRODUCTS 0", "$PRODUCT 0"));
  EXPECT_THAT(uses(plan, "$LINK_COLOR."), ElementsAre("$LINK_COLOR 0", "$LINK 0"));
  EXPECT_THAT(uses(plan, "$BACK."), ElementsAre("$BACK 0", "$BACK 0"));
}

TEST(PreparedText, TheLetterPageIsAPlaceAndItsFrontIsNone) {
  const FillPlan plan(nullptr);
  EXPECT_THAT(uses(plan, "indexindexa.htm indexa.ht"), ElementsAre("indexa.htm 5"));
}

TEST(PreparedText, TheTextFallsIntoSegments) {
  const PreparedText prepared(FillPlan(nullptr), "ab$COST cd$CODE ");
  EXPECT_THAT(prepared.begins, ElementsAre(0U, 2U, 10U, 16U));
  EXPECT_EQ(prepared.text, "ab$COST cd$CODE ");
}

TEST(PreparedText, IsNotQuickWhereAPlaceRunsIntoTheNext) {
  const FillPlan plan(nullptr);
  EXPECT_TRUE(isQuick(plan, "$COST$CODE$TITLE")) << "no longer key begins with one of them";
  EXPECT_FALSE(isQuick(plan, "$PRODUCT$CODE"));
  EXPECT_FALSE(isQuick(plan, "$LINK$CODE"));
  EXPECT_FALSE(isQuick(plan, "x$PRODUCT")) << "at the end of the text";
  EXPECT_TRUE(isQuick(plan, "$PRODUCT.$CODE"));
  EXPECT_TRUE(isQuick(plan, "$PRODU$CODE")) << "what is no place may: the result shows it";
}

TEST(PreparedText, IsNotQuickWhereOneKeyStandsInsideAnother) {
  UserVariable variable;
  variable.name.assign("$indexa.htm");
  const FillPlan plan(&variable);
  EXPECT_TRUE(plan.isQuick());
  EXPECT_FALSE(isQuick(plan, "a$indexa.htm."));
  EXPECT_TRUE(isQuick(plan, "indexa.htm."));
}

TEST(PreparedText, ATextThatIsTooLongIsNotPrepared) {
  const FillPlan plan(nullptr);
  EXPECT_TRUE(isQuick(plan, std::string(PreparedText::kLongest, 'x')));
  EXPECT_FALSE(isQuick(plan, std::string(PreparedText::kLongest + 1, 'x')));
}

TEST(PreparedText, APlaceThatVeryManyVariablesCouldTakeMakesATextTooMuch) {
  TestShop t;
  for (int i = 0; i < 2000; ++i) {
    UserVariable* variable = UserVariableInit(nullptr);
    variable->name.assign("$SAME");
    UserVariableAppend(t.project(), variable);
  }
  const FillPlan plan(t.project().variables);
  std::string text;
  for (int i = 0; i < 100; ++i) text += "$SAME,";
  EXPECT_TRUE(isQuick(plan, text));
  for (int i = 0; i < 100; ++i) text += "$SAME,";
  const PreparedText prepared(plan, text);
  EXPECT_FALSE(prepared.quick);
  EXPECT_LE(prepared.places.size(), PreparedText::kMostPlaces + 200);
}

}  // namespace
}  // namespace varlo
