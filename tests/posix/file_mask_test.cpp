#include "posix/file_mask.h"

#include <gtest/gtest.h>

namespace varlo {
namespace {

TEST(MatchesMask, StarDotStarTakesANameWithoutAnExtension) { EXPECT_TRUE(MatchesMask("readme", "*.*")); }
TEST(MatchesMask, IgnoresCase) { EXPECT_TRUE(MatchesMask("SHOP.STP", "shop.*")); }
TEST(MatchesMask, QuestionMarkIsOneCharacter) { EXPECT_FALSE(MatchesMask("ab", "a??")); }

}  // namespace
}  // namespace varlo
