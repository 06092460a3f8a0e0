#include "commerce/freight/freight_price_reader.h"

#include <gtest/gtest.h>

namespace varlo {
namespace {

using Kind = FreightPrice::Kind;

FreightGroup read(std::string_view text) {
  FreightGroup group;
  EXPECT_EQ(ReadFreightPrices(text, group), "") << text;
  return group;
}

std::string problemOf(std::string_view text) {
  FreightGroup group;
  return ReadFreightPrices(text, group);
}

TEST(FreightPriceReader, ReadsEachKindOfPrice) {
  const FreightGroup group = read("0>=100v,5<=2k,7.5<=10k,30+5k>10k");
  ASSERT_EQ(group.prices.size(), 4u);
  EXPECT_EQ(group.prices[0].kind, Kind::kValue);
  EXPECT_EQ(group.prices[0].limit, 1'000'000);
  EXPECT_EQ(group.prices[1].kind, Kind::kWeight);
  EXPECT_EQ(group.prices[2].base, 75'000);
  EXPECT_EQ(group.prices[3].kind, Kind::kUnits);
  EXPECT_EQ(group.prices[3].base, 300'000);
  EXPECT_EQ(group.prices[3].each, 50'000);
  EXPECT_EQ(group.prices[3].limit, 100'000);
}

TEST(FreightPriceReader, OneBandAloneHoldsForEveryWeight) {
  EXPECT_EQ(read("5<=0.5k").prices[0].kind, Kind::kAny);
  EXPECT_EQ(read("0>=100v,5<=0.5k").prices[1].kind, Kind::kAny);
  EXPECT_EQ(read("5<=0.5k,0>=100v").prices[0].kind, Kind::kWeight);
  EXPECT_EQ(read("5<=0.5k,5<=1k").prices[1].kind, Kind::kWeight);
}

TEST(FreightPriceReader, UnitsWithoutABaseTakeThatOfTheLastBand) {
  EXPECT_EQ(read("5<=1k,9<=2k,+4k>10k").prices[2].base, 90'000);
  EXPECT_EQ(read("+4k>10k").prices[0].base, 0);
}

TEST(FreightPriceReader, ATaxRateOfZeroIsNotNone) {
  EXPECT_EQ(read("0%,0f,5").goodsRate, 0);
  EXPECT_EQ(read("0%,0f,5").freightRate, 0);
  EXPECT_EQ(read("5").goodsRate, std::nullopt);
}

TEST(FreightPriceReader, EveryMissingPartIsNamed) {
  const struct {
    const char* text;
    const char* problem;
  } cases[] = {
      {"", "a number is missing at the end"},
      {"5,", "a number is missing at the end"},
      {"5<=", "a number is missing at the end"},
      {"5<=1", "\"k\" is missing at the end"},
      {"5<=1kg", "\"k\" is missing before \"kg\""},
      {"5<1k", "\",\" is missing before \"<\""},
      {"5>=100k", "\"v\" is missing before \"k\""},
      {"5+2k>=10k", "\">\" is missing before \">=\""},
      {"5+2>10k", "\"k\" is missing before \">\""},
      {"*,5", "\"%\" is missing before \",\""},
      {"10%5", "\",\" is missing before \"5\""},
      {"10 GST%,5", "\",\" is missing before \"GST\""},
      {".<=1k", "\".\" is not a number with at most 9 digits and 4 decimals"},
      {"5<=1k\x80", "\",\" is missing before \"\x80\""},
  };
  for (const auto& c : cases) EXPECT_EQ(problemOf(c.text), c.problem) << c.text;
}

}  // namespace
}  // namespace varlo
