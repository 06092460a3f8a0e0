#include "commerce/freight/exact_amount.h"

#include <gtest/gtest.h>

namespace varlo {
namespace {

TEST(ExactAmount, ReadsDecimalNumbersInTenThousandths) {
  EXPECT_EQ(NumberFromText("0"), 0);
  EXPECT_EQ(NumberFromText("12"), 120'000);
  EXPECT_EQ(NumberFromText("0.5"), 5'000);
  EXPECT_EQ(NumberFromText(".5"), 5'000);
  EXPECT_EQ(NumberFromText("5."), 50'000);
  EXPECT_EQ(NumberFromText("007.25"), 72'500);
  EXPECT_EQ(NumberFromText("999999999.9999"), 9'999'999'999'999);
}

TEST(ExactAmount, RefusesWhatIsNoPlainNumberOrTooLong) {
  for (const char* text : {"", ".", "-1", "+1", " 1", "1 ", "1,5", "1.2.3", "1e3", "abc", "1234567890", "0.00001"}) {
    EXPECT_EQ(NumberFromText(text), std::nullopt) << text;
  }
}

TEST(ExactAmount, WritesTheShortestText) {
  EXPECT_EQ(NumberToText(0), "0");
  EXPECT_EQ(NumberToText(120'000), "12");
  EXPECT_EQ(NumberToText(5'000), "0.5");
  EXPECT_EQ(NumberToText(1), "0.0001");
}

TEST(ExactAmount, RoundsHalfACentUp) {
  EXPECT_EQ(CentsOf(49), 0);
  EXPECT_EQ(CentsOf(50), 1);
  EXPECT_EQ(CentsOf(149), 1);
  EXPECT_EQ(CentsOf(150), 2);
  EXPECT_EQ(TaxCents(499'999), 0);
  EXPECT_EQ(TaxCents(500'000), 1);
}

TEST(ExactAmount, WritesMoneyWithTwoDecimals) {
  EXPECT_EQ(MoneyToText(0), "0.00");
  EXPECT_EQ(MoneyToText(5), "0.05");
  EXPECT_EQ(MoneyToText(1250), "12.50");
  EXPECT_EQ(MoneyToText(kMostCents), "999999999.99");
}

}  // namespace
}  // namespace varlo
