#include "generator/template/text_signs.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace varlo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TextSigns signsOf(std::string_view text, std::size_t from = 0) {
  TextSigns signs;
  signs.keys = {99};
  signs.found = TextSigns::kAll;
  EXPECT_TRUE(signs.find(text, from));
  return signs;
}

TEST(TextSigns, AnOrdinaryTextHoldsNone) {
  const TextSigns signs = signsOf("<!DOCTYPE html><p>1 + 1 = 2! extra maximum index.htm a-->b</p>");
  EXPECT_THAT(signs.keys, IsEmpty());
  EXPECT_FALSE(signs.found.comment);
  EXPECT_FALSE(signs.found.plusComment);
  EXPECT_THAT(signsOf("").keys, IsEmpty());
}

TEST(TextSigns, KeysBeginAtDollarSignsAndLetterPagesInTheOrderOfTheText) {
  EXPECT_THAT(signsOf("a$b indexa.htm $").keys, ElementsAre(1U, 4U, 15U));
  EXPECT_THAT(signsOf("indexa.htmindexa.htm").keys, ElementsAre(0U, 10U));
  EXPECT_THAT(signsOf("xa.htm Indexa.htm indexa.ht").keys, IsEmpty());
}

TEST(TextSigns, ACommentBeginsWithItsWholeMark) {
  EXPECT_TRUE(signsOf("a<!--b").found.comment);
  EXPECT_FALSE(signsOf("a<!-b ! !-- <!").found.comment);
  EXPECT_FALSE(signsOf("a<!--b").found.plusComment);
}

TEST(TextSigns, EitherPlusMarkIsASign) {
  EXPECT_TRUE(signsOf("<!--+").found.plusComment);
  EXPECT_TRUE(signsOf("<!--+").found.comment);
  EXPECT_TRUE(signsOf("+-->").found.plusComment);
  EXPECT_FALSE(signsOf("+-->").found.comment);
  EXPECT_FALSE(signsOf("+ -- > +-- ->").found.plusComment);
}

TEST(TextSigns, WhatStandsInFrontOfTheStartDoesNotCount) {
  EXPECT_THAT(signsOf("$a$b", 1).keys, ElementsAre(2U));
  EXPECT_FALSE(signsOf("+-->text", 4).found.plusComment);
  EXPECT_THAT(signsOf("$", 1).keys, IsEmpty());
}

TEST(TextSigns, AreGivenUpWhereThereAreTooMany) {
  TextSigns signs;
  EXPECT_TRUE(signs.find(std::string(TextSigns::kMostKeys, '$'), 0));
  EXPECT_EQ(signs.keys.size(), TextSigns::kMostKeys);
  EXPECT_FALSE(signs.find(std::string(TextSigns::kMostKeys + 1, '$'), 0));
  EXPECT_FALSE(signs.find(std::string(TextSigns::kMostKeys, '$') + "indexa.htm", 0));
  EXPECT_FALSE(signs.find(std::string(8 * TextSigns::kMostKeys, '$'), 0));
  EXPECT_LE(signs.keys.size(), TextSigns::kMostKeys + 1) << "no more are kept";
}

}  // namespace
}  // namespace varlo
