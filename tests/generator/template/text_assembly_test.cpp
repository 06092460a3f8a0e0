#include "generator/template/text_assembly.h"

#include <map>

#include <gtest/gtest.h>

#include "generator/items/replace.h"

namespace varlo {
namespace {

using Values = std::map<std::string, std::string>;

// Fills a text: each key of `values` with its value, an empty one of a tag-aware key as without a value.
// "(refused)" when the steps have to be taken one by one.
std::string assemble(std::string_view text, const Values& values) {
  const FillPlan plan(nullptr);
  const PreparedText prepared(plan, text);
  TextAssembly assembly;
  assembly.start(plan, prepared);
  for (const PreparedText::Use& use : prepared.uses) {
    const FillStep& step = plan.steps()[use.step];
    if (!assembly.isOpen(use) || !values.contains(step.key)) continue;
    const std::string& value = values.at(step.key);
    if (step.tagAware && value.empty()) {
      if (!assembly.removeTagAware(use)) return "(refused)";
    } else {
      assembly.fill(use, value);
    }
  }
  std::string result = "before ";
  if (!assembly.finish(result, result.size())) return "(refused)";
  EXPECT_EQ(result.substr(0, 7), "before ") << "the text is appended";
  return result.substr(7);
}

TEST(TextAssembly, PutsEachValueInItsPlaces) {
  EXPECT_EQ(assemble("a$COST b$CODE c$COST", {{"$COST", "1"}, {"$CODE", ""}}), "a1 b c1");
  EXPECT_EQ(assemble("a$COST", {}), "a$COST") << "a key without a value stays";
  EXPECT_EQ(assemble("", {}), "");
}

TEST(TextAssembly, KeepsToTheTimesOfAStep) {
  EXPECT_EQ(assemble("$TITLE,$TITLE,$TITLE,$TITLE,$TITLE,", {{"$TITLE", "t"}}), "t,t,t,t,$TITLE,");
  EXPECT_EQ(assemble("$UPDATED,$UPDATED,$UPDATED,", {{"$UPDATED", "u"}}), "u,u,$UPDATED,")
      << "early, and by the pass";
}

TEST(TextAssembly, AShorterKeyLeavesTheRestOfALongerOne) {
  EXPECT_EQ(assemble("$HEADING2 $LINK_COLOR.", {{"$HEADING", "H"}, {"$LINK", "L"}}), "H2 L_COLOR.");
}

TEST(TextAssembly, RefusesAValueThatBringsAKey) {
  EXPECT_EQ(assemble("$COST.", {{"$COST", "a $TITLE"}}), "(refused)");
  EXPECT_EQ(assemble("$COST.", {{"$COST", "5 $ each"}}), "5 $ each.") << "a dollar sign alone is none";
  EXPECT_EQ(assemble("$COST.", {{"$COST", "see indexa.htm"}}), "(refused)");
}

TEST(TextAssembly, RefusesAJointThatMakesAKey) {
  EXPECT_EQ(assemble("$CO$COST.", {{"$COST", "DE"}}), "(refused)");
  EXPECT_EQ(assemble("$COSTITLE.", {{"$COST", "$T"}}), "(refused)");
  EXPECT_EQ(assemble("inde$COSTa.htm.", {{"$COST", "x"}}), "(refused)");
}

TEST(TextAssembly, RemovesATagAwareKeyAloneOrWithItsTag) {
  EXPECT_EQ(assemble("<p>$F1.</p>", {{"$F1", ""}}), "<p>.</p>");
  EXPECT_EQ(assemble("a<img src=$F1 alt=x>b", {{"$F1", ""}}), "ab");
  EXPECT_EQ(assemble("a $F1 b>c", {{"$F1", ""}}), "c") << "from the start of the text";
  EXPECT_EQ(assemble("<a $F1><b $F1 $F1>c<i>$F1.>", {{"$F1", ""}}), "c<i>.>");
  EXPECT_EQ(assemble("x<a $F1 title=$COST id=$TITLE>y", {{"$F1", ""}, {"$COST", "1"}, {"$TITLE", "t"}}), "xy");
  EXPECT_EQ(assemble("$COST<a $F1>$CODE.", {{"$F1", ""}, {"$COST", "1"}, {"$CODE", "2"}}), "12.");
}

TEST(TextAssembly, RefusesATagWithoutAnEndAndOneThatAValueDisturbs) {
  EXPECT_EQ(assemble("a $F1 b", {{"$F1", ""}}), "(refused)");
  EXPECT_EQ(assemble("<p>$F1 b", {{"$F1", ""}}), "(refused)") << "behind a tag as well";
  EXPECT_EQ(assemble("<p>$F1 $TITLE", {{"$F1", ""}, {"$TITLE", "a>"}}), "(refused)") << "a value that is not in yet";
  EXPECT_EQ(assemble("<a $COST $F1>b", {{"$F1", ""}, {"$COST", "1>2"}}), "(refused)");
  EXPECT_EQ(assemble("<a $F1 $COST>b", {{"$F1", ""}, {"$COST", "<i>"}}), "(refused)");
  EXPECT_EQ(assemble("<a $F1 $COST>b", {{"$F1", ""}, {"$COST", "$"}}), "(refused)");
  EXPECT_EQ(assemble("<p>$COST$F1.", {{"$F1", ""}, {"$COST", "1>2"}}), "(refused)");
}

TEST(TextAssembly, AnyBracketBehindAKeyBetweenTagsWillDo) {
  EXPECT_EQ(assemble("<p>$F1 $BODY", {{"$F1", ""}, {"$BODY", "<i>"}}), "<p> <i>");
  EXPECT_EQ(assemble("<p>$F1 $BODY $COST>", {{"$F1", ""}, {"$BODY", "$"}, {"$COST", "1"}}), "<p> $ 1>");
}

TEST(TextAssembly, RefusesACutThatCouldJoinAKey) {
  EXPECT_EQ(assemble("$CO<a $F1>DE", {{"$F1", ""}}), "(refused)");
  EXPECT_EQ(assemble("<a $F1 $5>b", {{"$F1", ""}}), "(refused)") << "a dollar sign in the tag could have been a key";
}

TEST(TextAssembly, AValueCanComeInPieces) {
  const FillPlan plan(nullptr);
  const PreparedText prepared(plan, "[$INDEX][$INDEX]");
  TextAssembly assembly;
  assembly.start(plan, prepared);
  TextAssembly::Parts parts{};
  ASSERT_EQ(prepared.uses.size(), 1U);
  assembly.fill(prepared.uses[0], parts);
  parts = {"a", "", "c"};
  std::string result;
  EXPECT_TRUE(assembly.finish(result, result.size())) << "they are read at the end";
  EXPECT_EQ(result, "[ac][ac]");
}

TEST(TextAssembly, RefusesATextWithoutBounds) {
  std::string text;
  for (int i = 0; i < 4000; ++i) text += "$COST,";
  EXPECT_EQ(assemble(text, {{"$COST", std::string(20000, 'x')}}), "(refused)");
}

TEST(TextAssembly, CanBeUsedAgain) {
  const FillPlan plan(nullptr);
  TextAssembly assembly;
  for (int i = 0; i < 3; ++i) {
    const PreparedText prepared(plan, i == 1 ? "$TITLE $COST " : "$COST ");
    assembly.start(plan, prepared);
    for (const PreparedText::Use& use : prepared.uses) assembly.fill(use, "v");
    std::string result;
    EXPECT_TRUE(assembly.finish(result, result.size()));
    EXPECT_EQ(result, i == 1 ? "v v " : "v ");
  }
}

}  // namespace
}  // namespace varlo
