#include "core/text/number_text.h"

#include <limits>
#include <string>

#include <gtest/gtest.h>

#include "core/program/fixed_clock.h"

namespace varlo {
namespace {

constexpr std::int32_t kMost = std::numeric_limits<std::int32_t>::max();
constexpr std::int32_t kLeast = std::numeric_limits<std::int32_t>::min();

// A clock whose calendar shows what the test sets.
struct SetCalendar : Clock {
  std::int64_t now() override { return 0; }
  bool localTime(std::int64_t, CalendarTime& result) override {
    result = shown;
    return true;
  }
  CalendarTime shown;
};

std::string yearOf(int year) {
  SetCalendar clock;
  clock.shown = {.year = year, .month = 1, .day = 1};
  return DateToText(clock, 0, false).substr(6);
}

TEST(IntToText, WritesTheSignOfANegativeNumber) { EXPECT_EQ(IntToText(-5), "-5"); }

TEST(IntToText, WritesEveryNumberInDecimal) {
  EXPECT_EQ(IntToText(0), "0");
  EXPECT_EQ(IntToText(107001), "107001");
  EXPECT_EQ(IntToText(kMost), "2147483647");
  EXPECT_EQ(IntToText(kLeast), "-2147483648");
}

TEST(LeadingInt, ReadsTheLeadingNumber) {
  EXPECT_EQ(LeadingInt("42"), 42);
  EXPECT_EQ(LeadingInt("42abc"), 42);
  EXPECT_EQ(LeadingInt("42.9"), 42);
  EXPECT_EQ(LeadingInt("007"), 7);
  EXPECT_EQ(LeadingInt("0x10"), 0);
}

TEST(LeadingInt, SkipsWhiteSpaceInFront) { EXPECT_EQ(LeadingInt(" \t\n\v\f\r 7"), 7); }

TEST(LeadingInt, TakesOneSignRightBeforeTheDigits) {
  EXPECT_EQ(LeadingInt("-5"), -5);
  EXPECT_EQ(LeadingInt("+5"), 5);
  EXPECT_EQ(LeadingInt("  -5"), -5);
  EXPECT_EQ(LeadingInt("--5"), 0);
  EXPECT_EQ(LeadingInt("+-5"), 0);
  EXPECT_EQ(LeadingInt("- 5"), 0);
}

TEST(LeadingInt, IsZeroWithoutANumber) {
  EXPECT_EQ(LeadingInt(""), 0);
  EXPECT_EQ(LeadingInt("   "), 0);
  EXPECT_EQ(LeadingInt("-"), 0);
  EXPECT_EQ(LeadingInt("abc"), 0);
  EXPECT_EQ(LeadingInt("\xA0"
                       "5"),
            0);
}

TEST(LeadingInt, WrapsAt32Bits) {
  EXPECT_EQ(LeadingInt("2147483647"), kMost);
  EXPECT_EQ(LeadingInt("2147483648"), kLeast);
  EXPECT_EQ(LeadingInt("-2147483648"), kLeast);
  EXPECT_EQ(LeadingInt("-2147483649"), kMost);
  EXPECT_EQ(LeadingInt("4294967295"), -1);
  EXPECT_EQ(LeadingInt("4294967297"), 1);
  EXPECT_EQ(LeadingInt("10000000000000000000000001"), static_cast<std::int32_t>(0x4A000001U));
}

TEST(LeadingInt, ReadsBackWhatIntToTextWrites) {
  for (std::int64_t number = kLeast; number <= kMost; number += 9999991) {
    const auto value = static_cast<std::int32_t>(number);
    EXPECT_EQ(LeadingInt(IntToText(value)), value);
  }
}

TEST(DateToText, PutsTheDayFirst) {
  FixedClock clock(0);
  EXPECT_EQ(DateToText(clock, 1044072306, false), "01/02/03 04:05:06");
}

TEST(DateToText, PutsTheMonthFirstWithDayLast) {
  FixedClock clock(0);
  EXPECT_EQ(DateToText(clock, 1044072306, true), "02/01/03 04:05:06");
}

TEST(DateToText, ShowsTheTimeItIsGivenAndNotThePresentOne) {
  FixedClock clock(1044072306);
  EXPECT_EQ(DateToText(clock, 0, false), "01/01/70 00:00:00");
}

TEST(DateToText, TheYearIsTheCountSince1900AndLess100Above99) {
  EXPECT_EQ(yearOf(1970), "70 00:00:00");
  EXPECT_EQ(yearOf(1999), "99 00:00:00");
  EXPECT_EQ(yearOf(2000), "00 00:00:00");
  EXPECT_EQ(yearOf(2009), "09 00:00:00");
  EXPECT_EQ(yearOf(2099), "99 00:00:00");
  EXPECT_EQ(yearOf(2100), "100 00:00:00");
}

TEST(DateToText, ATimeThatCannotBeConvertedIsEmpty) {
  FixedClock clock(0);
  EXPECT_EQ(DateToText(clock, -1, false), "");
  EXPECT_EQ(DateToText(clock, std::numeric_limits<std::int64_t>::max(), true), "");
}

TEST(FixedClock, StandsStillUntilItIsSet) {
  FixedClock clock(5);
  EXPECT_EQ(clock.now(), 5);
  EXPECT_EQ(clock.now(), 5);
  clock.set(1044072306);
  EXPECT_EQ(clock.now(), 1044072306);
}

TEST(FixedClock, SplitsATimeByTheCalendarOfUtc) {
  FixedClock clock(0);
  CalendarTime time;
  ASSERT_TRUE(clock.localTime(951827696, time));  // a leap day
  EXPECT_EQ(time.year, 2000);
  EXPECT_EQ(time.month, 2);
  EXPECT_EQ(time.day, 29);
  EXPECT_EQ(time.hour, 12);
  EXPECT_EQ(time.minute, 34);
  EXPECT_EQ(time.second, 56);
  ASSERT_TRUE(clock.localTime(253402300799, time));
  EXPECT_EQ(time.year, 9999);
  EXPECT_EQ(time.second, 59);
  EXPECT_FALSE(clock.localTime(253402300800, time));
}

}  // namespace
}  // namespace varlo
