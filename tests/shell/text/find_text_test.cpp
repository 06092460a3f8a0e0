#include "shell/text/find_text.h"

#include <string>

#include <gtest/gtest.h>

#include "tests/support/fake_rich_text.h"

namespace varlo {
namespace {

struct FindNext : testing::Test {
  test::FakeRichText edit{"One two\r\n<one> $TWO one"};
  int start = 0;

  bool find(std::string_view what) { return findNext(edit, what, start); }
};

TEST_F(FindNext, GoesFromPlaceToPlace) {
  EXPECT_TRUE(find("one"));
  EXPECT_EQ(edit.selection(), (TextRange{0, 3}));
  EXPECT_TRUE(find("one"));
  EXPECT_EQ(edit.selection(), (TextRange{10, 13}));
  EXPECT_TRUE(find("one"));
  EXPECT_EQ(edit.selection(), (TextRange{20, 23}));
  EXPECT_EQ(edit.shownCarets, 3);
}

TEST_F(FindNext, BeginsAtTheTopWhereverTheCaretIs) {
  edit.select({15, 15});
  EXPECT_TRUE(find("one"));
  EXPECT_EQ(edit.selection(), (TextRange{0, 3}));
}

TEST_F(FindNext, IgnoresCaseAndWordsAndLooksIntoTags) {
  EXPECT_TRUE(find("wO\r\n<oN"));
  EXPECT_EQ(edit.selectedText(), "wo\r\n<on");
}

TEST_F(FindNext, ASearchWithoutAMatchLetsTheNextOneBeginAtTheTopAgain) {
  EXPECT_TRUE(find("two"));
  EXPECT_TRUE(find("two"));
  EXPECT_FALSE(find("two"));
  EXPECT_EQ(start, 0);
  EXPECT_EQ(edit.selectedText(), "TWO") << "The selection stays.";
  EXPECT_TRUE(find("two"));
  EXPECT_EQ(edit.selection(), (TextRange{4, 7}));
}

TEST_F(FindNext, WhatIsFoundIsNotFoundAgainInPart) {
  edit.set("aaaa");
  EXPECT_TRUE(find("aa"));
  EXPECT_TRUE(find("aa"));
  EXPECT_EQ(edit.selection(), (TextRange{2, 4}));
  EXPECT_FALSE(find("aa"));
}

TEST_F(FindNext, AnEmptyTextIsNotFound) {
  start = 5;
  EXPECT_FALSE(find(""));
  EXPECT_EQ(start, 0);
  EXPECT_EQ(edit.shownCarets, 0);
}

TEST_F(FindNext, FindsNothingInNothing) {
  edit.set("");
  EXPECT_FALSE(find("a"));
}

TEST_F(FindNext, FindsTextsOfEveryLength) {
  for (const std::size_t length : {20U, 31U, 32U, 100U, 255U, 256U, 300U}) {
    const std::string what(length, 'q');
    edit.set("x" + what);
    start = 0;
    EXPECT_TRUE(find(what)) << length;
    EXPECT_EQ(edit.selectedText(), what);
    EXPECT_FALSE(find(what)) << length;
  }
}

}  // namespace
}  // namespace varlo
