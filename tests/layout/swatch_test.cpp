#include "layout/swatch.h"

#include <gtest/gtest.h>

namespace varlo {
namespace {

TEST(SwatchColour, ANullSlotHasNone) { EXPECT_EQ(SwatchColour(Text()), std::nullopt); }

TEST(SwatchColour, AnEmptyTextIsBlack) { EXPECT_EQ(SwatchColour(""), RgbOf(0, 0, 0)); }

TEST(SwatchColour, TakesNamesAndDigits) {
  EXPECT_EQ(SwatchColour("tomato"), RgbOf(0xFF, 0x63, 0x47));
  EXPECT_EQ(SwatchColour("#900000"), RgbOf(0x90, 0, 0));
  EXPECT_EQ(SwatchColour("0a14FF"), RgbOf(10, 20, 255));
}

TEST(SwatchColour, SiennaIsLightBlueAndSkyBlueIsBrown) {
  EXPECT_EQ(SwatchColour("SIENNA"), RgbOf(0x87, 0xCE, 0xEB));
  EXPECT_EQ(SwatchColour("SKYBLUE"), RgbOf(0xA0, 0x52, 0x2D));
}

TEST(SwatchColour, ChecksNothing) {
  EXPECT_EQ(SwatchColour("#GG0000"), RgbOf(16 * 17 % 256, 0, 0));
  EXPECT_EQ(SwatchColour("GRAY"), RgbOf((16 * 16 + 27) % 256, (10 * 16 + 34) % 256, 0));
}

TEST(SwatchColour, SkipsOneHashAndNoWhiteSpace) {
  EXPECT_EQ(SwatchColour("##FF800"), RgbOf((256 * 2 - 20 * 16 + 15) % 256, 0xF8, 0));
  EXPECT_NE(SwatchColour(" #FF8000"), SwatchColour("#FF8000"));
}

TEST(SwatchColour, MissingDigitsCountAsZero) {
  EXPECT_EQ(SwatchColour("#"), RgbOf(0, 0, 0));
  EXPECT_EQ(SwatchColour("#F"), RgbOf(0xF0, 0, 0));
  EXPECT_EQ(SwatchColour("#FFF"), RgbOf(0xFF, 0xF0, 0));
  EXPECT_EQ(SwatchColour("#FF80F"), RgbOf(0xFF, 0x80, 0xF0));
}

class SwatchCacheTest : public testing::Test {
 protected:
  static constexpr std::size_t kFirst = 0;
  static constexpr std::size_t kLast = kSchemeSlots - 1;
  Scheme scheme;
  SwatchCache cache;

  void SetUp() override {
    scheme.slot[kFirst] = "RED";
    scheme.slot[kLast] = "LIME";
  }
  // Paints both swatches, then changes both texts to BLUE.
  void paintAndChange() {
    ASSERT_EQ(cache.colour(scheme, kFirst), RgbOf(255, 0, 0));
    ASSERT_EQ(cache.colour(scheme, kLast), RgbOf(0, 255, 0));
    scheme.slot[kFirst] = "BLUE";
    scheme.slot[kLast] = "BLUE";
  }
};

TEST_F(SwatchCacheTest, KeepsAColourUntilItIsDropped) {
  paintAndChange();
  EXPECT_EQ(cache.colour(scheme, kFirst), RgbOf(255, 0, 0));
  EXPECT_EQ(cache.colour(scheme, kLast), RgbOf(0, 255, 0));
}

TEST_F(SwatchCacheTest, DropsTheColourOfOneSlot) {
  paintAndChange();
  cache.drop(kFirst);
  EXPECT_EQ(cache.colour(scheme, kFirst), RgbOf(0, 0, 255));
  EXPECT_EQ(cache.colour(scheme, kLast), RgbOf(0, 255, 0));
}

TEST_F(SwatchCacheTest, DropsAllColoursForAnotherScheme) {
  paintAndChange();
  cache.dropAll();
  EXPECT_EQ(cache.colour(scheme, kFirst), RgbOf(0, 0, 255));
  EXPECT_EQ(cache.colour(scheme, kLast), RgbOf(0, 0, 255));
}

TEST_F(SwatchCacheTest, ANullSlotHasNoneAlsoWhenAColourIsCached) {
  cache.colour(scheme, kFirst);
  scheme.slot[kFirst].release();
  EXPECT_EQ(cache.colour(scheme, kFirst), std::nullopt);
}

}  // namespace
}  // namespace varlo
