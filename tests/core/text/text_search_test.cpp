#include "core/text/text_search.h"

#include <string>

#include <gtest/gtest.h>

namespace varlo {
namespace {

constexpr std::size_t kNone = std::string_view::npos;

TEST(EqualsNoCase, FollowsTheAsciiRule) {
  EXPECT_TRUE(EqualsNoCase("Index.HTM", "iNDEX.htm"));
  EXPECT_TRUE(EqualsNoCase("", ""));
  EXPECT_FALSE(EqualsNoCase("a", ""));
  EXPECT_FALSE(EqualsNoCase("abc", "ab"));
  EXPECT_FALSE(EqualsNoCase("\xE9", "\xC9"));
  EXPECT_FALSE(EqualsNoCase("[", "{"));
  EXPECT_FALSE(EqualsNoCase("@", "`"));
}

TEST(CompareNoCase, OrdersByBytesOfLowerCase) {
  EXPECT_EQ(CompareNoCase("Index.HTM", "iNDEX.htm"), 0);
  EXPECT_LT(CompareNoCase("Apple", "banana"), 0);
  EXPECT_GT(CompareNoCase("banana", "Apple"), 0);
  EXPECT_GT(CompareNoCase("\xE9", "z"), 0);
  EXPECT_GT(CompareNoCase("Z", "["), 0);  // as "z"
}

TEST(CompareNoCase, TheBeginningOfATextStandsBeforeIt) {
  EXPECT_EQ(CompareNoCase("", ""), 0);
  EXPECT_LT(CompareNoCase("", "a"), 0);
  EXPECT_LT(CompareNoCase("ab", "ABC"), 0);
  EXPECT_GT(CompareNoCase("ABC", "ab"), 0);
}

TEST(FindNoCase, FindsFromTheStartItIsGiven) {
  EXPECT_EQ(FindNoCase("abcABC", "Bc"), 1U);
  EXPECT_EQ(FindNoCase("abcABC", "Bc", 1), 1U);
  EXPECT_EQ(FindNoCase("abcABC", "Bc", 2), 4U);
  EXPECT_EQ(FindNoCase("abcABC", "Bc", 5), kNone);
  EXPECT_EQ(FindNoCase("abcABC", "Bc", 7), kNone);
}

TEST(FindNoCase, AnEmptyPartIsFoundAtTheStart) {
  EXPECT_EQ(FindNoCase("abc", ""), 0U);
  EXPECT_EQ(FindNoCase("abc", "", 3), 3U);
  EXPECT_EQ(FindNoCase("", ""), 0U);
  EXPECT_EQ(FindNoCase("abc", "", 4), kNone);
}

TEST(TextFindNoCase, GivesTheFirstMatch) {
  const char* text = "The Title and the TITLE";
  EXPECT_EQ(TextFindNoCase(text, "title"), text + 4);
  EXPECT_EQ(TextFindNoCase(text, "THE"), text);
  EXPECT_EQ(TextFindNoCase(text, "E"), text + 2);
}

TEST(TextFindNoCase, GivesNullWhenThereIsNone) {
  EXPECT_EQ(TextFindNoCase("title", "titles"), nullptr);
  EXPECT_EQ(TextFindNoCase("", "t"), nullptr);
}

TEST(TextFindNoCase, GivesNullForANullArgument) {
  EXPECT_EQ(TextFindNoCase(nullptr, "a"), nullptr);
  EXPECT_EQ(TextFindNoCase("a", nullptr), nullptr);
  EXPECT_EQ(TextFindNoCase(nullptr, nullptr), nullptr);
}

TEST(TextFindNoCase, GoesBackAfterAHalfMatch) {
  const char* text = "aaAab";
  EXPECT_EQ(TextFindNoCase(text, "AAB"), text + 2);
}

TEST(TextCountChar, CountsEveryOccurrence) {
  EXPECT_EQ(TextCountChar("a,b,,c,", ','), 4U);
  EXPECT_EQ(TextCountChar("aAa", 'a'), 2U);
  EXPECT_EQ(TextCountChar("abc", ','), 0U);
  EXPECT_EQ(TextCountChar("", ','), 0U);
  EXPECT_EQ(TextCountChar("\xE9\xE9", '\xE9'), 2U);
}

TEST(TextCountOutsideQuotes, LeavesOutWhatIsQuoted) {
  EXPECT_EQ(TextCountOutsideQuotes("a,\"b,c\",d", ','), 2U);
  EXPECT_EQ(TextCountOutsideQuotes("a,'b,c',d", ','), 2U);
  EXPECT_EQ(TextCountOutsideQuotes("\",\"", ','), 0U);
  EXPECT_EQ(TextCountOutsideQuotes("a,b", ','), 1U);
  EXPECT_EQ(TextCountOutsideQuotes("", ','), 0U);
}

TEST(TextCountOutsideQuotes, AnOtherQuoteInsideIsAnOrdinaryByte) {
  EXPECT_EQ(TextCountOutsideQuotes("\"it's, so\", \"isn't\", x", ','), 2U);
  EXPECT_EQ(TextCountOutsideQuotes("'6\" wide', x", ','), 1U);
}

TEST(TextCountOutsideQuotes, QuotedPartsMayFollowEachOther) {
  EXPECT_EQ(TextCountOutsideQuotes("\",\"','\"\",''", ','), 1U);
}

TEST(TextCountOutsideQuotes, AQuoteWithoutEndEndsWithTheLine) {
  EXPECT_EQ(TextCountOutsideQuotes("a,\"b,c\r\nd,e", ','), 2U);
  EXPECT_EQ(TextCountOutsideQuotes("a,'b,c\nd,e", ','), 2U);
}

TEST(TextFindOutsideQuotes, GivesTheFirstPosition) {
  EXPECT_EQ(TextFindOutsideQuotes("a>b>", '>'), 1U);
  EXPECT_EQ(TextFindOutsideQuotes(">", '>'), 0U);
  EXPECT_EQ(TextFindOutsideQuotes("<a title=\"x>y\">z", '>'), 14U);
  EXPECT_EQ(TextFindOutsideQuotes("<a title='x>y'>z", '>'), 14U);
}

TEST(TextFindOutsideQuotes, GivesNothingWhenAllAreQuoted) {
  EXPECT_EQ(TextFindOutsideQuotes("\"a>b\"", '>'), kNone);
  EXPECT_EQ(TextFindOutsideQuotes("abc", '>'), kNone);
  EXPECT_EQ(TextFindOutsideQuotes("", '>'), kNone);
  EXPECT_EQ(TextFindOutsideQuotes("\"", '>'), kNone);
}

TEST(TextFindOutsideQuotes, AQuoteWithoutEndEndsAtCrOrLf) {
  EXPECT_EQ(TextFindOutsideQuotes("\"a>\r>", '>'), 4U);
  EXPECT_EQ(TextFindOutsideQuotes("'a>\n>", '>'), 4U);
  EXPECT_EQ(TextFindOutsideQuotes("\"a>", '>'), kNone);
}

TEST(TextFindOutsideQuotes, ALineEndEndsAQuoteWhosePartnerComesLater) {
  EXPECT_EQ(TextFindOutsideQuotes("\"a\n>b\"", '>'), 3U);
}

TEST(TextFindOutsideQuotes, TheLineEndOfAnOpenQuoteCanItselfBeFound) {
  EXPECT_EQ(TextFindOutsideQuotes("\"ab\r\n", '\r'), 3U);
  EXPECT_EQ(TextFindOutsideQuotes("\"ab\r\n", '\n'), 4U);
}

TEST(TextBehind, GivesWhatFollowsTheFirst) {
  EXPECT_EQ(TextBehind("KEY=a=b", '='), "a=b");
  EXPECT_EQ(TextBehind("KEY=", '='), "");
  EXPECT_EQ(TextBehind("=x", '='), "x");
  EXPECT_EQ(TextBehind("KEY", '='), "");
}

}  // namespace
}  // namespace varlo
