#include "generator/items/replace.h"

#include <random>

#include <gtest/gtest.h>

namespace varlo {
namespace {

using namespace std::string_literals;

// What becomes of a text, with the outcome in front where it is worth one.
std::string all(std::string text, std::string_view key, const Value& value) {
  const Replaced result = ReplaceAll(text, key, value);
  return (result == Replaced::Endless ? "endless: " : "") + text;
}
std::string tag(std::string text, std::string_view key, const Value& value) {
  const Replaced result = SubstituteTagAware(text, key, value);
  return (result == Replaced::Endless ? "endless: " : "") + text;
}
std::string upTo(int times, std::string text, std::string_view key, const Value& value) {
  const Replaced result = ReplaceUpTo(times, text, key, value);
  return (result == Replaced::Endless ? "endless: " : "") + text;
}
std::string four(std::string text, std::string_view key, const Value& value) {
  return upTo(4, std::move(text), key, value);
}

TEST(Replace, TheFirstKeyIsReplacedAndThePlaceBehindItGiven) {
  std::string text = "a$K b$K";
  EXPECT_EQ(ReplaceFirst(text, "$K", "xyz"), 4U);
  EXPECT_EQ(text, "axyz b$K");
  EXPECT_EQ(ReplaceFirst(text, "$K", "", 2), 6U) << "an empty value removes the key";
  EXPECT_EQ(text, "axyz b");
}

TEST(Replace, NothingHappensWithoutAKeyAValueOrAnOccurrence) {
  for (const auto& [key, value] : {std::pair<const char*, Value>{"", "x"}, {"$K", Value()}, {"$k", "x"}}) {
    std::string text = "a$K";
    EXPECT_EQ(ReplaceFirst(text, key, value), std::string::npos);
    EXPECT_EQ(text, "a$K");
    EXPECT_EQ(four("a$K", key, value), "a$K");
    EXPECT_EQ(all("a$K", key, value), "a$K");
  }
  std::string empty;
  EXPECT_EQ(ReplaceFirst(empty, "$K", "x"), std::string::npos);
  EXPECT_EQ(tag("a$K", "", "x"), "a$K");
  EXPECT_EQ(tag("a$K", "", ""), "a$K");
  EXPECT_EQ(tag("a$K", "$k", "x"), "a$K");
}

TEST(Replace, AFifthOccurrenceOfFourStays) {
  EXPECT_EQ(four("$K$K$K$K$K", "$K", "x"), "xxxx$K");
  EXPECT_EQ(four("$K$K$K", "$K", "x"), "xxx");
}

TEST(Replace, EachOfTheFourStartsAtTheFrontAgain) {
  EXPECT_EQ(four("$K", "$K", "$K!"), "$K!!!!");
  EXPECT_EQ(four("$K $K", "$K", "$K"), "$K $K");
  EXPECT_EQ(four("$$KK", "$K", ""), "") << "what is left can join to a key";
}

TEST(Replace, TheRoundsOfAUserVariableAreCapped) {
  std::string keys;
  std::string expected;
  for (int i = 0; i < 102; ++i) keys += "$K,";
  for (int i = 0; i < 101; ++i) expected += "x,";
  EXPECT_EQ(upTo(101, keys, "$K", "x"), expected + "$K,");
}

TEST(Replace, AllTakesEveryOccurrence) {
  EXPECT_EQ(all("$K,$K,$K,$K,$K,$K", "$K", "x"), "x,x,x,x,x,x");
  EXPECT_EQ(all("$$KK", "$K", ""), "");
  EXPECT_EQ(all("$$$KKK!", "$K", ""), "!");
  EXPECT_EQ(all("$KEY", "$KEY", "$K"), "$K");
}

TEST(Replace, AValueWithItsOwnKeyIsEndlessAndTheTextStays) {
  EXPECT_EQ(all("a $CODE b", "$CODE", "x$CODEx"), "endless: a $CODE b");
  EXPECT_EQ(all("a $CODE b", "$CODE", "$CODE"), "endless: a $CODE b");
  EXPECT_EQ(all("a b", "$CODE", "$CODE"), "a b") << "without an occurrence nothing is";
}

TEST(Replace, AValueThatGoesOnMakingItsKeyAtItsJointsIsEndless) {
  std::string text;
  for (int i = 0; i < 60; ++i) text += "$C";
  text += "OST";
  EXPECT_EQ(all(text, "$COST", "OSTOST$C$C"), "endless: " + text);
}

TEST(Replace, AValueWithoutBoundsIsEndless) {
  std::string text;
  for (int i = 0; i < 5000; ++i) text += "$K";
  const std::string value(20000, 'v');
  EXPECT_EQ(all(text, "$K", Value(value)), "endless: " + text);
  EXPECT_EQ(tag(text, "$K", Value(value)), "endless: " + text);
}

// The longest texts are compared by their lengths, which is quicker and prints less.

TEST(Replace, NoTextGetsLongerThanTheLongest) {
  const std::string fits(1000, 'v');
  const std::string tooLong(1001, 'v');
  std::string text = std::string(kLongestText - 1000, 'x') + "$K";
  EXPECT_EQ(ReplaceAll(text, "$K", Value(tooLong)), Replaced::Endless);
  EXPECT_EQ(SubstituteTagAware(text, "$K", Value(tooLong)), Replaced::Endless);
  EXPECT_EQ(ReplaceUpTo(1, text, "$K", Value(tooLong)), Replaced::Endless);
  EXPECT_TRUE(text.ends_with("x$K"));
  EXPECT_EQ(text.size(), kLongestText - 998);
  EXPECT_EQ(ReplaceAll(text, "$K", Value(fits)), Replaced::Done);
  EXPECT_EQ(text.size(), kLongestText);
}

TEST(Replace, TheLongestTextMayBecomeShorter) {
  std::string text = std::string(kLongestText, 'x') + "$KEY$KEY$KEY";
  EXPECT_EQ(ReplaceUpTo(1, text, "$KEY", "abc"), Replaced::Done);
  EXPECT_EQ(SubstituteTagAware(text, "$KEY", "abcd"), Replaced::Done);
  EXPECT_TRUE(text.ends_with("xabcabcdabcd"));
}

TEST(Replace, OneStepBehindTheOtherMakesNoLongerTextEither) {
  std::string text = "$A$B$C$D";
  const std::string value(kLongestText / 3, 'v');
  EXPECT_EQ(ReplaceAll(text, "$A", Value(value)), Replaced::Done);
  EXPECT_EQ(SubstituteTagAware(text, "$B", Value(value)), Replaced::Done);
  EXPECT_EQ(ReplaceUpTo(4, text, "$C", Value(value)), Replaced::Endless);
  EXPECT_EQ(ReplaceAll(text, "$D", Value(value)), Replaced::Endless);
  EXPECT_LE(text.size(), kLongestText);
  EXPECT_TRUE(text.ends_with("v$C$D"));
}

TEST(Replace, OfSomeRoundsThoseThatFitAreTaken) {
  std::string text = "$K,$K,$K,$K";
  const std::string value(kLongestText * 2 / 5, 'v');
  EXPECT_EQ(ReplaceUpTo(4, text, "$K", Value(value)), Replaced::Endless);
  EXPECT_TRUE(text == value + "," + value + ",$K,$K");
}

TEST(Replace, ManyOccurrencesTakeNoLongerThanTheirBytes) {
  std::string keys;
  std::string joined(300000, '$');
  for (int i = 0; i < 300000; ++i) keys += "$K";
  joined += std::string(300000, 'K');
  EXPECT_EQ(all(keys, "$K", "xyz").size(), 900000U);
  EXPECT_EQ(all(joined, "$K", ""), "");
  EXPECT_EQ(tag(">" + keys + ">", "$K", ""), ">>");
  EXPECT_EQ(tag(">" + joined + ">", "$K", ""), ">>");
  std::string tags;
  for (int i = 0; i < 200000; ++i) tags += "<$K>";
  EXPECT_EQ(tag(tags, "$K", ""), "");
}

// Tag-aware.

TEST(TagAware, AValueGoesToEveryOccurrenceAndIsNotSearchedAgain) {
  EXPECT_EQ(tag("<a href=\"$K\">$K", "$K", "x"), "<a href=\"x\">x");
  EXPECT_EQ(tag("$K $K", "$K", "$K$K"), "$K$K $K$K");
  EXPECT_EQ(tag("$$KK", "$K", "$"), "$$K") << "the search goes on behind the value";
}

TEST(TagAware, WithoutAValueTheTagAroundTheKeyGoes) {
  for (const Value& none : {Value(), Value("")}) {
    EXPECT_EQ(tag("a<img src=\"$K\" alt=\"x\">b", "$K", none), "ab");
    EXPECT_EQ(tag("<a href=\"$K\">x</a>", "$K", none), "x</a>") << "only the opening tag goes";
    EXPECT_EQ(tag("<a $K><b $K>c", "$K", none), "c");
    EXPECT_EQ(tag("<a $K $K>c", "$K", none), "c");
  }
}

TEST(TagAware, WithoutAValueAKeyInPlainTextGoesAlone) {
  EXPECT_EQ(tag("<b>x $K y</b>", "$K", ""), "<b>x  y</b>");
  EXPECT_EQ(tag("</a>$K>", "$K", ""), "</a>>");
  EXPECT_EQ(tag("<p>$K$K<img $K>", "$K", Value()), "<p>");
}

TEST(TagAware, TheStartOfTheTextCountsAsTheStartOfATag) {
  EXPECT_EQ(tag("x $K y>z", "$K", ""), "z");
  EXPECT_EQ(tag("$K>z", "$K", ""), "z");
}

TEST(TagAware, ABracketAsTheFirstByteCounts) {
  EXPECT_EQ(tag(">$K y>z", "$K", ""), "> y>z");
  EXPECT_EQ(tag("<$K y>z", "$K", ""), "z");
}

TEST(TagAware, WithoutABracketBehindItIsEndlessAndTheTextStays) {
  EXPECT_EQ(tag("plain $K", "$K", ""), "endless: plain $K");
  EXPECT_EQ(tag("<b>a</b><img src=$K", "$K", Value()), "endless: <b>a</b><img src=$K");
  EXPECT_EQ(tag("<p>$K</p><img src=$K", "$K", ""), "endless: <p></p><img src=$K") << "what went before it is gone";
  EXPECT_EQ(tag("</a>$K", "$K", ""), "endless: </a>$K") << "a bracket in front is not enough";
  EXPECT_EQ(tag("<p>$K<b>$K$K", "$K", ""), "endless: <p><b>$K$K");
}

TEST(TagAware, WhatIsLeftCanJoinToAKey) {
  EXPECT_EQ(tag(">$$KK>", "$K", ""), ">>");
  EXPECT_EQ(tag(">$<$K>K>", "$K", ""), ">>");
  EXPECT_EQ(tag("<$<x $K>K>y", "$K", ""), "y");
}

// The same by a loop that starts at the front each time, as the rules are told; "(endless)" behind more
// rounds than a text of these sizes can need otherwise.

constexpr int kRounds = 80;

std::string literalAll(std::string text, const std::string& key, const std::string& value) {
  const std::string before = text;
  for (int round = 0; round < kRounds; ++round) {
    const std::size_t at = text.find(key);
    if (at == std::string::npos) return text;
    text = text.substr(0, at) + value + text.substr(at + key.size());
    if (text.size() > 100000) break;
  }
  return "endless: " + before;
}

std::string literalTag(std::string text, const std::string& key) {
  for (;;) {
    const std::size_t at = text.find(key);
    if (at == std::string::npos) return text;
    if (text.find('>', at) == std::string::npos) return "endless: " + text;
    std::size_t angle = at;
    while (angle > 0 && text[angle] != '<' && text[angle] != '>') --angle;
    if (text[angle] == '>') {
      text.erase(at, key.size());
      continue;
    }
    text.erase(angle, text.find('>', angle) + 1 - angle);
  }
}

std::string randomText(std::mt19937& random, std::string_view letters, std::size_t most) {
  std::string text(random() % (most + 1), ' ');
  for (char& c : text) c = letters[random() % letters.size()];
  return text;
}

// Whether the loop can be told to be endless only by its rounds: then the two may draw the line elsewhere.
bool isOpenEnded(const std::string& key, const std::string& value) {
  return value.find(key) == std::string::npos && value.size() >= key.size();
}

TEST(ReplaceRandomly, AllIsALoopFromTheFront) {
  std::mt19937 random(7);
  int compared = 0;
  int endless = 0;
  for (int i = 0; i < 60000; ++i) {
    const std::string text = randomText(random, "$AB", 14);
    const std::string key = "$" + randomText(random, "AB", 2);
    const std::string value = randomText(random, "$AB", 4);
    const std::string expected = literalAll(text, key, value);
    if (expected.starts_with("endless") && isOpenEnded(key, value)) continue;
    ASSERT_EQ(all(text, key, Value(value)), expected) << text << " " << key << " " << value;
    ++compared;
    if (expected.starts_with("endless")) ++endless;
  }
  EXPECT_GE(compared, 50000);
  EXPECT_GE(endless, 1000);
}

TEST(ReplaceRandomly, AKeyOfAnyKindIsReplacedAsByALoopFromTheFront) {
  std::mt19937 random(8);
  int compared = 0;
  for (int i = 0; i < 60000; ++i) {
    const std::string text = randomText(random, "ab", 14);
    const std::string key = randomText(random, "ab", 3) + "a";
    const std::string value = randomText(random, "ab", 4);
    const std::string expected = literalAll(text, key, value);
    if (expected.starts_with("endless") && isOpenEnded(key, value)) continue;
    ASSERT_EQ(all(text, key, Value(value)), expected) << text << " " << key << " " << value;
    ++compared;
  }
  EXPECT_GE(compared, 50000);
}

TEST(ReplaceRandomly, TagAwareIsALoopFromTheFront) {
  std::mt19937 random(9);
  int endless = 0;
  for (int i = 0; i < 50000; ++i) {
    const std::string text = randomText(random, "$A<>", 16);
    const std::string expected = literalTag(text, "$A");
    ASSERT_EQ(tag(text, "$A", i % 2 == 0 ? Value() : Value("")), expected) << text;
    if (expected.starts_with("endless")) ++endless;
  }
  EXPECT_GE(endless, 1000);
}

TEST(ReplaceRandomly, FourAreTheFirstFourRoundsOfTheLoop) {
  std::mt19937 random(10);
  for (int i = 0; i < 50000; ++i) {
    const std::string text = randomText(random, "$A", 16);
    const std::string value = randomText(random, "$A", 3);
    std::string expected = text;
    for (int round = 0; round < 4; ++round) {
      const std::size_t at = expected.find("$A");
      if (at == std::string::npos) break;
      expected = expected.substr(0, at) + value + expected.substr(at + 2);
    }
    ASSERT_EQ(four(text, "$A", Value(value)), expected) << text << " " << value;
  }
}

}  // namespace
}  // namespace varlo
