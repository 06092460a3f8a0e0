#include "core/text/text_edit.h"

#include <string>
#include <string_view>

#include <gtest/gtest.h>

namespace varlo {
namespace {

constexpr std::size_t kNone = std::string::npos;

std::string lowered(std::string text) {
  TextLower(text);
  return text;
}

std::string urlEncoded(std::string text) {
  TextUrlEncode(text);
  return text;
}

TEST(Bytes, LettersAndDigitsAreAsciiOnes) {
  for (int value = 0; value < 256; ++value) {
    const auto byte = static_cast<char>(value);
    const bool letter = (value >= 65 && value <= 90) || (value >= 97 && value <= 122);
    EXPECT_EQ(IsLetter(byte), letter) << value;
    EXPECT_EQ(IsDigit(byte), value >= 48 && value <= 57) << value;
    EXPECT_EQ(LowerChar(byte), static_cast<char>(value >= 65 && value <= 90 ? value + 32 : value)) << value;
  }
}

TEST(Bytes, WhiteSpaceIsBlankTabLfVtFfAndCr) {
  const std::string_view white = " \t\n\v\f\r";
  for (int value = 0; value < 256; ++value) {
    const auto byte = static_cast<char>(value);
    EXPECT_EQ(IsSpace(byte), white.find(byte) != std::string_view::npos) << value;
  }
}

TEST(TrimEnd, LineOfSpacesLeavesTheEmptyString) { EXPECT_EQ(TrimEnd("   \r\n"), ""); }
TEST(TrimEnd, StopsAtAnEmptyString) { EXPECT_EQ(TrimEnd(""), ""); }
TEST(TrimEnd, RemovesSpacesCrsAndLfsInAnyOrder) { EXPECT_EQ(TrimEnd("key=value \n\r \r\n\n  "), "key=value"); }
TEST(TrimEnd, KeepsWhatStandsInFrontOrInside) { EXPECT_EQ(TrimEnd(" \r\na \r\n b\n"), " \r\na \r\n b"); }
TEST(TrimEnd, KeepsATab) { EXPECT_EQ(TrimEnd("a\t \r\n"), "a\t"); }
TEST(TrimEnd, KeepsABlankWithoutBreak) { EXPECT_EQ(TrimEnd("a\xA0 \n"), "a\xA0"); }

TEST(TextLower, TurnsLettersOnly) { EXPECT_EQ(lowered("AZ az @[`{ 09"), "az az @[`{ 09"); }
TEST(TextLower, LeavesBytesAboveSevenBits) { EXPECT_EQ(lowered("\xC4\xD6\xDC\xC9"), "\xC4\xD6\xDC\xC9"); }
TEST(TextLower, TakesTheEmptyString) { EXPECT_EQ(lowered(""), ""); }

TEST(TextUrlEncode, KeepsLettersDigitsAndFourSigns) { EXPECT_EQ(urlEncoded("azAZ09*.-_"), "azAZ09*.-_"); }
TEST(TextUrlEncode, TurnsABlankIntoAPlus) { EXPECT_EQ(urlEncoded(" red  shoes "), "+red++shoes+"); }
TEST(TextUrlEncode, EncodesAPlusItself) { EXPECT_EQ(urlEncoded("1+1 %"), "1%2B1+%25"); }
TEST(TextUrlEncode, FillsASingleDigitWithAZero) { EXPECT_EQ(urlEncoded("\t\r\n\x01"), "%09%0D%0A%01"); }
TEST(TextUrlEncode, WritesDigitsInUpperCase) { EXPECT_EQ(urlEncoded("/~\xA9\xEF\xFF"), "%2F%7E%A9%EF%FF"); }
TEST(TextUrlEncode, TakesTheEmptyString) { EXPECT_EQ(urlEncoded(""), ""); }

TEST(TextUrlEncode, TurnsEveryOtherByteIntoThree) {
  const std::string_view kept = "*.-_ ";
  for (int value = 1; value < 256; ++value) {
    const auto byte = static_cast<char>(value);
    const bool stays = IsLetter(byte) || IsDigit(byte) || kept.find(byte) != std::string_view::npos;
    EXPECT_EQ(urlEncoded(std::string(1, byte)).size(), stays ? 1U : 3U) << value;
  }
}

TEST(TextReplace, ReplacesTheFirstOccurrenceOnly) {
  std::string text = "one two one";
  EXPECT_EQ(TextReplace(text, "one", "three"), 5U);
  EXPECT_EQ(text, "three two one");
}

TEST(TextReplace, GivesThePlaceJustBehindWhatWasPutIn) {
  std::string text = "a-b-c";
  EXPECT_EQ(TextReplace(text, "-", "+++"), 4U);
  EXPECT_EQ(text, "a+++b-c");
}

TEST(TextReplace, MovesTheTailForAShorterText) {
  std::string text = "head@@@tail";
  EXPECT_EQ(TextReplace(text, "@@@", "\r\n"), 6U);
  EXPECT_EQ(text, "head\r\ntail");
}

TEST(TextReplace, ReplacesByNothing) {
  std::string text = "abc";
  EXPECT_EQ(TextReplace(text, "b", ""), 1U);
  EXPECT_EQ(text, "ac");
  EXPECT_EQ(TextReplace(text, "ac", ""), 0U);
  EXPECT_EQ(text, "");
}

TEST(TextReplace, MindsTheCase) {
  std::string text = "$Title";
  EXPECT_EQ(TextReplace(text, "$TITLE", "x"), kNone);
  EXPECT_EQ(text, "$Title");
}

TEST(TextReplace, GivesNothingForNullsAndEmptyTexts) {
  std::string text = "text";
  EXPECT_EQ(TextReplace(text, nullptr, "x"), kNone);
  EXPECT_EQ(TextReplace(text, "t", nullptr), kNone);
  EXPECT_EQ(TextReplace(text, "", "x"), kNone);
  EXPECT_EQ(TextReplace(text, "textual", "x"), kNone);
  EXPECT_EQ(text, "text");
  std::string empty;
  EXPECT_EQ(TextReplace(empty, "t", "x"), kNone);
  EXPECT_EQ(empty, "");
}

TEST(TextReplace, SearchesFromTheStartItIsGiven) {
  std::string text = "aXaX";
  EXPECT_EQ(TextReplace(text, "X", "Y", 2), 4U);
  EXPECT_EQ(text, "aXaY");
  EXPECT_EQ(TextReplace(text, "X", "Y", 2), kNone);
  EXPECT_EQ(TextReplace(text, "X", "Y", 4), kNone);
  EXPECT_EQ(TextReplace(text, "X", "Y", 5), kNone);
}

TEST(TextReplace, CanBeLoopedWhenTheNewTextHoldsTheOld) {
  std::string text = "a&b&c";
  std::size_t at = 0;
  int replaced = 0;
  while ((at = TextReplace(text, "&", "&amp;", at)) != kNone) ++replaced;
  EXPECT_EQ(replaced, 2);
  EXPECT_EQ(text, "a&amp;b&amp;c");
}

TEST(TextReplaceNoCase, IgnoresTheCaseOfLetters) {
  std::string text = "x $TiTle y $title";
  EXPECT_EQ(TextReplaceNoCase(text, "$titlE", "Shop"), 6U);
  EXPECT_EQ(text, "x Shop y $title");
}

TEST(TextReplaceNoCase, KeepsLettersAboveSevenBitsApart) {
  std::string text = "caf\xC9";
  EXPECT_EQ(TextReplaceNoCase(text, "caf\xE9", "x"), kNone);
  EXPECT_EQ(text, "caf\xC9");
}

TEST(TextReplaceNoCase, GivesNothingForNullsAndEmptyTexts) {
  std::string text = "text";
  EXPECT_EQ(TextReplaceNoCase(text, nullptr, "x"), kNone);
  EXPECT_EQ(TextReplaceNoCase(text, "T", nullptr), kNone);
  EXPECT_EQ(TextReplaceNoCase(text, "", "x"), kNone);
  EXPECT_EQ(TextReplaceNoCase(text, "u", "x"), kNone);
  EXPECT_EQ(TextReplaceNoCase(text, "T", "x", 5), kNone);
  EXPECT_EQ(text, "text");
  std::string empty;
  EXPECT_EQ(TextReplaceNoCase(empty, "t", "x"), kNone);
}

TEST(TextReplaceNoCase, SearchesFromTheStartItIsGiven) {
  std::string text = "<BR><br>";
  EXPECT_EQ(TextReplaceNoCase(text, "<br>", "\n", 1), 5U);
  EXPECT_EQ(text, "<BR>\n");
}

TEST(TextCopyBounded, CopiesAtMostTheMaximum) {
  std::string target = "old text";
  TextCopyBounded(target, "abcdef", 4);
  EXPECT_EQ(target, "abcd");
  TextCopyBounded(target, "abcd", 4);
  EXPECT_EQ(target, "abcd");
  TextCopyBounded(target, "abc", 4);
  EXPECT_EQ(target, "abc");
  TextCopyBounded(target, "abc", 0);
  EXPECT_EQ(target, "");
}

TEST(TextCopyUntil, StopsInFrontOfTheFirstStop) {
  std::string target = "old text";
  TextCopyUntil(target, "key=a=b", '=');
  EXPECT_EQ(target, "key");
  TextCopyUntil(target, "=a", '=');
  EXPECT_EQ(target, "");
}

TEST(TextCopyUntil, TakesAllOfATextWithoutStop) {
  std::string target;
  TextCopyUntil(target, "key", '=');
  EXPECT_EQ(target, "key");
  TextCopyUntil(target, "", '=');
  EXPECT_EQ(target, "");
}

TEST(TextCopyUntilBounded, EndsAtTheStopOrTheMaximum) {
  std::string target;
  TextCopyUntilBounded(target, "abc,def", ',', 10);
  EXPECT_EQ(target, "abc");
  TextCopyUntilBounded(target, "abc,def", ',', 3);
  EXPECT_EQ(target, "abc");
  TextCopyUntilBounded(target, "abc,def", ',', 2);
  EXPECT_EQ(target, "ab");
  TextCopyUntilBounded(target, "abcdef", ',', 5);
  EXPECT_EQ(target, "abcde");
  TextCopyUntilBounded(target, "abcdef", ',', 100);
  EXPECT_EQ(target, "abcdef");
  TextCopyUntilBounded(target, "abcdef", ',', 0);
  EXPECT_EQ(target, "");
}

TEST(TextAppendUntil, AppendsUpToTheStop) {
  std::string target = "x:";
  TextAppendUntil(target, "abc|def", '|');
  EXPECT_EQ(target, "x:abc");
  TextAppendUntil(target, "|def", '|');
  EXPECT_EQ(target, "x:abc");
  TextAppendUntil(target, "def", '|');
  EXPECT_EQ(target, "x:abcdef");
}

}  // namespace
}  // namespace varlo
