#include "posix/file_mask.h"

#include <string>

#include <gtest/gtest.h>

namespace varlo {
namespace {

TEST(MatchesMask, StarDotStarTakesANameWithoutAnExtension) { EXPECT_TRUE(MatchesMask("readme", "*.*")); }
TEST(MatchesMask, IgnoresCase) { EXPECT_TRUE(MatchesMask("SHOP.STP", "shop.*")); }
TEST(MatchesMask, QuestionMarkIsOneCharacter) { EXPECT_FALSE(MatchesMask("ab", "a??")); }

TEST(MatchesMask, IgnoresTheCaseOfEveryLetterOfTheSet) {
  EXPECT_TRUE(MatchesMask("CAF\xC9.HTM", "caf\xE9.htm"));
  EXPECT_TRUE(MatchesMask("\x9A.htm", "\x8A.*"));
  EXPECT_FALSE(MatchesMask("\xD7", "\xF7"));
}

TEST(MatchesMask, WithoutSignsTheNamesMustBeTheSame) {
  EXPECT_TRUE(MatchesMask("shop.stp", "shop.stp"));
  EXPECT_FALSE(MatchesMask("shop.stp", "shop.st"));
  EXPECT_FALSE(MatchesMask("shop.st", "shop.stp"));
  EXPECT_FALSE(MatchesMask("shop-stp", "shop.stp"));
}

TEST(MatchesMask, StarTakesAnyBytesOrNone) {
  EXPECT_TRUE(MatchesMask("", "*"));
  EXPECT_TRUE(MatchesMask("shop.stp", "*"));
  EXPECT_TRUE(MatchesMask("shop.stp", "sh*op.stp"));
  EXPECT_TRUE(MatchesMask("shop.old.stp", "shop.*"));
  EXPECT_TRUE(MatchesMask("shop.old.stp", "*.stp"));
  EXPECT_FALSE(MatchesMask("shop.stp.old", "*.stp"));
  EXPECT_TRUE(MatchesMask("shop.stp", "**.**"));
}

TEST(MatchesMask, SeveralStarsGoBackToTheLast) {
  EXPECT_TRUE(MatchesMask("aXbXc", "a*X*c"));
  EXPECT_TRUE(MatchesMask("mississippi", "m*iss*p*i"));
  EXPECT_FALSE(MatchesMask("mississippi", "m*iss*x*i"));
  EXPECT_TRUE(MatchesMask("a.b.b", "*.b"));
}

TEST(MatchesMask, AQuestionMarkTakesADotToo) {
  EXPECT_TRUE(MatchesMask("a.b", "a?b"));
  EXPECT_TRUE(MatchesMask("shop.ba7", "shop.ba?"));
  EXPECT_FALSE(MatchesMask("shop.ba", "shop.ba?"));
  EXPECT_FALSE(MatchesMask("shop.ba10", "shop.ba?"));
}

TEST(MatchesMask, AMaskEndingInDotStarTakesNamesWithoutExtension) {
  EXPECT_TRUE(MatchesMask("shop", "shop.*"));
  EXPECT_TRUE(MatchesMask("shop1", "shop?.*"));
  EXPECT_FALSE(MatchesMask("shops", "shop.*"));
  EXPECT_FALSE(MatchesMask("shops.old", "shop.*"));
}

TEST(MatchesMask, AnEmptyMaskTakesNoName) {
  EXPECT_FALSE(MatchesMask("a", ""));
  EXPECT_TRUE(MatchesMask("", ""));
}

TEST(MatchesMask, ManyStarsCostNoTime) {
  std::string mask;
  for (int i = 0; i < 200; ++i) mask += "a*";
  EXPECT_FALSE(MatchesMask(std::string(5000, 'a'), mask + "b"));
  EXPECT_TRUE(MatchesMask(std::string(5000, 'a'), mask));
}

}  // namespace
}  // namespace varlo
