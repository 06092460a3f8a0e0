#include "import/delimiter_candidates.h"

#include <initializer_list>

#include <gtest/gtest.h>

namespace varlo {
namespace {

char chosen(std::initializer_list<std::string_view> lines, char otherwise = '*') {
  DelimiterCandidates candidates;
  for (const std::string_view line : lines) candidates.addLine(line);
  return candidates.choose(otherwise);
}

TEST(DelimiterCandidates, EachOfTheFourIsChosenWhenItOccursMost) {
  EXPECT_EQ(chosen({"a,b,c;d"}), ',');
  EXPECT_EQ(chosen({"a;b;c,d"}), ';');
  EXPECT_EQ(chosen({"a|b|c:d"}), '|');
  EXPECT_EQ(chosen({"a:b:c|d"}), ':');
}

TEST(DelimiterCandidates, TabAndSpaceAreNeverChosen) { EXPECT_EQ(chosen({"a\tb\tc\td e f g h"}), '*'); }

TEST(DelimiterCandidates, ATieForTheMostLeavesTheDelimiterAsItIs) {
  EXPECT_EQ(chosen({"a,b;c"}), '*');
  EXPECT_EQ(chosen({"a,b;c,d;e|f"}), '*');
  EXPECT_EQ(chosen({",;|:"}), '*');
}

TEST(DelimiterCandidates, ATieForLessThanTheMostDoesNotMatter) { EXPECT_EQ(chosen({"|||,,;;::"}), '|'); }

TEST(DelimiterCandidates, WithNoneOfThemTheDelimiterStays) {
  EXPECT_EQ(chosen({"a line without any"}), '*');
  EXPECT_EQ(chosen({}), '*');
  EXPECT_EQ(chosen({""}, ';'), ';');
}

TEST(DelimiterCandidates, TheSumsOfAllLinesCount) { EXPECT_EQ(chosen({"a;b", "c,d,e", "f;g", "h;i"}), ';'); }

TEST(DelimiterCandidates, WhatStandsBetweenTwoQuotesDoesNotCount) {
  EXPECT_EQ(chosen({"\"a,b,c,d\";e"}), ';');
  EXPECT_EQ(chosen({"'a,b,c,d';e"}), ';');
}

TEST(DelimiterCandidates, AQuoteOfTheOtherKindInsideOfAPairIsPlain) {
  EXPECT_EQ(chosen({"\"it's, so, on\";e;f"}), ';');
  EXPECT_EQ(chosen({"'17\" and 19\" and more,,,,';e"}), ';');
}

TEST(DelimiterCandidates, WithoutAPartnerTheRestOfTheLineDoesNotCount) {
  EXPECT_EQ(chosen({"a;b;17\" screen,,,,,,"}), ';');
  EXPECT_EQ(chosen({"don't,,,,,,", "a;b"}), ';');
}

TEST(DelimiterCandidates, BehindAPartnerTheCountGoesOn) {
  EXPECT_EQ(chosen({"\"x\",\"y\",'z'"}), ',');
  EXPECT_EQ(chosen({"\"\"\"\",,"}), ',');
}

}  // namespace
}  // namespace varlo
