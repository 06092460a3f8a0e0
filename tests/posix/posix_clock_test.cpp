#include "posix/posix_clock.h"

#include <cstdlib>
#include <ctime>
#include <limits>
#include <optional>
#include <string>

#include <gtest/gtest.h>

#include "core/text/number_text.h"

namespace varlo {
namespace {

constexpr std::int64_t kMoment = 1044072306;  // 2003-02-01 04:05:06 UTC

// Sets the time zone while it lives.
class TimeZone {
 public:
  explicit TimeZone(const char* zone) {
    if (const char* old = std::getenv("TZ")) former_ = old;
    ::setenv("TZ", zone, 1);
    ::tzset();
  }
  ~TimeZone() {
    if (former_) {
      ::setenv("TZ", former_->c_str(), 1);
    } else {
      ::unsetenv("TZ");
    }
    ::tzset();
  }
  TimeZone(const TimeZone&) = delete;
  TimeZone& operator=(const TimeZone&) = delete;

 private:
  std::optional<std::string> former_;
};

std::string shown(std::int64_t time) {
  PosixClock clock;
  return DateToText(clock, time, false);
}

TEST(PosixClock, TellsTheTimeOfTheMachine) {
  PosixClock clock;
  const std::int64_t before = std::time(nullptr);
  const std::int64_t now = clock.now();
  EXPECT_GE(now, before);
  EXPECT_LE(now, std::time(nullptr));
}

TEST(PosixClock, SplitsATimeIntoItsParts) {
  const TimeZone zone("UTC0");
  PosixClock clock;
  CalendarTime time;
  ASSERT_TRUE(clock.localTime(kMoment, time));
  EXPECT_EQ(time.year, 2003);
  EXPECT_EQ(time.month, 2);
  EXPECT_EQ(time.day, 1);
  EXPECT_EQ(time.hour, 4);
  EXPECT_EQ(time.minute, 5);
  EXPECT_EQ(time.second, 6);
}

TEST(PosixClock, GivesLocalTime) {
  {
    const TimeZone east("EAST-3");
    EXPECT_EQ(shown(kMoment), "01/02/03 07:05:06");
  }
  const TimeZone west("WEST5");
  EXPECT_EQ(shown(kMoment), "31/01/03 23:05:06");
}

TEST(PosixClock, MindsSummerTime) {
  const TimeZone zone("CET-1CEST,M3.5.0,M10.5.0/3");
  EXPECT_EQ(shown(kMoment), "01/02/03 05:05:06");
  EXPECT_EQ(shown(1057032306), "01/07/03 06:05:06");
}

TEST(PosixClock, TakesTheBeginningAndTimesBeyond32Bits) {
  const TimeZone zone("UTC0");
  EXPECT_EQ(shown(0), "01/01/70 00:00:00");
  EXPECT_EQ(shown(2147483648), "19/01/38 03:14:08");
}

TEST(PosixClock, RefusesATimeThatCannotBeTold) {
  PosixClock clock;
  CalendarTime time;
  EXPECT_FALSE(clock.localTime(-1, time));
  EXPECT_FALSE(clock.localTime(std::numeric_limits<std::int64_t>::min(), time));
  EXPECT_FALSE(clock.localTime(std::numeric_limits<std::int64_t>::max(), time));
  EXPECT_EQ(shown(-1), "");
}

}  // namespace
}  // namespace varlo
