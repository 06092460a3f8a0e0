#include "layout/colour_value.h"

#include <gtest/gtest.h>

#include <memory>

#include "core/text/number_text.h"
#include "layout/named_colours.h"

namespace varlo {
namespace {

TEST(RgbOf, PutsRedLowest) { EXPECT_EQ(RgbOf(0x12, 0x34, 0x56), 0x563412U); }

TEST(HexPairValue, TakesDigitsOfBothCases) {
  EXPECT_EQ(HexPairValue("00"), 0);
  EXPECT_EQ(HexPairValue("0A"), 10);
  EXPECT_EQ(HexPairValue("90"), 0x90);
  EXPECT_EQ(HexPairValue("fF"), 0xFF);
  EXPECT_EQ(HexPairValue("12345"), 0x12);
}

TEST(HexPairValue, OtherCharactersCountByTheirCodeAndWrap) {
  EXPECT_EQ(HexPairValue("0G"), 16);
  EXPECT_EQ(HexPairValue("0g"), 16);
  EXPECT_EQ(HexPairValue("0Z"), 35);
  EXPECT_EQ(HexPairValue("Z0"), 35 * 16 % 256);
  EXPECT_EQ(HexPairValue("  "), (256 * 2 - 23 * 17) % 256);
  EXPECT_EQ(HexPairValue("\xFF\xFF"), 200 * 17 % 256);
}

TEST(HexPairValue, AMissingCharacterCountsAsZero) {
  EXPECT_EQ(HexPairValue(""), 0);
  EXPECT_EQ(HexPairValue("F"), 0xF0);
}

TEST(ParseColourValue, TakesSixDigitsWithAndWithoutHash) {
  EXPECT_EQ(ParseColourValue("#FF8000"), RgbOf(255, 128, 0));
  EXPECT_EQ(ParseColourValue("FF8000"), RgbOf(255, 128, 0));
  EXPECT_EQ(ParseColourValue("#ff80aB"), RgbOf(255, 128, 0xAB));
  EXPECT_EQ(ParseColourValue("#123456789"), RgbOf(0x12, 0x34, 0x56));
}

TEST(ParseColourValue, SkipsWhiteSpaceInFrontOfTheHash) {
  EXPECT_EQ(ParseColourValue("  #FF8000"), RgbOf(255, 128, 0));
  EXPECT_EQ(ParseColourValue("\t\r\n\v\f FF8000"), RgbOf(255, 128, 0));
  EXPECT_EQ(ParseColourValue("# FF8000"), 0U);
}

TEST(ParseColourValue, SkipsOneHash) { EXPECT_EQ(ParseColourValue("##FF8000"), 0U); }

TEST(ParseColourValue, APairThatStartsWithNoDigitGivesBlack) {
  EXPECT_EQ(ParseColourValue("#GG0000"), 0U);
  EXPECT_EQ(ParseColourValue("#FFG000"), 0U);
  EXPECT_EQ(ParseColourValue("#FF80G0"), 0U);
  EXPECT_EQ(ParseColourValue("#FF8\xC6"
                             "00"),
            RgbOf(0xFF, (8 * 16 + 0xC6 - 55) & 0xFF, 0));
  EXPECT_EQ(ParseColourValue("#FF80\xC6"
                             "0"),
            0U);
}

TEST(ParseColourValue, TheSecondCharacterOfAPairIsNotChecked) {
  EXPECT_EQ(ParseColourValue("#0G0g0Z"), RgbOf(16, 16, 35));
}

TEST(ParseColourValue, ANameThatIsNotInTheTableGivesBlack) {
  ASSERT_EQ(ColourByName("GRAY"), std::nullopt);
  EXPECT_EQ(ParseColourValue("GRAY"), 0U);
}

TEST(ParseColourValue, ATextWithoutDigitsGivesBlack) {
  for (const char* text : {"", "#", "   ", " #"}) EXPECT_EQ(ParseColourValue(text), 0U) << text;
}

TEST(ParseColourValue, ATextThatEndsBetweenPairsGivesBlack) {
  for (const char* text : {"FF", "FFFF", "#FF", "#FFFF"}) EXPECT_EQ(ParseColourValue(text), 0U) << text;
}

TEST(ParseColourValue, ATextThatEndsWithinAPairReadsTheRestAsZero) {
  EXPECT_EQ(ParseColourValue("F"), RgbOf(0xF0, 0, 0));
  EXPECT_EQ(ParseColourValue("FFF"), RgbOf(0xFF, 0xF0, 0));
  EXPECT_EQ(ParseColourValue("#FF80F"), RgbOf(0xFF, 0x80, 0xF0));
}

// The address sanitizer watches a block of the heap to the byte.
TEST(ParseColourValue, ReadsNothingBehindTheText) {
  constexpr std::string_view text = " #FF8000";
  for (std::size_t length = 0; length <= text.size(); ++length) {
    const std::unique_ptr<char[]> block(new char[length]);
    text.copy(block.get(), length);
    // Of " #FF8000" without its last bytes.
    const RgbValue expected[] = {
        0, 0, 0, RgbOf(0xF0, 0, 0), 0, RgbOf(255, 128, 0), 0, RgbOf(255, 128, 0), RgbOf(255, 128, 0)};
    EXPECT_EQ(ParseColourValue({block.get(), length}), expected[length]) << length;
  }
}

TEST(FormatColourValue, AlwaysHasSevenCharactersAndUpperCaseDigits) {
  EXPECT_EQ(FormatColourValue(RgbOf(10, 0, 255)), "#0A00FF");
  EXPECT_EQ(FormatColourValue(0), "#000000");
  EXPECT_EQ(FormatColourValue(RgbOf(0xAB, 0xCD, 0xEF)), "#ABCDEF");
  EXPECT_EQ(FormatColourValue(RgbOf(1, 16, 0)), "#011000");
}

TEST(FormatColourValue, LeavesTheTopByteOut) { EXPECT_EQ(FormatColourValue(0xFF000001), "#010000"); }

TEST(FormatColourValue, IsReadBackAsTheSameColour) {
  for (const RgbValue rgb : {0x000000U, 0x123456U, 0xFFFFFFU, 0xF0A00FU}) {
    EXPECT_EQ(ParseColourValue(FormatColourValue(rgb)), rgb);
  }
}

}  // namespace
}  // namespace varlo
